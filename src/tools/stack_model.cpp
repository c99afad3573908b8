// SPDX-License-Identifier: GPL-3.0-or-later
// The stack visualizer's model.
#include "tools/stack_model.h"

#include "runtime/code_points.h"
#include "runtime/failure.h"

#include <utility>

namespace kav {

namespace {

constexpr std::size_t kRegisterLength = 4;
constexpr std::string_view kZeroRegister = "0000";

}  // namespace

std::string normalizeRegisterText(std::string_view text) {
    const std::string kept = firstCharacters(text, kRegisterLength);
    return std::string(kRegisterLength - characterCount(kept), '0') + kept;
}

std::string clickedRegisterText(std::string_view text) {
    return text == kZeroRegister ? std::string() : std::string(text);
}

bool StackModel::push(std::string value) {
    if (count() == kSlots) return false;
    slots_.push_back(std::move(value));
    return true;
}

bool StackModel::pop() {
    if (slots_.empty()) return false;
    lastPopped_ = std::move(slots_.back());
    slots_.pop_back();
    return true;
}

void StackModel::restart() {
    slots_.clear();
}

const std::string& StackModel::slot(int slot) const {
    if (!slotVisible(slot)) throw failureOf(kSubscriptOutOfRange);
    return slots_[static_cast<std::size_t>(slot - 1)];
}

std::string StackModel::stackPointerText() const {
    return normalizeRegisterText(std::to_string(count()));
}

}  // namespace kav
