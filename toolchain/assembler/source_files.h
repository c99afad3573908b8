// SPDX-License-Identifier: GPL-3.0-or-later
// Where source text comes from: the disk, or memory.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kav::assembler {

/// One file of source. `path` tells files apart, `name` is how messages call it.
struct SourceFile {
    std::string path;
    std::string name;
    std::string text;
};

/// The outcome of looking for a file: the file, or what is wrong ("there is no such file").
struct FoundSource {
    std::shared_ptr<const SourceFile> file;
    std::string problem;
};

/// Finds and keeps source files.
class SourceFiles {
  public:
    virtual ~SourceFiles() = default;

    /// The file that the user named.
    virtual FoundSource openMain(const std::string& name) = 0;

    /// The file that `includer` names in an #include.
    virtual FoundSource openIncluded(std::string_view name, const SourceFile& includer) = 0;
};

/// Source held in memory, by name without regard to case.
class MemorySourceFiles : public SourceFiles {
  public:
    void add(const std::string& name, std::string text);
    FoundSource openMain(const std::string& name) override;
    FoundSource openIncluded(std::string_view name, const SourceFile& includer) override;

  private:
    std::map<std::string, std::shared_ptr<const SourceFile>> files_;
};

/// Source on disk. An included file is looked for beside the file that includes it and then in the given
/// folders, without regard to case and with either slash between folders. A file is read once.
class DiskSourceFiles : public SourceFiles {
  public:
    explicit DiskSourceFiles(std::vector<std::string> includeFolders)
        : includeFolders_(std::move(includeFolders)) {}

    FoundSource openMain(const std::string& name) override;
    FoundSource openIncluded(std::string_view name, const SourceFile& includer) override;

  private:
    FoundSource open(const std::string& path, const std::string& name);

    std::vector<std::string> includeFolders_;
    std::map<std::string, std::shared_ptr<const SourceFile>> opened_;
};

}  // namespace kav::assembler
