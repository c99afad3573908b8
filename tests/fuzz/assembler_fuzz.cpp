// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the assembler with arbitrary sources. The input holds up to three files, with a byte FF between
// them: the main source and the included files "a.inc" and "b.inc".
#include "assembler/assembler.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using kav::assembler::MemorySourceFiles;
using kav::assembler::Message;
using kav::assembler::Result;

std::string_view takeFile(std::string_view& rest) {
    const std::size_t end = std::min(rest.find('\xFF'), rest.size());
    const std::string_view file = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return file;
}

/// What holds for every source, whatever it is.
void check(const Result& result) {
    for (const Message& message : result.messages) {
        const bool echo = message.severity == kav::assembler::Severity::kNote;  // of nothing, perhaps
        if ((message.text.empty() && !echo) || message.text.find_first_of("\r\n") != std::string::npos)
            std::abort();
    }
    if (result.bytes.size() > 0x10000U) std::abort();
    if (!result.listing.empty() && !result.listing.ends_with("\r\n")) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    std::string_view rest = input;
    MemorySourceFiles files;
    for (const char* name : {"main.z80", "a.inc", "b.inc"})
        files.add(name, std::string(takeFile(rest)));
    kav::assembler::Options options;
    options.wantListing = true;
    options.strict = size % 16 == 0;
    check(kav::assembler::assemble(files, "main.z80", options));
    return 0;
}
