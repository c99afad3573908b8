// SPDX-License-Identifier: GPL-3.0-or-later
// The assembler: source in, bytes, messages, labels and a listing out.
#pragma once

#include "assembler/message.h"
#include "assembler/outline.h"
#include "assembler/source_files.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace kav::assembler {

/// How to assemble.
struct Options {
    /// Macros that are defined before the first line: names and texts.
    std::vector<std::pair<std::string, std::string>> defines;
    bool strict = false;                 ///< accept nothing beyond the dialect itself
    bool wantListing = false;            ///< fill Result::listing
    bool wantOutline = false;            ///< fill Result::statements, ::macros and ::addedMnemonics
    bool wantSuggestions = true;         ///< errors name the known word that is nearest to a misspelt one
    std::size_t maxErrors = 100;         ///< assembly ends at this many
    std::uint64_t maxLines = 6'000'000;  ///< and at this many lines read in all passes
    std::uint64_t maxMacroWork = 512ULL << 20;  ///< and at this many characters moved by macros in one pass
};

/// A label of the assembled program.
struct Symbol {
    std::string name;
    std::string module;  ///< of a local label, empty for a global one
    std::int32_t value = 0;
    bool isAddress = false;  ///< false for equates and variables
    std::string file;        ///< where it is defined
    int line = 0;            ///< in that file; in front of line 1 stands the program's own macro block
};

/// A macro that is defined at the end of the program.
struct NamedMacro {
    std::string name;
    std::string parameters;  ///< "(a,b)", or empty when it takes none
    std::string body;        ///< one line, or the lines of a #macro each with a line feed behind it
    std::string file;        ///< where it is defined, empty for one of Options::defines
    int line = 0;
};

/// What came out.
struct Result {
    bool ok = false;                  ///< no errors
    bool abandoned = false;           ///< the source was not read to its end, as Options bounds it
    std::vector<std::uint8_t> bytes;  ///< from the lowest to the highest address written
    std::uint16_t origin = 0;         ///< the address of the first byte
    std::vector<Message> messages;    ///< in the order of the source
    std::vector<Symbol> symbols;      ///< in the order of their definition
    std::string listing;
    std::vector<OutlinedStatement> statements;  ///< in the order of the source
    std::vector<NamedMacro> macros;             ///< in no order
    std::vector<std::string> addedMnemonics;    ///< those of .addinstr, in lower case and no order
};

/// Assembles the file `mainFile` of `sources`. Every problem of the source becomes a message.
[[nodiscard]] Result assemble(SourceFiles& sources, const std::string& mainFile, const Options& options = {});

}  // namespace kav::assembler
