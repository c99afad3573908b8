// SPDX-License-Identifier: GPL-3.0-or-later
#include "assembler/command_line.h"
#include "assembler/run.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>

namespace kav::assembler {

namespace {

class Command : public testing::Test {
  protected:
    void write(const std::string& name, const std::string& text) {
        std::filesystem::create_directories(std::filesystem::path(folder_.file(name)).parent_path());
        std::ofstream(folder_.file(name), std::ios::binary) << text;
    }

    [[nodiscard]] std::string read(const std::string& name) const {
        std::ifstream stream(folder_.file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

    ExitCode run(const std::vector<std::string>& arguments) {
        return assembler::run(readCommandLine(arguments), folder_.path().string(), output_, errors_);
    }

    test::TemporaryFolder folder_;
    std::ostringstream output_;
    std::ostringstream errors_;
};

}  // namespace

TEST(CommandLine, ReadsOptionsInEveryForm) {
    const CommandLine line =
        readCommandLine({"-DA", "--define", "B=2", "-I", "inc", "--include=more", "-o", "x.bin", "-l",
                         "x.lst", "--symbols=x.sym", "--strict", "a.z80"});
    EXPECT_EQ(line.source, "a.z80");
    EXPECT_EQ(line.output, "x.bin");
    EXPECT_EQ(line.listing, "x.lst");
    EXPECT_EQ(line.symbols, "x.sym");
    EXPECT_EQ(line.target, Target::kBinary);
    EXPECT_TRUE(line.strict);
    ASSERT_EQ(line.defines.size(), 2U);
    EXPECT_EQ(line.defines[0], (std::pair<std::string, std::string>("A", "1")));
    EXPECT_EQ(line.defines[1], (std::pair<std::string, std::string>("B", "2")));
    EXPECT_EQ(line.includeFolders, (std::vector<std::string>{"inc", "more"}));
}

TEST(CommandLine, TakesTheTargetFromTheOutputUnlessItIsGiven) {
    EXPECT_EQ(readCommandLine({"a.z80"}).target, Target::kTi83Plus);
    EXPECT_EQ(readCommandLine({"a.z80", "-o", "a.83p"}).target, Target::kTi83);
    EXPECT_EQ(readCommandLine({"a.z80", "-o", "a.83p", "-t", "bin"}).target, Target::kBinary);
}

TEST(CommandLine, TakesWhatFollowsTwoDashesForFiles) {
    EXPECT_EQ(readCommandLine({"--", "-a.z80"}).source, "-a.z80");
}

TEST(CommandLine, RefusesWhatMakesNoSense) {
    EXPECT_THROW((void)readCommandLine({}), UsageError);
    EXPECT_THROW((void)readCommandLine({"a", "b"}), UsageError);
    EXPECT_THROW((void)readCommandLine({"--frobnicate", "a"}), UsageError);
    EXPECT_THROW((void)readCommandLine({"a", "-o"}), UsageError);
    EXPECT_THROW((void)readCommandLine({"a", "-t", "ti99"}), UsageError);
    EXPECT_THROW((void)readCommandLine({"a", "-D", "1x"}), UsageError);
    EXPECT_THROW((void)readCommandLine({"a", "--listing="}), UsageError);
    EXPECT_THROW((void)readCommandLine({"--strict=yes", "a"}), UsageError);
}

TEST_F(Command, WritesBytesListingAndSymbols) {
    write("a.z80", " .org $9D95\nstart: ld a,N\n ret\nbig .equ -1\n");
    EXPECT_EQ(run({"-t", "bin", "-DN=7", "-l", folder_.file("a.lst"), "-s", folder_.file("a.sym"),
                   folder_.file("a.z80")}),
              kSuccess);
    EXPECT_EQ(read("a.bin"), "\x3E\x07\xC9");
    EXPECT_NE(read("a.lst").find("0002   9D95  3E 07"), std::string::npos);
    EXPECT_EQ(read("a.sym"), "start .equ $9D95\nbig .equ $FFFFFFFF\n");
    EXPECT_EQ(errors_.str(), "");
}

TEST_F(Command, WritesProgramFilesForBothCalculators) {
    write("a.z80", "#ifdef TI83P\n .db 1\n#endif\n#ifdef TI83\n .db 2\n#endif\n");
    EXPECT_EQ(run({folder_.file("a.z80")}), kSuccess);
    EXPECT_EQ(run({"--target=ti83", folder_.file("a.z80")}), kSuccess);
    EXPECT_TRUE(read("a.8xp").starts_with("**TI83F*"));
    EXPECT_TRUE(read("a.83p").starts_with("**TI83**"));
}

TEST_F(Command, ReportsErrorsOfTheSourceAndWritesNoProgram) {
    write("a.z80", " nop\n call x\n");
    EXPECT_EQ(run({"-t", "bin", "-l", folder_.file("a.lst"), folder_.file("a.z80")}), kSourceErrors);
    EXPECT_EQ(errors_.str(), "a.z80:2: error: Label not found: (x)\n");
    EXPECT_FALSE(std::filesystem::exists(folder_.file("a.bin")));
    EXPECT_TRUE(read("a.lst").ends_with("temp.z80 line 0002: Label not found: (x)\r\n"));
}

TEST_F(Command, ReportsFilesThatCannotBeReadOrWritten) {
    EXPECT_EQ(run({folder_.file("missing.z80")}), kFileTrouble);
    EXPECT_NE(errors_.str().find("missing.z80: there is no such file"), std::string::npos);
    write("a.z80", " nop\n");
    EXPECT_EQ(run({"-o", folder_.file("no/such/a.bin"), folder_.file("a.z80")}), kFileTrouble);
    EXPECT_EQ(run({"-o", folder_.file("9names.8xp"), folder_.file("a.z80")}), kFileTrouble);
}

TEST_F(Command, FindsIncludesBesideTheSourceThenInFoldersThenBesideItself) {
    write("src/a.z80", "#include \"x.inc\"\n#include \"Y.INC\"\n#include \"z.inc\"\n");
    write("src/x.inc", " .db 1\n");
    write("inc/x.inc", " .db 9\n");
    write("inc/y.inc", " .db 2\n");
    write("include/y.inc", " .db 9\n");
    write("include/z.inc", " .db 3\n");
    EXPECT_EQ(run({"-I", folder_.file("inc"), "-o", folder_.file("a.bin"), folder_.file("src/a.z80")}),
              kSuccess);
    EXPECT_EQ(read("a.bin"), "\x01\x02\x03");
}

TEST_F(Command, WarnsOfCodeWhereTheTi83PlusRunsNone) {
    write("a.z80", " .org $9D93\n .db $BB,$6D\n .fill $C001-$9D95\n");
    EXPECT_EQ(run({folder_.file("a.z80")}), kSuccess);
    EXPECT_NE(errors_.str().find("ends 1 bytes past $C000"), std::string::npos);
}

TEST_F(Command, ShowsNotesHelpAndVersion) {
    write("a.z80", " .echo \"size \",5+1,\"\\n\"\n nop\n");
    EXPECT_EQ(run({"-t", "bin", folder_.file("a.z80")}), kSuccess);
    EXPECT_NE(output_.str().find("size 6"), std::string::npos);
    EXPECT_EQ(run({"--help"}), kSuccess);
    EXPECT_NE(output_.str().find("Usage: kav-asm"), std::string::npos);
    EXPECT_EQ(run({"--version"}), kSuccess);
}

}  // namespace kav::assembler
