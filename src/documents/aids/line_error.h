// SPDX-License-Identifier: GPL-3.0-or-later
// What a build found wrong with a line.
#pragma once

#include <string>

namespace kav {

/// An error of a build.
struct LineError {
    int line = 0;  ///< of the document, from 1
    std::string message;

    bool operator==(const LineError&) const = default;
};

}  // namespace kav
