// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/stack_visualizer_window.h"

#include "windows/tool_window_fixture.h"

#include <array>

#include <QLabel>

namespace kav::test {

class StackVisualizer : public ToolWindowTest<sv> {
  protected:
    void SetUp() override {
        ToolWindowTest::SetUp();
        open();
    }

    void open() {
        choose("svbar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &tool(); }));
    }

    RegisterField& field(const char* name) { return control<RegisterField>(name); }
    std::string textOf(const char* name) { return field(name).text().toStdString(); }
    QLabel& label(const std::string& name) { return control<QLabel>(name.c_str()); }
    QLabel& slot(int number) { return label("Label1_" + std::to_string(number)); }

    /// Types into a field and leaves it for another.
    void enter(const char* name, const char* value) {
        field(name).setFocus();
        field(name).setText(value);
        field(name == std::string("iy") ? "ix" : "iy").setFocus();
    }

    void expectBox(const char* title, const char* text) {
        ASSERT_FALSE(desktop_.boxes.shownBoxes.empty());
        const MessageBox& box = desktop_.boxes.shownBoxes.back();
        EXPECT_EQ(box.title, title);
        EXPECT_EQ(box.text, text);
        EXPECT_EQ(box.icon, BoxIcon::Information);
        EXPECT_EQ(box.buttons, BoxButtons::Ok);
    }
};

TEST_F(StackVisualizer, HasItsControlsInTheirPlaces) {
    EXPECT_EQ(tool().objectName(), "sv");
    EXPECT_EQ(tool().windowTitle(), "Stack Visualizer");
    EXPECT_EQ(tool().size(), QSize(148, 266));
    EXPECT_EQ(tool().minimumSize(), tool().maximumSize());
    EXPECT_FALSE(tool().windowIcon().isNull());
    EXPECT_NE(tool().windowIcon().cacheKey(), compiler().windowIcon().cacheKey());
    EXPECT_FALSE(tool().isModal());
    expectPlace("Label9", "SP", {0, 0, 17, 17});
    expectPlace("spp", "0000", {16, 0, 33, 17});
    expectPlace("spv", "<--SP", {120, 161, 33, 17});
    EXPECT_FALSE(label("spv").isVisible());
    const std::array<const char*, 6> captions{"AF", "BC", "DE", "HL", "IX", "IY"};
    const std::array<const char*, 6> fields{"af", "bc", "de", "hl", "ix", "iy"};
    for (int i = 0; i < 6; ++i) {
        const std::string caption = captions.at(static_cast<std::size_t>(i));
        expectPlace(("Label" + std::to_string(i + 2)).c_str(), caption.c_str(), {0, 24 + 24 * i, 17, 17});
        expectPlace(fields.at(static_cast<std::size_t>(i)), "0000", {16, 24 + 24 * i, 33, 19});
        expectPlace(("Command" + std::to_string(i + 1)).c_str(), ("Push " + caption).c_str(),
                    {0, 168 + 16 * i, 57, 17});
        expectPlace(("Command" + std::to_string(i + 7)).c_str(), ("Pop " + caption).c_str(),
                    {56, 168 + 16 * i, 57, 17});
    }
    for (int i = 1; i <= 10; ++i) {
        expectPlace(("Label1_" + std::to_string(i)).c_str(), "", {56, 144 - 16 * (i - 1), 57, 17});
        EXPECT_FALSE(slot(i).isVisible());
    }
}

TEST_F(StackVisualizer, StandsOverTheMainWindowAndEndsWithIt) {
    EXPECT_TRUE(tool().isWindow());
    EXPECT_EQ(tool().parentWidget(), &compiler());
}

TEST_F(StackVisualizer, ShowsTheArrowWhole) {
    EXPECT_LE(label("spv").x() + label("spv").sizeHint().width(), tool().width());
}

TEST_F(StackVisualizer, PushesAValueAndPopsItIntoAnotherRegister) {
    enter("af", "12AB");
    press("Command1");
    EXPECT_TRUE(slot(1).isVisible());
    EXPECT_EQ(slot(1).text(), "12AB");
    EXPECT_EQ(label("spp").text(), "0001");
    EXPECT_TRUE(label("spv").isVisible());
    EXPECT_EQ(label("spv").y(), 146) << "2185 twips";
    press("Command10");
    EXPECT_EQ(textOf("hl"), "12AB");
    EXPECT_EQ(label("spp").text(), "0000");
    EXPECT_FALSE(slot(1).isVisible());
    EXPECT_FALSE(label("spv").isVisible());
}

TEST_F(StackVisualizer, RefusesTheEleventhPush) {
    for (int i = 0; i < 10; ++i)
        press("Command2");
    EXPECT_TRUE(slot(10).isVisible());
    EXPECT_EQ(label("spv").y(), 5) << "70 twips: the arrow drifts from the slots";
    desktop_.boxes.answers = {BoxAnswer::Ok};
    press("Command3");
    expectBox("Cannot Push Value", "Sorry, can only push 10 values.");
    EXPECT_EQ(label("spp").text(), "0010");
    EXPECT_EQ(label("spv").y(), 5);
}

TEST_F(StackVisualizer, ARefusedPopEmptiesTheRegister) {
    desktop_.boxes.answers = {BoxAnswer::Ok};
    press("Command9");
    expectBox("Cannot Pop Value", "This would screw up the calculator.");
    EXPECT_EQ(textOf("de"), "");
    EXPECT_EQ(label("spp").text(), "0000");
}

TEST_F(StackVisualizer, ARefusedPopGivesTheLastPoppedValueAgain) {
    enter("bc", "0102");
    press("Command2");
    press("Command8");
    desktop_.boxes.answers = {BoxAnswer::Ok};
    press("Command11");
    EXPECT_EQ(textOf("ix"), "0102");
}

TEST_F(StackVisualizer, PopsInReverseOrderIntoAnyRegister) {
    const std::array<const char*, 6> fields{"af", "bc", "de", "hl", "ix", "iy"};
    for (int i = 0; i < 6; ++i) {
        enter(fields.at(static_cast<std::size_t>(i)), std::to_string(1111 * (i + 1)).c_str());
        press(("Command" + std::to_string(i + 1)).c_str());
    }
    for (int i = 0; i < 6; ++i)
        press(("Command" + std::to_string(i + 7)).c_str());
    EXPECT_EQ(textOf("af"), "6666");
    EXPECT_EQ(textOf("hl"), "3333");
    EXPECT_EQ(textOf("iy"), "1111");
}

TEST_F(StackVisualizer, MakesFourCharactersOfAFieldThatIsLeft) {
    enter("af", "7");
    EXPECT_EQ(textOf("af"), "0007");
    enter("af", "ABCDE");
    EXPECT_EQ(textOf("af"), "ABCD");
    enter("iy", "");
    EXPECT_EQ(textOf("iy"), "0000");
}

TEST_F(StackVisualizer, PushesWhatTheFieldBecomesOnTheWayToTheButton) {
    field("de").setFocus();
    field("de").setText("A");
    press("Command3");
    EXPECT_EQ(slot(1).text(), "000A");
}

TEST_F(StackVisualizer, AClickEmptiesAFieldOfZeroOnly) {
    QTest::mouseClick(&field("af"), Qt::LeftButton);
    EXPECT_EQ(textOf("af"), "");
    field("bc").setText("0001");
    QTest::mouseClick(&field("bc"), Qt::LeftButton);
    EXPECT_EQ(textOf("bc"), "0001");
    EXPECT_EQ(textOf("af"), "0000") << "left for the other field";
}

TEST_F(StackVisualizer, TakesAnyCharacters) {
    enter("af", "x \"y");
    press("Command1");
    EXPECT_EQ(slot(1).text(), "x \"y");
    EXPECT_EQ(slot(1).textFormat(), Qt::PlainText);
}

TEST_F(StackVisualizer, F1TellsAboutItAndOpensNoHelp) {
    desktop_.boxes.answers = {BoxAnswer::Ok};
    QTest::keyClick(&field("af"), Qt::Key_F1);
    expectBox("About Stack Visualizer", std::string(kStackAboutText).c_str());
    EXPECT_TRUE(desktop_.launcher.launches.empty());
}

TEST_F(StackVisualizer, StartsAfreshButForTheLastPoppedValue) {
    enter("af", "1234");
    press("Command1");
    press("Command1");
    press("Command7");
    choose("svbar");
    ASSERT_EQ(openWindows().size(), 1);
    EXPECT_EQ(label("spp").text(), "0001") << "choosing the entry again changes nothing";
    tool().close();
    open();
    ASSERT_EQ(openWindows().size(), 1);
    EXPECT_EQ(textOf("af"), "0000");
    EXPECT_EQ(label("spp").text(), "0000");
    EXPECT_FALSE(slot(1).isVisible());
    EXPECT_FALSE(label("spv").isVisible());
    desktop_.boxes.answers = {BoxAnswer::Ok};
    press("Command12");
    EXPECT_EQ(textOf("iy"), "1234");
}

}  // namespace kav::test
