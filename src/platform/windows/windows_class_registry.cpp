// SPDX-License-Identifier: GPL-3.0-or-later
// Reads and writes the system's registry. What it refuses is passed over: class keys of all users are often
// closed to the one who runs the program.
#include "platform/windows/windows_class_registry.h"

#include <shlobj.h>
#include <string>

namespace kav {

namespace {

constexpr REGSAM kFullAccess = 0x3F;      // query, set, create, enumerate, notify, link
constexpr REGSAM kWriteAccess = 0x20006;  // set values, create keys, read the key's protection
constexpr const char* kDefaultValue = "";

/// An open key, closed at the end of its block.
class Key {
  public:
    Key(HKEY root, const std::string& name) {
        if (RegOpenKeyExA(root, name.c_str(), 0, kFullAccess, &handle_) != ERROR_SUCCESS) handle_ = nullptr;
    }
    ~Key() {
        if (handle_ != nullptr) RegCloseKey(handle_);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    explicit operator bool() const { return handle_ != nullptr; }
    [[nodiscard]] HKEY handle() const { return handle_; }

  private:
    HKEY handle_ = nullptr;
};

}  // namespace

std::string WindowsClassRegistry::defaultValue(const std::string& key) {
    const Key opened(root_, key);
    if (!opened) return {};
    DWORD size = 0;
    if (RegQueryValueExA(opened.handle(), kDefaultValue, nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS) {
        return {};
    }
    std::string value(size, '\0');
    auto* const bytes = reinterpret_cast<BYTE*>(value.data());
    if (RegQueryValueExA(opened.handle(), kDefaultValue, nullptr, nullptr, bytes, &size) != ERROR_SUCCESS) {
        return {};
    }
    value.resize(size);
    // Other programs may have stored a text without its terminating zero.
    if (value.ends_with('\0')) value.pop_back();
    return value;
}

void WindowsClassRegistry::createKey(const std::string& key) {
    char noClass[] = "";
    HKEY created = nullptr;
    const LSTATUS status = RegCreateKeyExA(root_, key.c_str(), 0, noClass, REG_OPTION_NON_VOLATILE,
                                           kWriteAccess, nullptr, &created, nullptr);
    if (status == ERROR_SUCCESS) RegCloseKey(created);
}

void WindowsClassRegistry::setDefaultValue(const std::string& key, const std::string& value) {
    const Key opened(root_, key);
    if (!opened) return;
    const auto* const bytes = reinterpret_cast<const BYTE*>(value.c_str());
    RegSetValueExA(opened.handle(), kDefaultValue, 0, REG_SZ, bytes, static_cast<DWORD>(value.size() + 1));
}

void WindowsClassRegistry::announceChanges() {
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

void WindowsClassRegistry::deleteDefaultValue(const std::string& key) {
    const Key opened(root_, key);
    if (opened) RegDeleteValueA(opened.handle(), kDefaultValue);
}

void WindowsClassRegistry::deleteKey(const std::string& key) {
    RegDeleteKeyA(root_, key.c_str());
}

}  // namespace kav
