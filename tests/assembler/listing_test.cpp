// SPDX-License-Identifier: GPL-3.0-or-later
#include "assembler/listing.h"

#include "assembler/assembler.h"

#include <gtest/gtest.h>
#include <sstream>

namespace kav::assembler {

namespace {

Result listed(const std::string& source) {
    MemorySourceFiles files;
    files.add("main.z80", source);
    Options options;
    options.wantListing = true;
    return assemble(files, "main.z80", options);
}

/// The lines behind those that begin with "temp", which is how the editor finds errors.
std::vector<std::string> errorLines(const std::string& listing) {
    std::vector<std::string> found;
    std::istringstream stream(listing);
    bool next = false;
    for (std::string line; std::getline(stream, line);) {
        if (next) found.push_back(line.substr(0, line.size() - 1));
        next = line.starts_with("temp");
    }
    return found;
}

}  // namespace

TEST(Listing, GivesEachErrorOnceToAReaderOfErrors) {
    const Result result = listed("temp .equ 5\n call x\ntemp2: nop\n call y\n ld a,(\n");
    const std::vector<std::string> expected{
        "temp.z80 line 0002: Label not found: (x)",
        "temp.z80 line 0004: Label not found: (y)",
    };
    const std::vector<std::string> found = errorLines(result.listing);
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0], expected[0]);
    EXPECT_EQ(found[1], expected[1]);
    EXPECT_EQ(found[2].substr(0, 20), "temp.z80 line 0005: ");
    EXPECT_EQ(found[0].substr(14, 4), "0002");
}

TEST(Listing, WithoutErrorsHasNothingForAReaderOfErrors) {
    const Result result = listed("temp: nop\n.db \"temp\"\n");
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.listing.find("\ntemp"), std::string::npos);
    EXPECT_FALSE(result.listing.starts_with("temp"));
}

TEST(Listing, BeginsEachSourceLineWithADigit) {
    std::istringstream stream(listed("temp\n\ttemp\n;\n#if 0\ntemp\n#endif\n").listing);
    for (std::string line; std::getline(stream, line) && !line.starts_with("temp.z80");) {
        EXPECT_TRUE(line[0] >= '0' && line[0] <= '9') << line;
    }
}

TEST(Listing, NamesLinesBeyondFourDigitsInTheMessage) {
    const Result result = listed(std::string(12344, '\n') + " call x\n");
    const std::vector<std::string> found = errorLines(result.listing);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0], "temp.z80 line 9999: line 12345: Label not found: (x)");
}

TEST(Listing, LeavesOutTheBuiltInBlock) {
    std::string source = ";These are KAV Compiler's built in macros.\r\n";
    for (int i = 0; i < 8; ++i)
        source += "\r\n";
    source += ";End of KAV Compiler's macros.\r\n nop\r\n";
    EXPECT_EQ(listed(source).listing, "0001   0000  00                 nop\r\n");
}

TEST(Listing, EndsLinesInCrLf) {
    const std::string listing = listed(" nop\n call x\n").listing;
    for (std::size_t at = 0; (at = listing.find('\n', at)) != std::string::npos; ++at) {
        EXPECT_EQ(listing[at - 1], '\r');
    }
    EXPECT_TRUE(listing.ends_with("\r\n"));
}

}  // namespace kav::assembler
