// SPDX-License-Identifier: GPL-3.0-or-later
// Files read and written whole, through the standard library.
#include "runtime/files.h"

#include "runtime/disk_flush.h"
#include "runtime/failure.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <memory>
#include <random>
#include <system_error>
#include <utility>
#include <vector>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#endif

namespace kav {

namespace fs = std::filesystem;

namespace {

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

/// A file that cannot be opened because its folder is not there is the runtime's 76, not 53.
Failure openFailure(int errorNumber, const std::string& path) {
    std::error_code ignored;
    const fs::path parent = pathOf(path).parent_path();
    if (errorNumber == ENOENT && !parent.empty() && !fs::is_directory(parent, ignored)) {
        return failureOf(kPathNotFound, path);
    }
    return failureOfErrno(errorNumber, path);
}

void checkName(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) throw failureOf(kBadFileName, path);
}

#ifdef _WIN32
/// As fopen does. The C library of older Windows knows no "x", the wish to make the file or fail.
std::FILE* openFile(const fs::path& path, const std::string& mode) {
    if (mode != "wbx") return _wfopen(path.c_str(), std::wstring(mode.begin(), mode.end()).c_str());
    const int made = _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _S_IREAD | _S_IWRITE);
    return made < 0 ? nullptr : _fdopen(made, "wb");
}
#else
std::FILE* openFile(const fs::path& path, const char* mode) {
    return std::fopen(path.c_str(), mode);
}
#endif

File open(const fs::path& path, const char* mode, const std::string& shownPath) {
    errno = 0;
    File file(openFile(path, mode));
    if (!file) throw openFailure(errno, shownPath);
    return file;
}

/// Whether the new content has to be on the disk before it takes the old one's place.
enum class Flush { No, Yes };

/// Writes and closes; a disk that is full may say so only when the file is flushed or closed.
void writeAndClose(File file, std::string_view content, const std::string& shownPath,
                   Flush flush = Flush::No) {
    errno = 0;
    const bool written = std::fwrite(content.data(), 1, content.size(), file.get()) == content.size() &&
                         (flush == Flush::No || flushToDisk(*file));
    const int writeError = errno;
    const bool closed = std::fclose(file.release()) == 0;
    if (!written) throw failureOfErrno(writeError, shownPath);
    if (!closed) throw failureOfErrno(errno, shownPath);
}

constexpr std::string_view kNeighbourStart = ".kav-";
constexpr std::string_view kNeighbourEnd = ".new";
constexpr std::size_t kNeighbourDigits = 16;

/// A name that no other program thinks of. It does not grow with the target's, which may be as long as
/// names can be.
std::string neighbourName() {
    constexpr std::string_view kHexDigits = "0123456789abcdef";
    std::random_device random;
    std::string name(kNeighbourStart);
    for (std::size_t i = 0; i < kNeighbourDigits; ++i)
        name += kHexDigits[random() % kHexDigits.size()];
    return name.append(kNeighbourEnd);
}

/// New content in a file beside its target, which goes again unless it takes the target's place.
class Neighbour {
  public:
    Neighbour(fs::path target, std::string_view content, const std::string& shownPath, Flush flush)
        : target_(std::move(target)), shownPath_(shownPath), flush_(flush) {
        path_ = target_.parent_path() / neighbourName();
        File file = open(path_, "wbx", shownPath);
        try {
            writeAndClose(std::move(file), content, shownPath, flush);
        } catch (...) {
            remove();
            throw;
        }
    }
    ~Neighbour() { remove(); }
    Neighbour(const Neighbour&) = delete;
    Neighbour& operator=(const Neighbour&) = delete;

    void setPermissions(fs::perms permissions) const {
        std::error_code ignored;
        fs::permissions(path_, permissions, ignored);
    }

    void takePlace() {
        std::error_code error;
        fs::rename(path_, target_, error);
        if (error) throw openFailure(error.value(), shownPath_);
        path_.clear();
        if (flush_ == Flush::Yes) flushFolderToDisk(target_.parent_path());
    }

    /// Takes the target's name if it is free. Of two programs that try at once, one succeeds.
    bool takeFreePlace() {
        std::error_code error;
        fs::create_hard_link(path_, target_, error);
        if (!error) {
            if (flush_ == Flush::Yes) flushFolderToDisk(target_.parent_path());
            return true;
        }
        return !fs::exists(fs::symlink_status(target_, error)) && takeClaimedPlace();
    }

  private:
    /// Where files cannot have two names, an empty one claims the place.
    bool takeClaimedPlace() {
        std::error_code ignored;
        try {
            open(target_, "wbx", shownPath_);
        } catch (const Failure&) {
            if (fs::exists(fs::symlink_status(target_, ignored))) return false;
            throw;
        }
        try {
            takePlace();
        } catch (const Failure&) {
            fs::remove(target_, ignored);
            throw;
        }
        return true;
    }

