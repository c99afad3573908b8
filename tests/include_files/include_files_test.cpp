// SPDX-License-Identifier: GPL-3.0-or-later
// The include files, assembled in the ways that programs use them.
#include "support/application_folder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kav::test {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// What the lines assemble to behind the includes.
Bytes assembled(Calculator calculator, const std::vector<std::string>& includes, const std::string& lines) {
    ApplicationFolder folder(KAV_INCLUDE_FOLDER);
    const bool plus = calculator == Calculator::Ti83Plus;
    folder.tick(!plus, plus);
    std::string source;
    for (const std::string& include : includes)
        source += "#include \"" + include + "\"\r\n";
    folder.build("a", source + " .org $8000\r\n" + lines);
    return folder.program("a", calculator).code;
}

Bytes plus(const std::vector<std::string>& includes, const std::string& lines) {
    return assembled(Calculator::Ti83Plus, includes, lines);
}

Bytes ti83(const std::vector<std::string>& includes, const std::string& lines) {
    return assembled(Calculator::Ti83, includes, lines);
}

}  // namespace

TEST(IncludeFiles, Ti83PlusMakesSystemCalls) {
    EXPECT_EQ(plus({"ti83plus.inc"}, " bcall(_PutS)\r\n bjump(_GetKey)\r\n"),
              (Bytes{0xEF, 0x0A, 0x45, 0xCD, 0x50, 0x00, 0x72, 0x49}));
    EXPECT_EQ(plus({"ti83plus.inc"}, " b_call(_puts)\r\n b_jump(_getkey)\r\n"),
              (Bytes{0xEF, 0x0A, 0x45, 0xCD, 0x50, 0x00, 0x72, 0x49}));
}

TEST(IncludeFiles, CallsCanBeWrittenInCapitals) {
    EXPECT_EQ(plus({"ti83plus.inc"}, " BCALL(_PUTS)\r\n B_CALL(_PUTS)\r\n"),
              (Bytes{0xEF, 0x0A, 0x45, 0xEF, 0x0A, 0x45}));
    EXPECT_EQ(ti83({"ti83.inc"}, " BCALL(_PUTS)\r\n B_JUMP(_PUTS)\r\n"),
              (Bytes{0xCD, 0x0D, 0x47, 0xC3, 0x0D, 0x47}));
}

TEST(IncludeFiles, CallsCanBeWrittenWithoutParentheses) {
    EXPECT_EQ(plus({"ti83plus.inc"}, " bcall _PutS\r\n B_CALL _PutS\r\n bjump _GetKey\r\n"),
              (Bytes{0xEF, 0x0A, 0x45, 0xEF, 0x0A, 0x45, 0xCD, 0x50, 0x00, 0x72, 0x49}));
    EXPECT_EQ(ti83({"ti83.inc"}, " bcall _puts\r\n bjump _puts\r\n"),
              (Bytes{0xCD, 0x0D, 0x47, 0xC3, 0x0D, 0x47}));
}

TEST(IncludeFiles, Ti83CallsTheRomInPlace) {
    EXPECT_EQ(ti83({"ti83.inc"}, " bcall(_puts)\r\n bjump(_getkey)\r\n call _homeup\r\n"),
              (Bytes{0xCD, 0x0D, 0x47, 0xC3, 0xFE, 0x4C, 0xCD, 0x75, 0x47}));
}

TEST(IncludeFiles, NameMemoryFlagsCharactersTokensAndErrors) {
    EXPECT_EQ(
        plus({"ti83plus.inc"},
             " .dw userMem, plotSScreen, StatN\r\n .db textFlags, textInverse, LcapA, tProg, E_Syntax\r\n"),
        (Bytes{0x95, 0x9D, 0x40, 0x93, 0x3A, 0x8A, 0x05, 0x03, 0x41, 0x5F, 0x88}));
    EXPECT_EQ(ti83({"ti83.inc"}, " .dw OP1, plotSScreen, progStart83\r\n .db textflags, LcapA\r\n"),
              (Bytes{0x39, 0x80, 0x29, 0x8E, 0x27, 0x93, 0x05, 0x41}));
}

TEST(IncludeFiles, KeysComeWithEveryCalculatorAndAlone) {
    const Bytes expected{0x09, 0x0F};
    for (const std::string include : {"keys.inc", "ti83plus.inc", "ti83.inc", "ion.inc", "kav.inc"}) {
        EXPECT_EQ(plus({include}, " .db kClear, skClear\r\n"), expected) << include;
    }
}

TEST(IncludeFiles, IonAloneIsEnoughForBothCalculators) {
    const std::string lines = " .dw progstart, gbuf, ionFastCopy\r\n bcall(_puts)\r\n";
    EXPECT_EQ(plus({"ion.inc"}, lines), (Bytes{0x95, 0x9D, 0x40, 0x93, 0xCD, 0x96, 0xEF, 0x0A, 0x45}));
    EXPECT_EQ(ti83({"ion.inc"}, lines), (Bytes{0x27, 0x93, 0x29, 0x8E, 0xB6, 0x91, 0xCD, 0x0D, 0x47}));
}

