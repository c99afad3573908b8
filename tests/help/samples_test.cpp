// SPDX-License-Identifier: GPL-3.0-or-later
// What the help shows as source is built as the editor builds it, and does what the help says.
#include "assembler/assembler.h"
#include "build/build_files.h"
#include "documents/templates.h"
#include "emulator/emulator.h"
#include "help/help_file.h"
#include "support/application_folder.h"
#include "tools/mirage_program.h"
#include "tools/vcode.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kav::test {

namespace {

std::string withCrLf(const std::string& text) {
    std::string result;
    for (const char character : text) {
        if (character == '\n') result += '\r';
        result += character;
    }
    return result;
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
    return text;
}

/// The errors of a document, as the viewer lists them: one line each, "Line 3: message".
std::string errorsOf(const std::string& document, const char* calculator) {
    TemporaryFolder folder;
    writeFile(folder.file("temp.z80"), buildSource(withCrLf(document)));
    assembler::DiskSourceFiles files({KAV_INCLUDE_FOLDER});
    assembler::Options options;
    options.defines.emplace_back(calculator, "");
    std::string errors;
    for (const auto& message : assembler::assemble(files, folder.file("temp.z80"), options).messages) {
        if (message.severity != assembler::Severity::kError) continue;
        errors +=
            (errors.empty() ? "" : "\n") + ("Line " + std::to_string(message.line)) + ": " + message.text;
    }
    return errors;
}

Program built(const std::string& id, Calculator calculator = Calculator::Ti83Plus) {
    ApplicationFolder folder(KAV_INCLUDE_FOLDER);
    folder.tick(calculator == Calculator::Ti83, calculator == Calculator::Ti83Plus);
    folder.build("sample", buildSource(withCrLf(sample(id))));
    return folder.program("sample", calculator);
}

/// The button's lines of a MirageOS sample, which every reader paints anew.
std::string buttonIn(const std::string& program) {
    const std::size_t begin = program.find("\t.db %");
    const std::size_t end = program.find("\r\n", program.rfind("\t.db %"));
    return program.substr(begin, end - begin);
}

}  // namespace

TEST(HelpSamples, ProgramsAndLinesAssemble) {
    int count = 0;
    for (const viewer::HelpPage& one : help().pages()) {
        for (const Sample& shown : samplesOf(one)) {
            if (shown.kind != "program" && shown.kind != "lines") continue;
            ++count;
            const bool macros = shown.id == "macro-block-text";  // the block itself, which a build brings
            const char* calculator = shown.id == "blank-ti83" ? "TI83" : "TI83P";
            EXPECT_EQ(errorsOf(macros ? "" : shown.text, calculator), "") << one.name << "\n" << shown.text;
        }
    }
    EXPECT_GE(count, 20);
}

TEST(HelpSamples, MistakesBringTheMessagesThatStandBelowThem) {
    int count = 0;
    for (const viewer::HelpPage& one : help().pages()) {
        const std::vector<Sample> samples = samplesOf(one);
        for (std::size_t i = 0; i < samples.size(); ++i) {
            if (samples[i].kind != "mistake") continue;
            ++count;
            ASSERT_LT(i + 1, samples.size());
            ASSERT_EQ(samples[i + 1].kind, "message");
            EXPECT_EQ(errorsOf(samples[i].text, "TI83P"), samples[i + 1].text) << samples[i].text;
        }
    }
    EXPECT_GE(count, 15);
}

TEST(HelpSamples, SamplesAreOfAKnownKind) {
    for (const viewer::HelpPage& one : help().pages()) {
        for (const Sample& shown : samplesOf(one)) {
            const bool known = shown.kind == "program" || shown.kind == "lines" || shown.kind == "mistake" ||
                               shown.kind == "message";
            EXPECT_TRUE(known) << one.name << ": " << shown.kind;
        }
    }
}

TEST(HelpSamples, TheFirstProgramGreetsAndWaits) {
    Emulator calculator(built("hello"), Shell::Asm);
    ASSERT_EQ(calculator.run(), Stop::WaitsForKey);
    EXPECT_EQ(calculator.row(0), "Hello, world!");
    calculator.press({0x05});
    EXPECT_EQ(calculator.run(), Stop::Returned);
}

