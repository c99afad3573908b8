// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/command_line_split.h"

#include <gtest/gtest.h>
#include <set>

namespace kav {

namespace {

using Arguments = std::vector<std::string>;

SplitCommand split(std::string_view line, const std::set<std::string>& programs = {}) {
    return splitCommandLine(line, [&](const std::string& path) { return programs.contains(path); });
}

}  // namespace

TEST(CommandLine, BeginsWithTheProgram) {
    const SplitCommand command = split("/bin/tool a b");
    EXPECT_EQ(command.program, "/bin/tool");
    EXPECT_EQ(command.arguments, (Arguments{"a", "b"}));
    EXPECT_EQ(command.tail, "a b");
}

TEST(CommandLine, TakesTheLongestProgramThatExists) {
    const std::set<std::string> programs{"/My", "/My Tools/run", "/My Tools/run it"};
    EXPECT_EQ(split("/My Tools/run it now", programs).program, "/My Tools/run it");
    EXPECT_EQ(split("/My Tools/run it now", programs).arguments, (Arguments{"now"}));
    EXPECT_EQ(split("/My Tools/run  x", programs).program, "/My Tools/run");
    EXPECT_EQ(split("/My Tools/run", programs).program, "/My Tools/run");
    EXPECT_EQ(split("/My Tools/other", programs).program, "/My");
}

TEST(CommandLine, TakesTheFirstWordWhereNoProgramExists) {
    EXPECT_EQ(split("/no such program").program, "/no");
    EXPECT_EQ(split("/no such program").arguments, (Arguments{"such", "program"}));
}

TEST(CommandLine, TakesAQuotedProgramAsItStands) {
    const SplitCommand command = split("\"/My Tools/run\" \"a b\" c", {"/My"});
    EXPECT_EQ(command.program, "/My Tools/run");
    EXPECT_EQ(command.arguments, (Arguments{"a b", "c"}));
    EXPECT_EQ(split("\"/never closed").program, "/never closed");
}

TEST(CommandLine, KeepsTheTailForProgramsThatTakeOnePath) {
    EXPECT_EQ(split("/bin/view  /My Tools/temp.lst").tail, "/My Tools/temp.lst");
}

TEST(CommandLine, QuotesAndBackslashesFollowTheUsualRules) {
    EXPECT_EQ(split("p \"a b\"c").arguments, (Arguments{"a bc"}));
    EXPECT_EQ(split("p a\\\\b").arguments, (Arguments{"a\\\\b"}));
    EXPECT_EQ(split("p \"a\\\\\" b").arguments, (Arguments{"a\\", "b"}));
    EXPECT_EQ(split("p a\\\"b").arguments, (Arguments{"a\"b"}));
    EXPECT_EQ(split("p \"a\"\"b\"").arguments, (Arguments{"a\"b"}));
    EXPECT_EQ(split("p \"\"").arguments, (Arguments{""}));
    EXPECT_EQ(split("p c:\\dir\\ x").arguments, (Arguments{"c:\\dir\\", "x"}));
}

TEST(CommandLine, MeansNothingToAShell) {
    EXPECT_EQ(split("p a&b $(x) ;ls *").arguments, (Arguments{"a&b", "$(x)", ";ls", "*"}));
}

TEST(CommandLine, MayBeBlank) {
    EXPECT_EQ(split("").program, "");
    EXPECT_EQ(split("  \t ").program, "");
    EXPECT_EQ(split("  p\ta  ").arguments, (Arguments{"a"}));
}

}  // namespace kav
