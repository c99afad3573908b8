// SPDX-License-Identifier: GPL-3.0-or-later
// One statement: label, operation, operands.
#include "assembler/statement.h"

#include "assembler/directives.h"
#include "assembler/instruction.h"
#include "assembler/lines.h"
#include "assembler/suggestion.h"
#include "assembler/text.h"

namespace kav::assembler {

namespace {

constexpr std::size_t kLongestLabel = 32;

/// Takes the label off the front of a statement. A name in column 1 is one, whatever it is; an indented one
/// is a label when a colon follows it at once.
std::string_view takeLabel(const Pass& pass, std::string_view& text) {
    const std::size_t begin = pass.characters.skipBlanks(text, 0);
    if (begin >= text.size() || !pass.characters.isNameStart(text[begin])) return {};
    const std::size_t end = pass.characters.endOfName(text, begin);
    const bool colon = end < text.size() && text[end] == ':';
    const bool indentedLabel = colon && !pass.options.strict;
    if (begin > 0 && !indentedLabel) return {};
    const std::string_view label = text.substr(begin, end - begin);
    text.remove_prefix(colon ? end + 1 : end);
    return label;
}

/// Takes a `+` or `-` that stands alone in column 1: a label without a name.
bool takeAnonymousLabel(Pass& pass, std::string_view& text) {
    if (pass.options.strict || (text.front() != '+' && text.front() != '-')) return false;
    const bool alone = text.size() == 1 || pass.characters.isBlank(text[1]) || text[1] == ':';
    if (!alone) return false;
    AnonymousLabels& labels = pass.knowledge.anonymous;
    (text.front() == '+' ? labels.forward : labels.backward).push_back(pass.location);
    text.remove_prefix(text.size() > 1 && text[1] == ':' ? 2 : 1);
    return true;
}

/// Takes the operation off the front: a name, perhaps with a period, or a sign.
std::string_view takeOperation(const Pass& pass, std::string_view& text) {
    std::size_t end = 1;
    const char first = text.front();
    if (first == '.' || pass.characters.isNameStart(first)) {
        end = pass.characters.endOfName(text, 1);
    } else if (first == '$' || first == '*') {
        const std::size_t sign = pass.characters.skipBlanks(text, 1);
        if (sign < text.size() && text[sign] == '=') end = sign + 1;
    }
    const std::string_view operation = text.substr(0, end);
    text.remove_prefix(end);
    return operation;
}

void callMacro(Pass& pass, const Macro& macro, std::string_view operands) {
    const Macro called = macro;  // its own lines may define another of its name
    std::vector<std::string> arguments;
    std::size_t end = 0;
    const bool enclosed = !operands.empty() && operands.front() == '(' &&
                          readArguments(operands, end, arguments) && end == operands.size();
    if (!enclosed) {
        arguments.clear();
        ListReader reader(operands);
        for (std::string_view part; reader.next(part);)
            arguments.emplace_back(part);
    }
    if (arguments.size() == 1 && arguments.front().empty()) arguments.clear();
    if (arguments.size() != called.parameters.size()) {
        pass.error("Unrecognized argument: the macro " + shown(called.name) + " takes " +
                   std::to_string(called.parameters.size()) + " arguments, not " +
                   std::to_string(arguments.size()));
        return;
    }
    readMacroLines(pass, called, arguments);
}

/// Why an operation is none: what it may have been meant to be, and the likely slips.
std::string hintAbout(Pass& pass, const Statement& statement) {
    if (const Macro* macro = pass.macros.findForUse(statement.operation, true)) {
        return ", the macro " + shown(macro->name) + " is called with parentheses";
    }
    if (!formsOf(statement.label).empty()) {
        return ", " + shown(statement.label) +
               " in column 1 is taken for a label: put a blank in front of it";
    }
    if (!pass.options.wantSuggestions) return {};
    NearestWord nearest(statement.operation);
    considerDirectives(nearest, pass.options.strict);
    for (const std::string_view name : mnemonics())
        nearest.consider(name);
    for (const auto& [name, macros] : pass.macros.all()) {
        for (const Macro& macro : macros)
            nearest.consider(macro.name);
    }
    return didYouMean(nearest.best());
}

void reportUnknown(Pass& pass, const Statement& statement) {
    const char first = statement.operation.front();
    if (first == '.') {
        NearestWord nearest(statement.operation);
        if (pass.options.wantSuggestions) considerDirectives(nearest, true);
        pass.error("Unrecognized directive: " + shown(statement.operation) + didYouMean(nearest.best()));
    } else if (pass.characters.isNameStart(first)) {
        pass.error("Unrecognized instruction: " + shownName(statement.operation) +
                   hintAbout(pass, statement));
    } else {
        pass.error(
            "Unknown token: " + shown(std::string(statement.operation) + std::string(statement.operands)) +
            " (an instruction or a directive was expected)");
    }
}

void defineAddress(Pass& pass, std::string_view label) {
    if (label.empty()) return;
    if (pass.options.strict && label.size() > kLongestLabel) {
        pass.error("Unknown token: the label " + shownName(label) + " has more than 32 characters");
    }
    pass.defineLabel(label, pass.location, LabelKind::kAddress);
}

void assembleOperation(Pass& pass, const Statement& statement) {
    if (!pass.addedInstructions.empty()) {
        const AddedMatch match = pass.addedInstructions.find(statement.operation, statement.operands);
        if (match.instruction != nullptr) return assembleAdded(pass, match);
    }
    const auto forms = formsOf(statement.operation);
    if (!forms.empty()) return assembleInstruction(pass, statement.operation, statement.operands, forms);
    const Macro* macro = pass.macros.findForUse(statement.operation, false);
    if (macro != nullptr && macro->hasLines) return callMacro(pass, *macro, statement.operands);
    if (pass.addedInstructions.knows(statement.operation)) {
        pass.error("Unrecognized argument: " + shownOrNone(statement.operands) + " for " +
                   shown(statement.operation));
        return;
    }
    reportUnknown(pass, statement);
}

/// `nolist` without its period, alone on a line, stands at the top of many programs whose `.list` is glued
/// to an #include and so never seen. To obey it would hide the whole program from the listing.
bool isBareNolist(const Pass& pass, std::string_view text) {
    return !pass.options.strict && equalIgnoringCase(trimmed(text), "nolist");
}

}  // namespace

void assembleStatement(Pass& pass, std::string_view text) {
    if (isBareNolist(pass, text)) return;
    pass.statementStart = pass.location;
    Statement statement;
    if (!takeAnonymousLabel(pass, text)) statement.label = takeLabel(pass, text);
    text = trimmed(text);
    if (text.empty()) {
        if (!formsOf(statement.label).empty()) {
            pass.warning(shown(statement.label) +
                         " in column 1 is a label; an instruction needs a blank in front of it");
        }
        return defineAddress(pass, statement.label);
    }
    statement.operation = takeOperation(pass, text);
    statement.operands = trimmed(text);

    const Directive* directive = directiveCalled(statement.operation, statement, pass.options.strict);
    if (directive == nullptr || !directive->definesLabel) defineAddress(pass, statement.label);
    if (directive != nullptr) {
        directive->run(pass, statement);
    } else {
        assembleOperation(pass, statement);
    }
}

}  // namespace kav::assembler
