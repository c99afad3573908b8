// SPDX-License-Identifier: GPL-3.0-or-later
// The command lines that open the maker's addresses and the help file.
#include "shell/web_links.h"

#include "shell/addresses.h"

namespace kav {

namespace {

constexpr std::string_view kInternetExplorer = "C:\\Program Files\\Internet Explorer\\iexplore.exe";

}  // namespace

std::string openAddressCommand(const BrowserChoice& browser, std::string_view address) {
    std::string command = browser.useInternetExplorer ? std::string(kInternetExplorer) : browser.browserPath;
    return command.append(" ").append(address);
}

std::string webPageCommand(const BrowserChoice& browser) {
    return openAddressCommand(browser, kHomePage);
}

std::string mailCommand(const BrowserChoice& browser) {
    std::string address = "mailto:";
    address.append(kContactAddress).append("?subject=KAV Compiler Mailer");
    if (browser.useInternetExplorer) address += " IE";
    return openAddressCommand(browser, address);
}

std::string surveyCommand(const BrowserChoice& browser) {
    return openAddressCommand(browser, kSurveyPage);
}

std::string helpCommand(std::string_view windir, std::string_view applicationFolder) {
    std::string command(windir);
    command.append("\\winhelp.exe ").append(applicationFolder).append("\\kavhelp.hlp");
    return command;
}

}  // namespace kav