TEST(IncludeFiles, MirageNamesItsLibraryAndMemory) {
    EXPECT_EQ(plus({"ti83plus.inc", "mirage.inc"}, " .dw ifastcopy, saferam2, gbuf\r\n"),
              (Bytes{0x92, 0x40, 0x72, 0x98, 0x40, 0x93}));
}

TEST(IncludeFiles, GoTogetherAsProgramsCombineThem) {
    const std::vector<std::vector<std::string>> combinations{
        {"ti83plus.inc", "ion.inc"},    {"ion.inc", "ti83plus.inc"},
        {"ti83plus.inc", "mirage.inc"}, {"mirage.inc"},
        {"mirage.inc", "ti83plus.inc"}, {"ti83plus.inc", "keys.inc"},
        {"keys.inc", "ti83plus.inc"},   {"kav.inc", "ti83plus.inc"},
        {"ti83plus.inc", "kav.inc"},    {"kav.inc", "keys.inc"},
        {"ion.inc", "keys.inc"},        {"ion.inc", "ion.inc"},
    };
    for (const auto& includes : combinations) {
        EXPECT_EQ(plus(includes, " ret\r\n"), Bytes{0xC9}) << includes.front();
    }
    EXPECT_EQ(ti83({"ti83.inc", "ion.inc"}, " ret\r\n"), Bytes{0xC9});
    EXPECT_EQ(ti83({"ion.inc", "ti83.inc"}, " ret\r\n"), Bytes{0xC9});
    EXPECT_EQ(ti83({"ti83plus.inc", "ion.inc"}, " ret\r\n"), Bytes{0xC9});
}

TEST(IncludeFiles, TheMacrosThatTheEditorAddsGoWithEachOfThem) {
    const std::string macros =
        "APP_PUSH_ERRORHT .equ 59h\r\nAPP_POP_ERRORHT  .equ 5Ch\r\n"
        "#define disp(xxxx) ld hl,xxxx \\ .db $EF,$0A,$45\r\n";
    for (const std::string include : {"ti83plus.inc", "ion.inc", "kav.inc"}) {
        EXPECT_EQ(plus({include}, macros + " disp($1234)\r\n"), (Bytes{0x21, 0x34, 0x12, 0xEF, 0x0A, 0x45}))
            << include;
    }
}

TEST(IncludeFiles, LeaveTheListingToTheProgram) {
    ApplicationFolder folder(KAV_INCLUDE_FOLDER);
    folder.build("a", "#include \"ti83plus.inc\"\r\n .org userMem-2\r\n .db $BB,$6D\r\n ret\r\n");
    const std::string listing = readFile(folder.file("temp.lst"));
    EXPECT_LT(std::count(listing.begin(), listing.end(), '\n'), 40);
    EXPECT_NE(listing.find("9D95  C9"), std::string::npos);
}

TEST(IncludeFiles, ProgramsMayDefineTheCallsThemselves) {
    EXPECT_EQ(plus({"ti83plus.inc"}, "#define bcall(xxxx) rst 28h \\ .dw xxxx\r\n bcall(_PutS)\r\n"),
              (Bytes{0xEF, 0x0A, 0x45}));
}

TEST(Templates, KavShellTemplateBuildsAsTheEditorMakesIt) {
    ApplicationFolder folder(KAV_INCLUDE_FOLDER);
    folder.build("kav",
                 ".nolist\r\n#include \"kav.inc\"\r\n.list\r\n\r\n.org    userMem-3\r\n.db     $BB,$6D\r\n"
                 " ret\r\n\r\n.db \"KAV\",1           ; Header\r\n"
                 ".db \" TITLE\", 0 ; Title (Must begin with space)\r\n"
                 ".dw 400                ; Stack Required (set to 400 for debug purposes)\r\n\r\nstart:\r\n"
                 ";Put code here\r\n.end\r\n");
    EXPECT_EQ(folder.program("kav", Calculator::Ti83Plus).code,
              (Bytes{0xBB, 0x6D, 0xC9, 'K', 'A', 'V', 1, ' ', 'T', 'I', 'T', 'L', 'E', 0, 0x90, 0x01}));
}

TEST(Templates, IonTemplateBuildsForBothCalculatorsAsTheEditorMakesIt) {
    ApplicationFolder folder(KAV_INCLUDE_FOLDER);
    folder.build(
        "ion",
        "nolist\r\n #include \"ion.inc\".list\r\n\r\n#ifdef TI83P\r\n .org progstart-2\r\n"
        "       .db $BB,$6D\r\n\r\n#else\r\n  .org progstart\r\n\r\n#endif\r\n    ret\r\n jr nc,Start\r\n"
        "  .db \"TITLE\",0\r\n\r\nstart:\r\n;Put Code Here\r\n.end\r\n");
    const Bytes body{0xC9, 0x30, 0x06, 'T', 'I', 'T', 'L', 'E', 0};
    Bytes withMark{0xBB, 0x6D};
    withMark.insert(withMark.end(), body.begin(), body.end());
    EXPECT_EQ(folder.program("ion", Calculator::Ti83Plus).code, withMark);
    EXPECT_EQ(folder.program("ion", Calculator::Ti83).code, body);
}

}  // namespace kav::test
