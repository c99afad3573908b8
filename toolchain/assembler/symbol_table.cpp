// SPDX-License-Identifier: GPL-3.0-or-later
// The labels of a program and what is known of them from this pass and the one before.
#include "assembler/symbol_table.h"

#include "assembler/characters.h"

namespace kav::assembler {

namespace {

constexpr std::size_t kFirstSlots = 1024;  // a power of two, as every later size

}  // namespace

SymbolTable::SymbolTable() : slots_(kFirstSlots) {}

std::uint32_t SymbolTable::hashOf(std::string_view name, std::uint32_t scope) {
    std::uint32_t hash = 2166136261U ^ scope;
    // Setting bit 5 folds the case of letters; that it also folds other pairs costs a comparison at worst.
    for (const char c : name)
        hash = (hash ^ (static_cast<unsigned char>(c) | 0x20U)) * 16777619U;
    return hash ^ (hash >> 15);
}

std::size_t SymbolTable::slotOf(std::string_view name, std::uint32_t scope, std::uint32_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = hash & mask;
    while (slots_[slot] != 0) {
        const Label& label = labels_[slots_[slot] - 1];
        if (label.hash == hash && label.scope == scope && equalIgnoringCase(label.name, name)) break;
        slot = (slot + 1) & mask;
    }
    return slot;
}

void SymbolTable::grow() {
    slots_.assign(slots_.size() * 2, 0);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        std::size_t slot = labels_[i].hash & mask;
        while (slots_[slot] != 0)
            slot = (slot + 1) & mask;
        slots_[slot] = static_cast<std::uint32_t>(i + 1);
    }
}

void SymbolTable::beginPass() {
    for (Label& label : labels_) {
        label.previousValue = label.value;
        label.definedPreviously = label.defined;
        label.defined = false;
    }
}

Definition SymbolTable::define(std::string_view name, std::uint32_t scope, std::int32_t value, LabelKind kind,
                               const NamePlace& place) {
    const std::uint32_t hash = hashOf(name, scope);
    const std::size_t slot = slotOf(name, scope, hash);
    if (kind == LabelKind::kVariable) hasVariables_ = true;
    if (slots_[slot] == 0) {
        slots_[slot] = static_cast<std::uint32_t>(labels_.size() + 1);
        Label label;
        label.name = names_.emplace_back(name);
        label.scope = scope;
        label.hash = hash;
        label.value = value;
        label.kind = kind;
        label.place = place;
        label.defined = true;
        labels_.push_back(label);
        if (labels_.size() * 2 > slots_.size()) grow();
        return Definition::kDone;
    }
    Label& label = labels_[slots_[slot] - 1];
    const bool mayChange = kind == LabelKind::kVariable && label.kind == LabelKind::kVariable;
    if (label.defined && !mayChange) return Definition::kDuplicate;
    label.value = value;
    label.kind = kind;
    label.place = place;
    label.defined = true;
    return Definition::kDone;
}

Label* SymbolTable::find(std::string_view name, std::uint32_t scope) {
    const std::size_t slot = slotOf(name, scope, hashOf(name, scope));
    return slots_[slot] == 0 ? nullptr : &labels_[slots_[slot] - 1];
}

const Label* SymbolTable::unsettled() const {
    for (const Label& label : labels_) {
        if (label.defined != label.definedPreviously) return &label;
        if (label.defined && label.value != label.previousValue) return &label;
    }
    return nullptr;
}

}  // namespace kav::assembler
