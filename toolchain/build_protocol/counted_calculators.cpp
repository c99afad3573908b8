// SPDX-License-Identifier: GPL-3.0-or-later
// The two flags of the preferences file that a build's verdict depends on.
#include "build_protocol/counted_calculators.h"

#include "runtime/lines.h"
#include "runtime/number_text.h"

namespace kav {

namespace {

constexpr std::size_t kMake83pLine = 4;
constexpr std::size_t kMake8xpLine = 5;

}  // namespace

std::vector<Calculator> countedCalculators(std::optional<std::string_view> preferences) {
    const std::vector<std::string_view> lines = linesOf(preferences.value_or(""));
    const auto ticked = [&](std::size_t number) {
        return lines.size() >= number && flagValue(lines[number - 1]);
    };
    std::vector<Calculator> counted;
    if (ticked(kMake8xpLine)) counted.push_back(Calculator::Ti83Plus);
    if (ticked(kMake83pLine)) counted.push_back(Calculator::Ti83);
    if (counted.empty()) counted.push_back(Calculator::Ti83Plus);
    return counted;
}

}  // namespace kav
