// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/mirage_program.h"

#include "runtime/lines.h"
#include "tools/monochrome_bitmap.h"

#include <gtest/gtest.h>

namespace kav {

namespace {

std::string emptyButton() {
    return toDbText(ButtonBitmap());
}

}  // namespace

TEST(MirageProgram, OfTheStandardKindIsWrittenAsTheShellWantsIt) {
    const MirageProgramText program{MirageKind::standard, emptyButton(), "My game", "ignored"};
    const std::string expected = R"(.nolist
 #include "ti83plus.inc"
 #include "mirage.inc"
.list
  .org $9d93        ;Origin
  .db $BB,$6D             ;Compiled AsmPrgm token
  ret                     ;Header Byte 1 -- So TIOS wont run
  .db 1                  ;Header Byte 2 -- Identifies as MirageOS prog
button:                       ;Button - should be a 15x15 graphic
)" + emptyButton() + R"(
desc:                     ;Description - zero terminated
 .db "My game",0
progstart:
;Put code here
.end)";
    const std::string text = program.text();
    EXPECT_EQ(text, joinedLines(linesOf(expected)));
    EXPECT_EQ(linesOf(text).size(), 29U);
}

TEST(MirageProgram, WithExitCodePointsToItsQuitRoutine) {
    const MirageProgramText program{MirageKind::withExitCode, emptyButton(), "My game", "bye"};
    const std::string expected = R"(#include    "ti83plus.inc"          ;General TI-83 Plus include file
#include    "mirage.inc"           ;MirageOS include file
    .org    $9d93               ;Origin (set back two to account for AsmPrgm)
    .db $BB,$6D             ;Compiled AsmPrgm token
    ret                 ;So TIOS wont run the program
    .db 3               ;Identify modified MirageOS with quit routine
)" + emptyButton() + "\r\n\t.dw bye ;pointer to address of quit routine" +
                                 R"(
    .db "My game",0         ;Zero terminated description
;Put code here
.end)";
    const std::string text = program.text();
    EXPECT_EQ(text, joinedLines(linesOf(expected)));
    EXPECT_EQ(linesOf(text).size(), 25U);
}

TEST(MirageProgram, TakesItsInputsAsTheyAre) {
    const MirageProgramText quoted{MirageKind::standard, emptyButton(), "a \"b\" ", ""};
    EXPECT_NE(quoted.text().find(" .db \"a \"b\" \",0\r\n"), std::string::npos);
    const MirageProgramText empty{MirageKind::withExitCode, emptyButton(), "", ""};
    EXPECT_NE(empty.text().find("\t.dw  ;pointer to address of quit routine\r\n"), std::string::npos);
    EXPECT_NE(empty.text().find("    .db \"\",0         ;Zero terminated description\r\n"),
              std::string::npos);
}

TEST(MirageProgram, HoldsTheButtonRowByRow) {
    ButtonBitmap button;
    button.setCell({1, 1}, true);
    button.setCell({15, 15}, true);
    const std::string standard = MirageProgramText{MirageKind::standard, toDbText(button), "", ""}.text();
    EXPECT_EQ(linesOf(standard).at(9), "\t.db %10000000,%00000000");
    EXPECT_EQ(linesOf(standard).at(23), "\t.db %00000000,%00000010");
    const std::string exitCode = MirageProgramText{MirageKind::withExitCode, toDbText(button), "", ""}.text();
    EXPECT_EQ(linesOf(exitCode).at(6), "\t.db %10000000,%00000000");
    EXPECT_EQ(linesOf(exitCode).at(20), "\t.db %00000000,%00000010");
}

}  // namespace kav
