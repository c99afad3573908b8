// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of the word under the mouse.
#pragma once

#include "documents/aids/text_aid.h"

class QHelpEvent;

namespace kav {

class ProgramWatch;

/// Shows, when the mouse rests on a word of a text that has the keyboard: a name's value and where it is
/// defined, a number in other radices, an instruction's bytes and T-states.
class CodeHover : public TextAid {
  public:
    CodeHover(TextBox& box, ProgramWatch& program);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool showFor(const QHelpEvent& event);
    [[nodiscard]] int leftOfText() const;

    ProgramWatch& program_;
};

}  // namespace kav
