// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the assembler with arbitrary sources. The input holds up to three files, with a byte FF between
// them: the main source and the included files "a.inc" and "b.inc".
#include "assembler/assembler.h"
#include "expect.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using kav::assembler::MemorySourceFiles;
using kav::assembler::Message;
using kav::assembler::Result;

using kav::fuzz::expect;

/// What holds for every source, whatever it is.
void check(const Result& result) {
    for (const Message& message : result.messages) {
        const bool echo = message.severity == kav::assembler::Severity::kNote;  // of nothing, perhaps
        expect(!message.text.empty() || echo, "a message says something");
        expect(message.text.find_first_of("\r\n") == std::string::npos, "a message is one line");
    }
    expect(result.bytes.size() <= 0x10000U, "a program fits into the address space");
    expect(result.listing.empty() || result.listing.ends_with("\r\n"), "a listing ends its last line");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    std::string_view rest = input;
    MemorySourceFiles files;
    for (const char* name : {"main.z80", "a.inc", "b.inc"})
        files.add(name, std::string(kav::fuzz::takePart(rest)));
    kav::assembler::Options options;
    options.wantListing = true;
    options.strict = size % 16 == 0;
    check(kav::assembler::assemble(files, "main.z80", options));
    return 0;
}
