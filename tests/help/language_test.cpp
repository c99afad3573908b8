// SPDX-License-Identifier: GPL-3.0-or-later
// The help names every directive, option and message of the assembler.
#include "assembler/instruction_table.h"
#include "assembler/words.h"
#include "help/help_file.h"
#include "runtime/files.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace kav::test {

namespace fs = std::filesystem;

namespace {

bool names(const viewer::HelpPage& page, const std::string& word) {
    return page.html.find(word) != std::string::npos;
}

/// What stands in quotes in the sources of a folder and matches the pattern's first group.
std::set<std::string> quotedIn(const fs::path& folder, const std::regex& pattern) {
    std::set<std::string> found;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const bool commandLine = entry.path().filename() == "command_line.cpp";  // its texts are no messages
        if (entry.path().extension() != ".cpp" || commandLine) continue;
        const std::string source = readFile(entry.path().string());
        for (std::sregex_iterator match(source.begin(), source.end(), pattern), end; match != end; ++match)
            found.insert((*match)[1]);
    }
    return found;
}

}  // namespace

TEST(HelpLanguage, NamesEveryDirective) {
    for (const std::string_view name : assembler::directiveNames()) {
        EXPECT_TRUE(names(page("directives"), "<code>." + std::string(name) + "</code>")) << name;
    }
    for (const char* sign : {"<code>$=</code>", "<code>*=</code>", "name <code>=</code> value"})
        EXPECT_TRUE(names(page("directives"), sign)) << sign;
}

TEST(HelpLanguage, NamesEveryInstruction) {
    for (const std::string_view mnemonic : assembler::mnemonics())
        EXPECT_TRUE(names(page("z80"), "<code>" + std::string(mnemonic) + "</code>")) << mnemonic;
}

TEST(HelpLanguage, NamesEveryDirectiveOfThePreprocessor) {
    for (const std::string_view name : assembler::hashDirectiveNames()) {
        const std::string written = "<code>#" + std::string(name);
        EXPECT_TRUE(names(page("preprocessor"), written + "</code>") ||
                    names(page("preprocessor"), written + " "))
            << name;
    }
}

// Every message of the assembler begins with what kind it is and a colon: "Label not found: (name)".
TEST(HelpLanguage, HasAHeadingForEveryKindOfMessage) {
    const std::regex kind("\"([A-Z][a-zA-Z ]+): ");
    const std::set<std::string> kinds = quotedIn(fs::path(KAV_TOOLCHAIN_FOLDER) / "assembler", kind);
    EXPECT_GE(kinds.size(), 15U);
    for (const std::string& one : kinds) {
        const bool heading = page("messages").html.find("\">" + one + "</h2>") != std::string::npos;
        EXPECT_TRUE(heading) << one;
    }
}

TEST(HelpLanguage, NamesTheMessagesAboutTheWholeProgram) {
    const fs::path toolchain(KAV_TOOLCHAIN_FOLDER);
    std::set<std::string> beginnings =
        quotedIn(toolchain / "build_protocol", std::regex("\"(The [a-z]+ [a-z ]+)\""));
    beginnings.merge(quotedIn(toolchain / "program_file", std::regex("\"(Program [a-z]+) ")));
    beginnings.insert("The assembler kav-asm is missing in the application folder");
    beginnings.insert("The assembler kav-asm ended without a verdict");
    EXPECT_GE(beginnings.size(), 5U);
    for (const std::string& one : beginnings)
        EXPECT_NE(page("messages").text.find(one), std::string::npos) << one;
    const std::string script = readFile((toolchain / "asm").string());
    EXPECT_NE(script.find("The assembler kav-asm is missing in the application folder"), std::string::npos);
    EXPECT_NE(script.find("The assembler kav-asm ended without a verdict"), std::string::npos);
}

TEST(HelpLanguage, NamesEveryOptionOfTheCommand) {
    const std::string manual = readFile(std::string(KAV_TOOLCHAIN_FOLDER) + "/assembler/kav-asm.1");
    const std::regex option(R"(\\-\\-([a-z]+))");
    std::set<std::string> options;
    for (std::sregex_iterator match(manual.begin(), manual.end(), option), end; match != end; ++match)
        options.insert("--" + (*match)[1].str());
    EXPECT_GE(options.size(), 10U);
    for (const std::string& one : options)
        EXPECT_NE(page("command-line").text.find(one), std::string::npos) << one;
}

TEST(HelpLanguage, NamesEveryIncludeFileAndEveryExample) {
    for (const fs::directory_entry& entry : fs::directory_iterator(KAV_INCLUDE_FOLDER)) {
        const std::string name = entry.path().filename().string();
        EXPECT_TRUE(names(page("include-files"), "<code>" + name + "</code>")) << name;
    }
    for (const fs::directory_entry& entry : fs::directory_iterator(KAV_EXAMPLES_FOLDER)) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() != ".z80") continue;
        EXPECT_TRUE(names(page("examples"), "<code>" + name + "</code>")) << name;
    }
}

}  // namespace kav::test
