// SPDX-License-Identifier: GPL-3.0-or-later
// The program skeletons that a new document can start from.
#include "documents/templates.h"

#include "runtime/code_points.h"
#include "runtime/lines.h"

namespace kav {

namespace {

constexpr std::size_t kLongestDescription = 25;

}  // namespace

std::optional<std::string> descriptionFrom(std::string_view answer) {
    if (answer.empty()) return std::nullopt;
    return firstCharacters(answer, kLongestDescription);
}

std::string kavTemplate(const std::string& description) {
    const std::string title = ".db \" " + description + "\", 0 ; Title (Must begin with space)";
    return joinedLines({
        ".nolist",
        "#include \"kav.inc\"",
        ".list",
        "",
        ".org    userMem-3",
        ".db     $BB,$6D",
        " ret",
        "",
        ".db \"KAV\",1           ; Header",
        title,
        ".dw 400                ; Stack Required (set to 400 for debug purposes)",
        "",
        "start:",
        ";Put code here",
        ".end",
    });
}

// "nolist" without its period, ".list" behind the include and the two spellings of "Start" are the
// template's own.
std::string ionTemplate(const std::string& description) {
    const std::string title = "  .db \"" + description + "\",0";
    return joinedLines({
        "nolist",
        " #include \"ion.inc\".list",
        "",
        "#ifdef TI83P",
        " .org progstart-2",
        "       .db $BB,$6D",
        "",
        "#else",
        "  .org progstart",
        "",
        "#endif",
        "    ret",
        " jr nc,Start",
        title,
        "",
        "start:",
        ";Put Code Here",
        ".end",
    });
}

}  // namespace kav
