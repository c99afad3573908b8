// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/vcode.h"

#include "runtime/failure.h"
#include "runtime/lines.h"
#include "support/told_vcode.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace kav {

using test::toldVCode;

namespace {

bool neverAsked() {
    ADD_FAILURE() << "asked to truncate";
    return false;
}

std::string converted(std::string_view text) {
    return vcodeConversion(text, LineStart::tabbed, neverAsked).value_or("declined");
}

/// The data lines alone, without what they begin with.
std::vector<std::string> dataLines(std::string_view text) {
    const std::string output = converted(text);
    std::vector<std::string> lines;
    for (const std::string_view line : linesOf(output)) {
        if (line.starts_with("\t.db ")) lines.emplace_back(line.substr(5));
    }
    return lines;
}

std::string sizesLine(std::string_view text) {
    const std::string output = converted(text);
    return std::string(linesOf(output).at(2));
}

using Lines = std::vector<std::string>;

/// The table's pairs with the codes that programs on the calculator unpack them by, each written out.
struct CodeOfPair {
    unsigned code;
    std::string_view pair;
};

constexpr CodeOfPair kCodes[] = {
    {0x81, "is"}, {0x82, "nt"}, {0x83, "he"}, {0x84, "ei"}, {0x85, "et"}, {0x86, "ea"}, {0x87, "ay"},
    {0x88, "as"}, {0x89, "or"}, {0x8A, "nd"}, {0x8B, "it"}, {0x8C, "er"}, {0x8D, "in"}, {0x8E, "on"},
    {0x8F, "pa"}, {0x90, "ar"}, {0x91, "um"}, {0x92, "el"}, {0x93, "e."}, {0x94, "ic"}, {0x95, "e!"},
    {0x96, "ey"}, {0x97, "ss"}, {0x98, "mm"}, {0x99, "en"}, {0x9A, "ll"}, {0x9B, "ro"}, {0x9C, "od"},
    {0x9D, "hi"}, {0x9E, "go"}, {0x9F, "at"}, {0xA0, "to"}, {0xA1, "ad"}, {0xA2, "am"}, {0xA3, "an"},
    {0xA4, "ax"}, {0xA5, "be"}, {0xA6, "by"}, {0xA7, "cc"}, {0xA8, "co"}, {0xA9, "s."}, {0xAA, "g."},
    {0xAB, "t:"}, {0xAC, "do"}, {0xAD, "ha"}, {0xAE, "he"}, {0xAF, "hp"}, {0xB0, "id"}, {0xB1, "if"},
    {0xB2, "me"}, {0xB3, "io"}, {0xB4, "se"}, {0xB5, "op"}, {0xB6, "sh"}, {0xB7, "ng"}, {0xB8, "wa"},
    {0xB9, "xt"}, {0xBA, "ta"}, {0xBB, ".."}, {0xBC, "ib"}, {0xBD, "rt"}, {0xBE, "e?"}, {0xBF, "r."},
    {0xC0, "pi"}, {0xC1, "ma"}, {0xC2, "th"}, {0xC3, "Mi"}, {0xC4, "Bu"}, {0xC5, "Ex"}, {0xC6, "Fi"},
    {0xC7, "Te"}, {0xC8, "Ca"}, {0xC9, "lc"}, {0xCA, "ul"}, {0xCB, "li"}, {0xCC, "br"}, {0xCD, "Al"},
    {0xCE, "ex"}, {0xCF, "Ro"}, {0xD0, "pe"}, {0xD1, "r."}, {0xD2, "Er"}, {0xD3, "nc"}, {0xD4, "e "},
    {0xD5, "s "}, {0xD6, "r "}, {0xD7, "Da"}, {0xD8, "n "}, {0xD9, ""},   {0xDA, "gl"}, {0xDB, "de"},
    {0xDC, "Ja"}, {0xDD, "n "}, {0xDE, "Ko"}, {0xDF, "va"}, {0xE0, "cs"}, {0xE1, "te"}, {0xE2, "st"},
    {0xE3, "Th"}, {0xE4, "lo"}, {0xE5, "Se"}, {0xE6, "He"},
};

}  // namespace

