// SPDX-License-Identifier: GPL-3.0-or-later
// One run of kav-asm: assembles, writes what was asked for, reports.
#include "assembler/run.h"

#include "assembler/assembler.h"
#include "program_file/program_file.h"
#include "runtime/failure.h"
#include "runtime/files.h"

#include <algorithm>
#include <ostream>

namespace kav::assembler {

namespace {

constexpr std::size_t kPastExecutable = 0xC000;  // the TI-83 Plus runs no program code from here on

constexpr std::string_view kVersion = "kav-asm 1.8.0\n";

struct TargetFacts {
    std::string_view extension;
    std::string_view define;
};

TargetFacts factsOf(Target target) {
    if (target == Target::kTi83Plus) return {".8xp", "TI83P"};
    if (target == Target::kTi83) return {".83p", "TI83"};
    return {".bin", ""};
}

Options optionsOf(const CommandLine& line) {
    Options options;
    options.defines = line.defines;
    options.strict = line.strict;
    options.wantListing = !line.listing.empty();
    const std::string_view define = factsOf(line.target).define;
    if (!define.empty()) options.defines.insert(options.defines.begin(), {std::string(define), "1"});
    return options;
}

/// The file's name without its folder and extension.
std::string stemOf(const std::string& path) {
    return pathOf(path).stem().string();
}

std::string outputOf(const CommandLine& line) {
    if (!line.output.empty()) return line.output;
    return pathOf(line.source).replace_extension(factsOf(line.target).extension).string();
}

void report(const Result& result, std::ostream& output, std::ostream& errors) {
    for (const Message& message : result.messages) {
        if (message.severity == Severity::kNote) {
            output << message.text << '\n';
            continue;
        }
        const bool isError = message.severity == Severity::kError;
        errors << message.file << ':' << std::max(message.line, 0) << ": "
               << (isError ? "error: " : "warning: ") << message.text << '\n';
    }
}

std::string symbolText(const Result& result) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const Symbol& symbol : result.symbols) {
        const auto value = static_cast<std::uint32_t>(symbol.value);
        if (!symbol.module.empty()) text += symbol.module + ".";
        text += symbol.name + " .equ $";
        for (int shift = value > 0xFFFFU ? 28 : 12; shift >= 0; shift -= 4) {
            text += kDigits[(value >> static_cast<unsigned>(shift)) & 0xFU];
        }
        text += '\n';
    }
    return text;
}

void writeOutput(const CommandLine& line, const Result& result, std::ostream& errors) {
    const std::string path = outputOf(line);
    if (line.target == Target::kBinary) {
        writeFile(path, {reinterpret_cast<const char*>(result.bytes.data()), result.bytes.size()});
        return;
    }
    const bool plus = line.target == Target::kTi83Plus;
    const std::size_t end = result.origin + result.bytes.size();
    if (plus && end > kPastExecutable) {
        errors << path << ": warning: the program ends " << end - kPastExecutable
               << " bytes past $C000, where the TI-83 Plus runs no code\n";
    }
    writeProgram(path, stemOf(path), plus ? Calculator::Ti83Plus : Calculator::Ti83, result.bytes);
}

}  // namespace

ExitCode run(const CommandLine& line, const std::string& programFolder, std::ostream& output,
             std::ostream& errors) try {
    if (line.help || line.version) {
        output << (line.help ? helpText() : kVersion);
        return kSuccess;
    }
    std::vector<std::string> folders = line.includeFolders;
    folders.push_back((pathOf(programFolder) / "include").string());
    DiskSourceFiles sources(std::move(folders));
    const FoundSource main = sources.openMain(line.source);
    if (!main.file) {
        errors << "kav-asm: " << line.source << ": " << main.problem << '\n';
        return kFileTrouble;
    }
    const Result result = assemble(sources, line.source, optionsOf(line));
    report(result, output, errors);
    if (!line.listing.empty()) writeFile(line.listing, result.listing);
    if (!result.ok) return kSourceErrors;
    if (!line.symbols.empty()) writeFile(line.symbols, symbolText(result));
    writeOutput(line, result, errors);
    return kSuccess;
} catch (const std::runtime_error& failure) {
    errors << "kav-asm: " << failure.what() << '\n';
    return kFileTrouble;
}

}  // namespace kav::assembler
