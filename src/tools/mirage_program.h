// SPDX-License-Identifier: GPL-3.0-or-later
// The program skeletons for the MirageOS shell.
#pragma once

#include <cstddef>
#include <string>

namespace kav {

/// The two kinds of MirageOS programs: with the plain header, or with a routine that the shell calls on quit.
enum class MirageKind { standard, withExitCode };

/// The most characters (code points) that the wizard lets a description have.
inline constexpr std::size_t kMirageDescriptionLength = 25;

/// What a MirageOS skeleton is made from. The texts are taken as they are: a quotation mark in the
/// description is not escaped, an empty label leaves its directive without an operand.
struct MirageProgramText {
    MirageKind kind = MirageKind::standard;
    std::string button;       ///< the button's data lines, `toDbText(ButtonBitmap)`
    std::string description;  ///< what the shell shows beside the button
    std::string quitLabel;    ///< the routine called on quit; used by the kind with exit code alone

    /// The document: 29 lines of the standard kind, 25 of the other; no line end behind the last.
    [[nodiscard]] std::string text() const;
};

}  // namespace kav
