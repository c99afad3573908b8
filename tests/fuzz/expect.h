// SPDX-License-Identifier: GPL-3.0-or-later
// What a fuzz target holds against its subject.
#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace kav::fuzz {

/// Ends the program, which is how a fuzz target tells of a mistake, unless `holds`.
inline void expect(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

/// The input's next part. Parts have a byte FF between them; behind the last one they are empty.
inline std::string_view takePart(std::string_view& rest) {
    const std::size_t end = std::min(rest.find('\xFF'), rest.size());
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return part;
}

}  // namespace kav::fuzz
