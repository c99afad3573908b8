// SPDX-License-Identifier: GPL-3.0-or-later
// Which lines #if and its kin leave out.
#pragma once

#include "assembler/diagnostics.h"

#include <cstddef>
#include <vector>

namespace kav::assembler {

/// The conditionals that are open, the innermost last.
class Conditionals {
  public:
    /// Opens a conditional; its lines count when `holds` and no outer conditional leaves them out.
    void open(bool holds, const Location& where) {
        const bool counts = !skipping();
        levels_.push_back({where, counts && holds, holds || !counts, false});
    }

    /// Turns to the #else branch. False when there is no conditional or it had its #else.
    bool turnToElse() {
        if (levels_.empty() || levels_.back().hadElse) return false;
        Level& level = levels_.back();
        level.active = !level.done;
        level.done = level.hadElse = true;
        return true;
    }

    /// True when the innermost conditional still looks for the branch to take, so that the condition of an
    /// #elif matters.
    [[nodiscard]] bool undecided() const { return !levels_.empty() && !levels_.back().done; }

    /// Turns to an #elif branch. False as for turnToElse.
    bool turnToElif(bool holds) {
        if (levels_.empty() || levels_.back().hadElse) return false;
        Level& level = levels_.back();
        level.active = !level.done && holds;
        level.done = level.done || holds;
        return true;
    }

    /// Closes the innermost conditional; false when there is none.
    bool close() {
        if (levels_.empty()) return false;
        levels_.pop_back();
        return true;
    }

    [[nodiscard]] bool skipping() const { return !levels_.empty() && !levels_.back().active; }
    [[nodiscard]] std::size_t depth() const { return levels_.size(); }

    /// Where the innermost conditional was opened. There must be one.
    [[nodiscard]] const Location& innermost() const { return levels_.back().where; }

  private:
    struct Level {
        Location where;
        bool active;  ///< its present branch is assembled
        bool done;    ///< a branch was taken, or none may be
        bool hadElse;
    };

    std::vector<Level> levels_;
};

}  // namespace kav::assembler
