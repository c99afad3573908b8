// SPDX-License-Identifier: GPL-3.0-or-later
#include "documents/aids/program_facts.h"

#include "runtime/files.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace kav::test {

using assembler::Time;

class ProgramFactsOf : public testing::Test {
  protected:
    void SetUp() override {
        makeFolder(folder_.file("include"));
        writeFile(folder_.file("include/names.inc"), "far .equ 8000h\r\n#define twice(x) x \\ x\r\n");
    }

    [[nodiscard]] ProgramFacts facts(const std::string& document, bool forTi83 = false) {
        return {document, {folder_.path().string(), forTi83}};
    }

    /// The cost of whole lines.
    static Cost lines(const ProgramFacts& facts, int first, int last) {
        return facts.costOf({first, 0, last + 1, 0});
    }

    TemporaryFolder folder_;
};

TEST_F(ProgramFactsOf, ADocumentAreItsStatementsSizesAndTimes) {
    const ProgramFacts known = facts(" ld a,5\r\nhere: djnz here\r\n .db 1,2,3\r\n");
    EXPECT_EQ(lines(known, 1, 1), (Cost{2, Time{7, 7}, 0}));
    EXPECT_EQ(lines(known, 1, 2), (Cost{4, Time{20, 15}, 0}));
    EXPECT_EQ(lines(known, 1, 3), (Cost{7, Time{20, 15}, 0}));
    EXPECT_EQ(lines(known, 4, 9), Cost{});
}

TEST_F(ProgramFactsOf, AnyLineEnds) {
    EXPECT_EQ(lines(facts(" nop\n ret\n"), 2, 2), (Cost{1, Time{10, 10}, 0}));
}

TEST_F(ProgramFactsOf, APartOfALineAreTheStatementsItTouches) {
    const ProgramFacts known = facts(" nop \\ ld bc,1 ; c\r\n");
    EXPECT_EQ(known.costOf({1, 0, 1, 4}).bytes, 1U);
    EXPECT_EQ(known.costOf({1, 0, 1, 7}).bytes, 1U);
    EXPECT_EQ(known.costOf({1, 0, 1, 8}).bytes, 4U);
    EXPECT_EQ(known.costOf({1, 4, 1, 9}).bytes, 3U);
    EXPECT_EQ(known.costOf({1, 3, 1, 9}).bytes, 4U);
    EXPECT_EQ(known.costOf({1, 14, 2, 0}), Cost{});
}

TEST_F(ProgramFactsOf, SelectionsAreReadInTheContextOfTheWholeDocument) {
    const ProgramFacts known =
        facts("#include \"names.inc\"\r\n#define load ld a,\r\n load(far)\r\n twice(nop)\r\n disp(far)\r\n");
    EXPECT_EQ(lines(known, 3, 3), (Cost{3, Time{13, 13}, 0}));
    EXPECT_EQ(lines(known, 4, 4), (Cost{2, Time{8, 8}, 0}));
    EXPECT_EQ(lines(known, 5, 5), (Cost{6, Time{10, 10}, 0}));
}

TEST_F(ProgramFactsOf, LinesWithMistakesAreLeftOutAndCounted) {
    const ProgramFacts known = facts(" nop\r\n ld hl,nowhere\r\n frob\r\n ret\r\n");
    EXPECT_EQ(lines(known, 1, 4), (Cost{2, Time{14, 14}, 2}));
    EXPECT_EQ(known.costOf({1, 0, 3, 0}), (Cost{1, Time{4, 4}, 1}));
    EXPECT_EQ(known.costOf({1, 0, 3, 1}).linesLeftOut, 2);
    EXPECT_EQ(known.statementAt(2, 1), nullptr);
}

TEST_F(ProgramFactsOf, TooManyMistakesToReadItAllAreNoSumAtAll) {
    std::string document = " nop\r\n";
    for (int i = 0; i < 1100; ++i)
        document += " frob\r\n";
    EXPECT_EQ(lines(facts(document), 1, 1), Cost{});
}

