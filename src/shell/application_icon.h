// SPDX-License-Identifier: GPL-3.0-or-later
// The program's icon.
#pragma once

#include <QIcon>

namespace kav {

/// A calculator with a green screen, drawn at every size that desktops ask for.
[[nodiscard]] QIcon applicationIcon();

}  // namespace kav
