// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's clipboard, as text.
#pragma once

#include <string>

namespace kav {

/// Text on the clipboard travels with the desktop's own line ends; here its lines always end in CR LF.
class Clipboard {
  public:
    virtual ~Clipboard() = default;

    virtual void clear() = 0;
    virtual void setText(const std::string& text) = 0;
    [[nodiscard]] virtual std::string text() = 0;
};

}  // namespace kav
