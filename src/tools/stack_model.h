// SPDX-License-Identifier: GPL-3.0-or-later
// The stack visualizer's model: ten slots of register texts, a count and an arrow.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// A register field's text as four characters: an empty text becomes "0000", a longer one loses what follows
/// its first four characters (code points), a shorter one gets zeros in front.
[[nodiscard]] std::string normalizeRegisterText(std::string_view text);

/// What a click leaves in a register field: nothing where "0000" was, so that a value can be typed at once.
[[nodiscard]] std::string clickedRegisterText(std::string_view text);

/// A stack of at most ten register texts. Values are texts: nothing asks whether they are hexadecimal.
class StackModel {
  public:
    static constexpr int kSlots = 10;
    /// Where the arrow stands when the stack is empty, and its way up for each value, in twips (1/1440
    /// inch). Slots are 240 twips apart: the arrow drifts from them by 5 twips a value, as it should.
    static constexpr int kArrowStart = 2420;
    static constexpr int kArrowStep = 235;

    /// Puts the value on the stack; false, and nothing changes, when ten values are on it.
    bool push(std::string value);

    /// Takes the topmost value, which becomes the last popped one; false, and nothing changes, when the stack
    /// is empty.
    bool pop();

    /// Empties the stack. The last popped value stays.
    void restart();

    [[nodiscard]] int count() const { return static_cast<int>(slots_.size()); }
    [[nodiscard]] bool slotVisible(int slot) const { return slot >= 1 && slot <= count(); }
    /// The value in a slot, counted from 1 at the bottom. Raises failure 9 for a slot that is not visible.
    [[nodiscard]] const std::string& slot(int slot) const;
    /// The value of the last successful pop; empty before the first. This is what a register takes after a
    /// pop, whether the pop succeeded or not.
    [[nodiscard]] const std::string& lastPopped() const { return lastPopped_; }

    /// The count as four decimal digits.
    [[nodiscard]] std::string stackPointerText() const;
    /// The top edge of the arrow in twips.
    [[nodiscard]] int arrowTop() const { return kArrowStart - kArrowStep * count(); }
    [[nodiscard]] bool arrowVisible() const { return arrowTop() != kArrowStart; }

  private:
    std::vector<std::string> slots_;
    std::string lastPopped_;
};

/// What the visualizer says when a push or a pop is refused.
inline constexpr std::string_view kCannotPushTitle = "Cannot Push Value";
inline constexpr std::string_view kCannotPushText = "Sorry, can only push 10 values.";
inline constexpr std::string_view kCannotPopTitle = "Cannot Pop Value";
inline constexpr std::string_view kCannotPopText = "This would screw up the calculator.";

/// The visualizer's about box. Its lines end in LF alone.
inline constexpr std::string_view kStackAboutTitle = "About Stack Visualizer";
inline constexpr std::string_view kStackAboutText =
    "Stack Visualizer\n"
    "by Tamsin Orrel\n"
    "\n"
    "This program is intended to help you visualize the stack of a Z80 processor. It is intended as you go "
    "through your program visually that you keep the registers updated. Then you can push and pop them with "
    "a "
    "click of the mouse. Note that the SP register cannot be edited and that the actual stack is equal to "
    "the "
    "location of the stack in RAM before your program was run minus the value shown.\n"
    "\n"
    "This is freeware, and no fee may be charged for it or any program/package which contains it. You may "
    "use "
    "it and edit your own copy for yourself, but you may not distribute an edited copy. The author takes no "
    "responsibility for any loss of data.";

}  // namespace kav
