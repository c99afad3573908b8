// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the reader of the build script with arbitrary scripts, and with scripts for arbitrary folders and
// names. The input holds a script, a folder and a program name, with a byte FF between them.
#include "build/build_files.h"
#include "expect.h"
#include "platform/batch_file.h"
#include "platform/dos_path.h"
#include "runtime/failure.h"
#include "support/temporary_folder.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace {

namespace fs = std::filesystem;

using kav::BatchFile;
using kav::fuzz::expect;
using kav::fuzz::takePart;

/// Some folders for scripts to lead to, and one beside them that no script may reach.
class Folders {
  public:
    Folders() {
        for (const char* name : {"Program Files/KAV", "Program Data", "My Tools", "MyTools~1", "Long Folder"})
            fs::create_directories(root() / name);
        fs::create_directories(folder_.path() / "outside");
        // The system's temporary folder may itself be a link.
        canonicalRoot_ = fs::canonical(root());
    }

    [[nodiscard]] fs::path root() const { return folder_.path() / "root"; }
    [[nodiscard]] fs::path applicationFolder() const { return root() / "Program Files" / "KAV"; }
    [[nodiscard]] bool hold(const fs::path& folder) const {
        return *fs::canonical(folder).lexically_relative(canonicalRoot_).begin() != "..";
    }

  private:
    kav::test::TemporaryFolder folder_;
    fs::path canonicalRoot_;
};

std::optional<BatchFile> parsed(std::string_view script) {
    try {
        return kav::parseBatchFile(script);
    } catch (const kav::Failure& failure) {
        expect(failure.number() == kav::kInvalidCall, "what is no script is refused as such");
        return std::nullopt;
    }
}

void checkFolder(const std::string& changeDirectory) {
    static const Folders folders;
    try {
        const fs::path folder =
            kav::resolveShortPath(folders.root(), changeDirectory, folders.applicationFolder());
        expect(fs::is_directory(folder), "a script leads to a folder that is there");
        expect(folders.hold(folder), "no script leads out of the root");
    } catch (const kav::Failure&) {
        // Most scripts lead nowhere.
    }
}

void checkScript(std::string_view script) {
    const auto batch = parsed(script);
    if (!batch) return;
    expect(batch->command == "asm", "a script calls nothing but asm");
    expect(batch->arguments.find_first_of("\r\n") == std::string::npos, "the arguments are one line");
    const std::string rewritten = batch->drive + "\r\n" + batch->changeDirectory + "\r\n" + batch->command +
                                  " " + batch->arguments + "\r\n";
    const auto again = parsed(rewritten);
    expect(again && again->drive == batch->drive && again->changeDirectory == batch->changeDirectory &&
               again->arguments == batch->arguments,
           "the three lines are all that a script holds");
    checkFolder(batch->changeDirectory);
}

/// The script that a build writes is the script that its launcher reads.
void checkWritten(const std::string& folder, const std::string& name) {
    std::string dosFolder;
    try {
        dosFolder = kav::dosForm("/" + folder);
    } catch (const kav::Failure& failure) {
        expect(failure.number() == kav::kBadFileName, "a folder without a DOS form is refused as such");
        return;
    }
    const auto batch = parsed(kav::batchFile(dosFolder, name));
    const bool hasLineBreak = name.find_first_of("\r\n") != std::string::npos;
    expect(batch.has_value() != hasLineBreak, "a name with a line break adds no command to a script");
    if (!batch) return;
    expect(batch->drive == "Z:\\", "the drive is the root's");
    expect(batch->changeDirectory == kav::changeDirectoryLine(dosFolder), "the folder is as it was written");
    expect(batch->arguments == name, "the name is as it was typed");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    std::string_view rest = input;
    checkScript(takePart(rest));
    const std::string folder(takePart(rest));
    const std::string name(takePart(rest));
    checkWritten(folder, name);
    return 0;
}
