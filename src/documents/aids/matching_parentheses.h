// SPDX-License-Identifier: GPL-3.0-or-later
// The pair of parentheses that the caret is at.
#pragma once

#include "documents/aids/text_aid.h"

namespace kav {

/// Marks the parenthesis beside the caret together with its partner, and one that has none as lone.
class MatchingParentheses : public TextAid {
  public:
    explicit MatchingParentheses(TextBox& box);

    void applyColours(const AidColours& colours) override;

  private:
    void mark();
};

}  // namespace kav
