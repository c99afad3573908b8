// SPDX-License-Identifier: GPL-3.0-or-later
// Files read and written whole, through the standard library.
#include "runtime/files.h"

#include "runtime/failure.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

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

File open(const fs::path& path, const char* mode, const std::string& shownPath) {
    errno = 0;
#ifdef _WIN32
    const std::wstring wideMode(mode, mode + std::char_traits<char>::length(mode));
    File file(_wfopen(path.c_str(), wideMode.c_str()));
#else
    File file(std::fopen(path.c_str(), mode));
#endif
    if (!file) throw openFailure(errno, shownPath);
    return file;
}

/// Writes and closes; a disk that is full may say so only when the file is closed.
void writeAndClose(File file, std::string_view content, const std::string& shownPath) {
    errno = 0;
    const bool written = std::fwrite(content.data(), 1, content.size(), file.get()) == content.size();
    const bool closed = std::fclose(file.release()) == 0;
    if (!written || !closed) throw failureOfErrno(errno, shownPath);
}

/// A name beside `target` that nobody uses.
fs::path neighbourOf(const fs::path& target) {
    std::error_code ignored;
    for (int number = 0;; ++number) {
        fs::path candidate = target;
        candidate += ".new" + std::to_string(number);
        if (!fs::exists(fs::symlink_status(candidate, ignored))) return candidate;
    }
}

}  // namespace

fs::path pathOf(std::string_view bytes) {
#ifdef _WIN32
    return fs::path(std::u8string(bytes.begin(), bytes.end()));
#else
    return {std::string(bytes)};
#endif
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

    const fs::path neighbour = neighbourOf(target);
    try {
        writeAndClose(open(neighbour, "wb", path), content, path);
    } catch (...) {
        fs::remove(neighbour, error);
        throw;
    }
    if (fs::exists(status)) fs::permissions(neighbour, status.permissions(), error);
    fs::rename(neighbour, target, error);
    if (error) {
        std::error_code ignored;
        fs::remove(neighbour, ignored);
        throw failureOfErrno(error.value(), path);
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
    throw error ? failureOfErrno(error.value(), path) : failureOf(kFileNotFound, path);
}

void makeFolder(const std::string& path) {
    checkName(path);
    std::error_code error;
    if (fs::create_directory(pathOf(path), error)) return;
    if (fileExists(path)) throw failureOf(kPathFileAccess, path);
    if (error.value() == ENOENT) throw failureOf(kPathNotFound, path);
    throw failureOfErrno(error.value(), path);
}

bool fileExists(const std::string& path) {
    std::error_code ignored;
    return fs::exists(pathOf(path), ignored);
}

}  // namespace kav
