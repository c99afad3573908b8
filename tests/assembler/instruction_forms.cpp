// SPDX-License-Identifier: GPL-3.0-or-later
// Every form of every Z80 instruction as source text, with operands at their limits.
#include "assembler/instruction_forms.h"

namespace kav::test {

namespace {

using Texts = std::vector<std::string>;

const Texts kRegisters{"b", "c", "d", "e", "h", "l", "a"};
const Texts kIndexed{"(ix+0)", "(ix+127)", "(ix-128)", "(iy+0)", "(iy+127)", "(iy-128)"};
const Texts kBytes{"0", "1", "127", "128", "255", "-1", "-128"};
const Texts kWords{"0", "1", "255", "256", "32768", "65535", "-1", "-32768"};
const Texts kDistances{"$+2", "$+129", "$-126", "$"};
const Texts kConditions{"nz", "z", "nc", "c", "po", "pe", "p", "m"};
const Texts kShortConditions{"nz", "z", "nc", "c"};
const Texts kBits{"0", "1", "2", "3", "4", "5", "6", "7"};
const Texts kShifts{"rlc", "rrc", "rl", "rr", "sla", "sra", "srl"};

Texts joined(Texts a, const Texts& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Texts enclosed(const Texts& texts) {
    Texts result;
    for (const std::string& text : texts)
        result.push_back("(" + text + ")");
    return result;
}

/// Adds "mnemonic operand" for each operand.
void add(Texts& forms, const std::string& mnemonic, const Texts& operands) {
    for (const std::string& operand : operands)
        forms.push_back(mnemonic + " " + operand);
}

/// Adds "mnemonic first,second" for each pair.
void add(Texts& forms, const std::string& mnemonic, const Texts& first, const Texts& second) {
    for (const std::string& a : first) {
        for (const std::string& b : second)
            forms.push_back(mnemonic + " " + a + "," + b);
    }
}

void addLoads(Texts& forms) {
    const Texts memory = joined({"(hl)"}, kIndexed);
    add(forms, "ld", kRegisters, joined(joined(kRegisters, memory), kBytes));
    add(forms, "ld", memory, joined(kRegisters, kBytes));
    add(forms, "ld", {"a"}, joined({"(bc)", "(de)", "i", "r"}, {"(0)", "(255)", "(65535)"}));
    add(forms, "ld", joined({"(bc)", "(de)", "i", "r"}, {"(0)", "(255)", "(65535)"}), {"a"});
    const Texts pairs{"bc", "de", "hl", "sp", "ix", "iy"};
    add(forms, "ld", pairs, joined(kWords, {"(0)", "(255)", "(65535)"}));
    add(forms, "ld", {"(0)", "(255)", "(65535)"}, pairs);
    add(forms, "ld", {"sp"}, {"hl", "ix", "iy"});
    add(forms, "push", {"bc", "de", "hl", "af", "ix", "iy"});
    add(forms, "pop", {"bc", "de", "hl", "af", "ix", "iy"});
    add(forms, "ex", {"de,hl", "af,af'", "(sp),hl", "(sp),ix", "(sp),iy"});
}

void addArithmetic(Texts& forms) {
    const Texts sources = joined(joined(kRegisters, {"(hl)"}), joined(kIndexed, kBytes));
    for (const char* mnemonic : {"add", "adc", "sbc"})
        add(forms, mnemonic, {"a"}, sources);
    for (const char* mnemonic : {"sub", "and", "xor", "or", "cp"})
        add(forms, mnemonic, sources);
    const Texts changed = joined(joined(kRegisters, {"(hl)"}), kIndexed);
    const Texts pairs{"bc", "de", "hl", "sp", "ix", "iy"};
    add(forms, "inc", joined(changed, pairs));
    add(forms, "dec", joined(changed, pairs));
    for (const char* mnemonic : {"add", "adc", "sbc"})
        add(forms, mnemonic, {"hl"}, {"bc", "de", "hl", "sp"});
    add(forms, "add", {"ix"}, {"bc", "de", "ix", "sp"});
    add(forms, "add", {"iy"}, {"bc", "de", "iy", "sp"});
}

void addBits(Texts& forms) {
    const Texts operands = joined(joined(kRegisters, {"(hl)"}), kIndexed);
    for (const std::string& shift : kShifts)
        add(forms, shift, operands);
    for (const char* mnemonic : {"bit", "res", "set"})
        add(forms, mnemonic, kBits, operands);
}

void addJumps(Texts& forms) {
    const Texts targets{"0", "255", "256", "65535"};
    for (const char* mnemonic : {"jp", "call"}) {
        add(forms, mnemonic, targets);
        add(forms, mnemonic, kConditions, targets);
    }
    add(forms, "jp", {"(hl)", "(ix)", "(iy)"});
    add(forms, "jr", kDistances);
    add(forms, "jr", kShortConditions, kDistances);
    add(forms, "djnz", kDistances);
    add(forms, "ret", kConditions);
    add(forms, "rst", {"0", "8", "16", "24", "32", "40", "48", "56"});
}

void addTheRest(Texts& forms) {
    add(forms, "im", {"0", "1", "2"});
    add(forms, "in", {"a"}, enclosed({"0", "127", "128", "255"}));
    add(forms, "out", enclosed({"0", "127", "128", "255"}), {"a"});
    add(forms, "in", kRegisters, {"(c)"});
    add(forms, "out", {"(c)"}, kRegisters);
    for (const char* form :
         {"nop",  "halt", "di",  "ei",   "exx",  "daa",  "cpl",  "neg",  "ccf", "scf",  "rlca", "rla",
          "rrca", "rra",  "rld", "rrd",  "ldi",  "ldir", "ldd",  "lddr", "cpi", "cpir", "cpd",  "cpdr",
          "ini",  "inir", "ind", "indr", "outi", "otir", "outd", "otdr", "ret", "reti", "retn"}) {
        forms.emplace_back(form);
    }
}

}  // namespace

std::vector<std::string> documentedForms() {
    Texts forms;
    addLoads(forms);
    addArithmetic(forms);
    addBits(forms);
    addJumps(forms);
    addTheRest(forms);
    return forms;
}

std::vector<std::string> undocumentedForms() {
    Texts forms;
    const Texts others{"b", "c", "d", "e", "a"};
    for (const Texts& halves : {Texts{"ixh", "ixl"}, Texts{"iyh", "iyl"}}) {
        add(forms, "ld", halves, joined(joined(others, halves), kBytes));
        add(forms, "ld", others, halves);
        for (const char* mnemonic : {"add", "adc", "sbc"})
            add(forms, mnemonic, {"a"}, halves);
        for (const char* mnemonic : {"sub", "and", "xor", "or", "cp", "inc", "dec"}) {
            add(forms, mnemonic, halves);
        }
    }
    add(forms, "sll", joined(joined(kRegisters, {"(hl)"}), kIndexed));
    for (const std::string& shift : joined(kShifts, {"sll"}))
        add(forms, shift, kIndexed, kRegisters);
    for (const char* mnemonic : {"res", "set"}) {
        for (const std::string& bit : kBits)
            add(forms, mnemonic, {bit + ",(ix-1)", bit + ",(iy+1)"}, kRegisters);
    }
    add(forms, "in", {"f,(c)"});
    add(forms, "out", {"(c),0"});
    return forms;
}

}  // namespace kav::test
