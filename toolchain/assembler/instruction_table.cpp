// SPDX-License-Identifier: GPL-3.0-or-later
// The instructions of the Z80, documented and not, as a table.
#include "assembler/instruction_table.h"

#include "assembler/word_key.h"

namespace kav::assembler {

namespace {

// Operand classes as the rows below name them.
constexpr std::uint32_t A = kRegA;
constexpr std::uint32_t HALF = kRegHalf;
constexpr std::uint32_t R = kRegA | kRegC | kRegBde | kRegHl;
constexpr std::uint32_t R_NOT_HL = kRegA | kRegC | kRegBde;
constexpr std::uint32_t BC = kPairBc;
constexpr std::uint32_t DE = kPairDe;
constexpr std::uint32_t HL = kPairHl;
constexpr std::uint32_t SP = kPairSp;
constexpr std::uint32_t AF = kPairAf;
constexpr std::uint32_t IX = kPairIndex;
constexpr std::uint32_t AT_HL = kAtHl;
constexpr std::uint32_t AT_IX = kAtIndexed;
constexpr std::uint32_t AT_NN = kAtAddress;
constexpr std::uint32_t N = kValue;
constexpr std::uint32_t CC = kCondition;
constexpr std::uint32_t MEMORY = AT_HL | AT_IX;
constexpr std::uint32_t SOURCE = R | HALF | MEMORY;

constexpr Place none = Place::kNowhere;
constexpr Place low = Place::kBits0;
constexpr Place mid = Place::kBits3;
constexpr Place pair = Place::kPair;
constexpr Place cond = Place::kCondition;
constexpr Place byte = Place::kByte;
constexpr Place word = Place::kWord;
constexpr Place distance = Place::kRelative;
constexpr Place bitNumber = Place::kBit;

struct Row {
    std::string_view mnemonic;
    InstructionForm form;
};

// Rows of one mnemonic stand together. The first row that fits is taken.
// clang-format off
constexpr Row kRows[] = {
    // 8-bit and 16-bit loads
    {"ld",   {{A, kRegI},                      0xED, 0x57}},
    {"ld",   {{A, kRegR},                      0xED, 0x5F}},
    {"ld",   {{kRegI, A},                      0xED, 0x47}},
    {"ld",   {{kRegR, A},                      0xED, 0x4F}},
    {"ld",   {{R, R | MEMORY},                 0,    0x40, {mid, low}}},
    {"ld",   {{MEMORY, R},                     0,    0x40, {mid, low}}},
    {"ld",   {{R_NOT_HL | HALF, R_NOT_HL | HALF}, 0, 0x40, {mid, low}}},
    {"ld",   {{SOURCE, N},                     0,    0x06, {mid, byte}}},
    {"ld",   {{A, kAtBc},                      0,    0x0A}},
    {"ld",   {{A, kAtDe},                      0,    0x1A}},
    {"ld",   {{A, AT_NN},                      0,    0x3A, {none, word}}},
    {"ld",   {{kAtBc, A},                      0,    0x02}},
    {"ld",   {{kAtDe, A},                      0,    0x12}},
    {"ld",   {{AT_NN, A},                      0,    0x32, {word}}},
    {"ld",   {{BC | DE | HL | SP | IX, N},     0,    0x01, {pair, word}}},
    {"ld",   {{HL | IX, AT_NN},                0,    0x2A, {none, word}}},
    {"ld",   {{BC | DE | SP, AT_NN},           0xED, 0x4B, {pair, word}}},
    {"ld",   {{AT_NN, HL | IX},                0,    0x22, {word}}},
    {"ld",   {{AT_NN, BC | DE | SP},           0xED, 0x43, {word, pair}}},
    {"ld",   {{SP, HL | IX},                   0,    0xF9}},
    {"push", {{BC | DE | HL | AF | IX},        0,    0xC5, {pair}}},
    {"pop",  {{BC | DE | HL | AF | IX},        0,    0xC1, {pair}}},

    // Exchange, block transfer and search
    {"ex",   {{AF, kPairAfShadow | AF},        0,    0x08}},
    {"ex",   {{DE, HL},                        0,    0xEB}},
    {"ex",   {{kAtSp, HL | IX},                0,    0xE3}},
    {"exx",  {{},                              0,    0xD9}},
    {"ldi",  {{},                              0xED, 0xA0}},
    {"ldir", {{},                              0xED, 0xB0}},
    {"ldd",  {{},                              0xED, 0xA8}},
    {"lddr", {{},                              0xED, 0xB8}},
    {"cpi",  {{},                              0xED, 0xA1}},
    {"cpir", {{},                              0xED, 0xB1}},
    {"cpd",  {{},                              0xED, 0xA9}},
    {"cpdr", {{},                              0xED, 0xB9}},

    // 8-bit arithmetic and logic; the accumulator may be named or not
    {"add",  {{A, SOURCE},                     0,    0x80, {none, low}}},
    {"add",  {{A, N},                          0,    0xC6, {none, byte}}},
    {"add",  {{SOURCE},                        0,    0x80, {low}}},
    {"add",  {{N},                             0,    0xC6, {byte}}},
    {"add",  {{HL, BC | DE | HL | SP},         0,    0x09, {none, pair}}},
    {"add",  {{IX, BC | DE | IX | SP},         0,    0x09, {none, pair}}},
    {"adc",  {{A, SOURCE},                     0,    0x88, {none, low}}},
    {"adc",  {{A, N},                          0,    0xCE, {none, byte}}},
    {"adc",  {{SOURCE},                        0,    0x88, {low}}},
    {"adc",  {{N},                             0,    0xCE, {byte}}},
    {"adc",  {{HL, BC | DE | HL | SP},         0xED, 0x4A, {none, pair}}},
    {"sub",  {{A, SOURCE},                     0,    0x90, {none, low}}},
    {"sub",  {{A, N},                          0,    0xD6, {none, byte}}},
    {"sub",  {{SOURCE},                        0,    0x90, {low}}},
    {"sub",  {{N},                             0,    0xD6, {byte}}},
    {"sbc",  {{A, SOURCE},                     0,    0x98, {none, low}}},
    {"sbc",  {{A, N},                          0,    0xDE, {none, byte}}},
    {"sbc",  {{SOURCE},                        0,    0x98, {low}}},
    {"sbc",  {{N},                             0,    0xDE, {byte}}},
    {"sbc",  {{HL, BC | DE | HL | SP},         0xED, 0x42, {none, pair}}},
    {"and",  {{A, SOURCE},                     0,    0xA0, {none, low}}},
    {"and",  {{A, N},                          0,    0xE6, {none, byte}}},
    {"and",  {{SOURCE},                        0,    0xA0, {low}}},
    {"and",  {{N},                             0,    0xE6, {byte}}},
    {"xor",  {{A, SOURCE},                     0,    0xA8, {none, low}}},
    {"xor",  {{A, N},                          0,    0xEE, {none, byte}}},
    {"xor",  {{SOURCE},                        0,    0xA8, {low}}},
    {"xor",  {{N},                             0,    0xEE, {byte}}},
    {"or",   {{A, SOURCE},                     0,    0xB0, {none, low}}},
    {"or",   {{A, N},                          0,    0xF6, {none, byte}}},
    {"or",   {{SOURCE},                        0,    0xB0, {low}}},
    {"or",   {{N},                             0,    0xF6, {byte}}},
    {"cp",   {{A, SOURCE},                     0,    0xB8, {none, low}}},
    {"cp",   {{A, N},                          0,    0xFE, {none, byte}}},
    {"cp",   {{SOURCE},                        0,    0xB8, {low}}},
    {"cp",   {{N},                             0,    0xFE, {byte}}},
    {"inc",  {{SOURCE},                        0,    0x04, {mid}}},
    {"inc",  {{BC | DE | HL | SP | IX},        0,    0x03, {pair}}},
    {"dec",  {{SOURCE},                        0,    0x05, {mid}}},
    {"dec",  {{BC | DE | HL | SP | IX},        0,    0x0B, {pair}}},

    // General purpose and control
    {"daa",  {{},                              0,    0x27}},
    {"cpl",  {{},                              0,    0x2F}},
    {"neg",  {{},                              0xED, 0x44}},
    {"ccf",  {{},                              0,    0x3F}},
    {"scf",  {{},                              0,    0x37}},
    {"nop",  {{},                              0,    0x00}},
    {"halt", {{},                              0,    0x76}},
    {"di",   {{},                              0,    0xF3}},
    {"ei",   {{},                              0,    0xFB}},
    {"im",   {{N},                             0xED, 0x46, {Place::kMode}}},

    // Rotate and shift; the forms with a register behind (ix+d) also load the result into it
    {"rlca", {{},                              0,    0x07}},
    {"rla",  {{},                              0,    0x17}},
    {"rrca", {{},                              0,    0x0F}},
    {"rra",  {{},                              0,    0x1F}},
    {"rlc",  {{R | MEMORY},                    0xCB, 0x00, {low}}},
    {"rlc",  {{AT_IX, R},                      0xCB, 0x00, {none, low}}},
    {"rrc",  {{R | MEMORY},                    0xCB, 0x08, {low}}},
    {"rrc",  {{AT_IX, R},                      0xCB, 0x08, {none, low}}},
    {"rl",   {{R | MEMORY},                    0xCB, 0x10, {low}}},
    {"rl",   {{AT_IX, R},                      0xCB, 0x10, {none, low}}},
    {"rr",   {{R | MEMORY},                    0xCB, 0x18, {low}}},
    {"rr",   {{AT_IX, R},                      0xCB, 0x18, {none, low}}},
    {"sla",  {{R | MEMORY},                    0xCB, 0x20, {low}}},
    {"sla",  {{AT_IX, R},                      0xCB, 0x20, {none, low}}},
    {"sra",  {{R | MEMORY},                    0xCB, 0x28, {low}}},
    {"sra",  {{AT_IX, R},                      0xCB, 0x28, {none, low}}},
    {"sll",  {{R | MEMORY},                    0xCB, 0x30, {low}}},
    {"sll",  {{AT_IX, R},                      0xCB, 0x30, {none, low}}},
    {"srl",  {{R | MEMORY},                    0xCB, 0x38, {low}}},
    {"srl",  {{AT_IX, R},                      0xCB, 0x38, {none, low}}},
    {"rld",  {{},                              0xED, 0x6F}},
    {"rrd",  {{},                              0xED, 0x67}},

    // Bits
    {"bit",  {{N, R | MEMORY},                 0xCB, 0x40, {bitNumber, low}}},
    {"res",  {{N, R | MEMORY},                 0xCB, 0x80, {bitNumber, low}}},
    {"res",  {{N, AT_IX, R},                   0xCB, 0x80, {bitNumber, none, low}}},
    {"set",  {{N, R | MEMORY},                 0xCB, 0xC0, {bitNumber, low}}},
    {"set",  {{N, AT_IX, R},                   0xCB, 0xC0, {bitNumber, none, low}}},

    // Jumps, calls and returns
    {"jp",   {{CC, N},                         0,    0xC2, {cond, word}}},
    {"jp",   {{N},                             0,    0xC3, {word}}},
    {"jp",   {{AT_HL | kAtIndex},              0,    0xE9}},
    {"jr",   {{kShortCondition, N},            0,    0x20, {cond, distance}}},
    {"jr",   {{N},                             0,    0x18, {distance}}},
    {"djnz", {{N},                             0,    0x10, {distance}}},
    {"call", {{CC, N},                         0,    0xC4, {cond, word}}},
    {"call", {{N},                             0,    0xCD, {word}}},
    {"ret",  {{},                              0,    0xC9}},
    {"ret",  {{CC},                            0,    0xC0, {cond}}},
    {"reti", {{},                              0xED, 0x4D}},
    {"retn", {{},                              0xED, 0x45}},
    {"rst",  {{N},                             0,    0xC7, {Place::kRestart}}},

    // Input and output
    {"in",   {{A, AT_NN},                      0,    0xDB, {none, byte}}},
    {"in",   {{R, kAtC},                       0xED, 0x40, {mid}}},
    {"in",   {{kRegF, kAtC},                   0xED, 0x70}},
    {"in",   {{kAtC},                          0xED, 0x70}},
    {"ini",  {{},                              0xED, 0xA2}},
    {"inir", {{},                              0xED, 0xB2}},
    {"ind",  {{},                              0xED, 0xAA}},
    {"indr", {{},                              0xED, 0xBA}},
    {"out",  {{AT_NN, A},                      0,    0xD3, {byte}}},
    {"out",  {{kAtC, R},                       0xED, 0x41, {none, mid}}},
    {"out",  {{kAtC, N},                       0xED, 0x71, {none, Place::kZero}}},
    {"outi", {{},                              0xED, 0xA3}},
    {"otir", {{},                              0xED, 0xB3}},
    {"outd", {{},                              0xED, 0xAB}},
    {"otdr", {{},                              0xED, 0xBB}},
};
// clang-format on

constexpr std::size_t kRowCount = std::size(kRows);

consteval std::size_t countMnemonics() {
    std::size_t count = 0;
    for (std::size_t i = 0; i < kRowCount; ++i) {
        if (i == 0 || kRows[i].mnemonic != kRows[i - 1].mnemonic) ++count;
    }
    return count;
}

constexpr std::size_t kMnemonicCount = countMnemonics();

consteval auto collectForms() {
    std::array<InstructionForm, kRowCount> forms{};
    for (std::size_t i = 0; i < kRowCount; ++i)
        forms[i] = kRows[i].form;
    return forms;
}

consteval auto collectMnemonics() {
    std::array<std::string_view, kMnemonicCount> names{};
    std::size_t count = 0;
    for (std::size_t i = 0; i < kRowCount; ++i) {
        if (i == 0 || kRows[i].mnemonic != kRows[i - 1].mnemonic) names[count++] = kRows[i].mnemonic;
    }
    return names;
}

constexpr std::array kForms = collectForms();
constexpr std::array kMnemonics = collectMnemonics();

/// The rows of one mnemonic.
struct Rows {
    std::uint16_t first = 0;
    std::uint16_t count = 0;
};

consteval auto collectRows() {
    std::array<Rows, kMnemonicCount> rows{};
    std::size_t mnemonic = 0;
    for (std::size_t i = 0; i < kRowCount; ++i) {
        if (i > 0 && kRows[i].mnemonic != kRows[i - 1].mnemonic) {
            rows[++mnemonic].first = static_cast<std::uint16_t>(i);
        }
        ++rows[mnemonic].count;
    }
    return rows;
}

consteval WordIndex indexMnemonics() {
    WordIndex index;
    for (std::size_t i = 0; i < kMnemonicCount; ++i)
        index.add(wordKey(kMnemonics[i]), i);
    return index;
}

constexpr std::array kRowsOfMnemonic = collectRows();
constexpr WordIndex kMnemonicIndex = indexMnemonics();

}  // namespace

std::span<const InstructionForm> formsOf(std::string_view mnemonic) {
    const std::size_t found = kMnemonicIndex.find(mnemonic);
    if (found == WordIndex::kNone) return {};
    const Rows& rows = kRowsOfMnemonic[found];
    return std::span(kForms).subspan(rows.first, rows.count);
}

std::span<const std::string_view> mnemonics() {
    return kMnemonics;
}

}  // namespace kav::assembler
