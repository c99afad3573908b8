// SPDX-License-Identifier: GPL-3.0-or-later
// The Tools menu's entries for the user's own tools.
#pragma once

#include <cstddef>

#include <QPointer>

namespace kav {

class custset;
class Workspace;

/// Starts the tools and shows the dialog that names them.
class CustomToolCommands {
  public:
    explicit CustomToolCommands(Workspace& workspace);
    ~CustomToolCommands();
    CustomToolCommands(const CustomToolCommands&) = delete;
    CustomToolCommands& operator=(const CustomToolCommands&) = delete;

    /// Starts the tool of that place, 0 to 2. A tool that cannot be started ends the command quietly.
    void set1_Click(std::size_t index);

    /// Shows the dialog. A preferences file that cannot be read leaves as Failure.
    void setall_Click();

  private:
    Workspace& workspace_;
    QPointer<custset> dialog_;
};

}  // namespace kav
