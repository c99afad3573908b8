// SPDX-License-Identifier: GPL-3.0-or-later
// The build script read as a launcher reads it that has no command interpreter.
#include "platform/batch_file.h"

#include "platform/dos_path.h"  // shortFolderName
#include "runtime/failure.h"
#include "runtime/files.h"
#include "runtime/lines.h"

#include <system_error>
#include <utility>
#include <vector>

namespace kav {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kChangeDirectory = "cd\\";
constexpr std::string_view kCommand = "asm";

Failure notAScript(const std::string& expected, std::string_view found) {
    return failureOf(kInvalidCall,
                     "the build script should have " + expected + ", not \"" + std::string(found) + "\"");
}

bool isDriveRoot(std::string_view line) {
    if (line.size() != 3 || line.substr(1) != ":\\") return false;
    const char letter = line.front();
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
}

std::vector<std::string_view> segmentsOf(std::string_view changeDirectory) {
    std::vector<std::string_view> segments;
    std::string_view rest = changeDirectory.substr(kChangeDirectory.size());
    while (!rest.empty()) {
        const std::size_t end = rest.find('\\');
        if (end != 0) segments.push_back(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return segments;
}

bool fits(const fs::path& folder, std::string_view segment) {
    const std::string name = bytesOf(folder.filename());
    return name == segment || shortFolderName(name) == segment;
}

/// False for what would lead elsewhere than one step down, whatever the desktop makes of it.
bool isFolderName(std::string_view segment) {
    constexpr std::string_view kNoPartOfAName("/\0", 2);
    return segment != "." && segment != ".." &&
           segment.find_first_of(kNoPartOfAName) == std::string_view::npos &&
           !pathOf(segment).has_root_name();
}

bool isFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

/// All folders in `parent` that the short name fits.
std::vector<fs::path> fittingFolders(const fs::path& parent, std::string_view segment) {
    std::vector<fs::path> found;
    std::error_code error;
    fs::directory_iterator entries(parent, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        if (fits(entries->path(), segment) && isFolder(entries->path())) found.push_back(entries->path());
    }
    if (error) throw failureOfCode(error, bytesOf(parent));
    return found;
}

/// The folder in `parent` that the segment means. `onTheWay`, where it fits, decides between neighbours
/// that share a short name; it needs no look into the parent, which may be closed to readers.
fs::path resolveSegment(const fs::path& parent, std::string_view segment, const fs::path& onTheWay) {
    if (!isFolderName(segment)) throw notAScript("folder names", segment);
    if (!onTheWay.empty() && fits(onTheWay, segment) && isFolder(onTheWay)) return onTheWay;
    fs::path exact = parent / pathOf(segment);
    if (isFolder(exact)) return exact;

    const std::vector<fs::path> found = fittingFolders(parent, segment);
    const std::string wanted = bytesOf(exact);
    if (found.empty()) throw failureOf(kPathNotFound, wanted);
    if (found.size() > 1) throw failureOf(kPathNotFound, wanted + " could be more than one folder");
    return found.front();
}

/// The names that lead from `root` to `folder`; none when it is not below.
std::vector<fs::path> wayTo(const fs::path& folder, const fs::path& root) {
    std::vector<fs::path> names;
    for (const fs::path& name : folder.lexically_normal().lexically_relative(root.lexically_normal())) {
        if (name == "..") return {};
        if (!name.empty() && name != ".") names.push_back(name);
    }
    return names;
}

}  // namespace

BatchFile parseBatchFile(std::string_view text) {
    const std::vector<std::string_view> lines = linesOf(text);
    if (lines.size() != 3) {
        throw notAScript("three lines", std::to_string(lines.size()) + " lines");
    }
    if (!isDriveRoot(lines[0])) throw notAScript("a drive such as Z:\\ in line 1", lines[0]);
    if (!lines[1].starts_with(kChangeDirectory)) {
        throw notAScript("a change of directory (cd\\...) in line 2", lines[1]);
    }
    const std::size_t blank = lines[2].find(' ');
    if (blank == std::string_view::npos || lines[2].substr(0, blank) != kCommand) {
        throw notAScript("asm and a program name in line 3", lines[2]);
    }
    return {std::string(lines[0]), std::string(lines[1]), std::string(kCommand),
            std::string(lines[2].substr(blank + 1))};
}

fs::path resolveShortPath(const fs::path& root, std::string_view changeDirectory,
                          const fs::path& applicationFolder) {
    if (!changeDirectory.starts_with(kChangeDirectory)) {
        throw notAScript("a change of directory (cd\\...)", changeDirectory);
    }
    const std::vector<fs::path> way = wayTo(applicationFolder, root);
    fs::path folder = root;
    bool onTheWay = true;
    std::size_t step = 0;
    for (const std::string_view segment : segmentsOf(changeDirectory)) {
        const fs::path next = onTheWay && step < way.size() ? folder / way[step] : fs::path();
        folder = resolveSegment(folder, segment, next);
        onTheWay = folder == next;
        ++step;
    }
    return folder;
}

}  // namespace kav
