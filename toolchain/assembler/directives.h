// SPDX-License-Identifier: GPL-3.0-or-later
// The directives that begin with a period, or go without it.
#pragma once

#include "assembler/pass.h"
#include "assembler/statement.h"
#include "assembler/suggestion.h"

#include <string_view>

namespace kav::assembler {

/// One directive.
struct Directive {
    std::string_view name;  ///< without the period
    void (*run)(Pass& pass, const Statement& statement);
    bool definesLabel;  ///< gives its label the value, instead of the location
};

/// The directive that an operation is, or nothing. A word without the period is one unless `strict`.
[[nodiscard]] const Directive* directiveCalled(std::string_view operation, const Statement& statement,
                                               bool strict);

/// Offers the names of all directives, with their period or without, as what a misspelt word may have meant.
void considerDirectives(NearestWord& nearest, bool withPeriod);

}  // namespace kav::assembler
