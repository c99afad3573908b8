// SPDX-License-Identifier: GPL-3.0-or-later
// Values as they are stored into the bytes of a program, each with the range that it must keep.
#include "assembler/field.h"

#include "assembler/text.h"

namespace kav::assembler {

namespace {

std::uint8_t lowByte(std::int32_t value) {
    return static_cast<std::uint8_t>(value & 0xFF);
}
std::uint8_t highByte(std::int32_t value) {
    return static_cast<std::uint8_t>((value >> 8) & 0xFF);
}

bool within(std::int32_t value, std::int32_t least, std::int32_t most) {
    return value >= least && value <= most;
}

std::string problemWith(std::string_view kind, std::int32_t value, std::string_view expression,
                        std::string_view range) {
    std::string text = std::string(kind) + ": " + shown(expression);
    const std::string number = std::to_string(value);
    if (trimmed(expression) != number) text += " is " + number;
    return text + " (" + std::string(range) + " is possible)";
}

std::string outside(std::int32_t value, std::string_view expression, std::string_view range) {
    return problemWith("Range of argument exceeded", value, expression, range);
}

std::string storeByte(Image& image, std::int32_t address, std::int32_t value, std::string_view expression) {
    if (!within(value, -128, 255)) {
        return problemWith("Unused data in MS byte of argument", value, expression, "-128 to 255");
    }
    image.put(address, lowByte(value));
    return {};
}

std::string storeWord(Image& image, FieldKind kind, std::int32_t address, std::int32_t value,
                      std::string_view expression) {
    if (!within(value, -32768, 65535)) return outside(value, expression, "-32768 to 65535");
    const bool highFirst = kind == FieldKind::kWordHighFirst;
    image.put(address, highFirst ? highByte(value) : lowByte(value));
    image.put(address + 1, highFirst ? lowByte(value) : highByte(value));
    return {};
}

std::string storeRelative(Image& image, std::int32_t address, std::int32_t target,
                          std::string_view expression) {
    const std::int64_t distance = std::int64_t{target} - (address + 1);
    if (distance >= -128 && distance <= 127) {
        image.put(address, lowByte(static_cast<std::int32_t>(distance)));
        return {};
    }
    const bool ahead = distance > 0;
    const std::int64_t reach = ahead ? 127 : 128;
    const std::int64_t length = ahead ? distance : -distance;
    return "Range of relative branch exceeded: " + shown(expression) + " is " + std::to_string(length) +
           " bytes " + (ahead ? "ahead" : "back") + ", " + std::to_string(length - reach) +
           " more than the possible " + std::to_string(reach);
}

void addBits(Image& image, std::int32_t address, int bits) {
    image.put(address, static_cast<std::uint8_t>(image.at(address) | bits));
}

}  // namespace

std::int32_t sizeOf(FieldKind kind) {
    switch (kind) {
        case FieldKind::kByte:
        case FieldKind::kRelative:
        case FieldKind::kDisplacement:
            return 1;
        case FieldKind::kWord:
        case FieldKind::kWordHighFirst:
            return 2;
        default:
            return 0;
    }
}

std::string storeField(Image& image, FieldKind kind, std::int32_t address, std::int32_t value,
                       std::string_view expression) {
    constexpr int kModeBits[] = {0x00, 0x10, 0x18};
    switch (kind) {
        case FieldKind::kByte:
            return storeByte(image, address, value, expression);
        case FieldKind::kWord:
        case FieldKind::kWordHighFirst:
            return storeWord(image, kind, address, value, expression);
        case FieldKind::kRelative:
            return storeRelative(image, address, value, expression);
        case FieldKind::kDisplacement:
            if (!within(value, -128, 127)) return outside(value, expression, "-128 to 127");
            image.put(address, lowByte(value));
            return {};
        case FieldKind::kBit:
            if (!within(value, 0, 7)) return outside(value, expression, "0 to 7");
            addBits(image, address, value << 3);
            return {};
        case FieldKind::kRestart:
            if (!within(value, 0, 0x38) || value % 8 != 0) {
                return outside(value, expression, "0, 8, $10, $18, $20, $28, $30 or $38");
            }
            addBits(image, address, value);
            return {};
        case FieldKind::kMode:
            if (!within(value, 0, 2)) return outside(value, expression, "0 to 2");
            addBits(image, address, kModeBits[value]);
            return {};
        case FieldKind::kZero:
            return value == 0 ? std::string() : outside(value, expression, "only 0");
    }
    return {};
}

}  // namespace kav::assembler
