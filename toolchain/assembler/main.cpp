// SPDX-License-Identifier: GPL-3.0-or-later
// kav-asm, the assembler as a command.
#include "assembler/command_line.h"
#include "assembler/run.h"
#include "build_protocol/build.h"

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace {

/// The folder that the running program lies in.
std::string programFolder(const char* calledAs) {
    std::error_code error;
    const std::filesystem::path itself = std::filesystem::read_symlink("/proc/self/exe", error);
    return (error ? std::filesystem::path(calledAs) : itself).parent_path().string();
}

}  // namespace

int main(int argc, char** argv) {
    using namespace kav::assembler;
    try {
        const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
        // The editor's build, whose name may be anything that its user typed, even an option.
        if (arguments.size() == 2 && arguments[0] == "--build") {
            return kav::runBuild(".", arguments[1], std::cout);
        }
        return run(readCommandLine(arguments), programFolder(argc > 0 ? argv[0] : ""), std::cout, std::cerr);
    } catch (const UsageError& error) {
        std::cerr << "kav-asm: " << error.what() << "\nkav-asm --help shows what is possible.\n";
        return kWrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "kav-asm: " << error.what() << '\n';
        return kFileTrouble;
    }
}
