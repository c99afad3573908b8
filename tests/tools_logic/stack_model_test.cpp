// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/stack_model.h"

#include "runtime/failure.h"

#include <gtest/gtest.h>

namespace kav {

TEST(RegisterText, BecomesFourCharacters) {
    EXPECT_EQ(normalizeRegisterText(""), "0000");
    EXPECT_EQ(normalizeRegisterText("7"), "0007");
    EXPECT_EQ(normalizeRegisterText("A"), "000A");
    EXPECT_EQ(normalizeRegisterText("12AB"), "12AB");
    EXPECT_EQ(normalizeRegisterText("12345"), "1234");
    EXPECT_EQ(normalizeRegisterText("ABCDE"), "ABCD");
    EXPECT_EQ(normalizeRegisterText("hello"), "hell");
}

TEST(RegisterText, IsNeverCutWithinACharacter) {
    EXPECT_EQ(normalizeRegisterText("abc\xC3\xA9z"), "abc\xC3\xA9");
    EXPECT_EQ(normalizeRegisterText("\xC3\xA9"), "000\xC3\xA9");
}

TEST(RegisterText, IsEmptiedByAClickWhenItIsZero) {
    EXPECT_EQ(clickedRegisterText("0000"), "");
    EXPECT_EQ(clickedRegisterText("0001"), "0001");
    EXPECT_EQ(clickedRegisterText("000"), "000");
    EXPECT_EQ(clickedRegisterText("00000"), "00000");
}

TEST(StackModel, StartsEmpty) {
    const StackModel stack;
    EXPECT_EQ(stack.stackPointerText(), "0000");
    EXPECT_EQ(stack.lastPopped(), "");
    EXPECT_FALSE(stack.arrowVisible());
    EXPECT_EQ(stack.arrowTop(), 2420);
    EXPECT_FALSE(stack.slotVisible(1));
}

TEST(StackModel, TakesTenValuesAndRefusesTheEleventh) {
    StackModel stack;
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(stack.push(std::to_string(i)));
    EXPECT_FALSE(stack.push("A"));
    EXPECT_EQ(stack.stackPointerText(), "0010");
    EXPECT_EQ(stack.slot(1), "0");
    EXPECT_EQ(stack.slot(10), "9");
    EXPECT_EQ(stack.arrowTop(), 2420 - 2350);
}

TEST(StackModel, GivesBackWhatWasPushedLast) {
    StackModel stack;
    stack.push("12AB");
    EXPECT_EQ(stack.arrowTop(), 2185);
    EXPECT_TRUE(stack.arrowVisible());
    EXPECT_TRUE(stack.pop());
    EXPECT_EQ(stack.lastPopped(), "12AB");
    EXPECT_EQ(stack.stackPointerText(), "0000");
    EXPECT_FALSE(stack.arrowVisible());
}

TEST(StackModel, PopsInReverseOrder) {
    StackModel stack;
    for (const char* value : {"0001", "0002", "0003"})
        stack.push(value);
    for (const char* value : {"0003", "0002", "0001"}) {
        EXPECT_TRUE(stack.pop());
        EXPECT_EQ(stack.lastPopped(), value);
    }
}

TEST(StackModel, KeepsTheLastPoppedValueAfterARefusedPop) {
    StackModel stack;
    EXPECT_FALSE(stack.pop());
    EXPECT_EQ(stack.lastPopped(), "");
    stack.push("1234");
    stack.pop();
    EXPECT_FALSE(stack.pop());
    EXPECT_EQ(stack.lastPopped(), "1234");
    EXPECT_EQ(stack.count(), 0);
}

TEST(StackModel, StartsAfreshButForTheLastPoppedValue) {
    StackModel stack;
    stack.push("1111");
    stack.push("2222");
    stack.pop();
    stack.restart();
    EXPECT_EQ(stack.stackPointerText(), "0000");
    EXPECT_FALSE(stack.arrowVisible());
    EXPECT_EQ(stack.lastPopped(), "2222");
}

TEST(StackModel, ShowsNoSlotBeyondTheTop) {
    StackModel stack;
    stack.push("1111");
    EXPECT_TRUE(stack.slotVisible(1));
    EXPECT_FALSE(stack.slotVisible(0));
    EXPECT_FALSE(stack.slotVisible(2));
    EXPECT_THROW((void)stack.slot(2), Failure);
}

TEST(StackAboutBox, HasLineFeedsAlone) {
    EXPECT_TRUE(kStackAboutText.starts_with("Stack Visualizer\nby Tamsin Orrel\n\nThis program is intended"));
    EXPECT_NE(
        kStackAboutText.find("minus the value shown.\n\nThis is freeware, and no fee may be charged for it "
                             "or any program/package which contains it."),
        std::string_view::npos);
    EXPECT_EQ(kStackAboutText.find('\r'), std::string_view::npos);
}

}  // namespace kav
