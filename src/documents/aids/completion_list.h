// SPDX-License-Identifier: GPL-3.0-or-later
// A list of the words that may be meant by one that is begun.
#pragma once

#include "documents/aids/completions.h"
#include "documents/aids/text_aid.h"

#include <string>
#include <vector>

#include <QPointer>

class QKeyEvent;
class QListWidget;
class QWidget;

namespace kav {

class ProgramWatch;

/// Offers words below the caret. The list comes up by itself while a word is typed, and with Ctrl+Space. It
/// never stands in the way of typing: Enter and Tab take a word from it only when the user has gone into the
/// list with Up or Down, or has asked for it; otherwise they end the list and do what they always do.
class CompletionList : public TextAid {
  public:
    /// `document` is the window that the text box stands in.
    CompletionList(TextBox& box, QWidget& document, const ProgramWatch& program);
    ~CompletionList() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void offer(CompletionCause cause);
    void follow(int updated);
    void show();
    void place();
    void hide();
    [[nodiscard]] bool isShown() const;
    bool handleKey(const QKeyEvent& event);
    bool handleKeyInList(const QKeyEvent& event);
    void move(int step);
    void accept();

    const QWidget& document_;
    const ProgramWatch& program_;
    QPointer<QListWidget> list_;  // belongs to the window, which may be gone first
    CompletionCause cause_ = CompletionCause::Typing;
    std::vector<std::string> words_;  // as the list shows them
    std::size_t wordStart_ = 0;       // where the begun word starts in the text
    std::size_t caret_ = 0;           // where the caret was when the list was filled
};

}  // namespace kav
