// SPDX-License-Identifier: GPL-3.0-or-later
// The assembler's listing, read for the errors that become tasks.
#pragma once

#include "documents/aids/line_error.h"

#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// An error as the task list shows it.
struct ImportedTask {
    std::string text;
    std::string tag;  ///< document number and the listing's four line number characters

    bool operator==(const ImportedTask&) const = default;
};

/// The tasks in a listing: every line that follows a line which begins with "temp" becomes one.
[[nodiscard]] std::vector<ImportedTask> importListing(std::string_view listing, char documentNumber);

/// The same errors as they concern the lines of a document, without the blank in front of their messages. A
/// line number of more than four digits is read from the message, where it stands then.
[[nodiscard]] std::vector<LineError> listedErrors(std::string_view listing);

}  // namespace kav
