// SPDX-License-Identifier: GPL-3.0-or-later
// Text turned into ".db" lines of Z80 data.
#include "tools/string_converter.h"

#include "runtime/code_points.h"
#include "runtime/lines.h"
#include "tools/vcode.h"

namespace kav {

namespace {

constexpr std::size_t kCharactersPerLine = 16;

std::string plainLine(std::string_view characters, LineStart lineStart) {
    std::string line(1, static_cast<char>(lineStart));
    line.append(".db \"").append(characters).append("\"");
    return line;
}

}  // namespace

std::string joinedInput(std::string_view text) {
    std::string joined;
    joined.reserve(text.size());
    while (true) {
        const std::size_t end = text.find(kCrLf);
        joined += text.substr(0, end);
        if (end == std::string_view::npos) return joined;
        text.remove_prefix(end + kCrLf.size());
    }
}

std::string plainConversion(std::string_view joined, LineStart lineStart) {
    std::string output;
    std::string characters = firstCharacters(joined, kCharactersPerLine);
    while (characters.size() < joined.size()) {
        output.append(plainLine(characters, lineStart)).append(kCrLf);
        joined.remove_prefix(characters.size());
        characters = firstCharacters(joined, kCharactersPerLine);
    }
    return output + plainLine(characters, lineStart);
}

std::optional<std::string> convertedText(std::string_view input, const ConverterOptions& options,
                                         const AskTruncate& askTruncate) {
    const std::string joined = joinedInput(input);
    if (options.toVCode) return vcodeConversion(joined, options.lineStart, askTruncate);
    return plainConversion(joined, options.lineStart);
}

}  // namespace kav
