// SPDX-License-Identifier: GPL-3.0-or-later
// The file name of an unsaved document's copy.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The name of a document's copy: "game in mygames (unsaved).z80" for /home/a/mygames/game.z80,
/// "Untitled 3 (unsaved).kvf" for document 3 that has no file yet. It ends like the document's own file where
/// the Open dialog lists such files, else in .kvf; it is UTF-8, and a name that every file system takes.
/// `attempt` counts from 1: names of the same document that are taken already are followed by
/// "... (unsaved 2).z80" and so on.
[[nodiscard]] std::string recoveryName(int documentNumber, std::string_view documentName, int attempt);

}  // namespace kav
