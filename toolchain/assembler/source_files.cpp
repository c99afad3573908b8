// SPDX-License-Identifier: GPL-3.0-or-later
// Where source text comes from: the disk, or memory.
#include "assembler/source_files.h"

#include "assembler/characters.h"
#include "assembler/text.h"
#include "runtime/ascii_case.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>

namespace kav::assembler {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kLargestFile = 64U << 20;

fs::path pathOf(const std::string& bytes) {
#ifdef _WIN32
    return fs::u8path(bytes);
#else
    return fs::path(bytes);
#endif
}

/// The entry of `folder` called `name`: the exact name first, then any that differs in case alone.
std::optional<fs::path> entryOf(const fs::path& folder, const std::string& name) {
    std::error_code ignored;
    const fs::path exact = folder / pathOf(name);
    if (name == "." || name == ".." || fs::exists(exact, ignored)) return exact;
    const fs::path searched = folder.empty() ? fs::path(".") : folder;
    std::vector<fs::path> candidates;
    fs::directory_iterator entry(searched, ignored);
    for (const fs::directory_iterator end; !ignored && entry != end; entry.increment(ignored)) {
        const fs::path file = entry->path().filename();
        if (equalIgnoringCase(file.string(), name)) candidates.push_back(folder / file);
    }
    if (candidates.empty()) return std::nullopt;
    return *std::min_element(candidates.begin(), candidates.end());
}

/// The file that `name` leads to from `folder`, step by step.
std::optional<fs::path> resolved(fs::path folder, std::string_view name) {
    std::string rest(name);
    std::replace(rest.begin(), rest.end(), '\\', '/');
    const fs::path whole = pathOf(rest);
    if (whole.is_absolute()) folder = whole.root_path();
    for (const fs::path& step : whole.relative_path()) {
        if (step.empty()) continue;
        const std::optional<fs::path> found = entryOf(folder, step.string());
        if (!found) return std::nullopt;
        folder = *found;
    }
    return folder;
}

FoundSource problem(std::string text) {
    return {nullptr, std::move(text)};
}

}  // namespace

void MemorySourceFiles::add(const std::string& name, std::string text) {
    files_[lowered(name)] = std::make_shared<SourceFile>(SourceFile{name, name, std::move(text)});
}

FoundSource MemorySourceFiles::openMain(const std::string& name) {
    const auto found = files_.find(lowered(name));
    if (found == files_.end()) return problem("there is no such file");
    return {found->second, {}};
}

FoundSource MemorySourceFiles::openIncluded(std::string_view name, const SourceFile& /*includer*/) {
    return openMain(std::string(name));
}

FoundSource DiskSourceFiles::openMain(const std::string& name) {
    return open(name, pathOf(name).filename().string());
}

FoundSource DiskSourceFiles::openIncluded(std::string_view name, const SourceFile& includer) {
    if (name.find('\0') != std::string_view::npos) return problem("the name holds a NUL character");
    std::vector<fs::path> folders{pathOf(includer.path).parent_path()};
    for (const std::string& folder : includeFolders_)
        folders.push_back(pathOf(folder));
    for (const fs::path& folder : folders) {
        const std::optional<fs::path> path = resolved(folder, name);
        if (path) return open(path->string(), std::string(name));
    }
    return problem("there is no such file beside the source or in the include folders");
}

FoundSource DiskSourceFiles::open(const std::string& path, const std::string& name) {
    const auto known = opened_.find(path);
    if (known != opened_.end()) return {known->second, {}};
    std::error_code error;
    const fs::file_status status = fs::status(pathOf(path), error);
    if (!fs::exists(status)) return problem("there is no such file");
    if (fs::is_directory(status)) return problem("this is a folder");
    if (!fs::is_regular_file(status)) return problem("this is no ordinary file");
    const std::uintmax_t size = fs::file_size(pathOf(path), error);
    if (!error && size > kLargestFile) return problem("the file has more than 64 MB");
    std::ifstream stream(pathOf(path), std::ios::binary);
    std::string text(static_cast<std::size_t>(error ? 0 : size), '\0');
    if (!stream || !stream.read(text.data(), static_cast<std::streamsize>(text.size()))) {
        return problem("it cannot be read");
    }
    auto file = std::make_shared<SourceFile>(SourceFile{path, name, std::move(text)});
    opened_.emplace(path, file);
    return {file, {}};
}

}  // namespace kav::assembler
