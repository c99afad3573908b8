// SPDX-License-Identifier: GPL-3.0-or-later
// The facts of a program in words, as panels and hovers show them.
#include "documents/aids/fact_texts.h"

#include "assembler/number.h"
#include "assembler/text.h"  // escapes of characters
#include "assembler/words.h"
#include "documents/aids/source_line.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace kav {

namespace {

using assembler::OutlinedStatement;

constexpr std::uint32_t kLargestByte = 0xFF;
constexpr std::uint32_t kLargestWord = 0xFFFF;

std::string counted(std::uint64_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string hexDigits(std::uint32_t value, unsigned digits) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (unsigned digit = digits; digit-- > 0;)
        text += kDigits[value >> (4 * digit) & 0xFU];
    return text;
}

std::string hexText(std::uint32_t value) {
    return "$" + hexDigits(value, value <= kLargestByte ? 2 : value <= kLargestWord ? 4 : 8);
}

std::string binaryText(std::uint32_t value) {
    const unsigned digits = value <= kLargestByte ? 8 : value <= kLargestWord ? 16 : 32;
    std::string text = "%";
    for (unsigned digit = digits; digit-- > 0;)
        text += (value >> digit & 1U) != 0 ? '1' : '0';
    return text;
}

/// A value as names have them: "$9D95 (40341)". A negative one is given the 16 bits that programs see.
std::string valueText(const assembler::Symbol& symbol) {
    const auto bits = static_cast<std::uint32_t>(symbol.value);
    const bool isNegativeWord = symbol.value < 0 && symbol.value >= -0x8000;
    const bool isWord = symbol.isAddress || isNegativeWord;
    return (isWord ? "$" + hexDigits(bits, 4) : hexText(bits)) + " (" + std::to_string(symbol.value) + ")";
}

std::string placeText(const ProgramFacts& facts, const std::string& file, int line) {
    const bool inDocument = facts.isInDocument(file);
    if (inDocument && line < 1) return "built in";
    return (inDocument ? "line " : file + ", line ") + std::to_string(line);
}

/// The value of a number or of a character in apostrophes.
std::optional<std::uint32_t> numberIn(std::string_view text) {
    if (text.front() != '\'') {
        const assembler::Number number = assembler::readNumber(text, 0, true);
        if (number.kind != assembler::NumberKind::kNumber) return std::nullopt;
        return number.value;
    }
    std::size_t position = 1;
    if (text.size() == 4) return assembler::escapedCharacter(text, position);
    return static_cast<unsigned char>(text[position]);
}

std::string numberText(std::string_view text) {
    const std::optional<std::uint32_t> value = numberIn(text);
    if (!value) return {};
    return hexText(*value) + " = " + std::to_string(*value) + " = " + binaryText(*value);
}

std::string macroText(const assembler::NamedMacro& macro, const ProgramFacts& facts) {
    std::string text = "#define " + macro.name + macro.parameters + " " + macro.body;
    while (!text.empty() && (text.back() == '\n' || text.back() == ' '))
        text.pop_back();
    return text + "\n" + placeText(facts, macro.file, macro.line);
}

std::string nameText(std::string_view name, int line, const ProgramFacts& facts) {
    if (const assembler::NamedMacro* macro = facts.macro(name)) return macroText(*macro, facts);
    const assembler::Symbol* symbol = facts.symbol(name, line);
    if (symbol == nullptr) return {};
    return symbol->name + " = " + valueText(*symbol) + "\n" + placeText(facts, symbol->file, symbol->line);
}

std::string bytesText(std::span<const std::uint8_t> bytes) {
    constexpr std::size_t kMostBytes = 16;
    std::string text;
    for (const std::uint8_t byte : bytes.first(std::min(bytes.size(), kMostBytes)))
        text += (text.empty() ? "" : " ") + hexDigits(byte, 2);
    return text + (bytes.size() > kMostBytes ? " ..." : "");
}

HoverText statementHover(const Piece& piece, int line, const ProgramFacts& facts) {
    const OutlinedStatement* statement = facts.statementAt(line, piece.begin);
    if (statement == nullptr) return {};
    const Cost cost{statement->byteCount, statement->time, 0};
    return {piece.begin, piece.end, bytesText(facts.bytesOf(*statement)) + "\n" + costText(cost)};
}

}  // namespace

std::string costText(const Cost& cost) {
    std::string text;
    if (cost.bytes > 0) text = counted(cost.bytes, "byte");
    if (cost.time.longest > 0) text += ", " + std::to_string(cost.time.longest);
    if (cost.time.longest != cost.time.shortest) text += "/" + std::to_string(cost.time.shortest);
    if (cost.time.longest > 0) text += " T";
    if (cost.linesLeftOut > 0) {
        const auto lines = static_cast<std::uint64_t>(cost.linesLeftOut);
        text += (text.empty() ? "" : ", ") + counted(lines, "line") + " left out";
    }
    return text;
}

std::string caretText(std::size_t line, std::size_t column) {
    return "Line " + std::to_string(line) + ", column " + std::to_string(column);
}

HoverText hoverTextAt(std::string_view line, int lineNumber, std::size_t column, const ProgramFacts& facts) {
    for (const Piece& piece : piecesOf(line)) {
        if (column < piece.begin || column >= piece.end) continue;
        const std::string_view text = line.substr(piece.begin, piece.end - piece.begin);
        HoverText hover{piece.begin, piece.end, {}};
        switch (piece.kind) {
            case PieceKind::Number:
                hover.text = numberText(text);
                break;
            case PieceKind::Label:
            case PieceKind::Operation:
            case PieceKind::Name:
                if (!assembler::isRegisterOrCondition(text)) hover.text = nameText(text, lineNumber, facts);
                break;
            default:
                break;
        }
        const bool inStatement = piece.kind != PieceKind::Comment && piece.kind != PieceKind::Label;
        return hover.text.empty() && inStatement ? statementHover(piece, lineNumber, facts) : hover;
    }
    return {};
}

}  // namespace kav
