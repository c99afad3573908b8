// SPDX-License-Identifier: GPL-3.0-or-later
// Paths in DOS form, as the build script holds them.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The drive whose root stands for the whole file tree of a desktop without drive letters.
inline constexpr char kRootDrive = 'Z';

/// The absolute path with slashes in DOS form: "/home/me/KAV" is "Z:\home\me\KAV". Raises 52 for a path
/// that is not absolute or that holds what the DOS form cannot: a backslash or a line break.
[[nodiscard]] std::string dosForm(std::string_view path);

/// The path that a DOS form on drive Z stands for. Raises 76 for any other drive.
[[nodiscard]] std::string slashForm(std::string_view dosPath);

/// The folder's name as the build script spells it: without its blanks and followed by "~1" when it has
/// any, cut to six characters and followed by "~1" when it is longer than eight. The number is always 1
/// and the case is kept, so neighbours may share a short name.
[[nodiscard]] std::string shortFolderName(std::string_view name);

}  // namespace kav
