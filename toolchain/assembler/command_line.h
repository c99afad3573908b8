// SPDX-License-Identifier: GPL-3.0-or-later
// What the user asks of kav-asm.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kav::assembler {

/// What the program is assembled for.
enum class Target {
    kTi83Plus,  ///< a .8xp program file; defines TI83P
    kTi83,      ///< a .83p program file; defines TI83
    kBinary,    ///< the bytes alone
};

/// The options of one call.
struct CommandLine {
    std::string source;
    std::string output;   ///< empty for the source's name with the target's extension
    std::string listing;  ///< empty for none
    std::string symbols;  ///< empty for none
    Target target = Target::kTi83Plus;
    std::vector<std::pair<std::string, std::string>> defines;
    std::vector<std::string> includeFolders;
    bool strict = false;
    bool help = false;
    bool version = false;
};

/// A call that makes no sense; `what()` says why.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments behind the program's name. Throws UsageError. Without --target the output's
/// extension tells it: .8xp, .83p or .bin.
[[nodiscard]] CommandLine readCommandLine(const std::vector<std::string>& arguments);

/// The text of --help.
[[nodiscard]] std::string_view helpText();

}  // namespace kav::assembler
