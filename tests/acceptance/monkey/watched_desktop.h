// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's boxes and file dialog, with an ear on what the user answers.
#pragma once

#include "platform/desktop/desktop_boxes.h"
#include "platform/desktop/desktop_file_chooser.h"

#include <optional>
#include <string>

namespace kav::test {

class Ledger;

/// Shows the desktop's boxes and tells the ledger which of them let a text go.
class WatchedBoxes : public DesktopBoxes {
  public:
    explicit WatchedBoxes(Ledger& ledger) : ledger_(ledger) {}

    BoxAnswer show(const MessageBox& box) override;
    std::string ask(const InputBox& box) override;

  private:
    Ledger& ledger_;
};

/// Shows the desktop's file dialog and tells the ledger when a save was called off. A choice outside the
/// folders that the ledger watches is called off, too.
class WatchedFileChooser : public DesktopFileChooser {
  public:
    explicit WatchedFileChooser(Ledger& ledger) : ledger_(ledger) {}

    std::optional<std::string> choose(const FileQuestion& question) override;

  private:
    Ledger& ledger_;
};

}  // namespace kav::test
