// SPDX-License-Identifier: GPL-3.0-or-later
// What the tools generate, assembled: the bytes are those of the drawing and of the text.
#include "assembler/assembler.h"
#include "runtime/files.h"
#include "support/temporary_folder.h"
#include "tools/mirage_program.h"
#include "tools/monochrome_bitmap.h"
#include "tools/string_converter.h"
#include "tools/vcode.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace kav {

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes assembled(const std::string& source) {
    const test::TemporaryFolder folder;
    const std::string file = folder.file("tools.z80");
    writeFile(file, source);
    assembler::DiskSourceFiles files({KAV_INCLUDE_FOLDER});
    assembler::Options options;
    options.defines.emplace_back("TI83P", "");
    const assembler::Result result = assembler::assemble(files, file, options);
    for (const assembler::Message& message : result.messages)
        ADD_FAILURE() << "line " << message.line << ": " << message.text;
    return result.bytes;
}

std::string characters(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

template <typename Bitmap>
Bitmap randomBitmap(std::mt19937& random) {
    Bitmap bitmap;
    for (int x = 1; x <= Bitmap::kColumns; ++x) {
        for (int y = 1; y <= Bitmap::kRows; ++y)
            bitmap.setCell({x, y}, random() % 2 == 0);
    }
    return bitmap;
}

/// The cells' bits, the first in the highest place, filled up with clear ones.
std::uint8_t byteOf(const std::vector<int>& cells) {
    unsigned value = 0;
    for (std::size_t i = 0; i < 8; ++i)
        value = value * 2 + (i < cells.size() && cells[i] != 0 ? 1U : 0U);
    return static_cast<std::uint8_t>(value);
}

Bytes bytesOf(const SpriteBitmap& sprite) {
    Bytes bytes;
    for (int x = 1; x <= 8; ++x) {
        std::vector<int> column;
        for (int y = 1; y <= 8; ++y)
            column.push_back(sprite.cell({x, y}));
        bytes.push_back(byteOf(column));
    }
    return bytes;
}

Bytes bytesOf(const ButtonBitmap& button) {
    Bytes bytes;
    for (int y = 1; y <= 15; ++y) {
        std::vector<int> left;
        std::vector<int> right;
        for (int x = 1; x <= 15; ++x)
            (x <= 8 ? left : right).push_back(button.cell({x, y}));
        bytes.push_back(byteOf(left));
        bytes.push_back(byteOf(right));
    }
    return bytes;
}

/// What a program that unpacks VCode shows.
std::string unpacked(const Bytes& bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        if (byte > 128) {
            text += kVCodePairs.at(byte - 129U);
        } else {
            text += static_cast<char>(byte);
        }
    }
    return text;
}

std::string vcodeOf(const std::string& text) {
    return vcodeConversion(text, LineStart::tabbed, [] { return false; }).value_or("");
}

Bytes slice(const Bytes& bytes, std::size_t start, std::size_t length) {
    const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(start);
    return {begin, begin + static_cast<std::ptrdiff_t>(length)};
}

}  // namespace

TEST(RoundTrip, ASpritesLinesAssembleToItsColumns) {
    std::mt19937 random(8);
    for (int round = 0; round < 20; ++round) {
        const auto sprite = randomBitmap<SpriteBitmap>(random);
        // The ninth line waits for digits that the user goes on with.
        const Bytes bytes = assembled(toDbText(sprite) + "10100101\r\n");
        ASSERT_EQ(bytes.size(), 9U);
        EXPECT_EQ(slice(bytes, 0, 8), bytesOf(sprite));
        EXPECT_EQ(bytes[8], 0xA5);
    }
}

TEST(RoundTrip, AButtonsLinesAssembleToItsRows) {
    std::mt19937 random(15);
    for (int round = 0; round < 20; ++round) {
        const auto button = randomBitmap<ButtonBitmap>(random);
        EXPECT_EQ(assembled(toDbText(button)), bytesOf(button));
    }
}

TEST(RoundTrip, AStandardMirageProgramBuildsAsItStands) {
    std::mt19937 random(1);
    const auto button = randomBitmap<ButtonBitmap>(random);
    const MirageProgramText program{MirageKind::standard, toDbText(button), "A game", ""};
    const Bytes bytes = assembled(program.text());
    ASSERT_EQ(bytes.size(), 4U + 30U + 7U);
    EXPECT_EQ(slice(bytes, 0, 4), (Bytes{0xBB, 0x6D, 0xC9, 1}));
    EXPECT_EQ(slice(bytes, 4, 30), bytesOf(button));
    EXPECT_EQ(characters(slice(bytes, 34, 7)), std::string("A game\0", 7));
}

TEST(RoundTrip, AMirageProgramWithExitCodePointsToItsQuitRoutine) {
    std::mt19937 random(3);
    const auto button = randomBitmap<ButtonBitmap>(random);
    const MirageProgramText program{MirageKind::withExitCode, toDbText(button), "Game", "leave"};
    std::string source = program.text();
    source.insert(source.rfind(".end"), "leave:\r\n ret\r\n");
    const Bytes bytes = assembled(source);
    ASSERT_EQ(bytes.size(), 4U + 30U + 2U + 5U + 1U);
    EXPECT_EQ(slice(bytes, 0, 4), (Bytes{0xBB, 0x6D, 0xC9, 3}));
    EXPECT_EQ(slice(bytes, 4, 30), bytesOf(button));
    // Addresses count from the token, which stands at the origin.
    constexpr unsigned kLeave = 0x9D93 + 4 + 30 + 2 + 5;
    EXPECT_EQ(slice(bytes, 34, 2), (Bytes{kLeave & 0xFFU, kLeave >> 8U}));
    EXPECT_EQ(characters(slice(bytes, 36, 5)), std::string("Game\0", 5));
}

TEST(RoundTrip, PlainTextAssemblesToItself) {
    std::string text;
    for (int round = 0; round < 3; ++round) {
        for (char c = ' '; c <= '~'; ++c) {
            if (c != '"' && c != '\\') text += c;
        }
    }
    EXPECT_EQ(characters(assembled(plainConversion(text, LineStart::tabbed))), text);
}

TEST(RoundTrip, VCodeUnpacksToTheTextWhereNoCharacterIsEncodedTwice) {
    std::mt19937 random(102);
    for (int round = 0; round < 20; ++round) {
        std::string text;
        // A digit belongs to no pair, so that none begins at a pair's second character.
        for (int i = 0; i < 200; ++i) {
            text += kVCodePairs.at(random() % kVCodePairs.size());
            text += static_cast<char>('0' + random() % 10);
        }
        EXPECT_EQ(unpacked(assembled(vcodeOf(text))), text);
    }
}

TEST(RoundTrip, VCodeShowsTwiceWhatIsEncodedTwice) {
    EXPECT_EQ(assembled(vcodeOf("This is")), (Bytes{0xE3, 0x81, 0xD5, 0x81}));
    EXPECT_EQ(unpacked(assembled(vcodeOf("This is"))), "Thiss is");
    EXPECT_EQ(unpacked(assembled(vcodeOf("heis"))), "heeis");
}

}  // namespace kav
