// SPDX-License-Identifier: GPL-3.0-or-later
// What the assembler has to say about a source.
#pragma once

#include <string>

namespace kav::assembler {

enum class Severity { kError, kWarning, kNote };

/// One message. `line` is the line of the user's document; for a place in an included file that is the line
/// of the #include, and the text itself begins with the included file's name and line.
struct Message {
    Severity severity = Severity::kError;
    std::string file;
    int line = 0;
    std::string text;  ///< one line
};

}  // namespace kav::assembler
