// SPDX-License-Identifier: GPL-3.0-or-later
// Hands a source file to the assembler and its bytes to the program file.
#include "build_protocol/one_target.h"

#include "assembler/assembler.h"
#include "program_file/program_file.h"

#include <cstdio>
#include <exception>

namespace kav {

namespace {

/// The TI-83 Plus runs no code from here on.
constexpr std::size_t kTi83PlusCodeEnd = 0xC000;

assembler::Options optionsFor(Calculator calculator) {
    assembler::Options options;
    options.wantListing = true;
    options.defines.emplace_back(calculator == Calculator::Ti83 ? "TI83" : "TI83P", "");
    return options;
}

/// A warning when the program reaches into memory where its calculator does not run code.
void warnOfUnreachableCode(TargetBuild& built, std::size_t origin) {
    const std::size_t end = origin + built.size;
    if (built.calculator != Calculator::Ti83Plus || end <= kTi83PlusCodeEnd) return;
    char warning[128];
    std::snprintf(
        warning, sizeof warning,
        "warning: the program ends at $%zX; the TI-83 Plus runs no code from $C000 on, only data may "
        "stand there",
        end);
    built.notes.emplace_back(warning);
}

void takeMessages(TargetBuild& built, const assembler::Result& result) {
    for (const assembler::Message& message : result.messages) {
        if (message.severity == assembler::Severity::kError) {
            built.errors.push_back({message.line, message.text});
        } else {
            built.notes.push_back("line " + std::to_string(message.line) + ": " + message.text);
        }
    }
    if (!result.ok && built.errors.empty()) built.errors.push_back({1, "The source cannot be assembled"});
}

}  // namespace

TargetBuild buildTarget(const std::string& folder, const std::string& name, Calculator calculator) {
    TargetBuild built;
    built.calculator = calculator;
    try {
        assembler::DiskSourceFiles files({folder + "/include"});
        const assembler::Result result =
            assembler::assemble(files, folder + "/" + name + ".z80", optionsFor(calculator));
        built.listing = result.listing;
        built.size = result.bytes.size();
        takeMessages(built, result);
        if (!built.errors.empty()) return built;
        writeProgram(folder + "/" + name + programExtension(calculator), name, calculator, result.bytes);
        warnOfUnreachableCode(built, result.origin);
    } catch (const std::exception& error) {
        built.errors.push_back({1, error.what()});
    }
    return built;
}

}  // namespace kav
