// SPDX-License-Identifier: GPL-3.0-or-later
// What the emulator does in place of the calculators' system calls and the shells' libraries.
#include "emulator/emulator.h"
#include "emulator/places.h"

#include <algorithm>
#include <cstdio>
#include <z80ex/z80ex.h>

namespace kav::test {

namespace {

constexpr int kRows = 8;
constexpr int kColumns = 16;
constexpr int kBytesPerRow = 12;
constexpr int kPixelRows = 64;

}  // namespace

const Emulator::Places& Emulator::placesOf(Calculator calculator) {
    static constexpr Places kTi83{0x9327, 0x800C, 0x800D, 0x8252, 0x8253, 0x8E29, 0x8567};
    static constexpr Places kTi83Plus{0x9D95, 0x844B, 0x844C, 0x86D7, 0x86D8, 0x9340, 0x89F0};
    return calculator == Calculator::Ti83 ? kTi83 : kTi83Plus;
}

void Emulator::addSystemCalls() {
    using E = Emulator;
    if (calculator_ == Calculator::Ti83Plus) {
        systemCalls_ = {
            {0x4540, &E::clearScreen},  // _ClrLCDFull
            {0x4546, &E::clearScreen},  // _ClrScrnFull
            {0x4558, &E::homeUp},       // _homeup
            {0x450A, &E::putS},         // _PutS
            {0x4504, &E::putC},         // _PutC
            {0x4501, &E::putMap},       // _PutMap
            {0x4507, &E::dispHl},       // _DispHL
            {0x452E, &E::newLine},      // _NewLine
            {0x4561, &E::vPutS},        // _VPutS
            {0x486A, &E::showBuffer},   // _GrBufCpy
            {0x4BD0, &E::clearBuffer},  // _GrBufClr
            {0x4972, &E::getKey},       // _GetKey
            {0x4018, &E::getCsc},       // _GetCSC
            {0x4570, &E::doNothing},    // _RunIndicOff
            {0x456D, &E::doNothing},    // _RunIndicOn
        };
        return;
    }
    systemCalls_ = {
        {0x4755, &E::clearScreen},  // _CLRLCDFULL
        {0x4775, &E::homeUp},       // _homeUp
        {0x470D, &E::putS},         // _puts
        {0x4705, &E::putC},         // _putc
        {0x4701, &E::putMap},       // _putmap
        {0x4709, &E::dispHl},       // _dispHL
        {0x473D, &E::newLine},      // _newline
        {0x4781, &E::vPutS},        // _vputs
        {0x5164, &E::showBuffer},   // _GRBUFCPY_V
        {0x515B, &E::clearBuffer},  // _GRBUFCLR
        {0x4CFE, &E::getKey},       // _getkey
        {0x4795, &E::doNothing},    // _runIndicOff
        {0x4791, &E::doNothing},    // _runIndicOn
    };
}

void Emulator::addLibrary(Shell shell) {
    using E = Emulator;
    if (shell == Shell::Ion && calculator_ == Calculator::Ti83Plus) {
        library_ = {{0x96C1, &E::random},
                    {0x96C4, &E::putSprite},
                    {0x96C7, &E::largeSprite},
                    {0x96CD, &E::showBuffer}};
    } else if (shell == Shell::Ion) {
        library_ = {{0x91AA, &E::random},
                    {0x91AD, &E::putSprite},
                    {0x91B0, &E::largeSprite},
                    {0x91B6, &E::showBuffer}};
    } else if (shell == Shell::Mirage) {
        library_ = {{0x4086, &E::random},
                    {0x4089, &E::putSprite},
                    {0x408C, &E::largeSprite},
                    {0x4092, &E::showBuffer}};
    }
}

void Emulator::doNothing() {}

void Emulator::clearScreen() {
    rows_.fill(std::string(kColumns, ' '));
    display_.fill(0);
    smallTexts_.clear();
    spoil({regBC, regDE, regHL});
}

void Emulator::homeUp() {
    memory_[places_->cursorRow] = 0;
    memory_[places_->cursorColumn] = 0;
}

void Emulator::newLine() {
    memory_[places_->cursorColumn] = 0;
    if (memory_[places_->cursorRow] + 1 < kRows) {
        ++memory_[places_->cursorRow];
        return;
    }
    std::rotate(rows_.begin(), rows_.begin() + 1, rows_.end());
    rows_.back().assign(kColumns, ' ');
}

void Emulator::putCharacter(std::uint8_t character) {
    if (memory_[places_->cursorColumn] >= kColumns) newLine();
    const std::size_t row = std::min<std::size_t>(memory_[places_->cursorRow], kRows - 1);
    rows_[row][memory_[places_->cursorColumn]++] = static_cast<char>(character);
}

void Emulator::putS() {
    std::uint16_t at = get(regHL);
    while (memory_[at] != 0)
        putCharacter(memory_[at++]);
    set(regHL, static_cast<std::uint16_t>(at + 1));
}

void Emulator::putC() {
    putCharacter(static_cast<std::uint8_t>(get(regAF) >> 8));
}

void Emulator::putMap() {
    const std::uint8_t column = memory_[places_->cursorColumn];
    putC();
    memory_[places_->cursorColumn] = column;
}

void Emulator::dispHl() {
    char digits[8];
    std::snprintf(digits, sizeof digits, "%5u", static_cast<unsigned>(get(regHL)));
    for (const char* digit = digits; *digit != '\0'; ++digit) {
        putCharacter(static_cast<std::uint8_t>(*digit));
    }
    spoil({regDE, regHL});
}

void Emulator::vPutS() {
    SmallText text{memory_[places_->penColumn], memory_[places_->penRow], {}};
    std::uint16_t at = get(regHL);
    while (memory_[at] != 0)
        text.text += static_cast<char>(memory_[at++]);
    memory_[places_->penColumn] =
        static_cast<std::uint8_t>(memory_[places_->penColumn] + 4 * text.text.size());
    smallTexts_.push_back(text);
    spoil({regDE});
    set(regHL, static_cast<std::uint16_t>(at + 1));
}

void Emulator::showBuffer() {
    const auto begin = memory_.begin() + places_->graphBuffer;
    std::copy(begin, begin + static_cast<std::ptrdiff_t>(display_.size()), display_.begin());
    spoil({regBC, regDE, regHL});
}

void Emulator::clearBuffer() {
    const auto begin = memory_.begin() + places_->graphBuffer;
    std::fill(begin, begin + static_cast<std::ptrdiff_t>(display_.size()), std::uint8_t{0});
    spoil({regBC, regDE, regHL});
}

bool Emulator::nextKey(std::uint8_t& code) {
    if (keys_.empty()) return false;
    code = keys_.front();
    keys_.pop_front();
    return true;
}

void Emulator::getKey() {
    std::uint8_t code = 0;
    if (!nextKey(code)) {
        stopped_ = true;
        stop_ = Stop::WaitsForKey;
        return;
    }
    spoil({regBC, regDE, regHL});
    setA(code);
}

void Emulator::getCsc() {
    std::uint8_t code = 0;
    nextKey(code);
    spoil({regHL});
    setA(code);
}

void Emulator::xorByte(int x, int y, std::uint8_t bits) {
    if (y >= kPixelRows) return;
    const std::size_t row = places_->graphBuffer + static_cast<std::size_t>(y * kBytesPerRow);
    const int shifted = bits << (8 - x % 8);
    const int byte = x / 8;
    if (byte < kBytesPerRow)
        memory_[row + static_cast<std::size_t>(byte)] ^= static_cast<std::uint8_t>(shifted >> 8);
    if (byte + 1 < kBytesPerRow) {
        memory_[row + static_cast<std::size_t>(byte) + 1] ^= static_cast<std::uint8_t>(shifted & 0xFF);
    }
}

/// A is the column, L the row, B the height, IX the sprite of one byte a row.
void Emulator::putSprite() {
    const int x = get(regAF) >> 8;
    const int y = get(regHL) & 0xFF;
    const int height = get(regBC) >> 8;
    for (int line = 0; line < height; ++line) {
        xorByte(x, y + line, memory_[static_cast<std::uint16_t>(get(regIX) + line)]);
    }
    spoil({regAF, regBC, regDE, regHL});
}

/// As putSprite, with C the width in bytes.
void Emulator::largeSprite() {
    const int x = get(regAF) >> 8;
    const int y = get(regHL) & 0xFF;
    const int height = get(regBC) >> 8;
    const int width = get(regBC) & 0xFF;
    for (int line = 0; line < height; ++line) {
        for (int byte = 0; byte < width; ++byte) {
            xorByte(x + 8 * byte, y + line,
                    memory_[static_cast<std::uint16_t>(get(regIX) + line * width + byte)]);
        }
    }
    spoil({regAF, regBC, regDE, regHL});
}

/// A random number below B in A, from a fixed start so that tests repeat.
void Emulator::random() {
    randomState_ = randomState_ * 1103515245U + 12345U;
    const int bound = std::max(1, get(regBC) >> 8);
    setA(static_cast<std::uint8_t>((randomState_ >> 16) % static_cast<unsigned>(bound)));
}

}  // namespace kav::test
