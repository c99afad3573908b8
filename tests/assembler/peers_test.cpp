// SPDX-License-Identifier: GPL-3.0-or-later
// Every instruction form against other assemblers, and back through a disassembler. They are witnesses: a
// form that one does not know is left to the others, and where one is not installed its test is skipped.
#include "assembler/assembler.h"
#include "assembler/instruction_forms.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sstream>

namespace kav::assembler {

namespace {

using Texts = std::vector<std::string>;
using Bytes = std::vector<std::uint8_t>;

/// Another assembler. In its command, IN and OUT stand for files.
struct Peer {
    std::string program;
    std::string command;
    std::string sll;            ///< its name for the undocumented shift
    std::string errorLineMark;  ///< stands in front of the line number of an error
};

const Peer kZ80asm{"z80asm", "z80asm IN -o OUT", "sli", "in.z80:"};
const Peer kPasmo{"pasmo", "pasmo IN OUT", "sll", "on line "};
const Peer kGnu{"z80-unknown-coff-as",
                "z80-unknown-coff-as -march=z80+full IN -o OUT.o && "
                "z80-unknown-coff-objcopy -O binary OUT.o OUT",
                "sli", "in.z80:"};

std::string contentOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

Bytes bytesOf(const std::string& content) {
    return {content.begin(), content.end()};
}

bool installed(const std::string& program) {
    return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

std::string sourceOf(const Texts& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += "\t" + line + "\n";
    return text;
}

Bytes ourBytes(const Texts& lines) {
    MemorySourceFiles files;
    files.add("in.z80", sourceOf(lines));
    const Result result = assemble(files, "in.z80");
    for (const Message& message : result.messages) {
        ADD_FAILURE() << lines[static_cast<std::size_t>(message.line - 1)] << ": " << message.text;
    }
    return result.bytes;
}

/// Runs one peer on some lines.
class PeerRun {
  public:
    explicit PeerRun(const Peer& peer) : peer_(peer) {}

    /// What the peer makes of the lines that it knows; the others are removed from `lines`.
    Bytes bytesOfKnown(Texts& lines) {
        constexpr int kMostRounds = 400;
        for (int round = 0; round < kMostRounds; ++round) {
            if (assembles(lines)) return bytesOf(contentOf(folder_.file("out")));
            const std::set<std::size_t> unknown = errorLines();
            if (unknown.empty()) break;
            for (auto line = unknown.rbegin(); line != unknown.rend(); ++line)
                lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(*line - 1));
        }
        ADD_FAILURE() << peer_.program << " fails: " << contentOf(folder_.file("log"));
        return {};
    }

  private:
    bool assembles(const Texts& lines) {
        std::string source = sourceOf(lines);
        for (std::size_t at = 0; (at = source.find("\tsll", at)) != std::string::npos; at += 4) {
            source.replace(at + 1, 3, peer_.sll);
        }
        std::ofstream(folder_.file("in.z80"), std::ios::binary) << source;
        std::string command = peer_.command;
        for (std::size_t at = 0; (at = command.find("OUT")) != std::string::npos;) {
            command.replace(at, 3, "out");
        }
        command.replace(command.find("IN"), 2, "in.z80");
        command = "cd '" + folder_.path().string() + "' && (" + command + ") >log 2>&1";
        return std::system(command.c_str()) == 0;
    }

    [[nodiscard]] std::set<std::size_t> errorLines() const {
        std::set<std::size_t> numbers;
        std::istringstream log(contentOf(folder_.file("log")));
        for (std::string line; std::getline(log, line);) {
            const std::size_t mark = line.find(peer_.errorLineMark);
            if (mark == std::string::npos) continue;
            const int number = std::atoi(line.c_str() + mark + peer_.errorLineMark.size());
            if (number > 0) numbers.insert(static_cast<std::size_t>(number));
        }
        return numbers;
    }

    const Peer& peer_;
    test::TemporaryFolder folder_;
};

/// The lines that hold none of the given texts.
Texts without(Texts lines, const Texts& unwanted) {
    const auto isUnwanted = [&](const std::string& line) {
        return std::any_of(unwanted.begin(), unwanted.end(),
                           [&](const std::string& text) { return line.find(text) != std::string::npos; });
    };
    lines.erase(std::remove_if(lines.begin(), lines.end(), isUnwanted), lines.end());
    return lines;
}

/// Compares with the peer; at most `mostUnknown` of the forms may be unknown to it.
void compare(const Peer& peer, Texts lines, std::size_t mostUnknown) {
    if (!installed(peer.program)) GTEST_SKIP() << peer.program << " is not installed";
    const std::size_t all = lines.size();
    PeerRun run(peer);
    const Bytes theirs = run.bytesOfKnown(lines);
    EXPECT_LE(all - lines.size(), mostUnknown) << peer.program << " knows too little to be a witness";
    const Bytes ours = ourBytes(lines);
    if (ours == theirs) return;
    // One by one, to name what differs.
    for (const std::string& line : lines) {
        Texts one{line};
        const Bytes theirOne = run.bytesOfKnown(one);
        if (one.empty()) continue;
        EXPECT_EQ(ourBytes(one), theirOne) << line << " differs from " << peer.program;
    }
}

/// The disassembler writes "rlc (ix+1) & ld b,(ix+1)" for what is "rlc (ix+1),b" here.
std::string inOurWords(const std::string& disassembly) {
    constexpr std::string_view kAndLoad = " & ld ";
    std::string text;
    std::istringstream lines(disassembly);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t load = line.find(kAndLoad);
        if (load != std::string::npos) line = line.substr(0, load) + "," + line[load + kAndLoad.size()];
        text += line + "\n";
    }
    return text;
}

}  // namespace

