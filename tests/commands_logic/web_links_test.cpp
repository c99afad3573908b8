// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/web_links.h"

#include "shell/addresses.h"

#include <gtest/gtest.h>

namespace kav {

namespace {

const BrowserChoice kInternetExplorer{true, "/usr/bin/browser"};
const BrowserChoice kOwnBrowser{false, "/usr/bin/browser"};
const std::string kExplorerPath = "C:\\Program Files\\Internet Explorer\\iexplore.exe ";

}  // namespace

TEST(WebLinks, OpenInTheChosenBrowser) {
    EXPECT_EQ(webPageCommand(kInternetExplorer), kExplorerPath + std::string(kHomePage));
    EXPECT_EQ(webPageCommand(kOwnBrowser), "/usr/bin/browser " + std::string(kHomePage));
    EXPECT_EQ(surveyCommand(kOwnBrowser), "/usr/bin/browser " + std::string(kSurveyPage));
}

TEST(WebLinks, NameTheBrowserInTheMailsSubject) {
    const std::string mail = "mailto:" + std::string(kContactAddress) + "?subject=KAV Compiler Mailer";
    EXPECT_EQ(mailCommand(kInternetExplorer), kExplorerPath + mail + " IE");
    EXPECT_EQ(mailCommand(kOwnBrowser), "/usr/bin/browser " + mail);
}

TEST(Help, OpensInTheViewerOfTheWindowsFolder) {
    EXPECT_EQ(helpCommand("C:\\WINDOWS", "C:\\KAV"), "C:\\WINDOWS\\winhelp.exe C:\\KAV\\kavhelp.hlp");
}

TEST(AboutBox, HasTwoParagraphsApartByLineFeeds) {
    EXPECT_TRUE(kAboutText.starts_with("KAV Compiler V1.08 by Tamsin Orrel (Completly re-innovated"));
    EXPECT_NE(kAboutText.find("Press F1 for help\n\nThis program"), std::string_view::npos);
    EXPECT_EQ(kAboutText.find('\r'), std::string_view::npos);
}

}  // namespace kav