    void remove() const {
        std::error_code ignored;
        if (!path_.empty()) fs::remove(path_, ignored);
    }

    fs::path target_;
    fs::path path_;
    const std::string& shownPath_;
    Flush flush_;
};

void replaceFile(const std::string& path, std::string_view content, Flush flush) {
    checkName(path);
    std::error_code error;
    fs::path target = pathOf(path);
    if (fs::is_symlink(target, error)) target = fs::weakly_canonical(target, error);
    const fs::file_status status = fs::status(target, error);
    // Devices, pipes and folders are no files to be replaced by a rename.
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        if (fs::is_directory(status)) throw failureOf(kPathFileAccess, path);
        writeAndClose(open(target, "wb", path), content, path);
        return;
    }
    // Renaming would pass over a write protection that opening respects.
    if (fs::exists(status)) open(target, "ab", path);

    Neighbour neighbour(target, content, path, flush);
    if (fs::exists(status)) neighbour.setPermissions(status.permissions());
    neighbour.takePlace();
}

}  // namespace

fs::path pathOf(std::string_view bytes) {
#ifdef _WIN32
    return fs::path(std::u8string(bytes.begin(), bytes.end()));
#else
    return {std::string(bytes)};
#endif
}

std::string bytesOf(const fs::path& path) {
    // Unlike `string`, this is UTF-8 where paths are wide, and the bytes themselves elsewhere.
    const std::u8string bytes = path.u8string();
    return {bytes.begin(), bytes.end()};
}

std::string folderOf(const std::string& path) {
    const std::string folder = bytesOf(pathOf(path).parent_path());
    return folder.empty() ? "." : folder;
}

std::string readFile(const std::string& path) {
    checkName(path);
    std::error_code ignored;
    if (fs::is_directory(pathOf(path), ignored)) throw failureOf(kPathFileAccess, path);
    const File file = open(pathOf(path), "rb", path);
    std::string content;
    const auto size = fs::file_size(pathOf(path), ignored);
    if (!ignored) content.reserve(static_cast<std::size_t>(size));
    char buffer[65536];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get())) {
        content.append(buffer, count);
    }
    if (std::ferror(file.get()) != 0) throw failureOfErrno(errno, path);
    return content;
}

void writeFile(const std::string& path, std::string_view content) {
    replaceFile(path, content, Flush::No);
}

void saveFile(const std::string& path, std::string_view content) {
    replaceFile(path, content, Flush::Yes);
}

bool saveNewFile(const std::string& path, std::string_view content) {
    checkName(path);
    if (fileExists(path)) return false;
    return Neighbour(pathOf(path), content, path, Flush::Yes).takeFreePlace();
}

bool isSaveLeftover(std::string_view name) {
    return name.size() == kNeighbourStart.size() + kNeighbourDigits + kNeighbourEnd.size() &&
           name.starts_with(kNeighbourStart) && name.ends_with(kNeighbourEnd);
}

void removeSaveLeftovers(const std::string& folder) {
    // A younger one may be a save that another program is in the midst of.
    constexpr std::chrono::hours kOldEnough{1};
    std::error_code error;
    std::vector<fs::path> found;
    for (fs::directory_iterator entry(pathOf(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        if (isSaveLeftover(bytesOf(entry->path().filename()))) found.push_back(entry->path());
    }
    const auto now = fs::file_time_type::clock::now();
    for (const fs::path& leftover : found) {
        const auto written = fs::last_write_time(leftover, error);
        if (!error && now - written > kOldEnough) fs::remove(leftover, error);
    }
}

void appendToFile(const std::string& path, std::string_view content) {
    checkName(path);
    writeAndClose(open(pathOf(path), "ab", path), content, path);
}

void copyFile(const std::string& from, const std::string& to) {
    writeFile(to, readFile(from));
}

void removeFile(const std::string& path) {
    checkName(path);
    std::error_code error;
    if (fs::is_directory(fs::symlink_status(pathOf(path), error))) throw failureOf(kPathFileAccess, path);
    if (fs::remove(pathOf(path), error)) return;
    throw error ? failureOfCode(error, path) : failureOf(kFileNotFound, path);
}

void makeFolder(const std::string& path) {
    checkName(path);
    std::error_code error;
    if (fs::create_directory(pathOf(path), error)) return;
    if (fileExists(path)) throw failureOf(kPathFileAccess, path);
    if (error == std::errc::no_such_file_or_directory) throw failureOf(kPathNotFound, path);
    throw failureOfCode(error, path);
}

bool fileExists(const std::string& path) {
    std::error_code ignored;
    return fs::exists(pathOf(path), ignored);
}

}  // namespace kav
