// SPDX-License-Identifier: GPL-3.0-or-later
// Letters without regard to case.
#pragma once

namespace kav {

/// The code point that stands for `codePoint` and its other-case forms, by Unicode's simple case folding (one
/// code point gives one). What is no letter, or no code point at all, is given back as it is.
[[nodiscard]] char32_t foldedCase(char32_t codePoint);

}  // namespace kav
