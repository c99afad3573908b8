// SPDX-License-Identifier: GPL-3.0-or-later
// The program's icon.
#pragma once

#include <QIcon>
#include <QImage>

namespace kav {

/// The sizes that desktops ask for, in pixels.
inline constexpr int kIconSizes[] = {16, 32, 48, 64, 128, 256};

/// A calculator with a green screen, `size` pixels wide and high.
[[nodiscard]] QImage applicationPicture(int size);

/// That picture in all sizes.
[[nodiscard]] QIcon applicationIcon();

}  // namespace kav
