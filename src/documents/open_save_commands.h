// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that move a document's text between its window and a file.
#pragma once

#include <string>

namespace kav {

class Doc;
class Workspace;

/// Open, recent files, Save, Save As and Save to Projects Folder. A text is written as it stands, with one
/// CR LF behind it. Failures, Cancel in a dialog among them, go to the reporter.
class OpenSaveCommands {
  public:
    explicit OpenSaveCommands(Workspace& workspace) : workspace_(workspace) {}

    void load_Click();
    /// Opens the file as Open does once it is chosen.
    void openFile(const std::string& path);
    /// Opens the recent file of that path. The path is a copy: opening moves the list that it comes from.
    void fil_Click(std::string path);
    void svenotas_Click();
    void sve_Click();
    void stpf_Click();

  private:
    void open(const std::string& path);
    void save();
    void saveAs();
    void saveToProjects();

    Workspace& workspace_;
};

}  // namespace kav
