// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of a text's lines.
#pragma once

#include "documents/aids/text_aid.h"

namespace kav {

/// Shows the number of each line in a margin that is as wide as the largest number needs.
class LineNumbers : public TextAid {
  public:
    explicit LineNumbers(TextBox& box);

    void applyColours(const AidColours& colours) override;

  private:
    void fitWidth();

    int digits_ = 0;
};

}  // namespace kav
