// SPDX-License-Identifier: GPL-3.0-or-later
// The script `asm`, with stand-ins for the assembler.
#include "runtime/files.h"
#include "support/temporary_folder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>

namespace kav {

namespace fs = std::filesystem;

namespace {

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char character : text)
        result += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return result + "'";
}

/// An application folder with the script and, when given, a shell script in the place of kav-asm.
class AsmScript : public testing::Test {
  protected:
    void SetUp() override {
        fs::create_directory(app());
        fs::copy_file(KAV_ASM_SCRIPT, file("asm"));
        writeFile(file("errLog.txt"), "2\r\n");
    }

    void assemblerDoes(const std::string& commands) {
        writeFile(file("kav-asm"), "#!/bin/sh\n" + commands + "\n");
        fs::permissions(file("kav-asm"), fs::perms::owner_all);
    }

    /// The script's exit code, run from another folder as the editor does.
    int run(const std::optional<std::string>& name) {
        std::string command = "cd / && " + quoted(file("asm"));
        if (name) command += " " + quoted(*name);
        command += " >" + quoted(folder_.file("output")) + " 2>&1";
        return std::system(command.c_str()) >> 8;  // NOLINT(bugprone-command-processor)
    }

    [[nodiscard]] fs::path app() const { return folder_.path() / "KAV $(touch x) & 'more'"; }
    [[nodiscard]] std::string file(const std::string& name) const { return (app() / name).string(); }
    [[nodiscard]] std::string output() const { return readFile(folder_.file("output")); }

  private:
    test::TemporaryFolder folder_;
};

}  // namespace

TEST_F(AsmScript, HandsTheNameToTheAssemblerInItsOwnFolder) {
    assemblerDoes("printf '%s|%s|%s' \"$#\" \"$1\" \"$2\" >arguments; printf '0\\r\\n' >errLog.txt");
    EXPECT_EQ(run("hello"), 0);
    EXPECT_EQ(readFile(file("arguments")), "2|--build|hello");
    EXPECT_EQ(readFile(file("errLog.txt")), "0\r\n");
    EXPECT_FALSE(fileExists(file("temp.lst")));
}

TEST_F(AsmScript, BuildsWithTheAssembler) {
    fs::copy_file(KAV_ASM_COMMAND, file("kav-asm"));
    writeFile(file("hello.z80"), " .org $9D93\r\n .db $BB,$6D\r\n ret\r\n");
    EXPECT_EQ(run("hello"), 0) << output();
    EXPECT_EQ(readFile(file("errLog.txt")), "0\r\n");
    EXPECT_TRUE(fileExists(file("hello.8xp")));
    EXPECT_TRUE(fileExists(file("hello.83p")));
    EXPECT_NE(output().find("Success."), std::string::npos);
}

TEST_F(AsmScript, ANameThatLooksLikeAnOptionIsABadName) {
    fs::copy_file(KAV_ASM_COMMAND, file("kav-asm"));
    EXPECT_EQ(run("--help"), 1);
    EXPECT_EQ(readFile(file("errLog.txt")), "1\r\n");
    EXPECT_NE(readFile(file("temp.lst")).find("line 0001: Program name \"--help\""), std::string::npos);
}

TEST_F(AsmScript, NeverLooksIntoTheName) {
    assemblerDoes("printf '%s' \"$2\" >arguments; printf '1\\r\\n' >errLog.txt; exit 1");
    for (const std::string name :
         {"$(touch bad)", "a b", "a&touch bad", "../x", "`touch bad`", "a;touch bad", "*"}) {
        EXPECT_EQ(run(name), 1);
        EXPECT_EQ(readFile(file("arguments")), name);
        EXPECT_FALSE(fileExists(file("bad")));
    }
}

TEST_F(AsmScript, HandsAnEmptyNameOnWhenThereIsNone) {
    assemblerDoes("printf '%s|%s' \"$#\" \"$2\" >arguments; printf '1\\r\\n' >errLog.txt; exit 1");
    EXPECT_EQ(run(std::nullopt), 1);
    EXPECT_EQ(readFile(file("arguments")), "2|");
}

TEST_F(AsmScript, GivesAVerdictWhenTheAssemblerIsMissing) {
    EXPECT_EQ(run("hello"), 1);
    EXPECT_EQ(readFile(file("errLog.txt")), "1\r\n");
    EXPECT_EQ(readFile(file("temp.lst")),
              "temp.z80 has 1 error:\r\n"
              "temp.z80 line 0001: The assembler kav-asm is missing in the application folder\r\n");
    EXPECT_NE(output().find("kav-asm is missing"), std::string::npos);
}

TEST_F(AsmScript, GivesAVerdictWhenTheAssemblerCrashes) {
    assemblerDoes("kill -9 $$");
    EXPECT_EQ(run("hello"), 1);
    EXPECT_EQ(readFile(file("errLog.txt")), "1\r\n");
    EXPECT_NE(readFile(file("temp.lst")).find("ended without a verdict (exit code 137)"), std::string::npos);
}

TEST_F(AsmScript, GivesAVerdictWhenTheAssemblerSaysNothing) {
    assemblerDoes("exit 0");
    EXPECT_EQ(run("hello"), 1);
    EXPECT_EQ(readFile(file("errLog.txt")), "1\r\n");
}

}  // namespace kav
