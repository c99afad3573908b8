// SPDX-License-Identifier: GPL-3.0-or-later
// Reading source line by line.
#include "assembler/lines.h"

#include "assembler/hash_directives.h"
#include "assembler/statement.h"
#include "assembler/text.h"

#include <algorithm>
#include <cstring>

namespace kav::assembler {

namespace {

constexpr int kDeepestInclude = 32;
constexpr int kDeepestMacro = 32;

// The program writes these ten lines in front of the user's document; they do not count as lines of it.
constexpr int kBlockLines = 10;
constexpr std::string_view kBlockStart = ";These are KAV Compiler's built in macros.";
constexpr std::string_view kBlockEnd = ";End of KAV Compiler's macros.";

/// Takes the next line, without its end, off the front of `rest`.
std::string_view takeLine(std::string_view& rest) {
    const void* found = std::memchr(rest.data(), '\n', rest.size());
    const std::size_t end = found == nullptr
                                ? rest.size()
                                : static_cast<std::size_t>(static_cast<const char*>(found) - rest.data());
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end < rest.size() ? end + 1 : end);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

/// The text in front of a final Ctrl+Z, which ends a file of the old days.
std::string_view withoutEndMark(std::string_view text) {
    const std::size_t mark = text.find_last_not_of("\x1A\r\n \t");
    const std::size_t firstMark = text.find('\x1A', mark == std::string_view::npos ? 0 : mark + 1);
    return text.substr(0, firstMark);
}

bool beginsWithBlock(std::string_view text) {
    for (int number = 1; number <= kBlockLines; ++number) {
        const std::string_view line = takeLine(text);
        if (number == 1 && line != kBlockStart) return false;
        if (number == kBlockLines) return line == kBlockEnd;
    }
    return false;
}

void startLine(Pass& pass) {
    ++pass.where.order;
    if (++pass.knowledge.linesRead > pass.options.maxLines) {
        pass.diagnostics.fatal(pass.where, "Macro expansion too long: the source has too many lines");
    }
    pass.lineBytes = 0;
    pass.lineAddress = pass.location;
}

/// Reads a line and lists it, in front of the lines that it may bring.
void readListedLine(Pass& pass, std::string_view line) {
    const std::int32_t startLocation = pass.location;
    const bool skippedBefore = pass.conditionals.skipping();
    const std::size_t place = pass.listed.size();
    const int number = pass.where.line;
    pass.listed.push_back({line, number, pass.includeDepth, startLocation, 0, false});
    readLine(pass, line);
    ListedLine& listed = pass.listed[place];
    listed.skipped = skippedBefore && pass.conditionals.skipping();
    if (pass.lineBytes == 0) return;
    listed.address = pass.lineAddress;
    listed.byteCount = pass.lineBytes;
}

void reportUnclosed(Pass& pass, std::size_t depth) {
    if (pass.macroBeingRead) {
        pass.error("Imbalanced conditional: #macro " + shown(pass.macroBeingRead->name) +
                   " has no #endmacro");
        pass.macroBeingRead.reset();
    }
    while (pass.conditionals.depth() > depth) {
        const Location opened = pass.conditionals.innermost();
        pass.conditionals.close();
        pass.diagnostics.error(opened, "Imbalanced conditional: there is no #endif");
    }
}

void readLines(Pass& pass, std::string_view text) {
    const bool wanted = pass.options.wantListing;
    while (!text.empty() && !pass.fileEnded) {
        const std::string_view line = takeLine(text);
        ++pass.where.line;
        if (pass.includeDepth == 0) pass.where.userLine = pass.where.line;
        startLine(pass);
        const bool list = wanted && pass.listing && pass.where.userLine > 0;
        if (list) {
            readListedLine(pass, line);
        } else {
            readLine(pass, line);
        }
    }
}

/// The position behind the next statement of the line; npos when a quote is not closed.
std::size_t endOfStatement(std::string_view line, std::size_t from) {
    while (from < line.size()) {
        const char c = line[from];
        if (c == '\\' || c == ';') return from;
        if (c == '"' || c == '\'') {
            from = behindQuoted(line, from);
            if (from == std::string_view::npos) return from;
            continue;
        }
        ++from;
    }
    return line.size();
}

/// The position behind all statements of the line: its end or its comment.
std::size_t endOfStatements(std::string_view line, std::size_t from) {
    std::size_t end = endOfStatement(line, from);
    while (end < line.size() && line[end] == '\\')
        end = endOfStatement(line, end + 1);
    return std::min(end, line.size());
}

/// Assembles what stands in a part of the line, and notes what it became where that is wanted.
template <typename Assemble>
void outlined(Pass& pass, std::string_view line, std::size_t begin, std::size_t end,
              const Assemble& assemble) {
    const bool ofDocument = pass.includeDepth == 0 && !pass.textIsTemporary && pass.where.line > 0;
    if (!pass.options.wantOutline || !ofDocument) return assemble();
    const std::int32_t bytesBefore = pass.lineBytes;
    const std::int32_t addressBefore = pass.lineAddress;
    pass.lineBytes = 0;
    pass.statementTime = {};
    assemble();
    if (pass.lineBytes > 0) {
        const std::string_view text = trimmed(line.substr(begin, end - begin));
        const auto first = static_cast<std::size_t>(text.data() - line.data());
        pass.outline.push_back({pass.where.line, first, first + text.size(),
                                static_cast<std::uint16_t>(pass.lineAddress),
                                static_cast<std::uint32_t>(pass.lineBytes), pass.statementTime});
    }
    if (bytesBefore > 0) pass.lineAddress = addressBefore;
    pass.lineBytes += bytesBefore;
}

void readStatements(Pass& pass, std::string_view line) {
    std::size_t begin = 0;
    while (begin <= line.size() && !pass.fileEnded) {
        const std::size_t end = endOfStatement(line, begin);
        if (end == std::string_view::npos) {
            pass.error("No terminating quote: " + shown(line.substr(begin)));
            return;
        }
        const std::string_view statement = line.substr(begin, end - begin);
        const std::size_t first = kCharacters.skipBlanks(statement, 0);
        if (first < statement.size() && statement[first] == '#') {
            readHashDirective(pass, statement.substr(first));
        } else if (first < statement.size() && !pass.conditionals.skipping()) {
            outlined(pass, line, begin, end, [&] { assembleStatement(pass, statement); });
        }
        if (end >= line.size() || line[end] == ';') return;
        begin = end + 1;
    }
}

/// Reports a line that macros could not be replaced in.
void reportExpansion(Pass& pass, Expansion outcome) {
    const std::string macro = shown(pass.expander.culprit());
    switch (outcome) {
        case Expansion::kTooLong:
            pass.error("Macro expansion too long: the macro " + macro + " has no end or too long a text");
            break;
        case Expansion::kUnclosed:
            pass.error("Unknown token: a ) is missing behind the arguments of the macro " + macro);
            break;
        default: {
            const Macro* found = pass.macros.findForUse(macro, true);
            const std::size_t count = found == nullptr ? 0 : found->parameters.size();
            pass.error("Unrecognized argument: the macro " + macro + " takes " + std::to_string(count) +
                       (count == 1 ? " argument" : " arguments"));
            break;
        }
    }
}

}  // namespace

void readSource(Pass& pass, const std::shared_ptr<const SourceFile>& file) {
    if (pass.includeDepth >= kDeepestInclude) {
        pass.diagnostics.fatal(pass.where, "Source file open error: " + shownName(file->name) +
                                               " is included within itself or more than 32 deep");
    }
    pass.files.push_back(file);
    const Location outerPlace = pass.where;
    const SourceFile* outerFile = pass.file;
    const std::size_t openConditionals = pass.conditionals.depth();
    const std::string_view text = withoutEndMark(file->text);

    pass.file = file.get();
    pass.where.file = &file->name;
    if (outerFile == nullptr) pass.where.mainFile = &file->name;
    pass.where.line = outerFile == nullptr && beginsWithBlock(text) ? -kBlockLines : 0;
    readLines(pass, text);
    reportUnclosed(pass, openConditionals);

    pass.fileEnded = false;
    pass.file = outerFile;
    const std::uint32_t order = pass.where.order;
    if (outerFile != nullptr) pass.where = outerPlace;
    pass.where.order = order;
    pass.lineBytes = 0;  // those of the file's last line are not the #include's
}

void readLine(Pass& pass, std::string_view line) {
    const std::size_t first = kCharacters.skipBlanks(line, 0);
    const bool isHash = first < line.size() && line[first] == '#';
    if (pass.macroBeingRead && !(isHash && endsMacro(line.substr(first)))) {
        addMacroLine(pass, line);
        return;
    }
    if (isHash) {
        readHashDirective(pass, line.substr(first));
        return;
    }
    if (pass.conditionals.skipping() || first == line.size() || line[first] == ';') return;

    std::string expanded;
    const Expansion outcome = pass.expander.expand(line, first, !pass.options.strict, expanded);
    if (pass.expander.work() > pass.options.maxMacroWork) {
        pass.diagnostics.fatal(pass.where, "Macro expansion too long: the macros of this source have no end");
    }
    if (outcome == Expansion::kNothing) {
        readStatements(pass, line);
        return;
    }
    if (outcome != Expansion::kExpanded) {
        reportExpansion(pass, outcome);
        return;
    }
    outlined(pass, line, first, endOfStatements(line, first), [&] {
        const bool outer = pass.textIsTemporary;
        pass.textIsTemporary = true;
        readStatements(pass, expanded);
        pass.textIsTemporary = outer;
    });
}

void readMacroLines(Pass& pass, const Macro& macro, const std::vector<std::string>& arguments) {
    if (pass.macroDepth >= kDeepestMacro) {
        pass.diagnostics.fatal(pass.where, "Macro expansion too long: " + shown(macro.name) +
                                               " calls itself or nests more than 32 deep");
    }
    const std::string text = withArguments(macro, arguments);
    std::string_view rest = text;
    const std::size_t openConditionals = pass.conditionals.depth();
    const bool outer = pass.textIsTemporary;
    pass.textIsTemporary = true;
    ++pass.macroDepth;
    while (!rest.empty() && !pass.fileEnded) {
        if (++pass.knowledge.linesRead > pass.options.maxLines) {
            pass.diagnostics.fatal(pass.where, "Macro expansion too long: too many lines come from macros");
        }
        readLine(pass, takeLine(rest));
    }
    --pass.macroDepth;
    pass.textIsTemporary = outer;
    reportUnclosed(pass, openConditionals);
}

}  // namespace kav::assembler
