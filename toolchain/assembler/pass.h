// SPDX-License-Identifier: GPL-3.0-or-later
// One walk over the source: what is known while it lasts, and the verbs that its parts share.
#pragma once

#include "assembler/added_instructions.h"
#include "assembler/assembler.h"
#include "assembler/characters.h"
#include "assembler/conditionals.h"
#include "assembler/diagnostics.h"
#include "assembler/expression.h"
#include "assembler/field.h"
#include "assembler/image.h"
#include "assembler/listing.h"
#include "assembler/macros.h"
#include "assembler/outline.h"
#include "assembler/symbol_table.h"

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kav::assembler {

/// What one pass leaves to the next.
struct Knowledge {
    SymbolTable symbols;
    AnonymousLabels anonymous;
    std::uint64_t linesRead = 0;  ///< in all passes, to bound the work
};

/// The state of one pass. Its parts (lines, statements, directives, instructions) are functions that take
/// it; the members they use freely are public.
class Pass {
  public:
    enum class Turn {
        kFirst,  ///< labels may follow; what waits for them is stored at the end
        kLater,  ///< labels that follow have the value of the pass before
        kLast,   ///< as kLater, and a label with another value than before is an error
    };

    Pass(SourceFiles& sources, const Options& options, Knowledge& knowledge, Turn turn);

    /// Reads the whole source. True when every label has the value that was worked with.
    bool run(const std::string& mainFile);

    // Messages about the present line.
    void error(const std::string& text) { diagnostics.error(where, text); }
    void warning(const std::string& text) { diagnostics.warning(where, text); }

    /// The value that the layout of the program depends on, so that it is needed now: 0 in the first pass
    /// when a label follows, and another pass is due. Nothing when it makes no sense, which is reported.
    std::optional<std::int32_t> valueNow(std::string_view expression);

    /// Gives the label a value; reports a duplicate.
    void defineLabel(std::string_view name, std::int32_t value, LabelKind kind);

    /// Writes a byte at the location counter and moves on.
    void emit(std::uint8_t byte);

    /// Writes a value, or leaves room for it when labels follow.
    void emitField(FieldKind kind, std::string_view expression);

    /// Stores a value at an address that was written already.
    void fillField(FieldKind kind, std::int32_t address, std::string_view expression);

    /// Moves the location counter; reports an address outside the address space.
    void moveTo(std::int64_t address, std::string_view expression);

    /// The scope of a label's name: 0 for a global one.
    [[nodiscard]] std::uint32_t scopeOf(std::string_view name) const {
        return name.front() == world.localLabelMark ? module : 0;
    }

    /// Turns to the module, new or known.
    void enterModule(std::string_view name);

    /// The present line, as the place where something is defined.
    [[nodiscard]] NamePlace place() const { return {where.file, where.line}; }

    /// Adds the time of the instruction that was written from `start` on.
    void addTime(std::int32_t start);

    /// `text` where it stays until the pass ends.
    std::string_view kept(std::string_view text);

    SourceFiles& sources;
    const Options& options;
    Knowledge& knowledge;
    Turn turn;

    CharacterTable characters;
    ExpressionWorld world;
    Evaluator evaluator;
    Diagnostics diagnostics;
    MacroTable macros;
    MacroExpander expander;
    Conditionals conditionals;
    AddedInstructions addedInstructions;
    Image image;
    std::vector<ListedLine> listed;
    std::vector<OutlinedStatement> outline;
    Time statementTime;  ///< of the instructions in the present statement, where an outline is wanted

    Location where;                    ///< the line being read
    const SourceFile* file = nullptr;  ///< the file being read
    int includeDepth = 0;
    int macroDepth = 0;
    bool fileEnded = false;                ///< .end was read
    bool textIsTemporary = false;          ///< the statement stands in a buffer, not in a file
    bool listing = true;                   ///< between .list and .nolist
    bool highByteFirst = false;            ///< .msfirst
    bool includeMissing = false;           ///< labels may be missing because a file is
    std::set<std::string> imported;        ///< the paths of files that #import has read
    std::optional<Macro> macroBeingRead;   ///< between #macro and #endmacro
    std::uint32_t module = 1;              ///< the scope of local labels
    std::vector<std::string> moduleNames;  ///< in the order of their scopes, the first being 1
    /// The files that were read, which lines and labels point into.
    std::vector<std::shared_ptr<const SourceFile>> files;

    std::int32_t location = 0;        ///< the location counter
    std::int32_t statementStart = 0;  ///< its value at the start of the statement
    std::int32_t lineBytes = 0;       ///< bytes written by the present line
    std::int32_t lineAddress = 0;     ///< the address of the first of them

    /// Notes a byte for the sum of all bytes from `from` up to it.
    void emitChecksum(std::int32_t from);

  private:
    struct Checksum {
        std::int32_t from;
        std::int32_t address;
    };

    [[nodiscard]] ExpressionPlace expressionPlace() const {
        return {statementStart, module, knowledge.anonymous.forward.size()};
    }
    void reportBadValue(const Location& about);
    void reportUnsettled(std::string_view name, std::uint32_t scope, std::int32_t value, LabelKind kind);
    void storeLateFields();
    void storeChecksums();

    std::vector<Fixup> fixups_;
    std::vector<Checksum> checksums_;
    std::deque<std::string> keptTexts_;
    std::uint64_t emitted_ = 0;
    bool anotherPassDue_ = false;
    bool unsettledReported_ = false;
};

}  // namespace kav::assembler
