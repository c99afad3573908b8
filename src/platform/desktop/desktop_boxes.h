// SPDX-License-Identifier: GPL-3.0-or-later
// Message and input boxes of the toolkit.
#pragma once

#include "platform/boxes.h"

class QWidget;

namespace kav {

/// Shows the boxes as modal windows over the active window of the program.
class DesktopBoxes : public Boxes {
  public:
    BoxAnswer show(const MessageBox& box) override;
    std::string ask(const InputBox& box) override;
};

}  // namespace kav
