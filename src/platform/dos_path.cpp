// SPDX-License-Identifier: GPL-3.0-or-later
// Paths in DOS form, as the build script holds them.
#include "platform/dos_path.h"

#include "runtime/code_points.h"
#include "runtime/failure.h"

#include <algorithm>

namespace kav {

namespace {

constexpr std::size_t kLongestName = 8;
constexpr std::size_t kShortenedName = 6;

bool isDrive(char letter, char drive) {
    return letter == drive || letter == drive - 'A' + 'a';
}

}  // namespace

std::string dosForm(std::string_view path) {
    if (!path.starts_with('/')) throw failureOf(kBadFileName, std::string(path) + " is not an absolute path");
    if (path.find_first_of("\\\r\n") != std::string_view::npos) {
        throw failureOf(kBadFileName,
                        std::string(path) + " holds a backslash or a line break, which no script can name");
    }
    std::string form{kRootDrive, ':'};
    form += path;
    std::replace(form.begin(), form.end(), '/', '\\');
    return form;
}

std::string slashForm(std::string_view dosPath) {
    const bool known =
        dosPath.size() >= 3 && isDrive(dosPath[0], kRootDrive) && dosPath[1] == ':' && dosPath[2] == '\\';
    if (!known) {
        throw failureOf(kPathNotFound, std::string(dosPath) + " is not on drive " + kRootDrive + ":");
    }
    std::string path(dosPath.substr(2));
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string shortFolderName(std::string_view name) {
    std::string letters(name);
    const bool hasBlanks = std::erase(letters, ' ') > 0;
    if (characterCount(letters) > kLongestName) return firstCharacters(letters, kShortenedName) + "~1";
    return hasBlanks ? letters + "~1" : letters;
}

}  // namespace kav
