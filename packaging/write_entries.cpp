// SPDX-License-Identifier: GPL-3.0-or-later
// write_entries FOLDER: writes the menu entry and the type of source files, as a package installs them for
// all.
#include "platform/published_class.h"
#include "runtime/files.h"

#include <exception>
#include <iostream>
#include <string>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: write_entries FOLDER\n";
        return 2;
    }
    const std::string folder = arguments[1];
    const kav::PublishedClass sources{"Z80 Assembly Source", {".kvf"}, "/usr/bin"};
    try {
        kav::writeFile(folder + "/applications/" + std::string(kav::kProgramEntry),
                       kav::programEntry(sources));
        kav::writeFile(folder + "/mime/packages/kav-compiler.xml", kav::mimePackage(sources));
    } catch (const std::exception& failure) {
        std::cerr << "write_entries: " << failure.what() << '\n';
        return 1;
    }
}
