// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/mirage_wizard_window.h"

#include "runtime/lines.h"
#include "windows/tool_window_fixture.h"

#include <algorithm>

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QRadioButton>

namespace kav::test {

class MirageWizard : public ToolWindowTest<Form1> {
  protected:
    void SetUp() override {
        ToolWindowTest::SetUp();
        choose("nmf");
    }

    /// Presses OK; the lines of the document that it makes.
    std::vector<std::string> generated() {
        press("Command2");
        std::vector<std::string> lines;
        const std::string text = active().txt().bytes();
        for (const std::string_view line : linesOf(text))
            lines.emplace_back(line);
        return lines;
    }

    /// The line of a button row in the standard program; then opens the wizard again.
    std::string rowLine(std::size_t row) {
        std::string line = generated().at(8 + row);
        choose("nmf");
        return line;
    }

    void drag(QPointF from, QPointF to, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(&tool(), button, Qt::NoModifier, pointOf(from.x(), from.y()));
        moveTo(to, button);
        QTest::mouseRelease(&tool(), button, Qt::NoModifier, pointOf(to.x(), to.y()));
    }

    void moveTo(QPointF to, Qt::MouseButtons buttons) {
        const QPointF local = to * kPixelsPerCentimetre;
        QMouseEvent move(QEvent::MouseMove, local, tool().mapToGlobal(local), Qt::NoButton, buttons,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&tool(), &move);
    }

