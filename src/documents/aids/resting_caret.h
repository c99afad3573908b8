// SPDX-License-Identifier: GPL-3.0-or-later
// The caret, which stops blinking when nobody types.
#pragma once

#include "documents/aids/text_aid.h"

#include <QTimer>

namespace kav {

/// Lets the caret stand still, and be seen, some time after the caret or the text last changed: a program
/// that nobody uses wakes no processor to blink. It blinks again with the next change.
class RestingCaret : public TextAid {
  public:
    explicit RestingCaret(TextBox& box);

  private:
    void blink();
    void rest();

    QTimer untilRest_;
    int period_;  ///< of the blinking, in milliseconds
};

}  // namespace kav
