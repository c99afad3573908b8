// SPDX-License-Identifier: GPL-3.0-or-later
// Where the caret is and what the selection costs.
#pragma once

#include "documents/aids/text_aid.h"

#include <string>

namespace kav {

class Doc;
class ProgramWatch;

/// Tells the document's window line and column of the caret, both from 1, a TAB being one column, and
/// the bytes and T-states of the selected statements.
class CaretStatus : public TextAid {
  public:
    CaretStatus(TextBox& box, Doc& document, const ProgramWatch& program);

  private:
    void tell();
    [[nodiscard]] std::string costOfSelection() const;

    Doc& document_;
    const ProgramWatch& program_;
};

}  // namespace kav
