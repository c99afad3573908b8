// SPDX-License-Identifier: GPL-3.0-or-later
// The Help menu's commands and the survey that the usage clock offers.
#include "shell/help_commands.h"

#include "shell/preferences_file.h"
#include "shell/survey_clock.h"
#include "shell/trapped.h"
#include "shell/web_links.h"

namespace kav {

BrowserChoice HelpCommands::browser() const {
    const Preferences& preferences = workspace_.preferences();
    return {preferences.useInternetExplorer, preferences.browserPath};
}

void HelpCommands::start(const std::string& commandLine) {
    workspace_.platform().launcher.launch(commandLine, WindowStyle::MaximizedFocus);
}

void HelpCommands::rdme_Click() {
    trapped(workspace_, "rdme_Click", [this] {
        start(helpCommand(workspace_.platform().environment.variable("windir"),
                          workspace_.applicationFolder().path()));
    });
}

void HelpCommands::abt_Click() {
    trapped(workspace_, "abt_Click", [this] {
        workspace_.platform().boxes.show({std::string(kAboutText), std::string(kAboutTitle),
                                          BoxIcon::Information, BoxButtons::Ok, BoxAnswer::Ok});
    });
}

void HelpCommands::mwp_Click() {
    trapped(workspace_, "mwp_Click", [this] { start(webPageCommand(browser())); });
}

void HelpCommands::emlme_Click() {
    trapped(workspace_, "emlme_Click", [this] { start(mailCommand(browser())); });
}

void HelpCommands::takesurvay_Click() {
    trapped(workspace_, "takesurvay_Click", [this] { start(surveyCommand(browser())); });
}

void HelpCommands::offerSurvey() {
    const BoxAnswer answer =
        workspace_.platform().boxes.show({std::string(kSurveyText), std::string(kSurveyTitle), BoxIcon::None,
                                          BoxButtons::YesNo, BoxAnswer::Yes});
    if (answer != BoxAnswer::No) start(surveyCommand(browser()));
}

}  // namespace kav
