// SPDX-License-Identifier: GPL-3.0-or-later
// The labels of a program and what is known of them from this pass and the one before.
#pragma once

#include "assembler/name_place.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace kav::assembler {

/// How a label came by its value.
enum class LabelKind : std::uint8_t {
    kAddress,   ///< stands in front of a statement
    kEquate,    ///< .equ or =
    kVariable,  ///< .set; may change
};

/// One label. Names differ in more than case; the scope of a global label is 0, that of a local one its
/// module's.
struct Label {
    std::string_view name;
    std::uint32_t scope = 0;
    std::uint32_t hash = 0;
    std::int32_t value = 0;
    std::int32_t previousValue = 0;
    NamePlace place;
    LabelKind kind = LabelKind::kAddress;
    bool defined = false;            ///< in this pass, so far
    bool definedPreviously = false;  ///< in the pass before
    bool exported = false;
};

/// What became of a definition.
enum class Definition { kDone, kDuplicate };

/// All labels, found by name without regard to case.
class SymbolTable {
  public:
    SymbolTable();

    /// Starts a pass: what is known becomes what was known.
    void beginPass();

    /// Gives a label its value. A second definition is a duplicate, except that a variable may change.
    Definition define(std::string_view name, std::uint32_t scope, std::int32_t value, LabelKind kind,
                      const NamePlace& place);

    /// The label, or nothing when the name was never defined.
    [[nodiscard]] Label* find(std::string_view name, std::uint32_t scope);

    /// The first label that this pass defined otherwise than the one before, or nothing.
    [[nodiscard]] const Label* unsettled() const;

    /// True when a variable was defined in any pass.
    [[nodiscard]] bool hasVariables() const { return hasVariables_; }

    [[nodiscard]] const std::vector<Label>& labels() const { return labels_; }

  private:
    static std::uint32_t hashOf(std::string_view name, std::uint32_t scope);
    [[nodiscard]] std::size_t slotOf(std::string_view name, std::uint32_t scope, std::uint32_t hash) const;
    void grow();

    std::vector<Label> labels_;
    std::vector<std::uint32_t> slots_;  // index of the label plus one, 0 for an empty slot
    std::deque<std::string> names_;     // keeps the names where the labels point at them
    bool hasVariables_ = false;
};

}  // namespace kav::assembler
