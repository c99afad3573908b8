// SPDX-License-Identifier: GPL-3.0-or-later
// What the assembler knows of a document: the size and time of its statements, and the names that it uses.
#pragma once

#include "assembler/assembler.h"
#include "assembler/timing.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kav {

/// How a document is built.
struct BuildContext {
    std::string applicationFolder;  ///< where the build stands, with the include files in its `include`
    bool forTi83 = false;           ///< for the TI-83, else for the TI-83 Plus
};

/// Longer documents, in bytes, are not looked into: no calculator has room for what they would become, and
/// reading them would be felt while typing.
inline constexpr std::size_t kLongestReadDocument = 1U << 20;

/// A part of a document: lines from 1, columns in bytes from 0, the end not included.
struct DocumentRange {
    int firstLine = 1;
    std::size_t firstColumn = 0;
    int lastLine = 1;
    std::size_t lastColumn = 0;
};

/// Size and time of a part of a document.
struct Cost {
    std::uint64_t bytes = 0;
    assembler::Time time;  ///< of the instructions; data takes none
    int linesLeftOut = 0;  ///< lines with mistakes, which count for nothing

    bool operator==(const Cost&) const = default;
};

/// The facts of one text of one document.
class ProgramFacts {
  public:
    /// Knows nothing.
    ProgramFacts() = default;

    /// Assembles the document as a build does, with the built-in macros in front of it and the include files
    /// as they are on disk now. Knows nothing of documents longer than kLongestReadDocument.
    ProgramFacts(std::string_view document, const BuildContext& context);

    /// What the statements that the range touches cost, lines with mistakes left out. Nothing at all when
    /// the mistakes were too many to read the document to its end.
    [[nodiscard]] Cost costOf(const DocumentRange& range) const;

    /// The statement at a place, or nothing where there is none or its line has mistakes.
    [[nodiscard]] const assembler::OutlinedStatement* statementAt(int line, std::size_t column) const;

    /// The bytes that a statement became.
    [[nodiscard]] std::span<const std::uint8_t> bytesOf(const assembler::OutlinedStatement& statement) const;

    /// The label or equate of that name, in any case, or nothing. Where modules have local labels of one
    /// name, the last one defined above `line` is meant.
    [[nodiscard]] const assembler::Symbol* symbol(std::string_view name, int line) const;

    /// The macro of that name, or nothing. Those with arguments are found in any case.
    [[nodiscard]] const assembler::NamedMacro* macro(std::string_view name) const;

    /// True when the symbol or macro stands in the document itself, not in a file that it includes.
    [[nodiscard]] bool isInDocument(const std::string& file) const;

    /// All that the assembler said.
    [[nodiscard]] const assembler::Result& result() const { return result_; }

  private:
    void indexNames();
    void noteErrorLines();
    [[nodiscard]] bool hasError(int line) const;

    assembler::Result result_;
    std::vector<int> errorLines_;                                     // in order
    std::unordered_multimap<std::string, std::size_t> symbolPlaces_;  // by name in lower case
    std::unordered_multimap<std::string, std::size_t> macroPlaces_;
};

}  // namespace kav
