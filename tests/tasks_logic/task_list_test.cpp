// SPDX-License-Identifier: GPL-3.0-or-later
#include "tasks/task_list.h"

#include "runtime/failure.h"

#include <gtest/gtest.h>

namespace kav {

namespace {

/// Tasks named "a", "b", ...; a capital letter is a ticked one.
TaskList listOf(std::string_view letters) {
    TaskList list;
    for (const char letter : letters) {
        list.add(std::string(1, letter), "10001");
        list.setFinished(list.count(), letter >= 'A' && letter <= 'Z');
    }
    return list;
}

std::string textsOf(const TaskList& list) {
    std::string texts;
    for (const Task& task : list.tasks())
        texts += task.text;
    return texts;
}

std::string ticksOf(const TaskList& list) {
    std::string ticks;
    for (const Task& task : list.tasks())
        ticks += task.finished ? 'x' : '-';
    return ticks;
}

}  // namespace

TEST(TaskList, KeepsTheOrderOfAdding) {
    TaskList list;
    list.add("first", "10001");
    list.add("second", "20002", kTaskErrorColour);
    EXPECT_EQ(list.count(), 2U);
    EXPECT_EQ(list.task(1).text, "first");
    EXPECT_EQ(list.task(1).colour, kTaskDefaultColour);
    EXPECT_EQ(list.task(2).colour, 255U);
    EXPECT_FALSE(list.task(2).finished);
}

TEST(TaskList, DeleteFinishedTakesThreeInARow) {
    TaskList list = listOf("aBCDeF");
    list.deleteFinished();
    EXPECT_EQ(textsOf(list), "ae");
}

TEST(TaskList, DeletesTheTaskAskedFor) {
    TaskList list = listOf("abc");
    list.remove(2);
    EXPECT_EQ(textsOf(list), "ac");
    list.clear();
    EXPECT_EQ(list.count(), 0U);
}

TEST(TaskList, InvertingTwiceRestoresTheTicks) {
    TaskList list = listOf("aBc");
    list.invertChecked();
    EXPECT_EQ(ticksOf(list), "x-x");
    list.invertChecked();
    EXPECT_EQ(ticksOf(list), "-x-");
}

TEST(TaskList, ChecksAndUnchecksAll) {
    TaskList list = listOf("aBc");
    list.checkAll();
    EXPECT_EQ(ticksOf(list), "xxx");
    list.uncheckAll();
    EXPECT_EQ(ticksOf(list), "---");
}

TEST(TaskList, RefusesIndexesThatHaveNoTask) {
    TaskList list = listOf("a");
    EXPECT_THROW((void)list.task(0), Failure);
    EXPECT_THROW(list.remove(2), Failure);
    EXPECT_THROW(list.setFinished(2, true), Failure);
    EXPECT_THROW((void)list.select(2, {}), Failure);
}

TEST(TaskBoxes, ShowThePickedTask) {
    TaskList list;
    list.add("fix it", "20015");
    EXPECT_EQ(list.select(1, {"9", "9", "left over"}), (TaskBoxes{"2", "0015", "fix it"}));
    EXPECT_EQ(list.task(1).text, "fix it");
}

TEST(TaskBoxes, AreWrittenBackWhenAnotherTaskIsPicked) {
    TaskList list = listOf("ab");
    (void)list.select(1, {});
    (void)list.select(2, {"3", "7", "edited"});
    EXPECT_EQ(list.task(1).text, "edited");
    // As typed: only tasks made by hand get four digits.
    EXPECT_EQ(list.task(1).tag, "37");
    EXPECT_EQ(list.task(2).text, "b");
}

TEST(TaskBoxes, ShowWhatWasTypedWhenTheSameTaskIsPickedAgain) {
    TaskList list = listOf("a");
    (void)list.select(1, {});
    EXPECT_EQ(list.select(1, {"3", "0007", "edited"}), (TaskBoxes{"3", "0007", "edited"}));
}

TEST(TaskBoxes, AreNotWrittenBackPastTheEndOfTheList) {
    TaskList list = listOf("abc");
    (void)list.select(3, {});
    list.remove(3);
    (void)list.select(1, {"9", "9", "edited"});
    EXPECT_EQ(textsOf(list), "ab");
}

TEST(TaskBoxes, RememberAnIndexAndNotATask) {
    TaskList list = listOf("abc");
    (void)list.select(1, {});
    list.remove(1);
    (void)list.select(2, {"1", "0001", "edited"});
    EXPECT_EQ(list.task(1).text, "edited");
}

TEST(TaskBoxes, OfAShortTagShareItsCharacters) {
    TaskList list;
    list.add("t", "27");
    EXPECT_EQ(list.select(1, {}), (TaskBoxes{"2", "27", "t"}));
    list.add("t", "");
    EXPECT_EQ(list.select(2, {"2", "7", "t"}), (TaskBoxes{"", "", "t"}));
}

TEST(HandMadeTask, HasNoBlankBehindDocument) {
    EXPECT_EQ(handMadeTask("2", "15", "fix it").text, "Document2 Line 15 fix it");
}

TEST(HandMadeTask, BringsItsLineToFourDigits) {
    EXPECT_EQ(handMadeTask("2", "7", "").tag, "20007");
    EXPECT_EQ(handMadeTask("2", "", "").tag, "20000");
    EXPECT_EQ(handMadeTask("2", "123456", "").tag, "23456");
    EXPECT_EQ(handMadeTask("2", "12\xC3\xA9", "").tag, "2012\xC3\xA9");
}

TEST(GotoTarget, IsTheTagsFirstCharacterAndLastFour) {
    EXPECT_EQ(gotoTargetOf("20007").document, "2");
    EXPECT_EQ(gotoTargetOf("20007").line, 7);
    EXPECT_EQ(gotoTargetOf("2123456").line, 3456);
    EXPECT_EQ(gotoTargetOf("xabcd").document, "0");
    EXPECT_EQ(gotoTargetOf("xabcd").line, 0);
    EXPECT_EQ(gotoTargetOf("").line, 0);
    EXPECT_EQ(gotoTargetOf("19E99").line, 1'000'000'000);
}

TEST(GotoPosition, IsTheBreakThatEndsTheLineBefore) {
    const std::string text = "one\r\ntwo\r\n\r\nfour";
    EXPECT_EQ(gotoPosition(text, 2), 4U);
    EXPECT_EQ(gotoPosition(text, 3), 9U);
    EXPECT_EQ(gotoPosition(text, 4), 11U);
}

TEST(GotoPosition, OfTheFirstLineIsTheSecondCharacter) {
    EXPECT_EQ(gotoPosition("one\r\ntwo", 1), 1U);
    EXPECT_EQ(gotoPosition("one\r\ntwo", 0), 1U);
    EXPECT_EQ(gotoPosition("one\r\ntwo", -5), 1U);
    EXPECT_EQ(gotoPosition("", 1), 1U);
}

TEST(GotoPosition, BeyondTheLastLineIsTheBeginning) {
    EXPECT_EQ(gotoPosition("one\r\ntwo", 3), 0U);
    EXPECT_EQ(gotoPosition("one\r\ntwo", 9999), 0U);
    EXPECT_EQ(gotoPosition("", 2), 0U);
}

TEST(GotoPosition, PassesOverABreakAtTheVeryStart) {
    // The walk looks from the second character on.
    EXPECT_EQ(gotoPosition("\r\ntwo\r\nthree", 2), 6U);
}

}  // namespace kav
