// SPDX-License-Identifier: GPL-3.0-or-later
#include "build_protocol/build.h"

#include "program_file/program_file.h"
#include "runtime/files.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace kav {

namespace fs = std::filesystem;

namespace {

/// An application folder in which programs are built.
class Build : public testing::Test {
  protected:
    void SetUp() override { fs::create_directories(app_ / "include"); }

    void preferences(const std::string& make83p, const std::string& make8xp) {
        writeFile(file("prefs.ini"), "header\r\nfont\r\n12\r\n" + make83p + "\r\n" + make8xp + "\r\n");
    }
    void source(const std::string& name, const std::string& text) { writeFile(file(name + ".z80"), text); }
    int build(const std::string& name) {
        std::ostringstream summary;
        const int verdict = runBuild(app_.string(), name, summary);
        summary_ = summary.str();
        EXPECT_EQ(verdictLine(), std::to_string(verdict) + "\r\n");
        return verdict;
    }

    [[nodiscard]] std::string file(const std::string& name) const { return (app_ / name).string(); }
    [[nodiscard]] std::string verdictLine() const { return readFile(file("errLog.txt")); }
    [[nodiscard]] std::string listing() const { return readFile(file("temp.lst")); }
    /// The end of the listing, from the line that begins with "temp".
    [[nodiscard]] std::string errors() const {
        const std::string text = listing();
        const std::size_t start = text.starts_with("temp") ? 0 : text.find("\ntemp") + 1;
        return text.substr(start);
    }
    [[nodiscard]] const std::string& summary() const { return summary_; }
    [[nodiscard]] std::vector<std::string> filesOutsideTheFolder() const {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(outer_.path())) {
            if (entry.path() != app_) names.push_back(entry.path().string());
        }
        return names;
    }

  private:
    test::TemporaryFolder outer_;
    fs::path app_ = outer_.path() / "app";
    std::string summary_;
};

const std::string kGood = " .org $9D93\r\n .db $BB,$6D\r\n ret\r\n";

}  // namespace

TEST_F(Build, MakesAProgramForEachCalculator) {
    source("hello",
           "#ifdef TI83P\r\n .org $9D93\r\n .db $BB,$6D\r\n#endif\r\n"
           "#ifdef TI83\r\n .org $9327\r\n#endif\r\n ret\r\n");
    EXPECT_EQ(build("hello"), 0);
    EXPECT_EQ(readProgram(file("hello.8xp")).code, (std::vector<std::uint8_t>{0xBB, 0x6D, 0xC9}));
    EXPECT_EQ(readProgram(file("hello.83p")).code, std::vector<std::uint8_t>{0xC9});
    EXPECT_EQ(readProgram(file("hello.8xp")).name, "HELLO");
    EXPECT_NE(summary().find("hello.8xp  TI-83 Plus: 3 bytes"), std::string::npos) << summary();
}

TEST_F(Build, ListsTheSourceWithoutALineThatReadsAsAnError) {
    source("hello", kGood);
    EXPECT_EQ(build("hello"), 0);
    EXPECT_NE(listing().find("ret"), std::string::npos);
    EXPECT_EQ(listing().find("\ntemp"), std::string::npos);
    EXPECT_FALSE(listing().starts_with("temp"));
}

TEST_F(Build, ReportsEveryErrorAtTheEndOfTheListingAndMakesNoProgram) {
    source("bad", kGood + " ld hl,msg\r\n jr nowhere\r\n");
    EXPECT_EQ(build("bad"), 1);
    EXPECT_TRUE(errors().starts_with("temp.z80 has 2 errors:\r\ntemp.z80 line 0004: ")) << errors();
    EXPECT_NE(errors().find("\r\ntemp.z80 line 0005: "), std::string::npos) << errors();
    EXPECT_FALSE(fileExists(file("bad.8xp")));
    EXPECT_FALSE(fileExists(file("bad.83p")));
}

TEST_F(Build, CountsLinesFromTheUsersDocument) {
    source("bad",
           ";These are KAV Compiler's built in macros.\r\n"
           "APP_PUSH_ERRORHT .equ 59h\r\n"
           "APP_POP_ERRORHT  .equ 5Ch\r\n"
           "#define AppOnErr(xxxx)  ld hl, xxxx     \\ call APP_PUSH_ERRORHT\r\n"
           "#define AppOffErr()     call APP_POP_ERRORHT\r\n"
           "#define dispause(xxxx) ld hl,xxxx \\ .db $EF,$0A,$45,$EF,$72,$49\r\n"
           "#define disp(xxxx) ld hl,xxxx \\ .db $EF,$0A,$45\r\n"
           "#define pause() .db $EF,$72,$49\r\n"
           "#define pausecsc() .db $EF,$18,$40,$FE,$00,$28,$F9\r\n"
           ";End of KAV Compiler's macros.\r\n" +
               kGood + " disp(msg)\r\n");
    EXPECT_EQ(build("bad"), 1);
    EXPECT_TRUE(errors().starts_with("temp.z80 has 1 error:\r\ntemp.z80 line 0004: ")) << errors();
}

