// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that start a new document.
#pragma once

#include "tools/mirage_program.h"

#include <functional>
#include <string>
#include <utility>

namespace kav {

class Workspace;

/// The New commands. KAV and Ion files ask for a description and fill a template; Mirage files are the
/// wizard's business.
class TemplateCommands {
  public:
    /// `showWizard` opens the wizard for MirageOS programs with the given kind selected.
    using ShowWizard = std::function<void(MirageKind)>;
    TemplateCommands(Workspace& workspace, ShowWizard showWizard)
        : workspace_(workspace), showWizard_(std::move(showWizard)) {}

    void newer_Click();
    void newion_Click();
    void newasm_Click();
    void nmf_Click();
    void mirageexitcodefile_Click();

  private:
    using Template = std::string (*)(const std::string& description);
    void newFromTemplate(const char* title, Template fill);

    Workspace& workspace_;
    ShowWizard showWizard_;
};

}  // namespace kav
