// SPDX-License-Identifier: GPL-3.0-or-later
// Instructions turned into bytes.
#include "assembler/instruction.h"

#include "assembler/expected_operands.h"
#include "assembler/operand.h"
#include "assembler/text.h"

#include <array>

namespace kav::assembler {

namespace {

using Operands = std::array<Operand, 3>;

constexpr std::uint8_t kBitPrefix = 0xCB;

/// True when the form takes the operands and they use at most one index register.
bool fits(const InstructionForm& form, const Operands& operands) {
    std::uint8_t prefix = 0;
    for (std::size_t i = 0; i < operands.size(); ++i) {
        const Operand& operand = operands[i];
        const bool absent = form.operands[i] == 0 && operand.classes == 0;
        if (!absent && (form.operands[i] & operand.classes) == 0) return false;
        if (operand.indexPrefix == 0) continue;
        if (prefix != 0 && prefix != operand.indexPrefix) return false;
        prefix = operand.indexPrefix;
    }
    return true;
}

const InstructionForm* fittingForm(std::span<const InstructionForm> forms, const Operands& operands) {
    for (const InstructionForm& form : forms) {
        if (fits(form, operands)) return &form;
    }
    return nullptr;
}

/// Where parentheses mean no address in any form of the instruction, they only enclose a value.
const InstructionForm* fittingFormOfValues(std::span<const InstructionForm> forms, Operands& operands) {
    for (Operand& operand : operands) {
        if ((operand.classes & kAtAddress) == 0) continue;
        operand.classes |= kValue;
        operand.expression = operand.text;
    }
    return fittingForm(forms, operands);
}

int opcodeBits(Place place, const Operand& operand) {
    switch (place) {
        case Place::kBits0:
            return operand.code;
        case Place::kBits3:
            return operand.code << 3;
        case Place::kPair:
            return operand.code << 4;
        case Place::kCondition:
            return operand.condition << 3;
        default:
            return 0;
    }
}

/// The field that a place behind or inside the opcode is; nothing for the places of registers.
std::optional<FieldKind> fieldOf(Place place) {
    switch (place) {
        case Place::kByte:
            return FieldKind::kByte;
        case Place::kWord:
            return FieldKind::kWord;
        case Place::kRelative:
            return FieldKind::kRelative;
        case Place::kBit:
            return FieldKind::kBit;
        case Place::kRestart:
            return FieldKind::kRestart;
        case Place::kMode:
            return FieldKind::kMode;
        case Place::kZero:
            return FieldKind::kZero;
        default:
            return std::nullopt;
    }
}

void emitDisplacement(Pass& pass, const Operand& operand) {
    if (operand.expression.empty()) {
        pass.emit(0);
    } else {
        pass.emitField(FieldKind::kDisplacement, operand.expression);
    }
}

void emitForm(Pass& pass, const InstructionForm& form, const Operands& operands) {
    std::uint8_t indexPrefix = 0;
    const Operand* indexed = nullptr;
    int opcode = form.opcode;
    for (std::size_t i = 0; i < operands.size(); ++i) {
        opcode |= opcodeBits(form.places[i], operands[i]);
        if (operands[i].indexPrefix != 0) indexPrefix = operands[i].indexPrefix;
        if ((form.operands[i] & operands[i].classes & kAtIndexed) != 0) indexed = &operands[i];
    }
    const std::int32_t start = pass.location;
    if (indexPrefix != 0) pass.emit(indexPrefix);
    if (form.prefix != 0) pass.emit(form.prefix);
    const bool displacementFirst = indexed != nullptr && form.prefix == kBitPrefix;
    if (displacementFirst) emitDisplacement(pass, *indexed);
    const std::int32_t opcodeAddress = pass.location;
    pass.emit(static_cast<std::uint8_t>(opcode));
    if (indexed != nullptr && !displacementFirst) emitDisplacement(pass, *indexed);
    for (std::size_t i = 0; i < operands.size(); ++i) {
        const std::optional<FieldKind> field = fieldOf(form.places[i]);
        if (!field) continue;
        if (sizeOf(*field) > 0) {
            pass.emitField(*field, operands[i].expression);
        } else {
            pass.fillField(*field, opcodeAddress, operands[i].expression);
        }
    }
    pass.addTime(start);
}

bool loads(std::string_view mnemonic) {
    return equalIgnoringCase(mnemonic, "ld");
}

}  // namespace

void assembleInstruction(Pass& pass, std::string_view mnemonic, std::string_view operandText,
                         std::span<const InstructionForm> forms) {
    Operands operands;
    std::size_t count = 0;
    ListReader reader(operandText);
    for (std::string_view part; reader.next(part);) {
        if (part.empty() || count == operands.size()) {
            pass.error("Unrecognized argument: " + shown(operandText) + " for " + shown(mnemonic) +
                       (part.empty() ? " (an operand is missing)" : " (too many operands)"));
            return;
        }
        operands[count++] = classified(part);
    }
    const InstructionForm* form = fittingForm(forms, operands);
    if (form == nullptr) {
        form = fittingFormOfValues(forms, operands);
        if (form != nullptr && loads(mnemonic)) {
            pass.warning(shown(mnemonic) + " " + shown(operandText) +
                         " loads the value itself: there is no such instruction with an address");
        }
    }
    if (form == nullptr) {
        pass.error("Unrecognized argument: " + shownOrNone(operandText) + " for " + shown(mnemonic) +
                   expectedOperands(forms, operands[0].classes));
        return;
    }
    emitForm(pass, *form, operands);
}

void assembleAdded(Pass& pass, const AddedMatch& match) {
    const AddedInstruction& added = *match.instruction;
    const std::int32_t start = pass.location;
    for (const std::uint8_t byte : added.opcode)
        pass.emit(byte);
    const std::int32_t lastOpcode = pass.location - 1;
    std::size_t next = 0;
    if (added.rule == ArgumentRule::kBit && !match.arguments.empty()) {
        pass.fillField(FieldKind::kBit, lastOpcode, match.arguments[next++]);
    }
    if (added.rule == ArgumentRule::kDisplacement && !match.arguments.empty()) {
        std::string_view displacement = match.arguments[next++];
        if (displacement.front() == '+') displacement.remove_prefix(1);
        pass.emitField(FieldKind::kDisplacement, displacement);
    }
    for (; next < match.arguments.size(); ++next) {
        const std::int32_t room = start + added.size - pass.location;
        const bool relative = added.rule == ArgumentRule::kRelative;
        if (room <= 0) break;
        const FieldKind kind = relative    ? FieldKind::kRelative
                               : room == 1 ? FieldKind::kByte
                                           : FieldKind::kWord;
        pass.emitField(kind, match.arguments[next]);
    }
    while (pass.location < start + added.size)
        pass.emit(0);
    pass.addTime(start);
}

}  // namespace kav::assembler
