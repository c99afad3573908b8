// SPDX-License-Identifier: GPL-3.0-or-later
// Textual macros: names that stand for text, with or without arguments.
#include "assembler/macros.h"

#include "assembler/characters.h"
#include "assembler/text.h"
#include "runtime/ascii_case.h"

#include <algorithm>

namespace kav::assembler {

namespace {

constexpr std::size_t kLongestLine = 65536;  // a line that macros make longer has gone wrong
constexpr int kMostReplacements = 4096;      // in one line

/// Finds the next name in `text` from `position` on that may be a macro: names in quotes, in comments and in
/// numbers are none. npos when there is no further one.
std::size_t nextCandidate(std::string_view text, std::size_t position, const MacroTable& macros) {
    while (position < text.size()) {
        const char c = text[position];
        if (kCharacters.isNameStart(c)) {
            const std::size_t end = kCharacters.endOfName(text, position);
            if (macros.mayBeMacro(text.substr(position, end - position))) return position;
            position = end;
        } else if (c == ';') {
            break;
        } else if (c == '"' || c == '\'') {
            position = behindQuoted(text, position);
        } else if (c == '$' || c == '.' || kCharacters.isDigit(c)) {
            position = kCharacters.endOfName(text, position + 1);
        } else {
            ++position;
        }
    }
    return std::string_view::npos;
}

/// The arguments of a call, or why there are none.
Expansion argumentsOf(const Macro& macro, std::string_view line, std::size_t& end,
                      std::vector<std::string>& arguments) {
    const std::size_t opening = kCharacters.skipBlanks(line, end);
    end = opening;
    if (!readArguments(line, end, arguments)) return Expansion::kUnclosed;
    if (macro.parameters.empty() && arguments.size() == 1 && arguments.front().empty()) arguments.clear();
    return arguments.size() == macro.parameters.size() ? Expansion::kExpanded : Expansion::kWrongNumber;
}

}  // namespace

void MacroTable::define(Macro macro) {
    lengths_[firstIndex(macro.name)] |= lengthBit(macro.name);
    last_ = macro.name;
    std::vector<Macro>& sameLetters = byName_[lowered(macro.name)];
    for (Macro& known : sameLetters) {
        if (known.name != macro.name) continue;
        known = std::move(macro);
        return;
    }
    sameLetters.push_back(std::move(macro));
}

bool MacroTable::remove(std::string_view name) {
    const auto found = byName_.find(lowered(name));
    if (found == byName_.end()) return false;
    const auto same = std::find_if(found->second.begin(), found->second.end(),
                                   [&](const Macro& macro) { return macro.name == name; });
    if (same == found->second.end()) return false;
    found->second.erase(same);
    return true;
}

bool MacroTable::extendLast(std::string_view text) {
    const auto found = byName_.find(lowered(last_));
    if (last_.empty() || found == byName_.end()) return false;
    for (Macro& macro : found->second) {
        if (macro.name != last_ || macro.body.size() + text.size() > kLongestLine) continue;
        macro.body += text;
        return true;
    }
    return false;
}

const Macro* MacroTable::find(std::string_view name) const {
    return findForUse(name, false);
}

const Macro* MacroTable::findForUse(std::string_view name, bool argumentsFollow) const {
    if (name.empty() || !mayBeMacro(name)) return nullptr;
    const auto found = byName_.find(lowered(name));
    if (found == byName_.end()) return nullptr;
    const Macro* inOtherCase = nullptr;
    for (const Macro& macro : found->second) {
        if (macro.name == name) return &macro;
        if (macro.takesArguments) inOtherCase = &macro;
    }
    return argumentsFollow ? inOtherCase : nullptr;
}

bool readArguments(std::string_view text, std::size_t& position, std::vector<std::string>& arguments) {
    std::size_t begin = ++position;
    int depth = 0;
    while (position < text.size()) {
        const char c = text[position];
        if (c == '"' || c == '\'') {
            position = behindQuoted(text, position);
            continue;
        }
        if (depth == 0 && (c == ',' || c == ')')) {
            arguments.emplace_back(trimmed(text.substr(begin, position - begin)));
            begin = position + 1;
        }
        if (c == '(') ++depth;
        if (c == ')' && depth-- == 0) {
            ++position;
            return true;
        }
        ++position;
    }
    return false;
}

std::string withArguments(const Macro& macro, const std::vector<std::string>& arguments) {
    if (arguments.empty()) return macro.body;
    const std::string_view body = macro.body;
    std::string result;
    std::size_t position = 0;
    while (position < body.size()) {
        std::size_t end = position + 1;
        const char c = body[position];
        if (c == '"' || c == '\'') {
            end = std::min(behindQuoted(body, position), body.size());
        } else if (kCharacters.isNamePart(c)) {
            end = kCharacters.endOfName(body, position);
        }
        const std::string_view piece = body.substr(position, end - position);
        const auto parameter = std::find(macro.parameters.begin(), macro.parameters.end(), piece);
        if (parameter == macro.parameters.end()) {
            result += piece;
        } else {
            result += arguments[static_cast<std::size_t>(parameter - macro.parameters.begin())];
        }
        position = end;
        if (result.size() > kLongestLine * 2) break;  // the expander refuses it
    }
    return result;
}

Expansion MacroExpander::expand(std::string_view line, std::size_t from, bool indentCalls,
                                std::string& buffer) {
    Expansion outcome = Expansion::kNothing;
    std::size_t position = nextCandidate(line, from, macros_);
    std::vector<std::string> arguments;
    for (int replacements = 0; position != std::string_view::npos;
         position = nextCandidate(line, position, macros_)) {
        std::size_t end = kCharacters.endOfName(line, position);
        const std::string_view name = line.substr(position, end - position);
        const std::size_t following = kCharacters.skipBlanks(line, end);
        const bool argumentsFollow = following < line.size() && line[following] == '(';
        const Macro* macro = macros_.findForUse(name, argumentsFollow && following == end);
        if (macro == nullptr || macro->hasLines || (macro->takesArguments && !argumentsFollow)) {
            position = end;
            continue;
        }
        culprit_ = macro->name;
        arguments.clear();
        if (macro->takesArguments) {
            const Expansion given = argumentsOf(*macro, line, end, arguments);
            if (given != Expansion::kExpanded) return given;
        }
        std::string text = withArguments(*macro, arguments);
        if (indentCalls && macro->takesArguments && position == 0) text.insert(0, 1, ' ');
        if (line.size() + text.size() > kLongestLine || ++replacements > kMostReplacements) {
            return Expansion::kTooLong;
        }
        if (outcome == Expansion::kNothing) buffer.assign(line);
        work_ += buffer.size() + text.size();
        buffer.replace(position, end - position, text);
        line = buffer;
        outcome = Expansion::kExpanded;
    }
    return outcome;
}

}  // namespace kav::assembler
