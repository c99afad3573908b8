// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's one file dialog, whose settings outlive each use.
#pragma once

#include "platform/file_chooser.h"

#include <string>

namespace kav {

/// `cd`: every command that opens or saves uses this one dialog. Its title, filter, file name, initial
/// folder and cancel switch stay as the last user left them.
class CommonDialog {
  public:
    explicit CommonDialog(FileChooser& chooser) : chooser_(chooser) {}

    std::string title;
    std::string filter;
    /// Preset before a dialog is shown, the full path chosen afterwards.
    std::string fileName;
    std::string initialFolder;
    /// On: Cancel raises failure 32755 and leaves `fileName`. Off: Cancel empties `fileName`.
    bool cancelError = false;

    void showOpen() { show(FileQuestion::Kind::Open); }
    void showSave() { show(FileQuestion::Kind::Save); }

  private:
    void show(FileQuestion::Kind kind);

    FileChooser& chooser_;
};

}  // namespace kav
