// SPDX-License-Identifier: GPL-3.0-or-later
// What the assembler knows of a document: the size and time of its statements, and the names that it uses.
#include "documents/aids/program_facts.h"

#include "build/build_files.h"  // what stands in front of every document
#include "runtime/ascii_case.h"

#include <algorithm>
#include <memory>

namespace kav {

namespace {

using assembler::FoundSource;
using assembler::Message;
using assembler::OutlinedStatement;
using assembler::Severity;
using assembler::SourceFile;
using assembler::Symbol;

const std::string kDocumentName;  // empty, as no included file's name is

// What keeps hostile documents from being felt. No program that fits a calculator comes near.
constexpr std::size_t kMostErrors = 1000;
constexpr std::uint64_t kMostLines = 400'000;
constexpr std::uint64_t kMostMacroWork = 16U << 20;

/// The document in memory, as if it lay in the application folder; what it includes is on disk.
class DocumentSource : public assembler::DiskSourceFiles {
  public:
    DocumentSource(std::string_view document, const std::string& applicationFolder)
        : DiskSourceFiles({applicationFolder + "/include"}),
          main_(std::make_shared<SourceFile>(
              SourceFile{applicationFolder + "/", kDocumentName, buildSource(document)})) {}

    FoundSource openMain(const std::string& /*name*/) override { return {main_, {}}; }

  private:
    std::shared_ptr<const SourceFile> main_;
};

assembler::Options optionsFor(const BuildContext& context) {
    assembler::Options options;
    options.defines.emplace_back(context.forTi83 ? "TI83" : "TI83P", "");
    options.wantOutline = true;
    options.wantSuggestions = false;
    options.maxErrors = kMostErrors;
    options.maxLines = kMostLines;
    options.maxMacroWork = kMostMacroWork;
    return options;
}

bool touches(const DocumentRange& range, const OutlinedStatement& statement) {
    const bool beforeEnd = statement.line < range.lastLine ||
                           (statement.line == range.lastLine && statement.begin < range.lastColumn);
    const bool behindStart = statement.line > range.firstLine ||
                             (statement.line == range.firstLine && statement.end > range.firstColumn);
    return beforeEnd && behindStart;
}

bool isAbove(const OutlinedStatement& statement, int line) {
    return statement.line < line;
}

}  // namespace

ProgramFacts::ProgramFacts(std::string_view document, const BuildContext& context) {
    if (document.size() > kLongestReadDocument) return;
    DocumentSource source(document, context.applicationFolder);
    result_ = assembler::assemble(source, kDocumentName, optionsFor(context));
    indexNames();
    noteErrorLines();
}

void ProgramFacts::indexNames() {
    for (std::size_t i = 0; i < result_.symbols.size(); ++i)
        symbolPlaces_.emplace(lowered(result_.symbols[i].name), i);
    for (std::size_t i = 0; i < result_.macros.size(); ++i)
        macroPlaces_.emplace(lowered(result_.macros[i].name), i);
}

void ProgramFacts::noteErrorLines() {
    for (const Message& message : result_.messages) {
        if (message.severity == Severity::kError) errorLines_.push_back(message.line);
    }
    std::sort(errorLines_.begin(), errorLines_.end());
    errorLines_.erase(std::unique(errorLines_.begin(), errorLines_.end()), errorLines_.end());
}

bool ProgramFacts::hasError(int line) const {
    return std::binary_search(errorLines_.begin(), errorLines_.end(), line);
}

Cost ProgramFacts::costOf(const DocumentRange& range) const {
    Cost cost;
    if (result_.abandoned) return cost;
    const auto& statements = result_.statements;
    auto statement = std::lower_bound(statements.begin(), statements.end(), range.firstLine, isAbove);
    for (; statement != statements.end() && statement->line <= range.lastLine; ++statement) {
        if (!touches(range, *statement) || hasError(statement->line)) continue;
        cost.bytes += statement->byteCount;
        cost.time += statement->time;
    }
    // A range that ends in front of a line's first character does not touch that line.
    const int lastLine = range.lastColumn == 0 ? range.lastLine - 1 : range.lastLine;
    const auto first = std::lower_bound(errorLines_.begin(), errorLines_.end(), range.firstLine);
    const auto last = std::upper_bound(first, errorLines_.end(), lastLine);
    cost.linesLeftOut = static_cast<int>(last - first);
    return cost;
}

const OutlinedStatement* ProgramFacts::statementAt(int line, std::size_t column) const {
    if (hasError(line)) return nullptr;
    const auto& statements = result_.statements;
    auto statement = std::lower_bound(statements.begin(), statements.end(), line, isAbove);
    for (; statement != statements.end() && statement->line == line; ++statement) {
        if (statement->begin <= column && column < statement->end) return &*statement;
    }
    return nullptr;
}

std::span<const std::uint8_t> ProgramFacts::bytesOf(const OutlinedStatement& statement) const {
    const std::size_t first = std::size_t{statement.address} - result_.origin;
    if (statement.address < result_.origin || first > result_.bytes.size()) return {};
    const std::span<const std::uint8_t> bytes(result_.bytes);
    return bytes.subspan(first, std::min<std::size_t>(statement.byteCount, bytes.size() - first));
}

const Symbol* ProgramFacts::symbol(std::string_view name, int line) const {
    const auto nearness = [&](const Symbol& symbol) {
        return isInDocument(symbol.file) && symbol.line <= line ? symbol.line : 0;
    };
    const Symbol* meant = nullptr;
    const auto [first, last] = symbolPlaces_.equal_range(lowered(name));
    for (auto place = first; place != last; ++place) {
        const Symbol& symbol = result_.symbols[place->second];
        if (meant == nullptr || nearness(symbol) > nearness(*meant)) meant = &symbol;
    }
    return meant;
}

const assembler::NamedMacro* ProgramFacts::macro(std::string_view name) const {
    const assembler::NamedMacro* meant = nullptr;
    const auto [first, last] = macroPlaces_.equal_range(lowered(name));
    for (auto place = first; place != last; ++place) {
        const assembler::NamedMacro& macro = result_.macros[place->second];
        if (macro.name == name) return &macro;
        if (!macro.parameters.empty()) meant = &macro;
    }
    return meant;
}

bool ProgramFacts::isInDocument(const std::string& file) const {
    return file == kDocumentName;
}

}  // namespace kav
