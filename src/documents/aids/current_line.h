// SPDX-License-Identifier: GPL-3.0-or-later
// The line that the caret is in.
#pragma once

#include "documents/aids/text_aid.h"

namespace kav {

/// Gives the caret's line a ground of its own, also while another window has the keyboard: a search or a
/// task that was gone to shows where it ended.
class CurrentLine : public TextAid {
  public:
    explicit CurrentLine(TextBox& box);

    void applyColours(const AidColours& colours) override;
};

}  // namespace kav
