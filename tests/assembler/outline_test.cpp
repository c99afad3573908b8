// SPDX-License-Identifier: GPL-3.0-or-later
// What editors learn of a source: its statements, names, macros and words.
#include "assembler/outline.h"

#include "assembler/assembler.h"
#include "assembler/words.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace kav::assembler {

namespace {

Result outlined(const std::string& source) {
    MemorySourceFiles files;
    files.add("main.z80", source);
    files.add(
        "names.inc",
        "far .equ 8000h\n#define put(x,y) ld a,x+y \\ .db 9\n#define two ld a,2 \\ ld b,2\nroutine: ret\n");
    Options options;
    options.wantOutline = true;
    return assemble(files, "main.z80", options);
}

/// "line:begin-end bytes longest/shortest" for each statement.
std::string statementsOf(const std::string& source) {
    std::ostringstream text;
    for (const OutlinedStatement& statement : outlined(source).statements) {
        text << statement.line << ':' << statement.begin << '-' << statement.end << ' ' << statement.byteCount
             << ' ' << statement.time.longest << '/' << statement.time.shortest << '\n';
    }
    return text.str();
}

const Symbol* symbolOf(const Result& result, const std::string& name) {
    const auto found = std::find_if(result.symbols.begin(), result.symbols.end(),
                                    [&](const Symbol& symbol) { return symbol.name == name; });
    return found == result.symbols.end() ? nullptr : &*found;
}

bool contains(const std::vector<std::string_view>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

}  // namespace

TEST(Outline, TellsEachStatementsPlaceSizeAndTime) {
    EXPECT_EQ(statementsOf(" ld a,5\nloop: djnz loop ; again\n.org 9D95h\n .db 1,2,3\n"),
              "1:1-7 2 7/7\n2:0-15 2 13/8\n4:1-10 3 0/0\n");
}

TEST(Outline, TellsStatementsOfOneLineApart) {
    EXPECT_EQ(statementsOf(" nop \\ ld bc,1 \\; nop\n"), "1:1-4 1 4/4\n1:7-14 3 10/10\n");
}

TEST(Outline, TakesALineWithMacrosForOneStatement) {
    EXPECT_EQ(statementsOf("#include \"names.inc\"\n two \\ nop ; two\n put(1,2)\n"),
              "2:1-10 5 18/18\n3:1-9 3 7/7\n");
    EXPECT_EQ(statementsOf("#macro both(x)\n ld a,x\n ld b,x\n#endmacro\n both 3\n"), "5:1-7 4 14/14\n");
}

TEST(Outline, LeavesOutWhatBecomesNoBytes) {
    EXPECT_EQ(statementsOf("a .equ 5\n#if 0\n nop\n#endif\n wrong\nlabel:\n .block 5\n ret\n"),
              "8:1-4 1 10/10\n");
}

TEST(Outline, CountsLinesBehindTheBuiltInBlock) {
    std::string source = ";These are KAV Compiler's built in macros.\nfive .equ 5\n";
    source += " nop\n nop\n\n\n\n\n\n;End of KAV Compiler's macros.\n ld a,five\n";
    EXPECT_EQ(statementsOf(source), "1:1-10 2 7/7\n");
    EXPECT_LT(symbolOf(outlined(source), "five")->line, 1);
}

TEST(Outline, KeepsTheListingsAddressesOfALine) {
    MemorySourceFiles files;
    files.add("main.z80", " .org 100h\n nop \\ nop\n");
    Options options;
    options.wantListing = options.wantOutline = true;
    const Result result = assemble(files, "main.z80", options);
    EXPECT_NE(result.listing.find("0002   0100  00 00"), std::string::npos) << result.listing;
    EXPECT_EQ(result.statements.at(1).address, 0x101);
}

TEST(Outline, TellsWhereNamesAreDefined) {
    const Result result = outlined(" nop\n#include \"names.inc\"\nhere: ld hl,far\n");
    ASSERT_NE(symbolOf(result, "here"), nullptr);
    EXPECT_EQ(symbolOf(result, "here")->file, "main.z80");
    EXPECT_EQ(symbolOf(result, "here")->line, 3);
    EXPECT_EQ(symbolOf(result, "far")->file, "names.inc");
    EXPECT_EQ(symbolOf(result, "far")->line, 1);
    EXPECT_EQ(symbolOf(result, "far")->value, 0x8000);
}

TEST(Outline, TellsLocalLabelsFromGlobalOnes) {
    const Result result = outlined(".module game\n_loop: nop\nend: nop\n");
    EXPECT_EQ(symbolOf(result, "_loop")->module, "game");
    EXPECT_EQ(symbolOf(result, "end")->module, "");
}

TEST(Outline, TellsWhenTheSourceWasNotReadToItsEnd) {
    EXPECT_FALSE(outlined(" frob\n nop\n").abandoned);
    std::string source;
    for (int i = 0; i < 200; ++i)
        source += " frob\n";
    EXPECT_TRUE(outlined(source).abandoned);
}

TEST(Outline, NamesMacrosAndAddedInstructions) {
    const Result result =
        outlined("#include \"names.inc\"\n#define gone 1\n#undef gone\n.addinstr BCALL * EF 3 NOP 1\n");
    ASSERT_EQ(result.macros.size(), 2U);
    const auto put = std::find_if(result.macros.begin(), result.macros.end(),
                                  [](const NamedMacro& macro) { return macro.name == "put"; });
    ASSERT_NE(put, result.macros.end());
    EXPECT_EQ(put->parameters, "(x,y)");
    EXPECT_EQ(put->body, "ld a,x+y \\ .db 9");
    EXPECT_EQ(put->file, "names.inc");
    EXPECT_EQ(put->line, 2);
    EXPECT_EQ(result.addedMnemonics, std::vector<std::string>{"bcall"});
}

TEST(Outline, IsOnlyMadeWhenWanted) {
    MemorySourceFiles files;
    files.add("main.z80", "#define x 1\n nop\n");
    const Result result = assemble(files, "main.z80");
    EXPECT_TRUE(result.statements.empty());
    EXPECT_TRUE(result.macros.empty());
}

TEST(Outline, SurvivesMistakesInOtherLines) {
    EXPECT_EQ(statementsOf(" nop\n \"\n ld a,\n frob\n ret\n"), "1:1-4 1 4/4\n5:1-4 1 10/10\n");
}

TEST(Options, SuggestionsCanBeLeftOut) {
    MemorySourceFiles files;
    files.add("main.z80", "start:\n jp strat\n .orgg 5\n#inclde \"a\"\n calll start\n");
    Options options;
    options.wantSuggestions = false;
    const Result result = assemble(files, "main.z80", options);
    ASSERT_EQ(result.messages.size(), 4U);
    for (const Message& message : result.messages)
        EXPECT_EQ(message.text.find("did you mean"), std::string::npos) << message.text;
}

TEST(Options, TheNumberOfLinesCanBeBounded) {
    MemorySourceFiles files;
    files.add("main.z80", " nop\n nop\n nop\n");
    Options options;
    options.maxLines = 2;
    EXPECT_FALSE(assemble(files, "main.z80", options).ok);
    options.maxLines = 3;
    EXPECT_TRUE(assemble(files, "main.z80", options).ok);
}

TEST(Words, AreThoseOfTheAssembler) {
    EXPECT_TRUE(contains(directiveNames(), "org"));
    EXPECT_FALSE(contains(directiveNames(), "="));
    EXPECT_TRUE(contains(hashDirectiveNames(), "include"));
    EXPECT_TRUE(isRegisterOrCondition("IXH"));
    EXPECT_TRUE(isRegisterOrCondition("nz"));
    EXPECT_FALSE(isRegisterOrCondition("ld"));
    EXPECT_FALSE(isRegisterOrCondition("start"));
}

}  // namespace kav::assembler
