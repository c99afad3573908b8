// SPDX-License-Identifier: GPL-3.0-or-later
// The file name of an unsaved document's copy.
#include "documents/recovery_name.h"

#include "documents/caption.h"
#include "runtime/ascii_case.h"
#include "runtime/code_points.h"

#include <algorithm>
#include <array>

namespace kav {

namespace {

// Names may have 255 bytes on most file systems; these leave room for the words around them.
constexpr std::size_t kLongestStem = 120;
constexpr std::size_t kLongestFolder = 60;

// The endings that the Open dialog lists; the first is the program's own.
constexpr std::array<std::string_view, 5> kEndings = {".kvf", ".z80", ".asm", ".inc", ".txt"};

/// True for a character that every file system and every desktop takes in a name.
bool isLegal(const CodePoint& character) {
    constexpr std::string_view kRefused = "<>:\"/\\|?*";
    const char32_t value = character.value;
    if (value < 0x20 || value == 0x7F || value > 0x10FFFF) return false;
    if (value < 0x80) return kRefused.find(static_cast<char>(value)) == std::string_view::npos;
    // Halves of UTF-16 pairs, and sequences that are longer than their character needs.
    if (value >= 0xD800 && value <= 0xDFFF) return false;
    return character.length == (value < 0x800 ? 2U : value < 0x10000 ? 3U : 4U);
}

/// The characters of `text`, up to so many bytes; "_" for each that has no place in a name.
std::string legalName(std::string_view text, std::size_t longest) {
    std::string name;
    while (!text.empty()) {
        const CodePoint character = codePointAt(text, 0);
        if (name.size() + character.length > longest) break;
        name.append(isLegal(character) ? text.substr(0, character.length) : "_");
        text.remove_prefix(character.length);
    }
    return name;
}

/// What stands behind the last separator of `path`, which loses it.
std::string_view takeLastPart(std::string_view& path) {
    const std::size_t separator = path.find_last_of("/\\");
    const std::size_t start = separator == std::string_view::npos ? 0 : separator + 1;
    const std::string_view part = path.substr(start);
    path = path.substr(0, start == 0 ? 0 : start - 1);
    return part;
}

/// The stem says which document it is, the ending what kind of file.
struct NameParts {
    std::string stem;
    std::string ending;
};

NameParts partsOf(int documentNumber, std::string_view documentName) {
    std::string_view folders = documentName;
    std::string_view file = takeLastPart(folders);
    if (file.empty() || documentName == kUntitled) {
        return {std::string(kUntitled) + " " + std::to_string(documentNumber), std::string(kEndings.front())};
    }
    NameParts parts;
    parts.ending = kEndings.front();
    const std::size_t dot = file.rfind('.');
    const std::string ending = dot == std::string_view::npos ? std::string() : lowered(file.substr(dot));
    if (dot != 0 && std::find(kEndings.begin(), kEndings.end(), ending) != kEndings.end()) {
        parts.ending = ending;
        file = file.substr(0, dot);
    }
    parts.stem = legalName(file, kLongestStem);
    const std::string folder = legalName(takeLastPart(folders), kLongestFolder);
    if (!folder.empty()) parts.stem += " in " + folder;
    return parts;
}

}  // namespace

std::string recoveryName(int documentNumber, std::string_view documentName, int attempt) {
    const NameParts parts = partsOf(documentNumber, documentName);
    const std::string count = attempt > 1 ? " " + std::to_string(attempt) : "";
    return parts.stem + " (unsaved" + count + ")" + parts.ending;
}

}  // namespace kav
