// SPDX-License-Identifier: GPL-3.0-or-later
// The registry of file classes on Linux: a file of the user's, published to the desktop.
#include "platform/linux/linux_class_registry.h"

#include "runtime/failure.h"
#include "runtime/files.h"

#include <exception>
#include <filesystem>
#include <sstream>

namespace kav {

std::string LinuxClassRegistry::readable() const {
    try {
        return readFile(path_);
    } catch (const Failure&) {
        // Not there yet, or out of reach: no key is known then.
        return {};
    }
}

LinuxClassRegistry::Keys LinuxClassRegistry::read() const {
    Keys keys;
    std::istringstream lines(readable());
    for (std::string line; std::getline(lines, line);) {
        const std::size_t tab = line.find('\t');
        if (tab != std::string::npos) keys[line.substr(0, tab)] = line.substr(tab + 1);
    }
    return keys;
}

void LinuxClassRegistry::write(const Keys& keys) const {
    std::string text;
    for (const auto& [key, value] : keys)
        text.append(key).append("\t").append(value).append("\n");
    try {
        std::error_code ignored;
        std::filesystem::create_directories(pathOf(path_).parent_path(), ignored);
        writeFile(path_, text);
    } catch (const Failure&) {
        // What cannot be registered is passed over, as on every desktop.
        return;
    }
}

std::string LinuxClassRegistry::defaultValue(const std::string& key) {
    const Keys keys = read();
    const auto found = keys.find(key);
    return found == keys.end() ? std::string() : found->second;
}

void LinuxClassRegistry::createKey(const std::string& key) {
    Keys keys = read();
    for (std::size_t end = key.find('\\'); end != std::string::npos; end = key.find('\\', end + 1))
        keys.try_emplace(key.substr(0, end));
    keys.try_emplace(key);
    write(keys);
}

void LinuxClassRegistry::setDefaultValue(const std::string& key, const std::string& value) {
    Keys keys = read();
    const auto found = keys.find(key);
    if (found == keys.end()) return;
    found->second = value;
    write(keys);
}

void LinuxClassRegistry::announceChanges() {
    const auto sources = publishedClass(read());
    if (!sources) return;
    try {
        publication_.publish(*sources);
    } catch (const std::exception&) {
        // As above: a desktop that cannot be told is passed over.
        return;
    }
}

std::vector<std::string> LinuxClassRegistry::withdraw() {
    std::vector<std::string> files = publication_.withdraw();
    if (fileExists(path_)) {
        removeFile(path_);
        files.push_back(path_);
        std::error_code notEmpty;
        std::filesystem::remove(pathOf(path_).parent_path(), notEmpty);
    }
    return files;
}

}  // namespace kav
