// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/sprite_editor_window.h"

#include "windows/tool_window_fixture.h"

#include <QPushButton>

namespace kav::test {

class SpriteEditor : public ToolWindowTest<Form2> {
  protected:
    void SetUp() override {
        ToolWindowTest::SetUp();
        choose("sprdef");
    }

    std::string copied() {
        press("Command2");
        return desktop_.clipboard.content;
    }

    /// The digits of one line of the copied text, counted from 1.
    std::string line(int number) {
        const std::size_t start = static_cast<std::size_t>(number - 1) * 16;
        return copied().substr(start + 6, 8);
    }
};

const std::string kEmptySprite =
    "\t.db %00000000\r\n\t.db %00000000\r\n\t.db %00000000\r\n\t.db %00000000\r\n"
    "\t.db %00000000\r\n\t.db %00000000\r\n\t.db %00000000\r\n\t.db %00000000\r\n\t.db %";

TEST_F(SpriteEditor, HasItsControlsInTheirPlaces) {
    EXPECT_EQ(tool().objectName(), "Form2");
    EXPECT_EQ(tool().windowTitle(), "Pixmoor");
    EXPECT_EQ(tool().size(), QSize(344, 385));
    EXPECT_FALSE(tool().isModal());
    EXPECT_EQ(tool().parentWidget(), &compiler());
    expectPlace("Command1", "Insert At Cursor", {0, 304, 113, 49});
    expectPlace("Command2", "Copy to Clipboard", {112, 304, 113, 49});
    expectPlace("Command3", "Close", {224, 304, 113, 49});
    expectPlace("Command4", "Clear", {0, 352, 337, 17});
    expectPlace("Command6", "Refresh", {0, 368, 337, 17});
}

TEST_F(SpriteEditor, SetsTheCellRightAndBelowOfThePointer) {
    scriptDiscs(2);
    clickAt(1.5, 1.5);
    clickAt(3.1, 2.9);
    EXPECT_EQ(line(1), "10000000");
    EXPECT_EQ(line(3), "01000000");
    EXPECT_EQ(copied().size(), 134U);
}

TEST_F(SpriteEditor, WritesTheRightmostColumnAsTheEighthLine) {
    scriptDiscs(1);
    clickAt(8.95, 1.5);
    EXPECT_EQ(line(7), "00000000");
    EXPECT_EQ(line(8), "10000000");
}

TEST_F(SpriteEditor, IgnoresClicksBesideTheGrid) {
    clickAt(0.9, 1.5);
    clickAt(9.03, 1.5);
    clickAt(1.5, 0.9);
    clickAt(1.5, 0.9, Qt::RightButton);
    EXPECT_EQ(copied(), kEmptySprite);
}

TEST_F(SpriteEditor, ReachesTheBottomRowAboveTheButtonsOnly) {
    scriptDiscs(1);
    clickAt(4.5, 8.02);
    EXPECT_EQ(line(4), "00000001");
    // A button has no use for a right click, and the cell below it does not get it.
    QTest::mouseClick(&control<QWidget>("Command2"), Qt::RightButton, Qt::NoModifier, {40, 5});
    EXPECT_EQ(line(4), "00000001");
}

TEST_F(SpriteEditor, DrawsADiscOfRingsAroundTheCellsCorner) {
    desktop_.random.numbers = {0.5, 0.5};
    clickAt(4.9, 4.9);
    // Base 389449 and step 30; the ring at 0.4 cm is number 100, one more or less for the pixel's width.
    const QColor ring = shownAt(4.4, 4.0);
    const Colour expected = 389449 + 30 * 113;
    EXPECT_NEAR(ring.green(), greenOf(expected), 6);
    EXPECT_EQ(ring.blue(), blueOf(expected));
    EXPECT_NE(shownAt(4.0, 4.45), background());
    EXPECT_EQ(shownAt(4.0, 4.0), background()) << "nothing is drawn within the narrowest ring";
    EXPECT_EQ(shownAt(4.9, 4.9), background()) << "the disc is half a cell off the pointer";
}

TEST_F(SpriteEditor, ClearsWithEveryOtherButton) {
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        scriptDiscs(1);
        clickAt(2.5, 2.5);
        clickAt(2.5, 2.5, button);
        EXPECT_EQ(copied(), kEmptySprite);
        EXPECT_EQ(shownAt(2.3, 2.0), background());
    }
}

TEST_F(SpriteEditor, ClearsWithSeveralButtonsAtOnce) {
    scriptDiscs(1);
    clickAt(2.5, 2.5);
    QTest::mousePress(&tool(), Qt::RightButton, Qt::NoModifier, pointOf(7.5, 7.5));
    QTest::mousePress(&tool(), Qt::LeftButton, Qt::NoModifier, pointOf(2.5, 2.5));
    EXPECT_EQ(copied(), kEmptySprite);
}

