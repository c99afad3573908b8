// SPDX-License-Identifier: GPL-3.0-or-later
#include "program_file/program_file.h"

#include "runtime/failure.h"
#include "runtime/files.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace kav {

namespace {

std::string nameErrorOf(const std::string& name) {
    try {
        return "accepted as " + calculatorName(name);
    } catch (const ProgramFileError& error) {
        return error.what();
    }
}

std::size_t entriesOf(const std::filesystem::path& folder) {
    const std::filesystem::directory_iterator all(folder);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

}  // namespace

TEST(CalculatorName, IsTheNameInCapitals) {
    EXPECT_EQ(calculatorName("hello"), "HELLO");
    EXPECT_EQ(calculatorName("a1b2C3d4"), "A1B2C3D4");
    EXPECT_EQ(calculatorName("z"), "Z");
}

TEST(CalculatorName, RefusesWhatTheCalculatorDoesNotTakeAndSaysWhy) {
    const std::string rule = ": a program name is 1 to 8 letters and digits and begins with a letter";
    EXPECT_EQ(nameErrorOf(""), "Program name \"\" is empty" + rule);
    EXPECT_EQ(nameErrorOf("ninechars"), "Program name \"ninechars\" is too long" + rule);
    EXPECT_EQ(nameErrorOf("1up"), "Program name \"1up\" does not begin with a letter" + rule);
    EXPECT_EQ(nameErrorOf("a b"), "Program name \"a b\" holds \" \"" + rule);
    EXPECT_EQ(nameErrorOf("a&b"), "Program name \"a&b\" holds \"&\"" + rule);
    EXPECT_EQ(nameErrorOf("$(x)"), "Program name \"$(x)\" does not begin with a letter" + rule);
    EXPECT_EQ(nameErrorOf("../x"), "Program name \"../x\" does not begin with a letter" + rule);
}

TEST(CalculatorName, ErrorIsOneLineOfTextWhateverTheNameHolds) {
    EXPECT_EQ(nameErrorOf("a\n\xFF").substr(0, 37), "Program name \"a\\x0A\\xFF\" holds \"\\x0A\"");
}

TEST(ProgramFile, GivesBackTheProgramThatWasWritten) {
    const test::TemporaryFolder folder;
    const std::vector<std::uint8_t> code{0xBB, 0x6D, 0xC9};
    writeProgram(folder.file("hello.8xp"), "hello", Calculator::Ti83Plus, code);
    writeProgram(folder.file("hello.83p"), "hello", Calculator::Ti83, {0xC9});

    const Program plus = readProgram(folder.file("hello.8xp"));
    EXPECT_EQ(plus.name, "HELLO");
    EXPECT_EQ(plus.code, code);
    EXPECT_EQ(plus.calculator, Calculator::Ti83Plus);

    const Program ti83 = readProgram(folder.file("hello.83p"));
    EXPECT_EQ(ti83.code, std::vector<std::uint8_t>{0xC9});
    EXPECT_EQ(ti83.calculator, Calculator::Ti83);
}

TEST(ProgramFile, HasTheSignatureOfItsCalculatorAndTheTypeOfAProtectedProgram) {
    const test::TemporaryFolder folder;
    writeProgram(folder.file("a.8xp"), "a", Calculator::Ti83Plus, {0xBB, 0x6D, 0xC9});
    writeProgram(folder.file("a.83p"), "a", Calculator::Ti83, {0xC9});
    const std::string plus = readFile(folder.file("a.8xp"));
    const std::string ti83 = readFile(folder.file("a.83p"));
    EXPECT_EQ(plus.substr(0, 8), "**TI83F*");
    EXPECT_EQ(ti83.substr(0, 8), "**TI83**");
    EXPECT_EQ(plus[59], 6);
    EXPECT_EQ(ti83[59], 6);
    // The variable's data: a length word, then the program.
    EXPECT_EQ(plus.substr(72, 5), std::string("\x03\x00\xBB\x6D\xC9", 5));
}

TEST(ProgramFile, TakesALongNameAndAnEmptyProgram) {
    const test::TemporaryFolder folder;
    writeProgram(folder.file("x.8xp"), "longname", Calculator::Ti83Plus, {});
    EXPECT_EQ(readProgram(folder.file("x.8xp")).name, "LONGNAME");
    EXPECT_TRUE(readProgram(folder.file("x.8xp")).code.empty());
}

TEST(ProgramFile, RefusesAProgramThatDoesNotFitAndGivesTheFigures) {
    const test::TemporaryFolder folder;
    const std::size_t limit = largestProgram(Calculator::Ti83Plus);
    EXPECT_EQ(limit, 0xFE66U - 0x9D95U - 2U);
    writeProgram(folder.file("big.8xp"), "big", Calculator::Ti83Plus, std::vector<std::uint8_t>(limit));
    EXPECT_EQ(readProgram(folder.file("big.8xp")).code.size(), limit);
    try {
        writeProgram(folder.file("more.8xp"), "more", Calculator::Ti83Plus,
                     std::vector<std::uint8_t>(limit + 1));
        FAIL() << "written";
    } catch (const ProgramFileError& error) {
        EXPECT_STREQ(error.what(),
                     "Program too large for the TI-83 Plus: it has 24784 bytes, 24783 is the limit");
    }
    EXPECT_FALSE(fileExists(folder.file("more.8xp")));
}

TEST(ProgramFile, LeavesNothingBehindWhenItCannotBeWritten) {
    const test::TemporaryFolder folder;
    makeFolder(folder.file("taken.8xp"));
    EXPECT_THROW(writeProgram(folder.file("taken.8xp"), "taken", Calculator::Ti83Plus, {1}), Failure);
    EXPECT_THROW(writeProgram(folder.file("none/a.8xp"), "a", Calculator::Ti83Plus, {1}), Failure);
    EXPECT_EQ(entriesOf(folder.path()), 1U);
}

TEST(ProgramFile, TakesAnyBytesInThePath) {
    const test::TemporaryFolder folder;
    const std::string path = folder.file("a \xC3\xA4 & $(x).8xp");
    writeProgram(path, "a", Calculator::Ti83Plus, {1, 2, 3});
    EXPECT_EQ(readProgram(path).code.size(), 3U);
}

TEST(ProgramFile, RefusesToReadWhatIsNoProgram) {
    const test::TemporaryFolder folder;
    writeFile(folder.file("text.8xp"), "no program at all");
    EXPECT_THROW((void)readProgram(folder.file("text.8xp")), ProgramFileError);
    writeProgram(folder.file("cut.8xp"), "cut", Calculator::Ti83Plus, {1, 2, 3});
    writeFile(folder.file("cut.8xp"), readFile(folder.file("cut.8xp")).substr(0, 60));
    EXPECT_THROW((void)readProgram(folder.file("cut.8xp")), ProgramFileError);
    EXPECT_THROW((void)readProgram(folder.file("missing.8xp")), ProgramFileError);
}

TEST(ProgramFile, NoticesADamagedFile) {
    const test::TemporaryFolder folder;
    writeProgram(folder.file("a.8xp"), "a", Calculator::Ti83Plus, {1, 2, 3});
    std::string damaged = readFile(folder.file("a.8xp"));
    damaged[75] = '\x55';
    writeFile(folder.file("a.8xp"), damaged);
    EXPECT_THROW((void)readProgram(folder.file("a.8xp")), ProgramFileError);
}

}  // namespace kav
