// SPDX-License-Identifier: GPL-3.0-or-later
// Where names are defined.
#pragma once

#include <string>

namespace kav::assembler {

/// The line that defines a label or a macro. It holds while the pass that read it lasts.
struct NamePlace {
    const std::string* file = nullptr;  ///< the file's name; nothing for what no file defines
    int line = 0;
};

}  // namespace kav::assembler