TEST_F(Build, RemovesTheProgramsOfAnEarlierBuildFirst) {
    source("a", kGood);
    EXPECT_EQ(build("a"), 0);
    source("a", " nonsense here\r\n");
    EXPECT_EQ(build("a"), 1);
    EXPECT_FALSE(fileExists(file("a.8xp")));
    EXPECT_FALSE(fileExists(file("a.83p")));
}

TEST_F(Build, VerdictCountsTheTickedCalculatorsOnly) {
    source("a", "#ifdef TI83\r\n ld a,missing\r\n#endif\r\n" + kGood);
    preferences(" 0 ", " 1 ");
    EXPECT_EQ(build("a"), 0);
    EXPECT_TRUE(fileExists(file("a.8xp")));
    EXPECT_FALSE(fileExists(file("a.83p")));
    preferences(" 1 ", " 0 ");
    EXPECT_EQ(build("a"), 1);
    EXPECT_EQ(errors().find("only"), std::string::npos);
    preferences(" 0 ", " 0 ");
    EXPECT_EQ(build("a"), 0);
}

TEST_F(Build, WithBothTickedNamesTheCalculatorOfAnErrorThatTheOtherDoesNotHave) {
    source("a", "#ifdef TI83\r\n ld a,missing\r\n#endif\r\n ld a,lost\r\n" + kGood);
    preferences("1", "1");
    EXPECT_EQ(build("a"), 1);
    EXPECT_TRUE(errors().starts_with("temp.z80 has 2 errors:\r\n")) << errors();
    EXPECT_NE(errors().find("(TI-83 only)\r\n"), std::string::npos) << errors();
    EXPECT_EQ(errors().find("TI-83 Plus only"), std::string::npos) << errors();
}

TEST_F(Build, ABadNameIsAnErrorInLineOneAndTouchesNothing) {
    for (const std::string name : {"", "a b", "$(x)", "a&b", "../x", "ninechars", "a/b", "1a", "a\nb"}) {
        EXPECT_EQ(build(name), 1);
        EXPECT_TRUE(listing().starts_with("temp.z80 has 1 error:\r\ntemp.z80 line 0001: Program name \""))
            << listing();
        EXPECT_TRUE(filesOutsideTheFolder().empty());
    }
}

TEST_F(Build, ABadNameLeavesAProgramOfThatNameAlone) {
    writeFile(file("../x.8xp"), "precious");
    EXPECT_EQ(build("../x"), 1);
    EXPECT_EQ(readFile(file("../x.8xp")), "precious");
}

TEST_F(Build, AMissingSourceIsAnError) {
    EXPECT_EQ(build("nosuch"), 1);
    EXPECT_NE(errors().find("nosuch.z80"), std::string::npos) << errors();
}

TEST_F(Build, AFailureOfTheBuildItselfEndsWithAVerdictToo) {
    source("a", kGood);
    makeFolder(file("a.8xp"));
    writeFile(file("a.8xp/inside"), "");
    EXPECT_EQ(build("a"), 1);
    EXPECT_TRUE(errors().starts_with("temp.z80 has 1 error:\r\ntemp.z80 line 0001: ")) << errors();
}

TEST_F(Build, AListingThatCannotBeWrittenIsAFailure) {
    source("a", kGood);
    makeFolder(file("temp.lst"));
    EXPECT_EQ(build("a"), 1);
}

TEST_F(Build, AProgramThatDoesNotFitIsAnErrorWithTheFigures) {
    source("big", " .org $9D93\r\n .db $BB,$6D\r\n .fill 25000\r\n");
    EXPECT_EQ(build("big"), 1);
    EXPECT_NE(errors().find("Program too large for the TI-83 Plus: it has 25002 bytes, 24783 is the limit"),
              std::string::npos)
        << errors();
}

TEST_F(Build, WarnsOfCodeWhereTheTi83PlusDoesNotRunIt) {
    source("long", " .org $9D93\r\n .db $BB,$6D\r\n .fill 9000\r\n");
    EXPECT_EQ(build("long"), 0);
    EXPECT_NE(summary().find("C000"), std::string::npos) << summary();
}

TEST_F(Build, FindsIncludeFilesInTheApplicationFolder) {
    writeFile(file("include/answer.inc"), "answer .equ 42\r\n");
    source("a", "#include \"answer.inc\"\r\n" + kGood + " ld a,answer\r\n");
    EXPECT_EQ(build("a"), 0) << errors();
    EXPECT_EQ(readProgram(file("a.8xp")).code.back(), 42);
}

}  // namespace kav
