// SPDX-License-Identifier: GPL-3.0-or-later
// Finding in the toolkit's two kinds of text view, which share no base class.
#pragma once

#include "viewer/find_bar.h"

#include <QAction>
#include <QKeySequence>
#include <QTextCursor>
#include <QTextDocument>

namespace kav::viewer {

/// From where a text is looked for.
enum class FindFrom { SelectionStart, Next, Previous };

/// Selects the text's next place, round the ends of the document. False, and nothing changes, when there is
/// none.
template <typename View>
bool findIn(View& view, const QString& text, FindFrom from) {
    if (text.isEmpty()) return false;
    const QTextDocument::FindFlags flags =
        from == FindFrom::Previous ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    QTextCursor start = view.textCursor();
    if (from == FindFrom::SelectionStart) start.setPosition(start.selectionStart());
    QTextCursor found = view.document()->find(text, start, flags);
    if (found.isNull()) {
        QTextCursor end(view.document());
        if (from == FindFrom::Previous) end.movePosition(QTextCursor::End);
        found = view.document()->find(text, end, flags);
    }
    if (found.isNull()) return false;
    view.setTextCursor(found);
    return true;
}

/// Lets the bar find in the view, and gives the window the keys for it.
template <typename View>
void connectFindBar(QWidget& window, FindBar& bar, View& view) {
    const auto find = [&bar, &view](FindFrom from) { bar.tell(findIn(view, bar.text(), from)); };
    QObject::connect(&bar, &FindBar::typed, &view, [find] { find(FindFrom::SelectionStart); });
    QObject::connect(&bar, &FindBar::nextWanted, &view, [find] { find(FindFrom::Next); });
    QObject::connect(&bar, &FindBar::previousWanted, &view, [find] { find(FindFrom::Previous); });
    QObject::connect(&bar, &FindBar::closed, &view, [&bar, &view] {
        bar.hide();
        view.setFocus();
    });
    const auto onKey = [&window](const QKeySequence& key, auto run) {
        auto* action = new QAction(&window);
        action->setShortcut(key);
        QObject::connect(action, &QAction::triggered, &window, run);
        window.addAction(action);
    };
    onKey(Qt::Key_F3, [find] { find(FindFrom::Next); });
    onKey(Qt::SHIFT | Qt::Key_F3, [find] { find(FindFrom::Previous); });
}

}  // namespace kav::viewer
