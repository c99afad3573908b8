// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/failure_report.h"

#include <gtest/gtest.h>

namespace kav {

TEST(FailureMessage, IsWordForWordWhatUsersReport) {
    EXPECT_EQ(
        failureMessage("load_Click", 53, "File not found"),
        "Sorry, an error has occured and the action you just attempted has been canceled. Recommend you "
        "save your work (or copy to clipboard) and restart KAV Compiler. If this persits send the below "
        "information to Tamsin Orrel (tamsin.orrel@kav-compiler.example) along with a description of what "
        "you were doing. Abort=Exit KAV Compiler. Retry=Save error to logfile on desktop and continue. "
        "Ignore=Continue\n\nError 53in module load_Click: File not found.");
}

TEST(FailureLogLine, HoldsTheFailureTheTimeAndTheCount) {
    EXPECT_EQ(failureLogLine("load_Click", 53, "File not found", {2005, 3, 1, 15, 4, 5}, 0),
              "Error #53 occured at 3/1/2005 3:04:05 PM in module load_Click: File not found Count=0\r\n");
}

TEST(FailureLogLine, TellsNoonFromMidnight) {
    const auto timeIn = [](int hour, int second) {
        const std::string line = failureLogLine("h", 5, "d", {2010, 12, 31, hour, 0, second}, 0);
        const std::string start = "Error #5 occured at ";
        return line.substr(start.size(), line.find(" in module") - start.size());
    };
    EXPECT_EQ(timeIn(12, 0), "12/31/2010 12:00:00 PM");
    EXPECT_EQ(timeIn(0, 1), "12/31/2010 12:00:01 AM");
    EXPECT_EQ(timeIn(9, 9), "12/31/2010 9:00:09 AM");
    // The general form of a moment at midnight is the date alone.
    EXPECT_EQ(timeIn(0, 0), "12/31/2010");
}

TEST(FailureLogLine, StaysOneLineWhateverTheDescription) {
    EXPECT_EQ(failureLogLine("h", 5, "a\r\nb", {2005, 3, 1, 15, 4, 5}, 0),
              "Error #5 occured at 3/1/2005 3:04:05 PM in module h: a  b Count=0\r\n");
}

}  // namespace kav
