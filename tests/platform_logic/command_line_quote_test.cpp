// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/command_line_quote.h"

#include "platform/command_line_split.h"
#include "support/failure_number.h"

#include <gtest/gtest.h>

namespace kav {

using test::failureNumberOf;

namespace {

constexpr const char* kProcessor = "C:\\Windows\\System32\\cmd.exe";

std::vector<std::string> readBack(const std::string& argument) {
    return splitCommandLine("p " + quotedArgument(argument), [](const std::string&) { return false; })
        .arguments;
}

}  // namespace

TEST(QuotedArgument, StandsAsItIsWhereNoQuotesAreNeeded) {
    EXPECT_EQ(quotedArgument("hello"), "hello");
    EXPECT_EQ(quotedArgument("a&b"), "a&b");
    EXPECT_EQ(quotedArgument("C:\\a\\"), "C:\\a\\");
}

TEST(QuotedArgument, IsReadBackAsOneArgument) {
    for (const char* argument :
         {"", "a", "a b", "a\tb", "\"", "a\"b", "a \"b\" c", "a\\b", "a b\\", "a \\\" b",
          "\\\\server\\a b\\\\", "a & b | c > d %x% ^ !", "\xC3\xA9 \xE2\x82\xAC"}) {
        EXPECT_EQ(readBack(argument), std::vector<std::string>{argument}) << argument;
    }
}

TEST(BatchFiles, AreToldByTheirExtension) {
    for (const char* path : {"C:\\a.bat", "C:\\a b\\c.CMD", "x.Bat", "a.bat.", "a.bat . ", ".bat"}) {
        EXPECT_TRUE(isBatchFile(path)) << path;
    }
    for (const char* path : {"", "bat", "C:\\a.bat\\b.exe", "a.bat.exe", "a.batch", "cmd", ". ."}) {
        EXPECT_FALSE(isBatchFile(path)) << path;
    }
}

TEST(BatchCommandLine, QuotesTheFileAndKeepsTheArguments) {
    EXPECT_EQ(batchCommandLine(kProcessor, "C:\\My R&D\\a.bat", "one \"two three\""),
              "\"C:\\Windows\\System32\\cmd.exe\" /d /v:off /s /c "
              "\"\"C:\\My R&D\\a.bat\" one \"two three\"\"");
    EXPECT_EQ(batchCommandLine("cmd", "a.bat", ""), "\"cmd\" /d /v:off /s /c \"\"a.bat\"\"");
}

TEST(BatchCommandLine, NeverHoldsASecondCommand) {
    for (const char* arguments : {"a&b", "\"a&b\"", "a|b", "a>b", "a<b", "a^", "%PATH%", "a\nb", "a\rb"}) {
        EXPECT_EQ(failureNumberOf([&] { (void)batchCommandLine(kProcessor, "a.bat", arguments); }), 5)
            << arguments;
    }
    const std::string nul("a\0b", 3);
    EXPECT_EQ(failureNumberOf([&] { (void)batchCommandLine(kProcessor, "a.bat", nul); }), 5);
    for (const char* path : {"%TEMP%.bat", "a\" & b.bat"}) {
        EXPECT_EQ(failureNumberOf([&] { (void)batchCommandLine(kProcessor, path, ""); }), 5) << path;
    }
}

}  // namespace kav
