// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's file dialog.
#pragma once

#include "platform/file_chooser.h"

namespace kav {

/// Shows the toolkit's own dialog, the same on every desktop. A name saved without an ending gets the one
/// of the chosen filter; replacing a file is asked about.
class DesktopFileChooser : public FileChooser {
  public:
    std::optional<std::string> choose(const FileQuestion& question) override;
};

}  // namespace kav
