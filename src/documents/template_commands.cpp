// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that start a new document.
#include "documents/template_commands.h"

#include "documents/caption.h"
#include "documents/templates.h"
#include "shell/trapped.h"

namespace kav {

void TemplateCommands::newer_Click() {
    trapped(workspace_, "newer_Click", [this] { newFromTemplate(kNewKavTitle, kavTemplate); });
}

void TemplateCommands::newion_Click() {
    trapped(workspace_, "newion_Click", [this] { newFromTemplate(kNewIonTitle, ionTemplate); });
}

void TemplateCommands::newasm_Click() {
    trapped(workspace_, "newasm_Click", [this] {
        workspace_.values().nextDocumentTitle = kUntitled;
        workspace_.newfile("");
    });
}

void TemplateCommands::nmf_Click() {
    showWizard_(MirageKind::standard);
}

void TemplateCommands::mirageexitcodefile_Click() {
    showWizard_(MirageKind::withExitCode);
}

void TemplateCommands::newFromTemplate(const char* title, Template fill) {
    const std::string answer =
        workspace_.platform().boxes.ask({kDescriptionPrompt, title, kDescriptionDefault});
    const auto description = descriptionFrom(answer);
    if (!description) return;
    workspace_.values().nextDocumentTitle = kUntitled;
    workspace_.newfile(fill(*description));
}

}  // namespace kav