TEST_F(ProgramFactsOf, TheCalculatorThatIsBuiltFor) {
    const std::string document = "#ifdef TI83P\r\n nop\r\n#endif\r\n#ifdef TI83\r\n ret\r\n#endif\r\n";
    EXPECT_EQ(lines(facts(document), 1, 6).time.longest, 4U);
    EXPECT_EQ(lines(facts(document, true), 1, 6).time.longest, 10U);
}

TEST_F(ProgramFactsOf, AStatementAreItsBytes) {
    const ProgramFacts known = facts(" .org 9D95h\r\n ret\r\nhere: jp here\r\n");
    const auto* statement = known.statementAt(3, 8);
    ASSERT_NE(statement, nullptr);
    const auto bytes = known.bytesOf(*statement);
    EXPECT_EQ(std::vector<std::uint8_t>(bytes.begin(), bytes.end()),
              (std::vector<std::uint8_t>{0xC3, 0x96, 0x9D}));
    EXPECT_EQ(known.statementAt(3, 13), nullptr);
    EXPECT_EQ(known.statementAt(1, 1), nullptr);
}

TEST_F(ProgramFactsOf, NamesAreFoundInAnyCase) {
    const ProgramFacts known = facts("#include \"names.inc\"\r\nStart: nop\r\n#define five 5\r\n");
    ASSERT_NE(known.symbol("FAR", 1), nullptr);
    EXPECT_EQ(known.symbol("FAR", 1)->value, 0x8000);
    EXPECT_EQ(known.symbol("FAR", 1)->file, "names.inc");
    ASSERT_NE(known.symbol("start", 1), nullptr);
    EXPECT_TRUE(known.isInDocument(known.symbol("start", 1)->file));
    EXPECT_EQ(known.symbol("start", 1)->line, 2);
    EXPECT_EQ(known.symbol("nowhere", 1), nullptr);
    EXPECT_EQ(known.symbol("APP_PUSH_ERRORHT", 1)->value, 0x59);
    EXPECT_LT(known.symbol("APP_PUSH_ERRORHT", 1)->line, 1);
    EXPECT_NE(known.macro("TWICE"), nullptr);
    EXPECT_NE(known.macro("five"), nullptr);
    EXPECT_EQ(known.macro("FIVE"), nullptr);
}

TEST_F(ProgramFactsOf, ALocalLabelAreThoseOfTheNearestOneAbove) {
    const ProgramFacts known =
        facts(".module one\r\n_here: nop\r\n jr _here\r\n.module two\r\n_here: nop\r\n jr _here\r\n");
    EXPECT_EQ(known.symbol("_here", 3)->line, 2);
    EXPECT_EQ(known.symbol("_here", 6)->line, 5);
    EXPECT_NE(known.symbol("_here", 1), nullptr);
}

TEST_F(ProgramFactsOf, IncludeFilesAreReadAsTheyAreNow) {
    const std::string document = "#include \"names.inc\"\r\n";
    EXPECT_EQ(facts(document).symbol("far", 1)->value, 0x8000);
    writeFile(folder_.file("include/names.inc"), "far .equ 9000h\r\n");
    EXPECT_EQ(facts(document).symbol("far", 1)->value, 0x9000);
}

TEST_F(ProgramFactsOf, AMissingIncludeFileLeavesTheRest) {
    const ProgramFacts known = facts("#include \"none.inc\"\r\n nop\r\n");
    EXPECT_EQ(lines(known, 1, 2), (Cost{1, Time{4, 4}, 1}));
}

TEST_F(ProgramFactsOf, AVeryLongDocumentAreNone) {
    std::string document = "here: nop\r\n";
    document.resize(kLongestReadDocument + 1, '\n');
    EXPECT_EQ(facts(document).symbol("here", 1), nullptr);
    document.pop_back();
    EXPECT_NE(facts(document).symbol("here", 1), nullptr);
}

TEST_F(ProgramFactsOf, NothingAreNone) {
    const ProgramFacts none;
    EXPECT_EQ(lines(none, 1, 5), Cost{});
    EXPECT_EQ(none.statementAt(1, 0), nullptr);
    EXPECT_EQ(none.symbol("a", 1), nullptr);
    EXPECT_EQ(facts("").statementAt(1, 0), nullptr);
}

}  // namespace kav::test
