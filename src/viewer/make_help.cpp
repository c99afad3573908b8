// SPDX-License-Identifier: GPL-3.0-or-later
// kav-make-help: makes the help file out of a folder of pages. Usage: kav-make-help FOLDER HELP_FILE
#include "runtime/failure.h"
#include "runtime/files.h"
#include "viewer/book_maker.h"

#include <filesystem>
#include <iostream>
#include <string>

namespace {

namespace fs = std::filesystem;

/// The files of a folder with that extension, by name.
std::map<std::string, std::string> filesOf(const fs::path& folder, const std::string& extension) {
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() != extension) continue;
        files.emplace(entry.path().filename().string(), kav::readFile(entry.path().string()));
    }
    return files;
}

int make(const fs::path& folder, const std::string& helpFile) {
    const kav::viewer::MadeBook made =
        kav::viewer::makeBook({filesOf(folder, ".html"), filesOf(folder / "pictures", ".png")});
    for (const std::string& problem : made.problems)
        std::cerr << (folder / "").string() << problem << '\n';
    if (!made.problems.empty()) return 1;
    kav::writeFile(helpFile, made.html);
    return 0;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: kav-make-help FOLDER HELP_FILE\n";
        return 2;
    }
    try {
        return make(kav::pathOf(arguments[1]), arguments[2]);
    } catch (const kav::Failure& failure) {
        std::cerr << "kav-make-help: " << failure.description() << '\n';
    } catch (const std::exception& error) {
        std::cerr << "kav-make-help: " << error.what() << '\n';
    }
    return 3;
}
