// SPDX-License-Identifier: GPL-3.0-or-later
// The command lines that open the maker's addresses and the help file, and the about box.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// Which program opens addresses.
struct BrowserChoice {
    bool useInternetExplorer = false;
    std::string browserPath;  ///< the user's own browser, for when the other is not used
};

/// The command line that opens the address: the browser, a blank, the address. It is started maximized with
/// focus.
[[nodiscard]] std::string openAddressCommand(const BrowserChoice& browser, std::string_view address);

/// openAddressCommand for the maker's home page, a new mail to the maker (whose subject names the kind of
/// browser) and the survey.
[[nodiscard]] std::string webPageCommand(const BrowserChoice& browser);
[[nodiscard]] std::string mailCommand(const BrowserChoice& browser);
[[nodiscard]] std::string surveyCommand(const BrowserChoice& browser);

/// The command line that opens the help file in the help viewer of the folder `windir`.
[[nodiscard]] std::string helpCommand(std::string_view windir, std::string_view applicationFolder);

/// The about box, with the information icon. Its two paragraphs stand apart by two line feeds.
inline constexpr std::string_view kAboutTitle = "About KAV Compiler";
inline constexpr std::string_view kAboutText =
    "KAV Compiler V1.08 by Tamsin Orrel (Completly re-innovated since last time-I kept the menu structure "
    "and some "
    "of the compile code and some external forms. This is an interface for TASM and DevPak that allows the "
    "management of files. Press F1 for help"
    "\n\n"
    "This program is free software: you may use, share and change it under the terms of the GNU General "
    "Public "
    "License, version 3 or later. It comes without any warranty.";

}  // namespace kav
