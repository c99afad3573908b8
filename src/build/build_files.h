// SPDX-License-Identifier: GPL-3.0-or-later
// What a build writes into the application folder, and what it remembers.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The build in progress. There is one; a new request overwrites it.
struct BuildState {
    std::string programName;
    char documentNumber = '0';  ///< first digit of the built document's number
    long taskId = 0;            ///< of the started script; kept, never read
    std::string lastBuildText;  ///< the tab pass over macro block and document; kept, never written
};

inline constexpr std::string_view kStatusFileName = "errLog.txt";
inline constexpr std::string_view kListingFileName = "temp.lst";

/// The status file's content while the script runs: the verdict "2" and CR LF.
inline constexpr std::string_view kStatusRunning = "2\r\n";

/// The built-in macros that stand in front of every document: ten lines, each ended by CR LF.
[[nodiscard]] std::string macroBlock();

/// The source file's content: the macro block, the document's text and CR LF.
[[nodiscard]] std::string buildSource(std::string_view documentText);

/// Turns the first blank of every line but the first into a TAB.
[[nodiscard]] std::string tabPass(std::string_view text);

/// The line that changes to the application folder ("C:\Program Files" gives "cd\Progra~1\"): long names
/// are shortened as shortFolderName does.
[[nodiscard]] std::string changeDirectoryLine(std::string_view applicationFolder);

/// The script: drive, change of directory and "asm " with the program name, each ended by CR LF. The
/// application folder is given in DOS form.
[[nodiscard]] std::string batchFile(std::string_view applicationFolder, std::string_view programName);

}  // namespace kav
