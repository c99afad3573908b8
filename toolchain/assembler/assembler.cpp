// SPDX-License-Identifier: GPL-3.0-or-later
// The assembler: source in, bytes, messages, labels and a listing out.
#include "assembler/assembler.h"

#include "assembler/pass.h"

#include <algorithm>
#include <memory>

namespace kav::assembler {

namespace {

constexpr int kMostPasses = 12;

std::vector<Symbol> symbolsOf(const Pass& pass) {
    std::vector<Symbol> symbols;
    for (const Label& label : pass.knowledge.symbols.labels()) {
        if (!label.defined) continue;
        symbols.push_back({std::string(label.name), label.scope == 0 ? "" : pass.moduleNames[label.scope - 1],
                           label.value, label.kind == LabelKind::kAddress, *label.place.file,
                           label.place.line});
    }
    return symbols;
}

std::string parametersOf(const Macro& macro) {
    if (!macro.takesArguments) return {};
    std::string list;
    for (const std::string& parameter : macro.parameters)
        list += (list.empty() ? "" : ",") + parameter;
    return "(" + list + ")";
}

std::vector<NamedMacro> macrosOf(const Pass& pass) {
    std::vector<NamedMacro> named;
    for (const auto& [key, macros] : pass.macros.all()) {
        for (const Macro& macro : macros) {
            const bool placed = macro.place.file != nullptr;
            named.push_back({macro.name, parametersOf(macro), macro.body,
                             placed ? *macro.place.file : std::string(), macro.place.line});
        }
    }
    return named;
}

Result resultOf(const Pass& pass) {
    Result result;
    result.messages = pass.diagnostics.sorted();
    result.ok = pass.diagnostics.errorCount() == 0;
    result.bytes = pass.image.block();
    result.origin = pass.image.origin();
    result.symbols = symbolsOf(pass);
    if (pass.options.wantListing) result.listing = writeListing(pass.listed, pass.image, result.messages);
    if (pass.options.wantOutline) {
        result.statements = pass.outline;
        result.macros = macrosOf(pass);
        result.addedMnemonics = pass.addedInstructions.mnemonics();
    }
    return result;
}

enum class Outcome { kSettled, kUnsettled, kAbandoned };

Outcome runPass(Pass& pass, const std::string& mainFile) {
    try {
        return pass.run(mainFile) ? Outcome::kSettled : Outcome::kUnsettled;
    } catch (const PassAbandoned&) {
        return Outcome::kAbandoned;
    }
}

}  // namespace

Result assemble(SourceFiles& sources, const std::string& mainFile, const Options& options) {
    Knowledge knowledge;
    for (int number = 1;; ++number) {
        const bool last = number == kMostPasses;
        const Pass::Turn turn = number == 1 ? Pass::Turn::kFirst
                                : last      ? Pass::Turn::kLast
                                            : Pass::Turn::kLater;
        Pass pass(sources, options, knowledge, turn);
        const Outcome outcome = runPass(pass, mainFile);
        if (outcome == Outcome::kUnsettled && !last) continue;
        Result result = resultOf(pass);
        result.abandoned = outcome == Outcome::kAbandoned;
        return result;
    }
}

}  // namespace kav::assembler
