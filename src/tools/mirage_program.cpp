// SPDX-License-Identifier: GPL-3.0-or-later
// The program skeletons for the MirageOS shell, line by line.
#include "tools/mirage_program.h"

#include "runtime/lines.h"

namespace kav {

namespace {

std::string standardText(const MirageProgramText& program) {
    const std::string description = " .db \"" + program.description + "\",0";
    return joinedLines({
        R"(.nolist)",
        R"( #include "ti83plus.inc")",
        R"( #include "mirage.inc")",
        R"(.list)",
        R"(  .org $9d93        ;Origin)",
        R"(  .db $BB,$6D             ;Compiled AsmPrgm token)",
        R"(  ret                     ;Header Byte 1 -- So TIOS wont run)",
        R"(  .db 1                  ;Header Byte 2 -- Identifies as MirageOS prog)",
        R"(button:                       ;Button - should be a 15x15 graphic)",
        program.button,
        R"(desc:                     ;Description - zero terminated)",
        description,
        R"(progstart:)",
        R"(;Put code here)",
        R"(.end)",
    });
}

std::string exitCodeText(const MirageProgramText& program) {
    const std::string quitPointer = "\t.dw " + program.quitLabel + " ;pointer to address of quit routine";
    const std::string description =
        "    .db \"" + program.description + "\",0         ;Zero terminated description";
    return joinedLines({
        R"(#include    "ti83plus.inc"          ;General TI-83 Plus include file)",
        R"(#include    "mirage.inc"           ;MirageOS include file)",
        R"(    .org    $9d93               ;Origin (set back two to account for AsmPrgm))",
        R"(    .db $BB,$6D             ;Compiled AsmPrgm token)",
        R"(    ret                 ;So TIOS wont run the program)",
        R"(    .db 3               ;Identify modified MirageOS with quit routine)",
        program.button,
        quitPointer,
        description,
        R"(;Put code here)",
        R"(.end)",
    });
}

}  // namespace

std::string MirageProgramText::text() const {
    return kind == MirageKind::standard ? standardText(*this) : exitCodeText(*this);
}

}  // namespace kav