    QLineEdit& text1() { return control<QLineEdit>("Text1"); }
    QCheckBox& effect() { return control<QCheckBox>("Check1"); }
};

const std::string kEmptyRow = "\t.db %00000000,%00000000";
const std::string kRow1Column1 = "\t.db %10000000,%00000000";

TEST_F(MirageWizard, HasItsControlsInTheirPlaces) {
    EXPECT_EQ(tool().objectName(), "Form1");
    EXPECT_EQ(tool().windowTitle(), "New MirageOS Program");
    EXPECT_EQ(tool().size(), QSize(591, 653));
    EXPECT_FALSE(tool().isModal());
    expectPlace(
        "Label1",
        "Design the MirageOS button below. Right click to remove a pixil, left click to place. If you "
        "find the colors destracting, or have a slower computer clear the Use 3D effect box to draw "
        "dull, green circles.",
        {0, 0, 585, 25});
    expectPlace("Label3", "Description", {0, 32, 57, 17});
    expectPlace("Text1", "", {56, 32, 353, 19});
    expectPlace("Check1", "Use 3D effect", {408, 32, 177, 17});
    expectPlace("Command1", "Refresh", {504, 32, 81, 17});
    expectPlace("Option1", "Standerd MirageOS program", {0, 56, 161, 17});
    expectPlace("Option2", "MirageOS Program with exit code", {160, 56, 185, 17});
    expectPlace("Label2", "Label to call on quit", {352, 56, 97, 17});
    expectPlace("Text2", "", {456, 56, 129, 19});
    expectPlace("Command2", "OK", {0, 632, 293, 21});
    expectPlace("Command3", "Cancel", {296, 632, 293, 21});
    EXPECT_TRUE(effect().isChecked());
}

TEST_F(MirageWizard, ShowsItsTextsWhole) {
    for (const char* name : {"Label3", "Check1", "Option1", "Option2", "Label2"})
        EXPECT_LE(control<QWidget>(name).sizeHint().width(), control<QWidget>(name).width()) << name;
}

TEST_F(MirageWizard, SelectsTheKindThatItsMenuEntryNames) {
    EXPECT_TRUE(control<QRadioButton>("Option1").isChecked());
    EXPECT_FALSE(control<QWidget>("Text2").isVisible());
    EXPECT_FALSE(control<QWidget>("Label2").isVisible());
    choose("mirageexitcodefile");
    EXPECT_EQ(openWindows().size(), 1);
    EXPECT_TRUE(control<QRadioButton>("Option2").isChecked());
    EXPECT_TRUE(control<QWidget>("Text2").isVisible());
    EXPECT_TRUE(control<QWidget>("Label2").isVisible());
    choose("nmf");
    EXPECT_TRUE(control<QRadioButton>("Option1").isChecked());
    EXPECT_FALSE(control<QWidget>("Text2").isVisible());
}

TEST_F(MirageWizard, OpensWithTheExitCodeKindWhenThatIsChosenFirst) {
    tool().close();
    choose("mirageexitcodefile");
    EXPECT_TRUE(control<QRadioButton>("Option2").isChecked());
    EXPECT_TRUE(control<QWidget>("Text2").isVisible());
}

TEST_F(MirageWizard, ShowsTheQuitLabelForTheExitCodeKindOnly) {
    control<QRadioButton>("Option2").click();
    EXPECT_TRUE(control<QWidget>("Text2").isVisible());
    control<QRadioButton>("Option1").click();
    EXPECT_FALSE(control<QWidget>("Text2").isVisible());
    EXPECT_FALSE(control<QWidget>("Label2").isVisible());
}

TEST_F(MirageWizard, MakesAStandardProgram) {
    QTest::keyClicks(&text1(), "A \"game\"");
    const std::vector<std::string> lines = generated();
    ASSERT_EQ(lines.size(), 29U);
    EXPECT_EQ(lines[0], ".nolist");
    EXPECT_EQ(lines[9], kEmptyRow);
    EXPECT_EQ(lines[23], kEmptyRow);
    EXPECT_EQ(lines[25], " .db \"A \"game\"\",0");
    EXPECT_EQ(active().caption(), "Doc 2\tUntitled");
    EXPECT_FALSE(active().isModified());
    EXPECT_TRUE(openWindows().empty());
    EXPECT_EQ(documents().size(), 2);
}

TEST_F(MirageWizard, MakesAProgramWithExitCode) {
    choose("mirageexitcodefile");
    text1().setText("Desc");
    control<QLineEdit>("Text2").setText("leave");
    const std::vector<std::string> lines = generated();
    ASSERT_EQ(lines.size(), 25U);
    EXPECT_EQ(lines[21], "\t.dw leave ;pointer to address of quit routine");
    EXPECT_EQ(lines[22], "    .db \"Desc\",0         ;Zero terminated description");
    EXPECT_TRUE(openWindows().empty());
}

TEST_F(MirageWizard, TakesEmptyInputs) {
    choose("mirageexitcodefile");
    const std::vector<std::string> lines = generated();
    EXPECT_EQ(lines.at(21), "\t.dw  ;pointer to address of quit routine");
    EXPECT_EQ(lines.at(22), "    .db \"\",0         ;Zero terminated description");
}

TEST_F(MirageWizard, CancelMakesNoDocumentAndKeepsTheButton) {
    scriptDiscs(1);
    clickAt(1.5, 3.5);
    text1().setText("gone");
    effect().setChecked(false);
    press("Command3");
    EXPECT_TRUE(openWindows().empty());
    EXPECT_EQ(documents().size(), 1);
    choose("nmf");
    EXPECT_EQ(text1().text(), "");
    EXPECT_TRUE(effect().isChecked());
    EXPECT_EQ(shownAt(1.3, 3.0), background()) << "nothing is drawn until Refresh";
    scriptDiscs(1);
    press("Command1");
    EXPECT_NE(shownAt(1.3, 3.0), background());
    EXPECT_EQ(rowLine(1), kRow1Column1);
}

TEST_F(MirageWizard, TakesTwentyFiveCharactersOfDescription) {
    QTest::keyClicks(&text1(), "12345678901234567890123456789");
    EXPECT_EQ(text1().text(), "1234567890123456789012345");
    text1().setCursorPosition(2);
    QTest::keyClicks(&text1(), "x");
    EXPECT_EQ(text1().text(), "1234567890123456789012345");
    EXPECT_EQ(text1().cursorPosition(), 2);
}

TEST_F(MirageWizard, PutsInWhatFitsOfAPastedDescription) {
    text1().setText("12345678901234567890");
    text1().setCursorPosition(10);
    QGuiApplication::clipboard()->setText("abcdefgh");
    text1().paste();
    EXPECT_EQ(text1().text(), "1234567890abcde1234567890");
    EXPECT_EQ(text1().cursorPosition(), 15);
}

TEST_F(MirageWizard, CountsTheDescriptionInWholeCharacters) {
    const QString faces = QString::fromUtf8("\xF0\x9F\x98\x80").repeated(30);
    text1().setText(faces);
    EXPECT_EQ(text1().text(), faces.left(50));
}

TEST_F(MirageWizard, SetsCellsWithinTheGridOnly) {
    clickAt(0.97, 3.5);
    clickAt(1.5, 2.97);
    EXPECT_EQ(rowLine(1), kEmptyRow);
    scriptDiscs(1);
    clickAt(1.5, 3.02);
    EXPECT_EQ(rowLine(1), kRow1Column1);
}

TEST_F(MirageWizard, SetsTheCornersOfTheGrid) {
    tool().resize(900, 900);
    scriptDiscs(2);
    clickAt(15.5, 3.5);
    clickAt(1.5, 17.9);
    EXPECT_EQ(rowLine(1), "\t.db %00000000,%00000010");
    EXPECT_EQ(rowLine(15), kRow1Column1);
}

TEST_F(MirageWizard, PaintsWhereThePointerIsDragged) {
    scriptDiscs(3);
    drag({2.5, 4.5}, {3.5, 4.5});
    EXPECT_EQ(rowLine(2), "\t.db %01100000,%00000000");
    drag({2.5, 4.5}, {3.5, 4.5}, Qt::RightButton);
    EXPECT_EQ(rowLine(2), kEmptyRow);
}

TEST_F(MirageWizard, DrawsAFreshDiscWithEachMove) {
    scriptDiscs(3);
    drag({2.5, 4.5}, {2.6, 4.5});
    EXPECT_EQ(desktop_.random.numbers.size(), 2U);
}

TEST_F(MirageWizard, PaintsNothingWhileNoButtonIsDown) {
    moveTo({2.5, 4.5}, Qt::LeftButton);
    EXPECT_EQ(rowLine(2), kEmptyRow);
    scriptDiscs(1);
    clickAt(2.5, 4.5);
    moveTo({3.5, 4.5}, Qt::LeftButton);
    EXPECT_EQ(rowLine(2), "\t.db %01000000,%00000000");
}

TEST_F(MirageWizard, GoesOnPaintingWhereADragBeganBesideTheGrid) {
    scriptDiscs(1);
    drag({0.5, 4.5}, {1.5, 4.5});
    EXPECT_EQ(rowLine(2), kRow1Column1);
}

TEST_F(MirageWizard, ReportsACellBeyondTheGridAndPaintsNothing) {
    tool().resize(900, 900);
    for (const QPointF beyond : {QPointF(16.5, 3.5), QPointF(1.5, 18.5), QPointF(16.5, 19.5)}) {
        desktop_.boxes.answers = {BoxAnswer::Ignore};
        clickAt(beyond.x(), beyond.y());
        const MessageBox& box = desktop_.boxes.shownBoxes.back();
        EXPECT_EQ(box.title, "Non Fatal Error - KAV Compiler");
        EXPECT_NE(box.text.find("Error 9in module Form_MouseDown: Subscript out of range."),
                  std::string::npos)
            << box.text;
    }
    EXPECT_EQ(desktop_.boxes.shownBoxes.size(), 3U);
    for (std::size_t row = 1; row <= 15; ++row)
        EXPECT_EQ(rowLine(row), kEmptyRow);
}

TEST_F(MirageWizard, StopsPaintingWhenADragLeavesTheGrid) {
    tool().resize(900, 900);
    scriptDiscs(1);
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    QTest::mousePress(&tool(), Qt::LeftButton, Qt::NoModifier, pointOf(15.5, 4.5));
    moveTo({16.5, 4.5}, Qt::LeftButton);
    moveTo({16.6, 4.5}, Qt::LeftButton);
    ASSERT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
    EXPECT_NE(desktop_.boxes.shownBoxes[0].text.find("module Form_MouseMove:"), std::string::npos);
}

TEST_F(MirageWizard, IgnoresWhatLiesFurtherOut) {
    tool().resize(900, 900);
    clickAt(17.02, 4.5);
    clickAt(1.5, 20.02);
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
}

TEST_F(MirageWizard, DrawsGradientDiscsTwoCentimetresLower) {
    scriptDiscs(1);
    clickAt(5.5, 6.5);
    EXPECT_NE(shownAt(5.3, 6.0), background());
    clickAt(5.5, 6.5, Qt::RightButton);
    EXPECT_EQ(shownAt(5.3, 6.0), background());
}

TEST_F(MirageWizard, DrawsFlatGreenCirclesWithoutTheEffect) {
    effect().click();
    clickAt(5.5, 6.5);
    EXPECT_EQ(shownAt(5.5, 6.0), QColor(147, 226, 11));
    EXPECT_EQ(shownAt(5.3, 6.0), background());
    clickAt(6.5, 6.5);
    clickAt(5.5, 6.5, Qt::RightButton);
    EXPECT_EQ(shownAt(4.5, 6.0), background());
    EXPECT_EQ(shownAt(5.5, 6.0), QColor(147, 226, 11)) << "the neighbour's circle is drawn again";
}

TEST_F(MirageWizard, RedrawsWhenTheEffectIsSwitched) {
    scriptDiscs(1);
    clickAt(5.5, 6.5);
    effect().click();
    EXPECT_EQ(shownAt(5.3, 6.0), background());
    EXPECT_EQ(shownAt(5.5, 6.0), QColor(147, 226, 11));
    scriptDiscs(1);
    effect().click();
    EXPECT_NE(shownAt(5.3, 6.0), background());
}

}  // namespace kav::test