TEST(VCode, HasTheTableThatProgramsUnpackBy) {
    ASSERT_EQ(std::size(kCodes), kVCodePairs.size());
    unsigned expectedCode = 0x81;
    for (const auto& [code, pair] : kCodes) {
        EXPECT_EQ(code, expectedCode++);
        EXPECT_EQ(kVCodePairs[code - 0x81], pair) << test::hexadecimalEntry(code);
    }
}

TEST(VCode, WritesThreeCommentsAndTheData) {
    EXPECT_EQ(vcodeConversion("is", LineStart::spaced, neverAsked),
              ";Compressed with Corwin Haleby's VCode algorithm\r\n"
              ";using KAV Compiler's String Converter.\r\n"
              ";Origionally 2 bytes, compressed to 1 bytes.\r\n"
              " .db $81");
}

TEST(VCode, EncodesTheSecondCharacterAgainWhereItBeginsALaterPair) {
    EXPECT_EQ(dataLines("This is"), (Lines{"$E3,$81,$D5,$81"}));
    EXPECT_EQ(sizesLine("This is"), ";Origionally 7 bytes, compressed to 3 bytes.");
    EXPECT_EQ(dataLines("heis"), (Lines{"$83,$84,$73"}));
    EXPECT_EQ(sizesLine("heis"), ";Origionally 4 bytes, compressed to 2 bytes.");
}

TEST(VCode, MixesPairsLettersAndQuotedCharacters) {
    EXPECT_EQ(dataLines("Hello world."), (Lines{R"($E6,$9A,$E4," ",$77,$89,$6C,$64,".")"}));
    EXPECT_EQ(sizesLine("Hello world."), ";Origionally 12 bytes, compressed to 8 bytes.");
}

TEST(VCode, WritesLettersAndTheCharactersBehindThemAsCodes) {
    EXPECT_EQ(dataLines("A"), (Lines{"$41"}));
    EXPECT_EQ(dataLines("Z"), (Lines{"$5A"}));
    EXPECT_EQ(dataLines("["), (Lines{"$5B"}));
    EXPECT_EQ(dataLines("a"), (Lines{"$61"}));
    EXPECT_EQ(dataLines("z"), (Lines{"$7A"}));
    EXPECT_EQ(dataLines("{"), (Lines{"$7B"}));
}

