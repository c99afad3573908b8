// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that start a new document.
#pragma once

#include <string>

namespace kav {

class Workspace;

/// New KAV File, New Ion File and New Asm File. The first two ask for a description and fill a template.
class TemplateCommands {
  public:
    explicit TemplateCommands(Workspace& workspace) : workspace_(workspace) {}

    void newer_Click();
    void newion_Click();
    void newasm_Click();

  private:
    using Template = std::string (*)(const std::string& description);
    void newFromTemplate(const char* title, Template fill);

    Workspace& workspace_;
};

}  // namespace kav
