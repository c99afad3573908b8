// SPDX-License-Identifier: GPL-3.0-or-later
// Values as they are stored into the bytes of a program, each with the range that it must keep.
#pragma once

#include "assembler/diagnostics.h"
#include "assembler/expression.h"
#include "assembler/image.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kav::assembler {

/// What kind of place a value goes to.
enum class FieldKind : std::uint8_t {
    kByte,           ///< -128 to 255
    kWord,           ///< -32768 to 65535, low byte first
    kWordHighFirst,  ///< the same, high byte first
    kRelative,       ///< an address, stored as the distance from the next instruction, -128 to 127
    kDisplacement,   ///< of an index register, -128 to 127
    kBit,            ///< 0 to 7, into bits 3 to 5 of the byte that is there
    kRestart,        ///< 0, 8, ... $38, into the byte that is there
    kMode,           ///< interrupt mode 0, 1 or 2, into the byte that is there
    kZero,           ///< 0, stored nowhere
};

/// The bytes that a field takes up by itself; 0 for one that goes into a byte that is there.
[[nodiscard]] std::int32_t sizeOf(FieldKind kind);

/// Stores the value at `address`. Returns what is wrong with the value, or an empty text. `expression` is
/// where the value comes from, for the message.
[[nodiscard]] std::string storeField(Image& image, FieldKind kind, std::int32_t address, std::int32_t value,
                                     std::string_view expression);

/// A field whose value waits for labels that follow.
struct Fixup {
    FieldKind kind = FieldKind::kByte;
    std::int32_t address = 0;
    std::string_view expression;
    ExpressionPlace place;
    Location where;
};

}  // namespace kav::assembler
