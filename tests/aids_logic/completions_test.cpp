// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/completions.h"

#include "runtime/files.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kav::test {

class CompletionsOf : public testing::Test {
  protected:
    using Words = std::vector<std::string>;

    void SetUp() override {
        makeFolder(folder_.file("include"));
        writeFile(folder_.file("include/names.inc"),
                  "FarAway .equ 8000h\r\n#define farther(x) x\r\n.addinstr frobnicate * EF 3 NOP 1\r\n");
        facts_ = ProgramFacts("#include \"names.inc\"\r\nfast: nop\r\nStart: nop\r\n",
                              {folder_.path().string(), false});
    }

    /// What is offered where the | stands in the line.
    Completions at(std::string line, CompletionCause cause = CompletionCause::Typing) {
        const std::size_t caret = line.find('|');
        line.erase(caret, 1);
        return completionsAt(line, caret, facts_, cause);
    }
    Words typed(const std::string& line) { return at(line).words; }
    Words asked(const std::string& line) { return at(line, CompletionCause::Asking).words; }

    static bool contains(const Words& words, const std::string& word) {
        return std::find(words.begin(), words.end(), word) != words.end();
    }

    TemporaryFolder folder_;
    ProgramFacts facts_;
};

TEST_F(CompletionsOf, AnOperationAreMnemonicsDirectivesAndMacros) {
    EXPECT_EQ(typed(" ad|"), (Words{"adc", "add", "addinstr"}));
    EXPECT_EQ(typed("loop: dj|"), Words{"djnz"});
    EXPECT_EQ(typed(" nop \\ dj|"), Words{"djnz"});
    EXPECT_EQ(typed(" fa|"), Words{"farther"});
    EXPECT_EQ(typed(" fro|"), Words{"frobnicate"});
}

TEST_F(CompletionsOf, AnOperandAreLabelsAndNamesOfIncludeFiles) {
    EXPECT_EQ(typed(" jp fa|"), (Words{"FarAway", "farther", "fast"}));
    EXPECT_EQ(typed(" ld hl,(st|"), Words{"Start"});
    EXPECT_EQ(typed(" .dw sta|"), Words{"Start"});
    EXPECT_EQ(typed("#ifdef TI|"), Words{"TI83P"});
    EXPECT_EQ(typed(" jp ad|"), Words{});
}

TEST_F(CompletionsOf, DirectivesKeepTheirSign) {
    EXPECT_EQ(typed(" .bl|"), Words{".block"});
    EXPECT_EQ(at(" .bl|").begin, 1U);
    EXPECT_EQ(typed("#incl|"), Words{"#include"});
    EXPECT_EQ(typed("#in|"), Words{"#include"});
}

TEST_F(CompletionsOf, TheCaseIsThatOfWhatIsTypedButNamesKeepTheirs) {
    EXPECT_EQ(typed(" DJ|"), Words{"DJNZ"});
    EXPECT_EQ(typed(" Dj|"), Words{"djnz"});
    EXPECT_EQ(typed(" .BL|"), Words{".BLOCK"});
    EXPECT_EQ(typed(" jp START|"), Words{});
    EXPECT_EQ(typed(" jp STAR|"), Words{"Start"});
}

TEST_F(CompletionsOf, NothingIsOfferedWhereNoneIsMeant) {
    EXPECT_EQ(typed("sta|"), Words{});
    EXPECT_EQ(typed(" nop \\sta|"), Words{});
    EXPECT_EQ(typed(" nop ; sta|"), Words{});
    EXPECT_EQ(typed(" .db \"sta|\""), Words{});
    EXPECT_EQ(typed(" .db \"sta|"), Words{});
    EXPECT_EQ(typed("#include \"sta|"), Words{});
    EXPECT_EQ(typed("#define sta|"), Words{});
    EXPECT_EQ(typed(" ld a,$fa|"), Words{});
    EXPECT_EQ(typed(" ld a,0fa|"), Words{});
    EXPECT_EQ(typed(" jp sta|rt"), Words{});
    EXPECT_EQ(asked("sta|"), Words{});
    EXPECT_EQ(asked(" ; sta|"), Words{});
    EXPECT_EQ(asked("|"), Words{});
}

TEST_F(CompletionsOf, AKnownWordIsLeftInPeace) {
    EXPECT_EQ(typed(" ld|"), Words{});
    EXPECT_EQ(typed(" LD|"), Words{});
    EXPECT_EQ(typed(" jp fast|"), Words{});
    EXPECT_EQ(typed(" .db|"), Words{});
    EXPECT_EQ(typed(" push hl|"), Words{});
    EXPECT_EQ(typed(" jp nz|"), Words{});
    EXPECT_TRUE(contains(asked(" ld|"), "ldir"));
}

TEST_F(CompletionsOf, TwoLettersAreNeededWhileTyping) {
    EXPECT_EQ(typed(" d|"), Words{});
    EXPECT_EQ(typed(" .d|"), Words{});
    EXPECT_EQ(typed(" |"), Words{});
    EXPECT_TRUE(contains(asked(" d|"), "djnz"));
    EXPECT_TRUE(contains(asked(" |"), "ld"));
    EXPECT_TRUE(contains(asked(" jp |"), "Start"));
    EXPECT_FALSE(contains(asked(" jp |"), "ld"));
}

TEST_F(CompletionsOf, EachWordIsOfferedOnce) {
    Words words = asked(" |");
    ASSERT_TRUE(contains(words, "set"));
    EXPECT_EQ(std::count(words.begin(), words.end(), "set"), 1);
}

TEST_F(CompletionsOf, WithoutFactsTheLanguageIsLeft) {
    const std::string line = " dj";
    EXPECT_EQ(completionsAt(line, 3, {}, CompletionCause::Typing).words, Words{"djnz"});
    EXPECT_EQ(completionsAt(line, 4, {}, CompletionCause::Typing).words, Words{});
}

}  // namespace kav::test