TEST(DocumentedInstructions, HaveTheBytesThatZ80asmGives) {
    compare(kZ80asm, test::documentedForms(), 0);
}
TEST(DocumentedInstructions, HaveTheBytesThatPasmoGives) {
    compare(kPasmo, test::documentedForms(), 0);
}
TEST(DocumentedInstructions, HaveTheBytesThatTheGnuAssemblerGives) {
    compare(kGnu, test::documentedForms(), 0);
}

TEST(UndocumentedInstructions, HaveTheBytesThatZ80asmGives) {
    // It takes the halves of the index registers for labels and passes over a register behind (ix+d).
    const Texts known = without(test::undocumentedForms(), {"ixh", "ixl", "iyh", "iyl", "),"});
    compare(kZ80asm, known, 0);
}
TEST(UndocumentedInstructions, HaveTheBytesThatPasmoGives) {
    // It knows no register behind (ix+d), and `in f,(c)` not at all.
    compare(kPasmo, without(test::undocumentedForms(), {"),"}), 1);
}
TEST(UndocumentedInstructions, HaveTheBytesThatTheGnuAssemblerGives) {
    compare(kGnu, test::undocumentedForms(), 0);
}

TEST(Instructions, AssembleToTheSameBytesWhenDisassembled) {
    if (!installed("z80dasm")) GTEST_SKIP() << "z80dasm is not installed";
    Texts lines = test::documentedForms();
    const Texts others = test::undocumentedForms();
    lines.insert(lines.end(), others.begin(), others.end());
    const Bytes bytes = ourBytes(lines);
    const test::TemporaryFolder folder;
    std::ofstream(folder.file("code"), std::ios::binary) << std::string(bytes.begin(), bytes.end());
    const std::string command = "cd '" + folder.path().string() + "' && z80dasm -u -g 0 code >back.z80 2>log";
    ASSERT_EQ(std::system(command.c_str()), 0) << contentOf(folder.file("log"));
    MemorySourceFiles files;
    files.add("back.z80",
              "#define defb .db\n#define sli sll\n" + inOurWords(contentOf(folder.file("back.z80"))));
    const Result result = assemble(files, "back.z80");
    for (const Message& message : result.messages)
        ADD_FAILURE() << message.line << ": " << message.text;
    EXPECT_EQ(result.bytes, bytes);
}

}  // namespace kav::assembler
