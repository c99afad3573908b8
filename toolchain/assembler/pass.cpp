// SPDX-License-Identifier: GPL-3.0-or-later
// One walk over the source: what is known while it lasts, and the verbs that its parts share.
#include "assembler/pass.h"

#include "assembler/lines.h"
#include "assembler/text.h"

#include <algorithm>
#include <array>
#include <span>

namespace kav::assembler {

namespace {

constexpr std::uint64_t kMostBytes = 16U << 20;  // written in one pass, over and over
constexpr std::size_t kMostFixups = 4U << 20;
constexpr std::string_view kFirstModule = "noname";  // where local labels live before any .module

}  // namespace

Pass::Pass(SourceFiles& sourceFiles, const Options& chosen, Knowledge& known, Turn whichTurn)
    : sources(sourceFiles),
      options(chosen),
      knowledge(known),
      turn(whichTurn),
      world{knowledge.symbols,
            knowledge.anonymous,
            characters,
            '_',
            chosen.strict,
            whichTurn == Turn::kFirst,
            whichTurn != Turn::kFirst,
            chosen.wantSuggestions},
      evaluator(world),
      diagnostics(std::max<std::size_t>(chosen.maxErrors, 1)),
      expander(macros),
      moduleNames{std::string(kFirstModule)} {}

bool Pass::run(const std::string& mainFile) {
    knowledge.symbols.beginPass();
    knowledge.anonymous.beginPass();
    for (const auto& [name, text] : options.defines)
        macros.define({name, {}, text, false, false, {}});
    where.file = where.mainFile = &mainFile;
    const FoundSource source = sources.openMain(mainFile);
    if (!source.file)
        diagnostics.fatal(where, "Source file open error: " + shown(mainFile) + ", " + source.problem);
    readSource(*this, source.file);
    if (anotherPassDue_) return false;
    storeLateFields();
    storeChecksums();
    return turn == Turn::kFirst || knowledge.symbols.unsettled() == nullptr;
}

void Pass::reportBadValue(const Location& about) {
    // Labels of a file that could not be read are not mistakes of their own.
    if (includeMissing && evaluator.error().starts_with("Label not found")) return;
    diagnostics.error(about, evaluator.error());
}

std::optional<std::int32_t> Pass::valueNow(std::string_view expression) {
    const Value value = evaluator.evaluate(expression, expressionPlace());
    if (value.known()) return value.number;
    if (value.state == Value::kBad) {
        reportBadValue(where);
        return std::nullopt;
    }
    if (world.strict) {
        error("Forward reference in equate: " + shown(expression) +
              " (labels that stand before are possible)");
        return std::nullopt;
    }
    anotherPassDue_ = true;
    return 0;
}

void Pass::defineLabel(std::string_view name, std::int32_t value, LabelKind kind) {
    SymbolTable& symbols = knowledge.symbols;
    const std::uint32_t scope = scopeOf(name);
    if (turn == Turn::kLast) reportUnsettled(name, scope, value, kind);
    if (symbols.define(name, scope, value, kind, place()) == Definition::kDone) return;
    const Label* known = symbols.find(name, scope);
    // Headers that are included together repeat each other's equates.
    const bool repeatsItself = !world.strict && kind == LabelKind::kEquate &&
                               known->kind == LabelKind::kEquate && known->value == value;
    if (!repeatsItself) error("Duplicate label: " + shownName(name));
}

void Pass::reportUnsettled(std::string_view name, std::uint32_t scope, std::int32_t value, LabelKind kind) {
    if (unsettledReported_ || kind == LabelKind::kVariable) return;
    const Label* known = knowledge.symbols.find(name, scope);
    if (known != nullptr && (known->defined || (known->definedPreviously && known->previousValue == value))) {
        return;
    }
    unsettledReported_ = true;  // the labels behind it follow from it
    error("Label value misaligned: " + shownName(name) + " has another value in each pass, now " +
          std::to_string(value) + ": it depends on itself");
}

void Pass::emit(std::uint8_t byte) {
    if (location >= kAddressSpace) {
        diagnostics.fatal(where, "Range of argument exceeded: the program runs past the address $FFFF");
    }
    if (++emitted_ > kMostBytes) {
        diagnostics.fatal(where, "Range of argument exceeded: the source writes more than 16 MB");
    }
    if (lineBytes++ == 0) lineAddress = location;
    image.put(location++, byte);
}

void Pass::emitField(FieldKind kind, std::string_view expression) {
    const std::int32_t address = location;
    for (std::int32_t i = 0; i < sizeOf(kind); ++i)
        emit(0);
    fillField(kind, address, expression);
}

void Pass::fillField(FieldKind kind, std::int32_t address, std::string_view expression) {
    const Value value = evaluator.evaluate(expression, expressionPlace());
    switch (value.state) {
        case Value::kKnown: {
            const std::string problem = storeField(image, kind, address, value.number, expression);
            if (!problem.empty()) error(problem);
            break;
        }
        case Value::kForward:
            // A variable may have another value by the end: then all must be read again.
            if (knowledge.symbols.hasVariables()) anotherPassDue_ = true;
            if (fixups_.size() >= kMostFixups)
                diagnostics.fatal(where, "Range of argument exceeded: too many values");
            fixups_.push_back({kind, address, kept(expression), expressionPlace(), where});
            break;
        case Value::kBad:
            reportBadValue(where);
            break;
    }
}

void Pass::moveTo(std::int64_t address, std::string_view expression) {
    if (address < 0 || address > kAddressSpace) {
        error("Range of argument exceeded: " + shown(expression) + " leads to the address " +
              std::to_string(address) + " (0 to 65535 is possible)");
        return;
    }
    location = static_cast<std::int32_t>(address);
}

void Pass::enterModule(std::string_view name) {
    const auto same = [&](const std::string& known) { return equalIgnoringCase(known, name); };
    const auto found = std::find_if(moduleNames.begin(), moduleNames.end(), same);
    module = static_cast<std::uint32_t>(found - moduleNames.begin()) + 1;
    if (found == moduleNames.end()) moduleNames.emplace_back(name);
}

void Pass::addTime(std::int32_t start) {
    constexpr std::int32_t kLongestInstruction = 4;
    if (!options.wantOutline) return;
    std::array<std::uint8_t, kLongestInstruction> bytes{};
    const std::int32_t count = std::min(location - start, kLongestInstruction);
    for (std::int32_t i = 0; i < count; ++i)
        bytes[static_cast<std::size_t>(i)] = image.at(start + i);
    statementTime += timeOf(std::span(bytes).first(static_cast<std::size_t>(count)));
}

std::string_view Pass::kept(std::string_view text) {
    return textIsTemporary ? std::string_view(keptTexts_.emplace_back(text)) : text;
}

void Pass::emitChecksum(std::int32_t from) {
    checksums_.push_back({from, location});
    emit(0);
}

void Pass::storeLateFields() {
    world.labelsMayFollow = false;
    for (const Fixup& fixup : fixups_) {
        const Value value = evaluator.evaluate(fixup.expression, fixup.place);
        if (!value.known()) {
            reportBadValue(fixup.where);
            continue;
        }
        const std::string problem =
            storeField(image, fixup.kind, fixup.address, value.number, fixup.expression);
        if (!problem.empty()) diagnostics.error(fixup.where, problem);
    }
}

void Pass::storeChecksums() {
    for (const Checksum& checksum : checksums_) {
        unsigned sum = 0;
        for (std::int32_t i = checksum.from; i < checksum.address; ++i)
            sum += image.at(i);
        image.put(checksum.address, static_cast<std::uint8_t>(sum & 0xFFU));
    }
}

}  // namespace kav::assembler
