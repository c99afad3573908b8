// SPDX-License-Identifier: GPL-3.0-or-later
// Holds the times of instructions against those that the emulated processor takes.
#include "assembler/timing.h"

#include "assembler/assembler.h"
#include "assembler/instruction_forms.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <z80ex/z80ex.h>

namespace kav::assembler {

namespace {

constexpr std::uint16_t kStart = 0x4000;
constexpr std::uint16_t kData = 0x8000;

std::vector<std::uint8_t> bytesOf(const std::string& instruction) {
    MemorySourceFiles files;
    files.add("main.z80", " .org 4000h\n " + instruction + "\n");
    return assemble(files, "main.z80").bytes;
}

/// A processor with nothing around it but memory.
class Processor {
  public:
    Processor()
        : cpu_(z80ex_create(readMemory, memory_.data(), writeMemory, memory_.data(), readPort, nullptr,
                            writePort, nullptr, readVector, nullptr),
               z80ex_destroy) {}

    /// The T-states that the instruction takes when all registers hold `pair` and the flags are `flags`.
    std::uint64_t timeOf(const std::vector<std::uint8_t>& instruction, std::uint8_t flags,
                         std::uint16_t pair) {
        memory_.fill(0);
        std::copy(instruction.begin(), instruction.end(), memory_.begin() + kStart);
        for (const Z80_REG_T reg : {regBC, regDE, regHL, regIX, regIY})
            z80ex_set_reg(cpu_.get(), reg, pair);
        z80ex_set_reg(cpu_.get(), regSP, kData);
        z80ex_set_reg(cpu_.get(), regAF, static_cast<Z80EX_WORD>(0xA500U | flags));
        z80ex_set_reg(cpu_.get(), regPC, kStart);
        int states = 0;
        do {
            states += z80ex_step(cpu_.get());
        } while (z80ex_last_op_type(cpu_.get()) != 0);  // that was a prefix
        return static_cast<std::uint64_t>(states);
    }

  private:
    static Z80EX_BYTE readMemory(Z80EX_CONTEXT* /*cpu*/, Z80EX_WORD address, int /*m1*/, void* memory) {
        return static_cast<const std::uint8_t*>(memory)[address];
    }
    static void writeMemory(Z80EX_CONTEXT* /*cpu*/, Z80EX_WORD address, Z80EX_BYTE value, void* memory) {
        static_cast<std::uint8_t*>(memory)[address] = value;
    }
    static Z80EX_BYTE readPort(Z80EX_CONTEXT* /*cpu*/, Z80EX_WORD /*port*/, void* /*user*/) { return 0; }
    static void writePort(Z80EX_CONTEXT* /*cpu*/, Z80EX_WORD /*port*/, Z80EX_BYTE /*value*/, void* /*user*/) {
    }
    static Z80EX_BYTE readVector(Z80EX_CONTEXT* /*cpu*/, void* /*user*/) { return 0xFF; }

    std::array<std::uint8_t, 65536> memory_{};
    std::unique_ptr<Z80EX_CONTEXT, void (*)(Z80EX_CONTEXT*)> cpu_;
};

/// All times that the instruction can take: flags all clear and all set decide conditions, a count of one or
/// two in bc and b decides whether an instruction repeats.
std::set<std::uint64_t> measured(const std::vector<std::uint8_t>& instruction) {
    constexpr std::array<std::uint8_t, 2> kFlags{0x00, 0xFF};
    constexpr std::array<std::uint16_t, 4> kPairs{0x0001, 0x0101, 0x0202, 0x8002};
    Processor processor;
    std::set<std::uint64_t> times;
    for (const std::uint8_t flags : kFlags) {
        for (const std::uint16_t pair : kPairs)
            times.insert(processor.timeOf(instruction, flags, pair));
    }
    return times;
}

void expectMeasuredTimes(const std::vector<std::string>& instructions) {
    for (const std::string& instruction : instructions) {
        const std::vector<std::uint8_t> bytes = bytesOf(instruction);
        ASSERT_FALSE(bytes.empty()) << instruction;
        const Time time = timeOf(bytes);
        EXPECT_EQ(measured(bytes), (std::set{time.longest, time.shortest})) << instruction;
    }
}

}  // namespace

TEST(Timing, OfEveryDocumentedInstructionIsThatOfTheEmulatedProcessor) {
    expectMeasuredTimes(test::documentedForms());
}

TEST(Timing, OfEveryUndocumentedInstructionIsThatOfTheEmulatedProcessor) {
    expectMeasuredTimes(test::undocumentedForms());
}

TEST(Timing, GivesBothTimesWhereAConditionDecides) {
    EXPECT_EQ(timeOf(bytesOf("jr nz,$")), (Time{12, 7}));
    EXPECT_EQ(timeOf(bytesOf("djnz $")), (Time{13, 8}));
    EXPECT_EQ(timeOf(bytesOf("call c,0")), (Time{17, 10}));
    EXPECT_EQ(timeOf(bytesOf("ret m")), (Time{11, 5}));
    EXPECT_EQ(timeOf(bytesOf("ldir")), (Time{21, 16}));
    EXPECT_EQ(timeOf(bytesOf("jp z,0")), (Time{10, 10}));
    EXPECT_EQ(timeOf(bytesOf("jr $")), (Time{12, 12}));
}

TEST(Timing, NeedsNothingBehindTheOpcode) {
    const std::array<std::uint8_t, 1> call{0xCD};
    EXPECT_EQ(timeOf(call), (Time{17, 17}));
    EXPECT_EQ(timeOf({}), Time{});
}

}  // namespace kav::assembler
