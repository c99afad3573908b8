// SPDX-License-Identifier: GPL-3.0-or-later
// What all aids for the reader of a text have in common.
#pragma once

#include "documents/aids/aid_colours.h"

#include <string>

#include <QObject>

namespace kav {

class TextBox;

/// Something that helps to read a text: attached to a text box as long as it lives, it changes what is shown
/// of the text and never the text, its steps of undo or its modified marker.
class TextAid : public QObject {
  public:
    explicit TextAid(TextBox& box) : box_(box) {}

    /// Puts this aid's colours, and all else that it keeps in the text box's styles, in place. Called at the
    /// start, when the desktop's colours change and when the text's font has changed.
    virtual void applyColours(const AidColours& /*colours*/) {}

  protected:
    /// As much of a line as aids look at, without its end. Lines of a program are far shorter than what is
    /// cut off; a line of megabytes stays cheap.
    struct LineStart {
        std::string text;
        bool isCutOff;
    };
    [[nodiscard]] LineStart startOfLine(long line) const;

    TextBox& box_;
};

}  // namespace kav
