// SPDX-License-Identifier: GPL-3.0-or-later
#include "tasks/task_list_window.h"
#include "windows/main_window_fixture.h"

#include <QTreeWidget>

namespace kav::test {

class Build : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        preferences_.make83p = false;
    }

    void build(const std::string& name) {
        desktop_.boxes.typed.push_back(name);
        choose("comp");
    }

    void verdict(const std::string& text) {
        writeFile(folder_.file("errLog.txt"), text);
        QTest::qWait(250);
    }
};

TEST_F(Build, WritesWhatTheScriptNeedsAndStartsIt) {
    start();
    active().txt().setBytes(" ret\r\n  nop");
    build("game");
    EXPECT_EQ(readFile(folder_.file("errLog.txt")), "2\r\n");
    const std::string source = readFile(folder_.file("game.z80"));
    EXPECT_TRUE(source.starts_with(";These are KAV Compiler's built in macros.\r\n"));
    EXPECT_TRUE(source.ends_with(";End of KAV Compiler's macros.\r\n ret\r\n  nop\r\n"));
    const std::string script = readFile(folder_.file("comp.bat"));
    EXPECT_TRUE(script.starts_with("Z:\\\r\ncd\\"));
    EXPECT_TRUE(script.ends_with("\\\r\nasm game\r\n"));
    ASSERT_EQ(desktop_.launcher.launches.size(), 1U);
    EXPECT_EQ(desktop_.launcher.launches[0].commandLine, folder_.file("comp.bat"));
    EXPECT_EQ(desktop_.launcher.launches[0].style, WindowStyle::Hidden);
    EXPECT_EQ(status(), "Compiling...");
    EXPECT_EQ(compiler().cd().fileName, "game");
}

TEST_F(Build, ShowTasmGivesTheScriptAWindow) {
    preferences_.showTasm = true;
    start();
    build("game");
    EXPECT_EQ(desktop_.launcher.launches.at(0).style, WindowStyle::NormalFocus);
}

TEST_F(Build, TheNameIsRememberedWithTheDocument) {
    start();
    build("game");
    build("game2");
    EXPECT_EQ(desktop_.boxes.askedBoxes.at(0).defaultText, "");
    EXPECT_EQ(desktop_.boxes.askedBoxes.at(1).defaultText, "game");
}

TEST_F(Build, ANameTooLongIsAskedForAgain) {
    start();
    desktop_.boxes.typed = {"123456789", "12345678"};
    choose("comp");
    EXPECT_EQ(desktop_.boxes.askedBoxes.at(1).prompt, "Program name must 8 chars or less.");
    EXPECT_EQ(desktop_.boxes.askedBoxes.at(1).defaultText, "12345678");
    EXPECT_TRUE(fileExists(folder_.file("12345678.z80")));
}

TEST_F(Build, CancelBuildsWithAnEmptyName) {
    start();
    build("");
    EXPECT_TRUE(fileExists(folder_.file(".z80")));
    EXPECT_TRUE(readFile(folder_.file("comp.bat")).ends_with("\r\nasm \r\n"));
}

TEST_F(Build, ANameThatLeavesTheFolderIsReportedAndTouchesNothing) {
    start();
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    build("../x");
    EXPECT_NE(desktop_.boxes.shownBoxes.at(0).text.find("Error 52in module comp_Click: "), std::string::npos);
    EXPECT_TRUE(desktop_.launcher.launches.empty());
    EXPECT_FALSE(fileExists(folder_.file("comp.bat")));
}

TEST_F(Build, WithoutADocumentNothingHappens) {
    start();
    active().close();
    ASSERT_EQ(documents().size(), 0);
    choose("comp");
    EXPECT_TRUE(desktop_.boxes.askedBoxes.empty());
}

TEST_F(Build, SuccessAfterSomeTicksIsSavedOnce) {
    start();
    build("game");
    writeFile(folder_.file("game.8xp"), "program");
    desktop_.fileChooser.answers = {folder_.file("saved.8xp")};
    QTest::qWait(250);
    EXPECT_TRUE(desktop_.fileChooser.questions.empty());
    verdict("0\r\n");
    QTest::qWait(250);
    ASSERT_EQ(desktop_.fileChooser.questions.size(), 1U);
    EXPECT_EQ(desktop_.fileChooser.questions[0].title, "Save Compiled TI-83+ Program");
    EXPECT_EQ(desktop_.fileChooser.questions[0].fileName, "game");
    EXPECT_EQ(readFile(folder_.file("saved.8xp")), "program");
    EXPECT_EQ(status(), "Success.");
    EXPECT_EQ(compiler().cd().fileName, "game");
}

