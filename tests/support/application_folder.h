// SPDX-License-Identifier: GPL-3.0-or-later
// An application folder that has what a build needs, for tests that build programs.
#pragma once

#include "build_protocol/build.h"
#include "program_file/program_file.h"
#include "runtime/files.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>

namespace kav::test {

/// Has the project's include files and preferences that tick both calculators or one.
class ApplicationFolder {
  public:
    explicit ApplicationFolder(const std::string& includeFolder) {
        std::filesystem::copy(includeFolder, folder_.path() / "include");
        tick(true, true);
    }

    void tick(bool make83p, bool make8xp) {
        const std::string flags = std::string(make83p ? " 1 " : " 0 ") + "\r\n" + (make8xp ? " 1 " : " 0 ");
        writeFile(file("prefs.ini"), "header\r\nfont\r\n12\r\n" + flags + "\r\n");
    }

    /// Builds the source under the name. Throws std::runtime_error with the listing when the verdict is
    /// failure.
    void build(const std::string& name, const std::string& source) {
        writeFile(file(name + ".z80"), source);
        std::ostringstream summary;
        if (runBuild(folder_.path().string(), name, summary) != 0) throw std::runtime_error(summary.str());
    }

    [[nodiscard]] Program program(const std::string& name, Calculator calculator) const {
        return readProgram(file(name + programExtension(calculator)));
    }
    [[nodiscard]] std::string file(const std::string& name) const { return folder_.file(name); }

  private:
    TemporaryFolder folder_;
};

}  // namespace kav::test
