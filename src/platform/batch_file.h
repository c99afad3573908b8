// SPDX-License-Identifier: GPL-3.0-or-later
// The build script read as a launcher reads it that has no command interpreter.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kav {

/// The build script's name in the application folder.
inline constexpr std::string_view kBatchFileName = "comp.bat";

/// The three lines of a build script.
struct BatchFile {
    std::string drive;            ///< "Z:\"
    std::string changeDirectory;  ///< "cd\Progra~1\MyTools~1\"
    std::string command;          ///< "asm"
    std::string arguments;        ///< the rest of the line, as it stands; may be empty
};

/// Takes the script apart. Raises 5, with what was expected in which line, for anything else than a drive,
/// a change of directory and a call of asm.
[[nodiscard]] BatchFile parseBatchFile(std::string_view text);

/// The folder that a change-directory line leads to from `root`, with short names resolved on disk. Of
/// several folders that a short name fits, the one on the way to `applicationFolder` is taken. Raises 5 for
/// a line that is no change of directory, 76 where no folder fits or the choice stays open.
[[nodiscard]] std::filesystem::path resolveShortPath(const std::filesystem::path& root,
                                                     std::string_view changeDirectory,
                                                     const std::filesystem::path& applicationFolder);

}  // namespace kav
