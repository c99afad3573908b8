// SPDX-License-Identifier: GPL-3.0-or-later
// unregister-file-types: takes back what the program's Registry dialog has told the desktop.
#include "platform/linux/linux_class_registry.h"

#include <exception>
#include <iostream>

int main() {
    try {
        const auto files = kav::LinuxClassRegistry(kav::UserFolders::ofUser()).withdraw();
        if (files.empty()) std::cout << "No file types are registered.\n";
        for (const std::string& file : files)
            std::cout << "Taken back: " << file << '\n';
    } catch (const std::exception& error) {
        std::cerr << "unregister-file-types: " << error.what() << '\n';
        return 1;
    }
}
