// SPDX-License-Identifier: GPL-3.0-or-later
// Every form of every Z80 instruction as source text, with operands at their limits.
#pragma once

#include <string>
#include <vector>

namespace kav::test {

/// The instructions that the processor's makers document.
[[nodiscard]] std::vector<std::string> documentedForms();

/// The others that the processor has.
[[nodiscard]] std::vector<std::string> undocumentedForms();

}  // namespace kav::test
