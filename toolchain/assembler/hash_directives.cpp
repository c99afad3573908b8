// SPDX-License-Identifier: GPL-3.0-or-later
// The directives that begin with #: includes, macros and conditionals.
#include "assembler/hash_directives.h"

#include "assembler/lines.h"
#include "assembler/suggestion.h"
#include "assembler/text.h"
#include "assembler/words.h"

namespace kav::assembler {

namespace {

constexpr std::size_t kLongestMacro = 1U << 20;
constexpr std::size_t kDeepestConditional = 256;

/// The text in front of a comment.
std::string_view withoutComment(std::string_view text) {
    std::size_t position = 0;
    while (position < text.size() && text[position] != ';') {
        const bool quote = text[position] == '"' || text[position] == '\'';
        position = quote ? behindQuoted(text, position) : position + 1;
    }
    return trimmed(text.substr(0, position));
}

std::string_view firstName(const Pass& pass, std::string_view text) {
    if (text.empty() || !pass.characters.isNameStart(text.front())) return {};
    return text.substr(0, pass.characters.endOfName(text, 0));
}

std::string_view expectedName(Pass& pass, std::string_view text, std::string_view directive) {
    const std::string_view name = firstName(pass, text);
    if (name.empty()) {
        pass.error("Invalid token where value expected: " + shown(text) + " (a name was expected behind " +
                   std::string(directive) + ")");
    }
    return name;
}

// Conditionals

bool isDefined(Pass& pass, std::string_view name) {
    if (pass.macros.find(name) != nullptr) return true;
    if (pass.options.strict) return false;
    const Label* label = pass.knowledge.symbols.find(name, pass.scopeOf(name));
    return label != nullptr && label->defined;
}

void openConditional(Pass& pass, bool holds) {
    if (pass.conditionals.depth() >= kDeepestConditional) {
        pass.diagnostics.fatal(pass.where, "Imbalanced conditional: conditionals nest more than 256 deep");
    }
    pass.conditionals.open(holds, pass.where);
}

bool conditionHolds(Pass& pass, std::string_view expression) {
    std::string expanded;
    const std::string_view condition = withoutComment(expression);
    const bool replaced = pass.expander.expand(condition, 0, false, expanded) == Expansion::kExpanded;
    return pass.valueNow(replaced ? std::string_view(expanded) : condition).value_or(0) != 0;
}

void readIf(Pass& pass, std::string_view text) {
    openConditional(pass, !pass.conditionals.skipping() && conditionHolds(pass, text));
}

void readIfdefOrIfndef(Pass& pass, std::string_view text, bool wanted) {
    if (pass.conditionals.skipping()) return openConditional(pass, false);
    const std::string_view name = expectedName(pass, text, wanted ? "#ifdef" : "#ifndef");
    openConditional(pass, !name.empty() && isDefined(pass, name) == wanted);
}

void readIfdef(Pass& pass, std::string_view text) {
    readIfdefOrIfndef(pass, text, true);
}
void readIfndef(Pass& pass, std::string_view text) {
    readIfdefOrIfndef(pass, text, false);
}

void readElse(Pass& pass, std::string_view /*text*/) {
    if (pass.conditionals.turnToElse()) return;
    pass.error(pass.conditionals.depth() == 0 ? "Imbalanced conditional: #else without #if"
                                              : "Imbalanced conditional: a second #else");
}

void readElif(Pass& pass, std::string_view text) {
    const bool holds = pass.conditionals.undecided() && conditionHolds(pass, text);
    if (!pass.conditionals.turnToElif(holds)) pass.error("Imbalanced conditional: #elif without #if");
}

void readEndif(Pass& pass, std::string_view /*text*/) {
    if (!pass.conditionals.close()) pass.error("Imbalanced conditional: #endif without #if");
}

// Includes

std::string_view includedName(Pass& pass, std::string_view text) {
    if (text.empty()) return {};
    if (text.front() == '"' || text.front() == '<') {
        const std::size_t end = text.find(text.front() == '"' ? '"' : '>', 1);
        return end == std::string_view::npos ? std::string_view() : text.substr(1, end - 1);
    }
    if (pass.options.strict) return {};
    return text.substr(0, text.find_first_of(" \t;"));
}

void include(Pass& pass, std::string_view text, bool once) {
    const std::string_view name = includedName(pass, text);
    if (name.empty()) {
        pass.error("No terminating quote: a file name in quotes was expected, not " + shownOrNone(text));
        return;
    }
    const FoundSource found = pass.sources.openIncluded(name, *pass.file);
    if (!found.file) {
        pass.includeMissing = true;
        pass.error("Source file open error: " + shownName(name) + ", " + found.problem);
        return;
    }
    if (!pass.imported.insert(found.file->path).second && once) return;
    ++pass.includeDepth;
    readSource(pass, found.file);
    --pass.includeDepth;
}

void readInclude(Pass& pass, std::string_view text) {
    include(pass, text, false);
}
void readImport(Pass& pass, std::string_view text) {
    include(pass, text, true);
}

// Macros

/// Reads "(a,b,...)" at the front of `text` into the macro's parameters.
bool readParameters(Pass& pass, std::string_view& text, Macro& macro) {
    macro.takesArguments = true;
    std::size_t end = 0;
    if (!readArguments(text, end, macro.parameters)) {
        pass.error("Unknown token: a ) is missing behind the parameters of " + shown(macro.name));
        return false;
    }
    text.remove_prefix(end);
    if (macro.parameters.size() == 1 && macro.parameters.front().empty()) macro.parameters.clear();
    for (const std::string& parameter : macro.parameters) {
        if (!parameter.empty() && firstName(pass, parameter) == parameter) continue;
        pass.error("Invalid token where value expected: " + shownOrNone(parameter) +
                   " (a parameter's name was expected)");
        return false;
    }
    return true;
}

void readDefine(Pass& pass, std::string_view text) {
    const std::string_view name = expectedName(pass, text, "#define");
    if (name.empty()) return;
    Macro macro;
    macro.name = name;
    text.remove_prefix(name.size());
    if (!text.empty() && text.front() == '(' && !readParameters(pass, text, macro)) return;
    macro.body = withoutComment(text);
    macro.place = pass.place();
    pass.macros.define(std::move(macro));
}

void readDefcont(Pass& pass, std::string_view text) {
    if (pass.macros.extendLast(withoutComment(text))) return;
    pass.error("Unknown token: #defcont continues no #define, or one that is too long");
}

void readUndefine(Pass& pass, std::string_view text) {
    const std::string_view name = expectedName(pass, text, "#undef");
    if (!name.empty()) pass.macros.remove(name);
}

void readMacro(Pass& pass, std::string_view text) {
    const std::string_view name = expectedName(pass, text, "#macro");
    Macro macro;
    macro.name = name.empty() ? "?" : name;  // its lines are skipped even without a name
    macro.hasLines = true;
    macro.place = pass.place();
    text = trimmed(text.substr(name.size()));
    if (!text.empty() && text.front() == '(') readParameters(pass, text, macro);
    pass.macroBeingRead = std::move(macro);
}

void readEndmacro(Pass& pass, std::string_view /*text*/) {
    if (!pass.macroBeingRead) {
        pass.error("Imbalanced conditional: #endmacro without #macro");
        return;
    }
    pass.macros.define(std::move(*pass.macroBeingRead));
    pass.macroBeingRead.reset();
}

struct HashDirective {
    std::string_view name;
    void (*read)(Pass& pass, std::string_view text);
    bool conditional;  // obeyed even on lines that are left out
    bool extension;    // not part of the dialect itself
};

constexpr HashDirective kDirectives[] = {
    {"if", readIf, true, false},
    {"ifdef", readIfdef, true, false},
    {"ifndef", readIfndef, true, false},
    {"else", readElse, true, false},
    {"elif", readElif, true, true},
    {"endif", readEndif, true, false},
    {"include", readInclude, false, false},
    {"import", readImport, false, true},
    {"define", readDefine, false, false},
    {"defcont", readDefcont, false, false},
    {"undef", readUndefine, false, true},
    {"undefine", readUndefine, false, true},
    {"macro", readMacro, false, true},
    {"endmacro", readEndmacro, false, true},
};

void reportUnknown(Pass& pass, std::string_view word) {
    NearestWord nearest(word);
    for (const HashDirective& directive : kDirectives) {
        const bool known = !directive.extension || !pass.options.strict;
        if (known && pass.options.wantSuggestions) nearest.consider(directive.name);
    }
    const std::string best = nearest.best().empty() ? "" : "#" + nearest.best();
    pass.error("Unrecognized directive: #" + shown(word) + didYouMean(best));
}

}  // namespace

void readHashDirective(Pass& pass, std::string_view text) {
    text = trimmed(text.substr(1));
    const std::string_view word = firstName(pass, text);
    for (const HashDirective& directive : kDirectives) {
        if (!equalIgnoringCase(directive.name, word)) continue;
        if (directive.extension && pass.options.strict) break;
        if (pass.conditionals.skipping() && !directive.conditional) return;
        directive.read(pass, trimmed(text.substr(word.size())));
        return;
    }
    if (!pass.conditionals.skipping()) reportUnknown(pass, word);
}

std::vector<std::string_view> hashDirectiveNames() {
    std::vector<std::string_view> names;
    for (const HashDirective& directive : kDirectives)
        names.push_back(directive.name);
    return names;
}

bool endsMacro(std::string_view text) {
    const std::string_view word = trimmed(text.substr(1));
    return equalIgnoringCase(word.substr(0, kCharacters.endOfName(word, 0)), "endmacro");
}

void addMacroLine(Pass& pass, std::string_view line) {
    std::string& body = pass.macroBeingRead->body;
    if (body.size() + line.size() > kLongestMacro) {
        pass.diagnostics.fatal(pass.where, "Macro expansion too long: " + shown(pass.macroBeingRead->name) +
                                               " has more than 1 MB");
    }
    body.append(line);
    body += '\n';
}

}  // namespace kav::assembler
