// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/build_files.h"

#include "runtime/lines.h"

#include <gtest/gtest.h>

namespace kav {

TEST(MacroBlock, IsTenLinesExactly) {
    EXPECT_EQ(macroBlock(),
              ";These are KAV Compiler's built in macros.\r\n"
              "APP_PUSH_ERRORHT .equ 59h\r\n"
              "APP_POP_ERRORHT  .equ 5Ch\r\n"
              "#define AppOnErr(xxxx)  ld hl, xxxx     \\ call APP_PUSH_ERRORHT\r\n"
              "#define AppOffErr()     call APP_POP_ERRORHT\r\n"
              "#define dispause(xxxx) ld hl,xxxx \\ .db $EF,$0A,$45,$EF,$72,$49\r\n"
              "#define disp(xxxx) ld hl,xxxx \\ .db $EF,$0A,$45\r\n"
              "#define pause() .db $EF,$72,$49\r\n"
              "#define pausecsc() .db $EF,$18,$40,$FE,$00,$28,$F9\r\n"
              ";End of KAV Compiler's macros.\r\n");
    EXPECT_EQ(linesOf(macroBlock()).size(), 10U);
}

TEST(BuildSource, HoldsTheDocumentUnchangedBehindTheMacros) {
    EXPECT_EQ(buildSource(" ld a,1\r\n ret"), macroBlock() + " ld a,1\r\n ret\r\n");
    EXPECT_EQ(buildSource(""), macroBlock() + "\r\n");
}

TEST(TabPass, TurnsTheFirstBlankOfALineIntoATab) {
    EXPECT_EQ(tabPass("a\r\n b\r\n  c\r\nd e"), "a\r\n\tb\r\n\t c\r\nd e");
}

TEST(TabPass, LeavesTheFirstLineAndLoneLineFeedsAlone) {
    EXPECT_EQ(tabPass(" a\n b\r c"), " a\n b\r c");
    EXPECT_EQ(tabPass(""), "");
}

TEST(TabPass, TakesNeighbouringMatches) {
    EXPECT_EQ(tabPass("\r\n \r\n \r\n "), "\r\n\t\r\n\t\r\n\t");
}

TEST(TabPass, IsQuickOnALargeText) {
    std::string text;
    for (int line = 0; line < 500'000; ++line)
        text += "\r\n  nop";
    const std::string result = tabPass(text);
    EXPECT_EQ(result.size(), text.size());
    EXPECT_TRUE(result.ends_with("\r\n\t nop"));
}

TEST(ChangeDirectoryLine, ShortensFolderNames) {
    EXPECT_EQ(changeDirectoryLine("C:\\Program Files\\My Tools"), "cd\\Progra~1\\MyTools~1\\");
    EXPECT_EQ(changeDirectoryLine("C:\\Tools"), "cd\\Tools\\");
    EXPECT_EQ(changeDirectoryLine("C:\\Long Folder Name"), "cd\\LongFo~1\\");
    EXPECT_EQ(changeDirectoryLine("C:\\A B"), "cd\\AB~1\\");
    EXPECT_EQ(changeDirectoryLine("C:\\Development"), "cd\\Develo~1\\");
}

TEST(ChangeDirectoryLine, EndsForRootsAndOddSeparators) {
    EXPECT_EQ(changeDirectoryLine("C:\\"), "cd\\");
    EXPECT_EQ(changeDirectoryLine("C:\\a\\\\b\\"), "cd\\a\\b\\");
    EXPECT_EQ(changeDirectoryLine(""), "cd\\");
}

TEST(BatchFile, HasThreeLines) {
    EXPECT_EQ(batchFile("C:\\Program Files\\My Tools", "hello"),
              "C:\\\r\ncd\\Progra~1\\MyTools~1\\\r\nasm hello\r\n");
}

TEST(BatchFile, WithoutAProgramNameEndsInABlank) {
    EXPECT_TRUE(batchFile("C:\\Tools", "").ends_with("\r\nasm \r\n"));
}

}  // namespace kav
