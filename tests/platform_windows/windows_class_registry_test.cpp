// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/windows_class_registry.h"

#include "settings/registration_plan.h"

#include <gtest/gtest.h>
#include <string>

namespace kav {

namespace {

/// Works under a key of its own, which is gone afterwards with all that is in it.
class ClassRegistryOnWindows : public testing::Test {
  protected:
    ClassRegistryOnWindows() {
        name_ = L"Software\\kav-compiler-test-" + std::to_wstring(GetCurrentProcessId());
        RegCreateKeyExW(HKEY_CURRENT_USER, name_.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &root_,
                        nullptr);
    }
    ~ClassRegistryOnWindows() override {
        RegDeleteTreeW(HKEY_CURRENT_USER, name_.c_str());
        RegCloseKey(root_);
    }
    ClassRegistryOnWindows(const ClassRegistryOnWindows&) = delete;
    ClassRegistryOnWindows& operator=(const ClassRegistryOnWindows&) = delete;

    bool exists(const wchar_t* key) {
        HKEY opened = nullptr;
        if (RegOpenKeyExW(root_, key, 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
        RegCloseKey(opened);
        return true;
    }

    /// The key's default value as the registry keeps it, with its terminating zero.
    std::wstring stored(const wchar_t* key, DWORD& type) {
        wchar_t value[256];
        DWORD size = sizeof value;
        if (RegGetValueW(root_, key, nullptr, RRF_RT_ANY, &type, value, &size) != ERROR_SUCCESS)
            return L"none";
        return {value, size / sizeof(wchar_t)};
    }

    void store(const wchar_t* key, DWORD type, const void* value, DWORD size) {
        RegSetKeyValueW(root_, key, nullptr, type, value, size);
    }

    std::wstring name_;
    HKEY root_ = nullptr;
};

}  // namespace

TEST_F(ClassRegistryOnWindows, ReadsBackWhatWasSet) {
    WindowsClassRegistry registry(root_);
    registry.createKey("Z80AsmSrc\\shell\\open\\command");
    registry.setDefaultValue("Z80AsmSrc\\shell\\open\\command", "C:\\KAV\\KAV Compiler.exe %1");
    EXPECT_EQ(registry.defaultValue("Z80AsmSrc\\shell\\open\\command"), "C:\\KAV\\KAV Compiler.exe %1");
    EXPECT_TRUE(exists(L"Z80AsmSrc\\shell"));
    EXPECT_EQ(registry.defaultValue("Z80AsmSrc\\shell"), "");
}

TEST_F(ClassRegistryOnWindows, StoresTextWithItsTerminatingZero) {
    WindowsClassRegistry registry(root_);
    registry.createKey("a");
    registry.setDefaultValue("a", "Z80 \xC3\xA9\xE2\x82\xAC");
    DWORD type = REG_NONE;
    EXPECT_EQ(stored(L"a", type), std::wstring(L"Z80 \x00E9\x20AC\0", 7));
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(registry.defaultValue("a"), "Z80 \xC3\xA9\xE2\x82\xAC");
    registry.setDefaultValue("a", "");
    EXPECT_EQ(stored(L"a", type), std::wstring(1, L'\0'));
    EXPECT_EQ(registry.defaultValue("a"), "");
}

TEST_F(ClassRegistryOnWindows, ReadsTextThatWasStoredWithoutAZero) {
    WindowsClassRegistry registry(root_);
    store(L"a", REG_SZ, L"text", 4 * sizeof(wchar_t));
    EXPECT_EQ(registry.defaultValue("a"), "text");
}

TEST_F(ClassRegistryOnWindows, HasEmptyTextForWhatIsMissing) {
    WindowsClassRegistry registry(root_);
    EXPECT_EQ(registry.defaultValue(".z80"), "");
    registry.createKey(".z80");
    EXPECT_EQ(registry.defaultValue(".z80"), "");
}

TEST_F(ClassRegistryOnWindows, SettingMakesNoKey) {
    WindowsClassRegistry registry(root_);
    registry.setDefaultValue(".z80", "Z80AsmSrc");
    EXPECT_FALSE(exists(L".z80"));
}

TEST_F(ClassRegistryOnWindows, CreatingKeepsTheValueThatIsThere) {
    WindowsClassRegistry registry(root_);
    registry.createKey("a");
    registry.setDefaultValue("a", "text");
    registry.createKey("a");
    EXPECT_EQ(registry.defaultValue("a"), "text");
}

TEST_F(ClassRegistryOnWindows, DeletesValuesAndKeysForAnUninstaller) {
    WindowsClassRegistry registry(root_);
    registry.createKey("a\\b");
    registry.setDefaultValue("a", "text");
    registry.deleteDefaultValue("a");
    EXPECT_TRUE(exists(L"a\\b"));
    DWORD type = REG_NONE;
    EXPECT_EQ(stored(L"a", type), L"none");
    registry.deleteKey("a\\b");
    EXPECT_FALSE(exists(L"a\\b"));
    registry.deleteKey("a");
    EXPECT_FALSE(exists(L"a"));
}

TEST_F(ClassRegistryOnWindows, PassesOverWhatItCannotReach) {
    WindowsClassRegistry registry(nullptr);
    registry.createKey("a");
    registry.setDefaultValue("a", "text");
    registry.deleteDefaultValue("a");
    registry.deleteKey("a");
    EXPECT_EQ(registry.defaultValue("a"), "");
}

// The registration itself, step by step, as the dialog's Ok carries it out.
TEST_F(ClassRegistryOnWindows, TakesTheRegistration) {
    WindowsClassRegistry registry(root_);
    const ReadDefaultValue read = [&](const std::string& key) { return registry.defaultValue(key); };
    const auto register_ = [&] {
        RegistrationBoxes boxes;
        boxes.z80 = true;
        boxes.kvf = true;
        const auto plan = registrationPlan(boxes, "C:\\KAV", read);
        for (const RegistryStep& step : plan) {
            if (step.kind == RegistryStep::Kind::createKey) registry.createKey(step.key);
            if (step.kind == RegistryStep::Kind::setDefaultValue)
                registry.setDefaultValue(step.key, step.value);
        }
        return plan.size();
    };
    register_();
    EXPECT_FALSE(exists(L".z80"));
    EXPECT_EQ(registry.defaultValue(".kvf"), "Z80AsmSrc");
    EXPECT_EQ(registry.defaultValue("Z80AsmSrc"), "Z80 Assembly Source");
    EXPECT_EQ(registry.defaultValue("Z80AsmSrc\\DefaultIcon"), "C:\\KAV\\KAV Compiler.exe,1");
    EXPECT_EQ(registry.defaultValue("Z80AsmSrc\\shell\\open\\command"), "C:\\KAV\\KAV Compiler.exe %1");
    EXPECT_EQ(registry.defaultValue("Z80AsmSrc\\shell\\Compile\\command"), "C:\\KAV\\KAV Compiler.exe %1 &");
    // The second time only the extensions are left to do.
    EXPECT_EQ(register_(), 4U);
}

}  // namespace kav
