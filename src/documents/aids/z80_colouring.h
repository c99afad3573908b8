// SPDX-License-Identifier: GPL-3.0-or-later
// Colours for the pieces of Z80 source.
#pragma once

#include "documents/aids/text_aid.h"

namespace kav {

/// Colours mnemonics, registers, directives, numbers, strings, comments and labels. Only the lines in view
/// are looked at, each time that they are painted, so that the length of the text does not matter.
class Z80Colouring : public TextAid {
  public:
    explicit Z80Colouring(TextBox& box);

    void applyColours(const AidColours& colours) override;

  private:
    void colourLinesInView();
    void colourLine(long line);
};

}  // namespace kav
