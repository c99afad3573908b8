// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/failure.h"
#include "windows/main_window_fixture.h"
namespace kav::test {

class Reporter : public MainWindow {
  protected:
    void SetUp() override {
        MainWindow::SetUp();
        start();
        desktop_.environment.desktop = folder_.path().string();
        desktop_.clock.time = {2005, 3, 1, 15, 4, 5};
    }

    void report(BoxAnswer answer) {
        desktop_.boxes.answers = {answer};
        compiler().doerr("load_Click", 53, "File not found");
    }
};

TEST_F(Reporter, AsksWithIgnoreAsItsDefault) {
    report(BoxAnswer::Ignore);
    const MessageBox& box = desktop_.boxes.shownBoxes.at(0);
    EXPECT_EQ(box.title, "Non Fatal Error - KAV Compiler");
    EXPECT_EQ(box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(box.buttons, BoxButtons::AbortRetryIgnore);
    EXPECT_EQ(box.defaultAnswer, BoxAnswer::Ignore);
    EXPECT_NE(box.text.find("Error 53in module load_Click: File not found."), std::string::npos);
    EXPECT_FALSE(fileExists(folder_.file("kaverr.log")));
}

TEST_F(Reporter, IgnoreLeavesTheLogUntouched) {
    writeFile(folder_.file("kaverr.log"), "what was there\r\n");
    report(BoxAnswer::Ignore);
    EXPECT_EQ(readFile(folder_.file("kaverr.log")), "what was there\r\n");
}

TEST_F(Reporter, RetryAppendsALineEachTime) {
    report(BoxAnswer::Retry);
    report(BoxAnswer::Retry);
    const std::string line =
        "Error #53 occured at 3/1/2005 3:04:05 PM in module load_Click: File not found Count=0\r\n";
    EXPECT_EQ(readFile(folder_.file("kaverr.log")), line + line);
}

TEST_F(Reporter, WithWindirLogsToTheDesktopBelowIt) {
    desktop_.environment.variables["windir"] = folder_.path().string();
    makeFolder(folder_.file("Desktop"));
    report(BoxAnswer::Retry);
    EXPECT_TRUE(fileExists(folder_.file("Desktop/kaverr.log")));
}

TEST_F(Reporter, ALogThatCannotBeWrittenIsAFailureThatNobodyCatches) {
    desktop_.environment.variables["windir"] = folder_.file("none");
    EXPECT_THROW(report(BoxAnswer::Retry), Failure);
}

TEST_F(Reporter, AbortEndsAtOnceWithoutWritingThePreferences) {
    writeFile(folder_.file("prefs.ini"), "untouched");
    report(BoxAnswer::Abort);
    EXPECT_TRUE(desktop_.environment.endedAtOnce.has_value());
    EXPECT_EQ(readFile(folder_.file("prefs.ini")), "untouched");
    EXPECT_FALSE(fileExists(folder_.file("kaverr.log")));
}

}  // namespace kav::test
