// SPDX-License-Identifier: GPL-3.0-or-later
// Measures what rewrites whole texts beside the stream editor that Debian comes with, on the same texts.
#include "documents/find_replace.h"
#include "documents/optimizer.h"
#include "runtime/files.h"
#include "stopwatch.h"
#include "support/temporary_folder.h"
#include "table.h"
#include "tools/vcode.h"

#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace kav;
using bench::leastSecondsOf;

constexpr int kRounds = 5;
constexpr std::size_t kLargeText = 10'000'000;

std::string repeated(std::string_view text, std::size_t size) {
    std::string whole;
    while (whole.size() < size)
        whole += text;
    return whole.substr(0, size);
}

const std::string& largeSource() {
    static const std::string text = repeated(
        "label: ld a,0 ; a line of a usual length\r\n\tcp 0\r\n\tjr z,label\r\n\tld b,10\r\n", kLargeText);
    return text;
}

/// The stream editor on files, as it is used: it reads one and writes the other.
double streamEditor(const test::TemporaryFolder& folder, const std::string& text, const std::string& script) {
    writeFile(folder.file("in"), text);
    writeFile(folder.file("script"), script);
    const std::string command = "LC_ALL=C sed -f '" + folder.file("script") + "' '" + folder.file("in") +
                                "' >'" + folder.file("out") + "'";
    return leastSecondsOf(kRounds, [&] {
        if (std::system(command.c_str()) != 0) std::abort();
    });
}

/// Ours on files too.
template <typename Rewrite>
double onFiles(const test::TemporaryFolder& folder, const std::string& text, Rewrite rewrite) {
    writeFile(folder.file("in"), text);
    return leastSecondsOf(kRounds,
                          [&] { writeFile(folder.file("out"), rewrite(readFile(folder.file("in")))); });
}

void measureReplaceAll(const test::TemporaryFolder& folder) {
    const double peers = streamEditor(folder, largeSource(), "s/label/place/g\n");
    const auto replaced = [](Comparison comparison) {
        return [comparison](const std::string& text) {
            return replaceAll(text, "label", "place", 1, comparison).text;
        };
    };
    bench::printRow("Replace All in 10 MB, 300,000 matches",
                    onFiles(folder, largeSource(), replaced(Comparison::exact)), peers,
                    "sed s/label/place/g");
    const double peersIgnoringCase = streamEditor(folder, largeSource(), "s/label/place/gI\n");
    bench::printRow("Replace All in 10 MB, whatever the case",
                    onFiles(folder, largeSource(), replaced(Comparison::text)), peersIgnoringCase,
                    "sed s/label/place/gI");
}

void measureOptimizer(const test::TemporaryFolder& folder) {
    const double ours =
        onFiles(folder, largeSource(), [](const std::string& text) { return optimizedCode(text); });
    bench::printRow("optimizer on 10 MB", ours,
                    streamEditor(folder, largeSource(), "s/ld a,0/xor a/g\ns/cp 0/or a/g\n"),
                    "sed with the same two replacements");
}

void measureVCode(const test::TemporaryFolder& folder) {
    const std::string text =
        repeated("The quick brown fox jumps over the lazy dog. It is there. ", kVCodeLimit);
    std::string script;
    for (std::size_t i = 0; i < kVCodePairs.size(); ++i) {
        if (kVCodePairs[i].empty()) continue;
        std::string pair(kVCodePairs[i]);
        if (const std::size_t point = pair.find('.'); point != std::string::npos)
            pair.replace(point, 1, "\\.");
        if (pair == "\\..") pair = "\\.\\.";
        script += "s/" + pair + "/" + static_cast<char>(129 + i) + "/g\n";
    }
    const double ours = onFiles(folder, text, [](const std::string& all) {
        return vcodeConversion(all, LineStart::tabbed, [] { return false; }).value_or("");
    });
    bench::printRow("VCode of 79,999 characters", ours, streamEditor(folder, text, script),
                    "sed with a replacement for each pair");
}

}  // namespace

int main() {
    const test::TemporaryFolder folder;
    measureReplaceAll(folder);
    measureOptimizer(folder);
    measureVCode(folder);
}
