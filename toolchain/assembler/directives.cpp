// SPDX-License-Identifier: GPL-3.0-or-later
// The directives that begin with a period, or go without it.
#include "assembler/directives.h"

#include "assembler/text.h"
#include "assembler/word_key.h"
#include "assembler/words.h"

namespace kav::assembler {

namespace {

constexpr std::int32_t kDefaultFill = 255;

// Location and labels

void runOrg(Pass& pass, const Statement& statement) {
    const auto address = pass.valueNow(statement.operands);
    if (address) pass.moveTo(*address, statement.operands);
}

void runBlock(Pass& pass, const Statement& statement) {
    const auto count = pass.valueNow(statement.operands);
    if (count) pass.moveTo(std::int64_t{pass.location} + *count, statement.operands);
}

void giveValue(Pass& pass, const Statement& statement, LabelKind kind) {
    if (statement.label.empty()) {
        pass.error("Invalid token where value expected: a label was expected in front of " +
                   shown(statement.operation));
        return;
    }
    // A label whose value makes no sense is a label all the same: its uses are no further mistakes.
    const auto value = pass.valueNow(statement.operands);
    pass.defineLabel(statement.label, value.value_or(0), kind);
}

void runEqu(Pass& pass, const Statement& statement) {
    giveValue(pass, statement, LabelKind::kEquate);
}
void runSet(Pass& pass, const Statement& statement) {
    giveValue(pass, statement, LabelKind::kVariable);
}

void runModule(Pass& pass, const Statement& statement) {
    if (statement.operands.empty()) {
        pass.error("Invalid token where value expected: a module's name was expected");
        return;
    }
    pass.enterModule(statement.operands);
}

void runLocalLabelChar(Pass& pass, const Statement& statement) {
    const std::string_view given = statement.operands;
    const bool quoted = given.size() == 3 && given[0] == given[2] && (given[0] == '"' || given[0] == '\'');
    if (!quoted || pass.characters.isBlank(given[1])) {
        pass.error("Invalid token where value expected: " + shown(given) +
                   " (one character in quotes was expected)");
        return;
    }
    pass.world.localLabelMark = given[1];
    pass.characters.addNameStart(given[1]);
}

// Data

void emitString(Pass& pass, std::string_view quoted) {
    const std::size_t end = behindQuoted(quoted, 0);
    if (end != quoted.size()) {
        pass.error("Unknown token: " + shown(quoted.substr(end)) + " behind a string (a comma was expected)");
        return;
    }
    for (std::size_t position = 1; position + 1 < end;) {
        if (quoted[position] == '\\') {
            pass.emit(escapedCharacter(quoted, position));
        } else {
            pass.emit(static_cast<std::uint8_t>(quoted[position++]));
        }
    }
}

void emitData(Pass& pass, const Statement& statement, FieldKind kind) {
    ListReader reader(statement.operands);
    std::string_view item;
    if (!reader.next(item)) {
        pass.error("Invalid token where value expected: nothing follows " + shown(statement.operation));
        return;
    }
    do {
        const bool string = !item.empty() && item.front() == '"' && kind == FieldKind::kByte;
        if (string) {
            emitString(pass, item);
        } else {
            pass.emitField(kind, item);
        }
    } while (reader.next(item));
}

void runByte(Pass& pass, const Statement& statement) {
    emitData(pass, statement, FieldKind::kByte);
}

void runWord(Pass& pass, const Statement& statement) {
    emitData(pass, statement, pass.highByteFirst ? FieldKind::kWordHighFirst : FieldKind::kWord);
}

void runFill(Pass& pass, const Statement& statement) {
    ListReader reader(statement.operands);
    std::string_view countText;
    std::string_view byteText;
    reader.next(countText);
    const auto count = pass.valueNow(countText);
    const bool hasByte = reader.next(byteText);
    const auto byte = hasByte ? pass.valueNow(byteText) : std::optional(kDefaultFill);
    if (!count || !byte) return;
    const std::int32_t room = kAddressSpace - pass.location;
    if (*count < 0 || *count > room) {
        pass.error("Range of argument exceeded: .fill of " + std::to_string(*count) + " bytes (0 to " +
                   std::to_string(room) + " is possible at this address)");
        return;
    }
    if (*byte < -128 || *byte > 255) {
        pass.error("Unused data in MS byte of argument: " + shown(byteText) + " is " + std::to_string(*byte) +
                   " (-128 to 255 is possible)");
        return;
    }
    for (std::int32_t i = 0; i < *count; ++i)
        pass.emit(static_cast<std::uint8_t>(*byte & 0xFF));
}

void runChk(Pass& pass, const Statement& statement) {
    const auto from = pass.valueNow(statement.operands);
    if (!from) return;
    if (*from < 0 || *from > pass.location) {
        pass.error("Range of argument exceeded: .chk from the address " + std::to_string(*from) + " (0 to " +
                   std::to_string(pass.location) + " is possible)");
        return;
    }
    pass.emitChecksum(*from);
}

void runMsFirst(Pass& pass, const Statement& /*statement*/) {
    pass.highByteFirst = true;
}
void runLsFirst(Pass& pass, const Statement& /*statement*/) {
    pass.highByteFirst = false;
}

// The rest

void runEnd(Pass& pass, const Statement& /*statement*/) {
    pass.fileEnded = true;
}
void runList(Pass& pass, const Statement& /*statement*/) {
    pass.listing = true;
}
void runNolist(Pass& pass, const Statement& /*statement*/) {
    pass.listing = false;
}
void runNothing(Pass& /*pass*/, const Statement& /*statement*/) {}

void runEcho(Pass& pass, const Statement& statement) {
    ListReader reader(statement.operands);
    std::string text;
    for (std::string_view item; reader.next(item);) {
        if (item.size() >= 2 && item.front() == '"') {
            for (std::size_t i = 1; i + 1 < item.size();) {
                text += item[i] == '\\' ? static_cast<char>(escapedCharacter(item, i)) : item[i++];
            }
            continue;
        }
        const auto value = pass.valueNow(item);
        if (!value) return;
        text += std::to_string(*value);
    }
    pass.diagnostics.note(pass.where, text);
}

void runExport(Pass& pass, const Statement& statement) {
    ListReader reader(statement.operands);
    for (std::string_view name; reader.next(name);)
        pass.valueNow(name);
}

void runAddInstr(Pass& pass, const Statement& statement) {
    const std::string problem = pass.addedInstructions.add(statement.operands);
    if (!problem.empty()) pass.error(problem);
}

// clang-format off
constexpr Directive kDirectives[] = {
    {"org",    runOrg,   false}, {"block",  runBlock,  false}, {"$=",     runOrg,    false},
    {"*=",     runOrg,   false}, {"equ",    runEqu,    true},  {"=",      runEqu,    true},
    {"set",    runSet,   true},  {"module", runModule, false}, {"locallabelchar", runLocalLabelChar, false},
    {"db",     runByte,  false}, {"byte",   runByte,   false}, {"text",   runByte,   false},
    {"dw",     runWord,  false}, {"word",   runWord,   false}, {"fill",   runFill,   false},
    {"chk",    runChk,   false}, {"msfirst", runMsFirst, false}, {"lsfirst", runLsFirst, false},
    {"end",    runEnd,   false}, {"list",   runList,   false}, {"nolist", runNolist, false},
    {"echo",   runEcho,  false}, {"export", runExport, false}, {"addinstr", runAddInstr, false},
    // These concern paper and object files, which there are none of.
    {"sym",    runNothing, false}, {"avsym", runNothing, false}, {"title", runNothing, false},
    {"page",   runNothing, false}, {"nopage", runNothing, false}, {"eject", runNothing, false},
    {"codes",  runNothing, false}, {"nocodes", runNothing, false}, {"bseg", runNothing, false},
    {"cseg",   runNothing, false}, {"dseg", runNothing, false}, {"nseg",  runNothing, false},
    {"xseg",   runNothing, false},
};
// clang-format on

consteval WordIndex indexDirectives() {
    WordIndex index;
    for (std::size_t i = 0; i < std::size(kDirectives); ++i)
        index.add(wordKey(kDirectives[i].name), i);
    return index;
}

constexpr WordIndex kDirectiveIndex = indexDirectives();

/// Without its period, `set` is an instruction when it has the operands of one.
bool isInstructionSet(const Statement& statement) {
    return equalIgnoringCase(statement.operation, "set") &&
           (statement.label.empty() || statement.operands.find(',') != std::string_view::npos);
}

}  // namespace

const Directive* directiveCalled(std::string_view operation, const Statement& statement, bool strict) {
    const bool period = operation.front() == '.';
    const bool sign = operation.back() == '=';
    if (!period && !sign && (strict || isInstructionSet(statement))) return nullptr;
    if (sign && operation.size() > 1) operation = operation.front() == '$' ? "$=" : "*=";
    if (period) operation.remove_prefix(1);
    const std::size_t found = kDirectiveIndex.find(operation);
    return found == WordIndex::kNone ? nullptr : &kDirectives[found];
}

std::vector<std::string_view> directiveNames() {
    std::vector<std::string_view> names;
    for (const Directive& directive : kDirectives) {
        if (directive.name.back() != '=') names.push_back(directive.name);
    }
    return names;
}

void considerDirectives(NearestWord& nearest, bool withPeriod) {
    for (const std::string_view name : directiveNames())
        nearest.consider((withPeriod ? "." : "") + std::string(name));
}

}  // namespace kav::assembler
