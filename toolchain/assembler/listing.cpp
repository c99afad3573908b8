// SPDX-License-Identifier: GPL-3.0-or-later
// The listing: every source line with its number, address and bytes, and the errors behind them.
#include "assembler/listing.h"

#include <algorithm>

namespace kav::assembler {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::int32_t kBytesPerLine = 6;
constexpr int kLargestNumber = 9999;  // what four digits can show
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

void addHex(std::string& out, unsigned value, int digits) {
    for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4)
        out += kHexDigits[(value >> shift) & 0xFU];
}

void addNumber(std::string& out, int number) {
    const std::string digits = std::to_string(number);
    if (digits.size() < 4) out.append(4 - digits.size(), '0');
    out += digits;
}

/// The fields in front of the bytes. The `+` marks have a column of three, so that the lines of three levels
/// of include stand under each other.
void addStart(std::string& out, const ListedLine& line) {
    addNumber(out, line.number);
    out.append(static_cast<std::size_t>(line.includeLevel), '+');
    out.append(static_cast<std::size_t>(std::max(3 - line.includeLevel, 1)), ' ');
    addHex(out, static_cast<unsigned>(line.address) & 0xFFFFU, 4);
    out += line.skipped ? "~ " : "  ";
}

void addBytes(std::string& out, const ListedLine& line, const Image& image, std::int32_t from) {
    for (std::int32_t i = from; i < from + kBytesPerLine; ++i) {
        if (i >= line.byteCount || line.address + i >= kAddressSpace) {
            out += "   ";
            continue;
        }
        addHex(out, image.at(line.address + i), 2);
        out += ' ';
    }
}

void addLine(std::string& out, const ListedLine& line, const Image& image) {
    addStart(out, line);
    addBytes(out, line, image, 0);
    out += line.text;
    out += kLineEnd;
    for (std::int32_t from = kBytesPerLine; from < line.byteCount; from += kBytesPerLine) {
        addStart(out, line);
        addBytes(out, line, image, from);
        out.pop_back();
        out += kLineEnd;
    }
}

void addError(std::string& out, const Message& message) {
    out += "temp.z80 line ";
    addNumber(out, std::clamp(message.line, 0, kLargestNumber));
    out += ": ";
    if (message.line > kLargestNumber) out += "line " + std::to_string(message.line) + ": ";
    out += message.text;
    out += kLineEnd;
}

}  // namespace

std::string writeListing(const std::vector<ListedLine>& lines, const Image& image,
                         const std::vector<Message>& messages) {
    std::string out;
    for (const ListedLine& line : lines)
        addLine(out, line, image);
    const auto isError = [](const Message& message) { return message.severity == Severity::kError; };
    const auto errors = std::count_if(messages.begin(), messages.end(), isError);
    if (errors == 0) return out;
    out += "temp.z80: " + std::to_string(errors) + (errors == 1 ? " error" : " errors");
    out += kLineEnd;
    for (const Message& message : messages) {
        if (isError(message)) addError(out, message);
    }
    return out;
}

}  // namespace kav::assembler
