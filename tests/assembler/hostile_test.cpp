// SPDX-License-Identifier: GPL-3.0-or-later
// Sources that mean harm, or are broken beyond sense, end soon and with a clear error.
#include "assembler/assembler.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace kav::assembler {

namespace {

std::string repeated(std::string_view text, std::size_t count) {
    std::string result;
    result.reserve(text.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        result += text;
    return result;
}

Result assembled(MemorySourceFiles& files) {
    Options options;
    options.wantListing = true;
    Result result = assemble(files, "main.z80", options);
    EXPECT_LE(result.messages.size(), 1100U);
    for (const Message& message : result.messages) {
        EXPECT_EQ(message.text.find_first_of("\r\n"), std::string::npos);
    }
    return result;
}

Result assembled(const std::string& source) {
    MemorySourceFiles files;
    files.add("main.z80", source);
    return assembled(files);
}

/// The first error of a source that must have one.
std::string firstError(const std::string& source) {
    const Result result = assembled(source);
    EXPECT_FALSE(result.ok);
    return result.messages.empty() ? "" : result.messages.front().text;
}

bool mentions(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

}  // namespace

TEST(HostileSource, MacrosThatCallEachOtherEnd) {
    EXPECT_TRUE(
        mentions(firstError("#define a1 b1 b1\n#define b1 a1 a1\n a1\n"), "Macro expansion too long"));
}

TEST(HostileSource, MacrosThatGrowWithoutTextEnd) {
    std::string source = "#define m0\n";
    for (int i = 1; i < 40; ++i) {
        const std::string inner = "m" + std::to_string(i - 1);
        source += "#define m" + std::to_string(i) + " " + inner + " " + inner + "\n";
    }
    EXPECT_TRUE(mentions(firstError(source + " m39\n"), "Macro expansion too long"));
}

TEST(HostileSource, EndlessMacrosOnManyLinesEnd) {
    EXPECT_TRUE(
        mentions(firstError("#define a1 a1 a1\n" + repeated(" a1\n", 10000)), "Macro expansion too long"));
}

TEST(HostileSource, MacrosOfLinesThatMultiplyEnd) {
    std::string source = "#macro m0\n nop\n#endmacro\n";
    for (int i = 1; i < 31; ++i) {
        const std::string inner = " m" + std::to_string(i - 1) + "\n";
        source += "#macro m" + std::to_string(i) + "\n" + inner + inner + "#endmacro\n";
    }
    EXPECT_FALSE(assembled(source + " m30\n").ok);
}

TEST(HostileSource, AFileThatIncludesItselfEnds) {
    MemorySourceFiles files;
    files.add("main.z80", "#include \"main.z80\"\n#include \"main.z80\"\n");
    const Result result = assembled(files);
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_TRUE(mentions(result.messages[0].text, "is included within itself"));
    EXPECT_EQ(result.messages[0].line, 1);
}

TEST(HostileSource, IncludesThatMultiplyEnd) {
    MemorySourceFiles files;
    files.add("main.z80", repeated("#include \"0.inc\"\n", 10));
    for (int i = 0; i < 20; ++i) {
        files.add(std::to_string(i) + ".inc",
                  repeated("#include \"" + std::to_string(i + 1) + ".inc\"\n", 10));
    }
    files.add("20.inc", " nop\n");
    EXPECT_FALSE(assembled(files).ok);
}

TEST(HostileSource, HugeFillsAndOriginsAreRefused) {
    EXPECT_TRUE(mentions(firstError(" .fill 999999999\n"), "Range of argument exceeded"));
    EXPECT_TRUE(mentions(firstError(" .block 2147483647\n"), "Range of argument exceeded"));
    EXPECT_TRUE(mentions(firstError(" .org $7FFFFFFF\n"), "Range of argument exceeded"));
    EXPECT_TRUE(mentions(firstError(" .org $FFFF\n nop\n nop\n"), "past the address $FFFF"));
    EXPECT_TRUE(mentions(firstError(repeated(" .org 0\n .fill 65536\n", 100000)), "more than 16 MB"));
}

TEST(HostileSource, DeepNestingIsRefused) {
    EXPECT_TRUE(mentions(firstError(" .db " + repeated("(", 1000000) + "\n"), "nest too deep"));
    EXPECT_TRUE(mentions(firstError(" .db " + repeated("-", 1000000) + "1\n"), "too many signs"));
    EXPECT_TRUE(mentions(firstError(repeated("#if 1\n", 1000000)), "nest more than 256 deep"));
}

TEST(HostileSource, TenMegabytesOnOneLineEnd) {
    constexpr std::size_t kTenMegabytes = 10U << 20;
    EXPECT_FALSE(assembled(" .db " + repeated("1,", kTenMegabytes / 2) + "1\n").ok);
    EXPECT_FALSE(assembled(" .db \"" + repeated("x", kTenMegabytes) + "\"\n").ok);
    EXPECT_FALSE(assembled(" .db \"" + repeated("x", kTenMegabytes) + "\n").ok);
    EXPECT_FALSE(assembled(repeated("x", kTenMegabytes) + " nope\n").ok);
    EXPECT_FALSE(assembled(" " + repeated("x", kTenMegabytes) + "\n").ok);
    EXPECT_FALSE(assembled(repeated(" nop \\", kTenMegabytes / 6) + "\n").ok);
    EXPECT_FALSE(assembled("#define k 1\n .db " + repeated("k,", kTenMegabytes / 2) + "1\n").ok);
    EXPECT_FALSE(assembled("#define put(x) .db x\n put(" + repeated("(", kTenMegabytes) + "\n").ok);
    EXPECT_TRUE(assembled(";" + repeated("x", kTenMegabytes) + "\n nop\n").ok);
    EXPECT_FALSE(assembled(" ld " + repeated(",", kTenMegabytes) + "\n").ok);
}

TEST(HostileSource, ManyStatementsWithUnclosedPartsEnd) {
    EXPECT_FALSE(assembled("#define put(x) .db x\n" + repeated(" put( \\", 1U << 20)).ok);
    EXPECT_FALSE(assembled(repeated(" .db 'a \\ ", 1U << 20)).ok);
}

TEST(HostileSource, EveryByteMayStandAnywhere) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_FALSE(assembled(bytes).ok);
    EXPECT_FALSE(assembled(std::string(" ld a,\0\n", 8)).ok);
    EXPECT_FALSE(assembled(std::string("\0\0\0\0", 4)).ok);
    for (int byte = 0; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        (void)assembled(one);
        (void)assembled(" .db " + one + one);
        (void)assembled("x" + one + "y" + one + "\n");
        (void)assembled("#" + one + "\n#define " + one + "(" + one + ")" + one + "\n");
        (void)assembled(" ld (" + one + "),'" + one + "\n .db \"" + one);
        (void)assembled(" ." + one + " " + one);
    }
}

TEST(HostileSource, AtMostAHundredErrorsAreReported) {
    const Result result = assembled(repeated(" frobnicate\n", 100000));
    EXPECT_EQ(result.messages.size(), 100U);
    EXPECT_EQ(assembled(repeated(" call nowhere\n", 10000)).messages.size(), 100U);
}

TEST(HostileSource, MisspeltLabelsInAHugeProgramAreReportedSoon) {
    std::string source;
    for (int i = 0; i < 200000; ++i)
        source += "a_rather_long_label_" + std::to_string(i) + ":\n";
    EXPECT_FALSE(assembled(source + repeated(" call a_rather_long_lable_77\n", 200)).ok);
}

TEST(HostileSource, LabelsThatNeverSettleAreAnError) {
    EXPECT_TRUE(mentions(
        firstError("here: .block 1-there\nthere:\n .block there&1\n .dw later\nlater .equ there+last\nlast "
                   ".equ later+1\n"),
        "Label value misaligned"));
}

TEST(HostileSource, AFolderOrAMissingFileIsNoSource) {
    const test::TemporaryFolder folder;
    std::filesystem::create_directory(folder.file("folder.inc"));
    std::ofstream(folder.file("a.z80")) << "#include \"folder.inc\"\n#include \"missing.inc\"\n";
    DiskSourceFiles files({});
    const Result result = assemble(files, folder.file("a.z80"));
    ASSERT_EQ(result.messages.size(), 2U);
    EXPECT_TRUE(mentions(result.messages[0].text, "this is a folder"));
    EXPECT_TRUE(mentions(result.messages[1].text, "there is no such file"));
    EXPECT_FALSE(assemble(files, folder.file("folder.inc")).ok);
    EXPECT_FALSE(assemble(files, folder.file("nothing.z80")).ok);
}

TEST(HostileSource, ADeviceIsNoSource) {
    if (!std::filesystem::exists("/dev/zero")) GTEST_SKIP() << "this system has no /dev/zero";
    const test::TemporaryFolder folder;
    std::ofstream(folder.file("a.z80")) << "#include \"/dev/zero\"\n";
    DiskSourceFiles files({});
    const Result result = assemble(files, folder.file("a.z80"));
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_TRUE(mentions(result.messages[0].text, "this is no ordinary file"));
}

}  // namespace kav::assembler
