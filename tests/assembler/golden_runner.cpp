// SPDX-License-Identifier: GPL-3.0-or-later
// Assembles golden sources and compares what comes out with the files beside each: `.bin` for the bytes,
// `.err` for the errors ("line: message"), `.lst` for the listing. Sources called strict-... are assembled
// without extensions.
#include "assembler/assembler.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;
using kav::assembler::Message;
using kav::assembler::Result;

std::string contentOf(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string errorsOf(const Result& result) {
    std::string text;
    for (const Message& message : result.messages) {
        if (message.severity != kav::assembler::Severity::kError) continue;
        text += std::to_string(message.line) + ": " + message.text + "\n";
    }
    return text;
}

std::string hexadecimal(const std::string& bytes) {
    std::string text;
    char buffer[4];
    for (const char byte : bytes) {
        std::snprintf(buffer, sizeof buffer, "%02X ",
                      static_cast<unsigned>(static_cast<unsigned char>(byte)));
        text += buffer;
    }
    return text + "\n";
}

/// True when `actual` is what the file holds; there must be such a file when `needed`.
bool matches(const fs::path& expectation, const std::string& actual, bool needed, bool binary) {
    if (!fs::exists(expectation)) {
        if (needed) std::cout << expectation.filename().string() << " is missing; it would hold\n" << actual;
        return !needed;
    }
    const std::string expected = contentOf(expectation);
    if (expected == actual) return true;
    std::cout << expectation.filename().string() << " expects\n"
              << (binary ? hexadecimal(expected) : expected) << "but there is\n"
              << (binary ? hexadecimal(actual) : actual);
    return false;
}

bool isAsExpected(const fs::path& source) {
    kav::assembler::DiskSourceFiles files({});
    kav::assembler::Options options;
    options.wantListing = true;
    options.strict = source.filename().string().starts_with("strict-");
    const Result result = kav::assembler::assemble(files, source.string(), options);

    const auto beside = [&](const char* extension) { return fs::path(source).replace_extension(extension); };
    const bool isListingPair = fs::exists(beside(".lst"));
    bool good = matches(beside(".lst"), result.listing, false, false);
    const bool errorsExpected = fs::exists(beside(".err"));
    const bool bytesNeeded = !errorsExpected && !isListingPair;
    if (result.ok && !errorsExpected) {
        const std::string bytes(result.bytes.begin(), result.bytes.end());
        good = matches(beside(".bin"), bytes, bytesNeeded, true) && good;
    } else if (errorsExpected || !isListingPair) {
        good = matches(beside(".err"), errorsOf(result), true, false) && good;
    }
    return good;
}

}  // namespace

int main(int argc, char** argv) {
    bool good = argc > 1;
    for (int i = 1; i < argc; ++i) {
        if (isAsExpected(argv[i])) continue;
        std::cout << argv[i] << " is not assembled as expected\n";
        good = false;
    }
    return good ? 0 : 1;
}