TEST_F(SpriteEditor, LeavesAClearCellClearOnARightClick) {
    clickAt(2.5, 2.5, Qt::RightButton);
    EXPECT_EQ(copied(), kEmptySprite);
}

TEST_F(SpriteEditor, PaintsNothingWhenThePointerIsDragged) {
    scriptDiscs(1);
    QTest::mousePress(&tool(), Qt::LeftButton, Qt::NoModifier, pointOf(1.5, 1.5));
    QTest::mouseMove(&tool(), pointOf(5.5, 1.5));
    QTest::mouseRelease(&tool(), Qt::LeftButton, Qt::NoModifier, pointOf(5.5, 1.5));
    EXPECT_EQ(line(1), "10000000");
    EXPECT_EQ(line(5), "00000000");
}

TEST_F(SpriteEditor, RefreshChoosesNewColours) {
    scriptDiscs(1);
    clickAt(3.5, 3.5);
    const QColor before = shownAt(3.3, 3.0);
    EXPECT_EQ(shownAt(3.3, 3.0), before) << "the picture stays until Refresh";
    desktop_.random.numbers = {0.9, 0.9};
    press("Command6");
    EXPECT_NE(shownAt(3.3, 3.0), before);
    EXPECT_NE(shownAt(3.3, 3.0), background());
    EXPECT_TRUE(desktop_.random.numbers.empty());
}

TEST_F(SpriteEditor, ClearEmptiesTheSpriteAndTheDrawing) {
    scriptDiscs(2);
    clickAt(3.5, 3.5);
    clickAt(4.5, 3.5);
    press("Command4");
    EXPECT_EQ(copied(), kEmptySprite);
    EXPECT_EQ(shownAt(3.3, 3.0), background());
}

TEST_F(SpriteEditor, InsertsInPlaceOfTheSelection) {
    active().txt().setBytes("abcdef");
    active().txt().Tag = "0";
    active().txt().setSelStart(1);
    active().txt().setSelLength(3);
    press("Command1");
    EXPECT_EQ(active().txt().bytes(), "a" + kEmptySprite + "ef");
    EXPECT_TRUE(active().isModified());
}

TEST_F(SpriteEditor, InsertsAtTheCursorWhenNothingIsSelected) {
    active().txt().setBytes("abc");
    active().txt().setSelStart(3);
    press("Command1");
    EXPECT_EQ(active().txt().bytes(), "abc" + kEmptySprite);
}

TEST_F(SpriteEditor, InsertsNothingWithoutADocument) {
    active().close();
    ASSERT_TRUE(documents().empty());
    press("Command1");
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
}

TEST_F(SpriteEditor, IsOpenedOnce) {
    choose("sprdef");
    EXPECT_EQ(openWindows().size(), 1);
    tool().showMinimized();
    choose("sprdef");
    EXPECT_EQ(openWindows().size(), 1);
    EXPECT_FALSE(tool().isMinimized());
}

TEST_F(SpriteEditor, KeepsTheSpriteAndForgetsTheDrawingWhenItIsClosed) {
    scriptDiscs(1);
    clickAt(1.5, 1.5);
    press("Command3");
    EXPECT_TRUE(openWindows().empty());
    choose("sprdef");
    EXPECT_EQ(line(1), "10000000");
    EXPECT_EQ(shownAt(1.3, 1.0), background());
    scriptDiscs(1);
    press("Command6");
    EXPECT_NE(shownAt(1.3, 1.0), background());
}

TEST_F(SpriteEditor, CanBeOpenedAgainAtOnceAfterItWasClosed) {
    tool().close();
    choose("sprdef");
    ASSERT_EQ(openWindows().size(), 1);
    EXPECT_TRUE(tool().isVisible());
}

TEST_F(SpriteEditor, KeepsWhatLiesBeyondTheEdgeOfASmallWindow) {
    tool().resize(344, 200);
    scriptDiscs(1);
    clickAt(5.5, 5.2);
    tool().resize(344, 385);
    EXPECT_NE(shownAt(5.0, 5.45), background());
}

TEST_F(SpriteEditor, KeepsMenuShortcutsFromTheDocument) {
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &tool(); }));
    QTest::keyClick(&tool(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(desktop_.boxes.askedBoxes.empty());
}

TEST_F(SpriteEditor, EnterPressesTheButtonThatHasTheKeyboard) {
    auto* button = tool().findChild<QPushButton*>("Command2");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(desktop_.clipboard.content, kEmptySprite);
}

}  // namespace kav::test