TEST(HelpSamples, TheMistakeOfTheFirstProgramIsToldAsTheTaskListSays) {
    const std::string mistaken = replaced(sample("hello"), "disp(greeting)", "disp(greting)");
    EXPECT_EQ(errorsOf(mistaken, "TI83P"), "Line 9: Label not found: (greting), did you mean greeting?");
}

TEST(HelpSamples, ProgramsRunAsTheirPagesSay) {
    Emulator counter(built("kav-counter"), Shell::Kav);
    ASSERT_EQ(counter.run(), Stop::WaitsForKey);
    counter.press({0x05});
    ASSERT_EQ(counter.run(), Stop::WaitsForKey);
    EXPECT_EQ(counter.row(0), "    1");
    counter.press({0x09});
    EXPECT_EQ(counter.run(), Stop::Returned);

    for (const Calculator calculator : {Calculator::Ti83Plus, Calculator::Ti83}) {
        Emulator picture(built("ion-sprite", calculator), Shell::Ion);
        ASSERT_EQ(picture.run(), Stop::WaitsForKey);
        EXPECT_EQ(picture.darkPixels(), 28);
        EXPECT_TRUE(picture.pixel(44 + 2, 28));
    }
    Emulator nutshell(built("nutshell-program"), Shell::Asm);
    ASSERT_EQ(nutshell.run(), Stop::WaitsForKey);
    EXPECT_EQ(nutshell.screen(), "Hello\nHello\nHello\n\n\n\n\n\n");
    nutshell.press({0x05});
    EXPECT_EQ(nutshell.run(), Stop::Returned);

    Emulator macros(built("macro-program"), Shell::Asm);
    ASSERT_EQ(macros.run(), Stop::WaitsForKey);
    macros.press({0x05});
    ASSERT_EQ(macros.run(), Stop::WaitsForKey);
    EXPECT_EQ(macros.row(0), "One Two");
}

TEST(HelpSamples, BlankProgramsAreBuiltForTheirCalculators) {
    EXPECT_FALSE(built("blank-ti83plus").code.empty());
    EXPECT_FALSE(built("blank-ti83", Calculator::Ti83).code.empty());
    EXPECT_FALSE(built("blank-both", Calculator::Ti83).code.empty());
    EXPECT_FALSE(built("blank-both").code.empty());
}

TEST(HelpSamples, TemplatesAreThoseOfTheProgram) {
    EXPECT_EQ(withCrLf(sample("template-kav-text")), kavTemplate("TITLE"));
    EXPECT_EQ(withCrLf(sample("template-ion-text")), ionTemplate("TITLE"));
    const std::string standard = withCrLf(sample("template-mirage-text"));
    EXPECT_EQ(standard, (MirageProgramText{MirageKind::standard, buttonIn(standard), "A smile", ""}.text()));
    // The exit-code sample has the routine that its reader has to write.
    const std::string withQuit = withCrLf(sample("template-miragex-text"));
    const std::string skeleton = replaced(
        withQuit, "        bcall(_getKey)\r\n        ret\r\nquit:\r\n        ret\r\n", ";Put code here\r\n");
    EXPECT_EQ(skeleton,
              (MirageProgramText{MirageKind::withExitCode, buttonIn(withQuit), "A smile", "quit"}.text()));
}

TEST(HelpSamples, TheMacroBlockIsTheOneThatIsBuilt) {
    EXPECT_EQ(withCrLf(sample("macro-block-text")), macroBlock());
}

TEST(HelpSamples, TheTableOfVCodeIsTheConvertersOwn) {
    std::vector<std::string> pairs(kVCodePairs.size());
    for (const auto& row : rowsOf(page("strings"))) {
        for (std::size_t cell = 0; cell + 1 < row.size(); cell += 2) {
            if (!row[cell].starts_with('$')) continue;
            const std::size_t code = std::stoul(row[cell].substr(1), nullptr, 16);
            std::string pair = row[cell + 1] == "(none)" ? "" : row[cell + 1];
            std::replace(pair.begin(), pair.end(), '_', ' ');
            pairs.at(code - 0x81) = pair;
        }
    }
    EXPECT_TRUE(std::equal(pairs.begin(), pairs.end(), kVCodePairs.begin(), kVCodePairs.end()));
}

}  // namespace kav::test
