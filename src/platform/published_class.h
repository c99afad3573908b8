// SPDX-License-Identifier: GPL-3.0-or-later
// What a desktop of the freedesktop.org kind has to know of the registered source files.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// The MIME type of registered source files. It is the program's own, so that no other program's choice for
/// plain text or other assemblers is touched.
inline constexpr std::string_view kSourceMimeType = "text/x-kav-z80";

/// Names of the desktop entries: the program, and "Compile" as file managers offer it for a file.
inline constexpr std::string_view kProgramEntry = "kav-compiler.desktop";
inline constexpr std::string_view kCompileEntry = "kav-compiler-compile.desktop";

/// The icon's name in icon themes.
inline constexpr std::string_view kIconName = "kav-compiler";

/// The variable that asks the program to start a build as soon as its window is up, with "1".
inline constexpr const char* kCompileVariable = "KAV_COMPILE";

/// The source class as it is registered.
struct PublishedClass {
    std::string description;              ///< "Z80 Assembly Source"
    std::vector<std::string> extensions;  ///< with their period: ".kvf"
    std::string applicationFolder;

    bool operator==(const PublishedClass&) const = default;

    /// The path of the program file, which the class names as it is called elsewhere.
    [[nodiscard]] std::string program() const { return applicationFolder + "/kav-compiler"; }
};

/// The source class that the registry's keys tell of; nothing while its commands are not registered.
/// Extensions that are not a period and letters or digits are no file name's and left out.
[[nodiscard]] std::optional<PublishedClass> publishedClass(const std::map<std::string, std::string>& keys);

/// The shared MIME-info package: the type, and its file names (Shared MIME-info Database, 0.21).
[[nodiscard]] std::string mimePackage(const PublishedClass& sources);

/// The desktop entry of the program, with the action "Compile" (Desktop Entry Specification, 1.5).
[[nodiscard]] std::string programEntry(const PublishedClass& sources);

/// The desktop entry that stands among the programs that a file can be opened with, and in no menu:
/// "Compile".
[[nodiscard]] std::string compileEntry(const PublishedClass& sources);

/// `argument` as one argument of an Exec line. One with reserved characters or percent signs is quoted, these
/// are escaped, and the whole is escaped once more as every value is.
[[nodiscard]] std::string execArgument(std::string_view argument);

}  // namespace kav
