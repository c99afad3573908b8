// SPDX-License-Identifier: GPL-3.0-or-later
// The errors of the last build, beside their lines.
#pragma once

#include "documents/aids/line_error.h"
#include "documents/aids/text_aid.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

class QHelpEvent;

namespace kav {

/// Marks the lines that a build found errors in, in a margin that is there while there are marks, and tells
/// what is wrong when the mouse rests on the margin. Marks move with their lines while the text is edited,
/// and keep the numbers of their lines when the text is replaced as a whole.
class ErrorMarks : public TextAid {
  public:
    explicit ErrorMarks(TextBox& box);

    /// Marks these lines and no others. An error beyond the last line is put there, one without a line
    /// nowhere.
    void show(const std::vector<LineError>& errors);

    /// What is wrong with the line, counted from 1: one error a line, or nothing.
    [[nodiscard]] std::string messagesAt(int line) const;

    void applyColours(const AidColours& colours) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void mark(const LineError& error);
    void fitWidth();
    [[nodiscard]] std::vector<LineError> errorsShown() const;
    void noteErrors();
    void putBackErrors();
    bool tellErrorsAt(const QHelpEvent& event);
    [[nodiscard]] std::optional<int> lineWhoseMarginIsAt(const QPoint& point) const;

    std::map<int, std::string> messages_;  ///< of each mark, by the text box's handle for it
    /// The errors that were shown when the whole text went, until another is there.
    std::optional<std::vector<LineError>> noted_;
};

}  // namespace kav
