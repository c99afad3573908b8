// SPDX-License-Identifier: GPL-3.0-or-later
// What the program asks and tells in small modal boxes.
#pragma once

#include <string>

namespace kav {

enum class BoxIcon { None, Information, Question, Exclamation };
enum class BoxButtons { Ok, YesNo, YesNoCancel, AbortRetryIgnore };
enum class BoxAnswer { Ok, Yes, No, Cancel, Abort, Retry, Ignore };

/// One message box. Texts are UTF-8; a line feed breaks a line.
struct MessageBox {
    std::string text;
    std::string title;
    BoxIcon icon = BoxIcon::None;
    BoxButtons buttons = BoxButtons::Ok;
    /// The button that Enter presses; the first one when this is no answer of `buttons`.
    BoxAnswer defaultAnswer = BoxAnswer::Ok;
};

/// One question for a line of text.
struct InputBox {
    std::string prompt;
    std::string title;
    std::string defaultText;
};

/// Modal message and input boxes over the main window.
class Boxes {
  public:
    virtual ~Boxes() = default;

    /// Shows the box and waits for its answer. A box that is shut without a button answers as Cancel does,
    /// where there is no Cancel as No, Ignore or Ok.
    virtual BoxAnswer show(const MessageBox& box) = 0;

    /// Shows the box and waits; the text as typed, or an empty text on Cancel.
    virtual std::string ask(const InputBox& box) = 0;
};

}  // namespace kav
