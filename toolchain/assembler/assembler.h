// SPDX-License-Identifier: GPL-3.0-or-later
// The assembler: source in, bytes, messages, labels and a listing out.
#pragma once

#include "assembler/message.h"
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
    bool strict = false;          ///< accept nothing beyond the dialect itself
    bool wantListing = false;     ///< fill Result::listing
    std::size_t maxErrors = 100;  ///< assembly ends at this many
};

/// A label of the assembled program.
struct Symbol {
    std::string name;  ///< "module.name" for a local label
    std::int32_t value = 0;
    bool isAddress = false;  ///< false for equates and variables
};

/// What came out.
struct Result {
    bool ok = false;                  ///< no errors
    std::vector<std::uint8_t> bytes;  ///< from the lowest to the highest address written
    std::uint16_t origin = 0;         ///< the address of the first byte
    std::vector<Message> messages;    ///< in the order of the source
    std::vector<Symbol> symbols;      ///< in the order of their definition
    std::string listing;
};

/// Assembles the file `mainFile` of `sources`. Every problem of the source becomes a message.
[[nodiscard]] Result assemble(SourceFiles& sources, const std::string& mainFile, const Options& options = {});

}  // namespace kav::assembler
