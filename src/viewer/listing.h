// SPDX-License-Identifier: GPL-3.0-or-later
// A build's listing as the viewer shows it: its text, and which of its lines are errors.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kav::viewer {

/// An error that the listing names.
struct ListingError {
    int sourceLine = 0;  ///< the line in the user's document, from 1 on
    std::string message;
    std::size_t shownAt =
        0;  ///< the line of the listing to go to, from 0 on: the source's, else the message's
    std::size_t toldAt = 0;  ///< the line of the listing that has the message
};

/// The errors of a listing, in its order.
struct ListingErrors {
    std::vector<ListingError> errors;
    std::vector<std::size_t> markedLines;  ///< messages and the source lines they mean, ascending, from 0 on
};

/// The text with LF alone between its lines, and nothing in it that a text window takes for another line end.
[[nodiscard]] std::string listingText(std::string_view bytes);

/// Finds the errors: lines `temp.z80 line 0012: message`, and the listed lines of the document itself (not of
/// included files) that bear such a number. Takes what listingText gives.
[[nodiscard]] ListingErrors errorsOf(std::string_view listing);

/// The error after the current one, or before it; round the ends. There must be errors; `current` is the
/// index of an error, or `count` when none is current.
[[nodiscard]] std::size_t errorBeside(std::size_t current, std::size_t count, bool backward);

}  // namespace kav::viewer
