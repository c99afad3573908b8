// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/build_verdict.h"

#include "build/build_files.h"
#include "build/build_texts.h"

#include <gtest/gtest.h>

namespace kav {

TEST(Verdict, IsRunningWhileTheProgramsOwnTwoStands) {
    EXPECT_EQ(verdictOf(kStatusRunning), Verdict::Running);
    EXPECT_EQ(verdictOf("2"), Verdict::Running);
}

TEST(Verdict, IsSuccessForZero) {
    EXPECT_EQ(verdictOf("0\r\n"), Verdict::Success);
    EXPECT_EQ(verdictOf("0\nanything\n"), Verdict::Success);
}

TEST(Verdict, IsFailureForAnythingElse) {
    for (const char* text : {"", "1\r\n", "error\r\n", "\r\n", "\n0", "0 ", "22"}) {
        EXPECT_EQ(verdictOf(text), Verdict::Failure) << text;
    }
}

TEST(BuildTexts, AreExact) {
    EXPECT_STREQ(
        kErrorsQuestion,
        " could not be compiled do to errors. Do you want to add the errors to the task manager? Cancel "
        "to show TASM's error log instead.");
    EXPECT_STREQ(kErrorsTitle, "Errors in code - KAV Compiler");
    EXPECT_STREQ(kSave8xpTitle, "Save Compiled TI-83+ Program");
    EXPECT_STREQ(kSave8xpFilter, "TI-83+ Program(*.8xp)|*.8xp|All Files(*.*)|*.*");
    EXPECT_STREQ(kSave83pTitle, "Save Compiled TI-83 Program");
    EXPECT_STREQ(kSave83pFilter, "TI-83 Program(*.83p)|*.83p|All Files(*.*)|*.*");
}

}  // namespace kav