TEST_F(Build, TheSecondDialogStartsFromWhatTheFirstOneLeft) {
    preferences_.make83p = true;
    start();
    build("game");
    writeFile(folder_.file("game.8xp"), "plus");
    writeFile(folder_.file("game.83p"), "83");
    desktop_.fileChooser.answers = {folder_.file("a"), folder_.file("b")};
    verdict("0\r\n");
    ASSERT_EQ(desktop_.fileChooser.questions.size(), 2U);
    EXPECT_EQ(desktop_.fileChooser.questions[1].title, "Save Compiled TI-83 Program");
    EXPECT_EQ(desktop_.fileChooser.questions[1].fileName, folder_.file("a"));
    EXPECT_EQ(readFile(folder_.file("b")), "83");
}

TEST_F(Build, CancelInTheSaveDialogCopiesNothingAndIsNoError) {
    start();
    build("game");
    desktop_.fileChooser.answers = {std::nullopt};
    compiler().cd().cancelError = true;
    verdict("0\r\n");
    EXPECT_TRUE(desktop_.boxes.shownBoxes.empty());
}

TEST_F(Build, WithNothingTickedSuccessShowsNoDialog) {
    preferences_.make8xp = false;
    start();
    build("game");
    verdict("0\r\n");
    EXPECT_EQ(status(), "Success.");
    EXPECT_TRUE(desktop_.fileChooser.questions.empty());
}

TEST_F(Build, AMissingProgramFileIsReported) {
    start();
    build("game");
    desktop_.fileChooser.answers = {folder_.file("saved.8xp")};
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    verdict("0\r\n");
    EXPECT_NE(desktop_.boxes.shownBoxes.at(0).text.find("Error 53in module comptime_Timer: "),
              std::string::npos);
    EXPECT_FALSE(fileExists(folder_.file("saved.8xp")));
}

TEST_F(Build, AMissingStatusFileIsReportedOnce) {
    start();
    build("game");
    removeFile(folder_.file("errLog.txt"));
    desktop_.boxes.answers = {BoxAnswer::Ignore};
    QTest::qWait(350);
    EXPECT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
}

class FailedBuild : public Build, public testing::WithParamInterface<const char*> {};

TEST_P(FailedBuild, AsksWhatToDoWithTheErrors) {
    start();
    build("game");
    desktop_.boxes.answers = {BoxAnswer::No};
    verdict(GetParam());
    ASSERT_EQ(desktop_.boxes.shownBoxes.size(), 1U);
    const MessageBox& box = desktop_.boxes.shownBoxes[0];
    EXPECT_EQ(box.text,
              "game could not be compiled do to errors. Do you want to add the errors to the task manager? "
              "Cancel to show TASM's error log instead.");
    EXPECT_EQ(box.title, "Errors in code - KAV Compiler");
    EXPECT_EQ(box.buttons, BoxButtons::YesNoCancel);
    EXPECT_EQ(status(), "There were errors.");
    EXPECT_EQ(compiler().taskList().tasks().count(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Verdicts, FailedBuild, testing::Values("1\r\n", "error\r\n", "\r\n", "20\r\n"));

TEST_F(Build, CancelShowsTheListing) {
    start();
    desktop_.environment.variables["windir"] = "C:\\Windows";
    build("game");
    desktop_.boxes.answers = {BoxAnswer::Cancel};
    verdict("1\r\n");
    ASSERT_EQ(desktop_.launcher.launches.size(), 2U);
    EXPECT_EQ(desktop_.launcher.launches[1].commandLine,
              "C:\\Windows\\notepad.exe " + folder_.file("temp.lst"));
    EXPECT_EQ(desktop_.launcher.launches[1].style, WindowStyle::NormalFocus);
}

TEST_F(Build, YesMakesRedTasksOfTheErrors) {
    start();
    choose("newasm");
    build("game");
    writeFile(folder_.file("temp.lst"),
              "0001 9D93 00 nop\r\ntemp errors\r\ntemp.z80 line 0007: bad operand\r\n");
    desktop_.boxes.answers = {BoxAnswer::Yes};
    verdict("1\r\n");
    const TaskList& tasks = compiler().taskList().tasks();
    ASSERT_EQ(tasks.count(), 1U);
    EXPECT_EQ(tasks.task(1).text, "Document 2 Line 7:  bad operand");
    EXPECT_EQ(tasks.task(1).tag, "20007");
    auto* tree = compiler().taskList().findChild<QTreeWidget*>("TreeView1");
    EXPECT_EQ(tree->topLevelItem(0)->foreground(0).color(), QColor(255, 0, 0));
    EXPECT_TRUE(compiler().taskList().isVisible());
    EXPECT_TRUE(compiler().menuItem("vew_task")->isChecked());
}

TEST_F(Build, AnEmptyListingImportsNothingAndStillShowsTheList) {
    start();
    build("game");
    writeFile(folder_.file("temp.lst"), "");
    desktop_.boxes.answers = {BoxAnswer::Yes};
    verdict("1\r\n");
    EXPECT_EQ(compiler().taskList().tasks().count(), 0U);
    EXPECT_TRUE(compiler().taskList().isVisible());
}

}  // namespace kav::test