TEST(VCode, QuotesEveryOtherCharacter) {
    EXPECT_EQ(dataLines("1"), (Lines{R"("1")"}));
    EXPECT_EQ(dataLines("@"), (Lines{R"("@")"}));
    EXPECT_EQ(dataLines("\\"), (Lines{R"("\")"}));
    EXPECT_EQ(dataLines("`"), (Lines{R"("`")"}));
    EXPECT_EQ(dataLines("|"), (Lines{R"("|")"}));
    EXPECT_EQ(dataLines("\""), (Lines{R"(""")"}));
    EXPECT_EQ(dataLines("\xC3\xA9"), (Lines{"\"\xC3\xA9\""}));
}

TEST(VCode, PutsFifteenPassesOnTheFirstLineAndSixteenOnTheOthers) {
    const Lines lines = dataLines(std::string(48, '1'));
    ASSERT_EQ(lines.size(), 4U);
    const auto entries = [](const std::string& line) { return (line.size() + 1) / 4; };
    EXPECT_EQ(entries(lines[0]), 15U);
    EXPECT_EQ(entries(lines[1]), 16U);
    EXPECT_EQ(entries(lines[2]), 16U);
    EXPECT_EQ(entries(lines[3]), 1U);
    EXPECT_EQ(dataLines(std::string(31, '1')).size(), 2U);
    EXPECT_EQ(dataLines(std::string(15, '1')).size(), 1U);
}

TEST(VCode, MatchesNoPairAtTheLastCharacter) {
    EXPECT_EQ(dataLines("i"), (Lines{"$69"}));
    EXPECT_EQ(dataLines("xi"), (Lines{"$78,$69"}));
    // The character behind the text is not looked at, even where the buffer goes on.
    EXPECT_EQ(dataLines(std::string_view("is").substr(0, 1)), (Lines{"$69"}));
}

TEST(VCode, TakesTheEarlierOfTwoEqualEntries) {
    EXPECT_EQ(dataLines("he"), (Lines{"$83"}));
    EXPECT_EQ(dataLines("r."), (Lines{"$BF"}));
    EXPECT_EQ(dataLines("n "), (Lines{"$D8"}));
}

TEST(VCode, MatchesTheLaterOfTwoEqualEntriesInTheSamePass) {
    // "r." stands at 63 and at 81. "or" is entry 9, before both; "br" is entry 76, between them.
    EXPECT_EQ(dataLines("or."), (Lines{"$89,$BF"}));
    EXPECT_EQ(dataLines("br."), (Lines{"$CC,$D1"}));
}

TEST(VCode, NeverUsesTheEmptyEntry) {
    std::string all;
    for (int first = 32; first < 127; ++first) {
        for (int second = 32; second < 127; ++second) {
            all = {static_cast<char>(first), static_cast<char>(second)};
            EXPECT_EQ(converted(all).find("$D9"), std::string::npos) << all;
        }
    }
}

TEST(VCode, RefusesAnEmptyText) {
    try {
        (void)vcodeConversion("", LineStart::spaced, neverAsked);
        FAIL() << "converted nothing";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), kInvalidCall);
    }
}

TEST(VCode, AsksOnceBeforeItCutsToTheLimit) {
    int asked = 0;
    const auto yes = [&] { return ++asked > 0; };
    const std::string output = vcodeConversion(std::string(80000, '1'), LineStart::spaced, yes).value_or("");
    EXPECT_EQ(asked, 1);
    EXPECT_NE(output.find(";Origionally 79999 bytes, compressed to 79999 bytes."), std::string::npos);
}

TEST(VCode, TakesTheLimitItselfWithoutAQuestion) {
    const std::string output = converted(std::string(79999, '1'));
    EXPECT_NE(output.find(";Origionally 79999 bytes"), std::string::npos);
}

TEST(VCode, GivesNothingWhenTheCutIsDeclined) {
    EXPECT_FALSE(
        vcodeConversion(std::string(80000, '1'), LineStart::spaced, [] { return false; }).has_value());
}

TEST(VCode, IsTheToldRuleOnEveryPairOfPairs) {
    for (const std::string_view first : kVCodePairs) {
        for (const std::string_view second : kVCodePairs) {
            const std::string text = std::string(first) + std::string(second);
            if (text.empty()) continue;
            ASSERT_EQ(converted(text), toldVCode(text, "\t")) << text;
        }
    }
}

TEST(VCode, IsTheToldRuleOnRandomTexts) {
    std::mt19937 random(20240501);
    const std::string letters = "aehinorst. !?:E[{z0\"\r\\";
    std::uniform_int_distribution<std::size_t> length(1, 120);
    std::uniform_int_distribution<std::size_t> pick(0, letters.size() - 1);
    std::uniform_int_distribution<std::size_t> pickPair(0, kVCodePairs.size() - 1);
    for (int round = 0; round < 3000; ++round) {
        std::string text;
        for (std::size_t left = length(random); left > 0; --left) {
            if (round % 2 == 0) {
                text += letters[pick(random)];
            } else {
                text += kVCodePairs[pickPair(random)];
            }
        }
        if (text.empty()) continue;
        ASSERT_EQ(converted(text), toldVCode(text, "\t")) << text;
    }
}

namespace {

/// What a program that unpacks VCode shows: each code as its pair, everything else as it is.
std::string unpacked(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        for (std::size_t at = 0; at < line.size(); at += 4) {
            if (line[at] == '"') {
                text += line[at + 1];
                continue;
            }
            const auto code = static_cast<std::size_t>(std::stoi(line.substr(at + 1, 2), nullptr, 16));
            text +=
                code > 128 ? std::string(kVCodePairs[code - 129]) : std::string(1, static_cast<char>(code));
        }
    }
    return text;
}

}  // namespace

TEST(VCode, UnpacksToTheTextButForWhatIsEncodedTwice) {
    const std::string text = "Hello world. A quick brown fox jumps 12 [times] over 3 lazy dogs";
    EXPECT_EQ(unpacked(dataLines("I am a frog [12] {no pair}")), "I am a frog [12] {no pair}");
    EXPECT_EQ(unpacked(dataLines("Hello")), "Helllo");
    // Each character that is encoded twice shows up twice; taking those out gives the text back.
    const std::string shown = unpacked(dataLines(text));
    std::size_t at = 0;
    for (const char c : shown) {
        if (at < text.size() && text[at] == c) {
            ++at;
        } else {
            EXPECT_EQ(c, text[at - 1]);
        }
    }
    EXPECT_EQ(at, text.size());
}

}  // namespace kav
