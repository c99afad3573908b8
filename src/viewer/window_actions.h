// SPDX-License-Identifier: GPL-3.0-or-later
// The tool bar and the keys that the viewer's windows share.
#pragma once

#include <functional>

#include <QAction>
#include <QKeySequence>
#include <QList>
#include <QMainWindow>
#include <QToolBar>

namespace kav::viewer {

/// A bar of buttons with words, which stays where it is.
QToolBar* makeToolBar(QMainWindow& window);

/// Adds a button with keys, which its tip tells. The first key is the one told.
QAction* addCommand(QMainWindow& window, QToolBar& bar, const QString& name, const QString& text,
                    const QList<QKeySequence>& keys, std::function<void()> run);

/// Adds larger, smaller and normal letters for a text view: Ctrl with +, - and 0.
template <typename View>
void addZoomActions(QMainWindow& window, QToolBar& bar, View& view) {
    bar.addSeparator();
    addCommand(window, bar, "zoomIn", "Larger", {QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")},
               [&view] { view.zoomIn(1); });
    addCommand(window, bar, "zoomOut", "Smaller", {QKeySequence("Ctrl+-")}, [&view] { view.zoomOut(1); });
    const qreal normal = view.font().pointSizeF();
    addCommand(window, bar, "zoomNormal", "Normal Size", {QKeySequence("Ctrl+0")}, [&view, normal] {
        QFont font = view.font();
        font.setPointSizeF(normal);
        view.setFont(font);
    });
}

}  // namespace kav::viewer
