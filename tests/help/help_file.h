// SPDX-License-Identifier: GPL-3.0-or-later
// The help file as it was built, taken apart for tests.
#pragma once

#include "viewer/help_book.h"

#include <string>
#include <string_view>
#include <vector>

namespace kav::test {

/// The help file of the application folder.
[[nodiscard]] const viewer::HelpBook& help();

/// The page of that name. Throws std::out_of_range when there is none.
[[nodiscard]] const viewer::HelpPage& page(std::string_view name);

/// The rows of all tables of a page: the words of their cells.
[[nodiscard]] std::vector<std::vector<std::string>> rowsOf(const viewer::HelpPage& page);

/// A piece of source or of messages in the help, `<pre class="KIND" id="ID">`.
struct Sample {
    std::string page;
    std::string kind;
    std::string id;
    std::string text;
};

/// All samples of a page, in their order.
[[nodiscard]] std::vector<Sample> samplesOf(const viewer::HelpPage& page);

/// The sample with that id. Throws std::out_of_range when there is none.
[[nodiscard]] std::string sample(std::string_view id);

}  // namespace kav::test
