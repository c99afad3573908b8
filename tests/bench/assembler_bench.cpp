// SPDX-License-Identifier: GPL-3.0-or-later
// The assembler beside two others: one program of 20,000 lines and 64 KB, one of two lines, and how its own
// time grows with the length of the source.
#include "stopwatch.h"
#include "support/temporary_folder.h"
#include "table.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr int kRounds = 15;

/// A program in the words that all three assemblers share: instructions, data, labels, equates, comments.
std::string program(int lines) {
    constexpr const char* kInstructions[] = {"ld a,(ix+5)",    "ld hl,lab%d",   "call lab%d", "ld bc,1234h",
                                             "ld (4660),hl",   "jp nz,lab%d",   "ld a,99",    "bit 3,(hl)",
                                             "ld de,lab%d+12", "ld (ix+3),200", "ex de,hl",   "ld sp,hl"};
    std::string text = "\torg 0\n";
    char line[120];
    for (int i = 1; i < lines; ++i) {
        if (i % 10 == 0) {
            std::snprintf(line, sizeof line, "lab%d:\t; somewhere to come back to\n", i / 10);
        } else if (i % 10 == 5) {
            std::snprintf(line, sizeof line, "; what the next few instructions are there for\n");
        } else if (i % 50 == 1) {
            std::snprintf(line, sizeof line, "con%d:\tequ %d\n", i, i % 250);
        } else if (i % 7 == 3) {
            std::snprintf(line, sizeof line, "\tdb %d,%d,0%02Xh,\"some texts\"\n", i % 256, i * 7 % 256,
                          i % 256);
        } else {
            char instruction[60];
            const char* form = kInstructions[i * 31 % static_cast<int>(std::size(kInstructions))];
            const std::string pattern = form;
            const std::size_t hole = pattern.find("%d");
            const int label = i * 7919 % (lines / 10 - 1) + 1;
            std::snprintf(
                instruction, sizeof instruction, "%s",
                hole == std::string::npos
                    ? form
                    : (pattern.substr(0, hole) + std::to_string(label) + pattern.substr(hole + 2)).c_str());
            std::snprintf(line, sizeof line, "\t%s%s\n", instruction, i % 3 == 0 ? "\t; a word on it" : "");
        }
        text += line;
    }
    return text;
}

/// A long source for this assembler alone, with macros; it starts over before the memory is full.
std::string longProgram(int lines) {
    std::string text = "#define put(x) .db x,x+1\n#define EQU .equ\nlabel0:\n";
    for (int i = 3; i < lines; ++i) {
        const std::string number = std::to_string(i);
        switch (i % 8) {
            case 0:
                text += "label" + number + ":\n";
                break;
            case 1:
                text += "; a comment of the usual length, number " + number + "\n";
                break;
            case 2:
                text += "CONSTANT_" + number + " EQU " + std::to_string(i % 65536) + "\n";
                break;
            case 3:
                text += "\tput(" + std::to_string(i % 200) + ")\n";
                break;
            case 4:
                text += "\tld hl,label" + std::to_string(i - 4) + "\n";
                break;
            case 5:
                text += i % 4096 == 5 ? "\t.org 0\n" : "\tld a,(ix+5)\t; comment\n";
                break;
            case 6:
                text += "\tcall label" + std::to_string(i + 2 < lines ? i + 2 : i - 6) + "\n";
                break;
            default:
                text += "\n";
                break;
        }
    }
    return text;
}

/// The shortest time that the command takes.
double secondsOf(const std::string& command, int rounds = kRounds) {
    return kav::bench::leastSecondsOf(rounds, [&] {
        if (std::system((command + " >/dev/null 2>&1").c_str()) != 0) std::abort();
    });
}

void compare(const std::string& folder, const std::string& what, const std::string& source) {
    std::ofstream(folder + "/a.z80", std::ios::binary) << source;
    const std::string in = " '" + folder + "/a.z80' ";
    const std::string out = " '" + folder + "/a.bin' ";
    const double ours = secondsOf(std::string(KAV_ASM) + " -t bin -o" + out + in);
    kav::bench::printRow("assembling " + what, ours, secondsOf("pasmo" + in + out), "pasmo");
    kav::bench::printRow("assembling " + what, ours, secondsOf("z80asm" + in + "-o" + out), "z80asm");
}

double secondsForLines(const std::string& folder, int lines) {
    std::ofstream(folder + "/long.z80", std::ios::binary) << longProgram(lines);
    constexpr int kFewRounds = 3;
    return secondsOf(std::string(KAV_ASM) + " -t bin -o '" + folder + "/a.bin' '" + folder + "/long.z80'",
                     kFewRounds);
}

}  // namespace

int main() {
    const kav::test::TemporaryFolder folder;
    const std::string path = folder.path().string();
    compare(path, "20,000 lines, 64 KB", program(20000));
    compare(path, "2 lines", "\tnop\n\tret\n");
    const double tenth = secondsForLines(path, 100'000);
    kav::bench::printRow("assembling 1,000,000 lines with macros", secondsForLines(path, 1'000'000),
                         10 * tenth, "kav-asm, ten times 100,000 lines");
    return 0;
}
