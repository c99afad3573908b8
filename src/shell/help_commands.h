// SPDX-License-Identifier: GPL-3.0-or-later
// The Help menu's commands and the survey that the usage clock offers.
#pragma once

#include <string>

namespace kav {

struct BrowserChoice;
class Workspace;

/// Help file, about box, and the maker's addresses in a browser.
class HelpCommands {
  public:
    explicit HelpCommands(Workspace& workspace) : workspace_(workspace) {}

    void rdme_Click();
    void abt_Click();
    void mwp_Click();
    void emlme_Click();
    void takesurvay_Click();

    /// Asks whether the user wants to take the survey, and opens it unless the answer is No.
    void offerSurvey();

  private:
    [[nodiscard]] BrowserChoice browser() const;
    void start(const std::string& commandLine);

    Workspace& workspace_;
};

}  // namespace kav
