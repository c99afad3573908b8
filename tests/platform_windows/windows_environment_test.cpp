// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/windows_environment.h"

#include "platform/windows/wide_text.h"
#include "platform/windows/windows_api.h"
#include "runtime/files.h"

#include <gtest/gtest.h>

namespace kav {

TEST(WideText, LeadsBack) {
    for (const char* text : {"", "hello", "\xC3\xA9\xE2\x82\xAC", "\xF0\x9F\x98\x80"}) {
        EXPECT_EQ(utf8Text(wideText(text)), text);
    }
    EXPECT_EQ(wideText("\xF0\x9F\x98\x80"), L"\xD83D\xDE00");
}

TEST(WideText, HasReplacementsForWhatIsNoText) {
    EXPECT_EQ(wideText("a\xFF"), L"a\xFFFD");
    EXPECT_EQ(utf8Text(L"a\xD83D"), "a\xEF\xBF\xBD");
}

TEST(WindowsVariable, IsUtf8) {
    SetEnvironmentVariableW(L"KAV_TEST_VARIABLE", L"C:\\\x00E9 \x20AC");
    EXPECT_EQ(windowsVariable("KAV_TEST_VARIABLE"), "C:\\\xC3\xA9 \xE2\x82\xAC");
    EXPECT_EQ(windowsVariable("kav_test_variable"), "C:\\\xC3\xA9 \xE2\x82\xAC");
}

TEST(WindowsVariable, IsEmptyWhenItIsMissingOrEmpty) {
    EXPECT_EQ(windowsVariable("KAV_TEST_NO_SUCH_VARIABLE"), "");
    SetEnvironmentVariableW(L"KAV_TEST_VARIABLE", L"");
    EXPECT_EQ(windowsVariable("KAV_TEST_VARIABLE"), "");
}

TEST(WindowsVariable, NamesTheSystemsFolder) {
    EXPECT_TRUE(fileExists(ApplicationFolder(windowsVariable("windir")).file("notepad.exe")));
}

TEST(WindowsProgramFolder, HoldsTheProgramFile) {
    const ApplicationFolder folder = windowsProgramFolder();
    EXPECT_TRUE(fileExists(folder.file("platform_windows_test.exe")));
}

TEST(WindowsProgramFolder, IsInTheSystemsForm) {
    const std::string path = windowsProgramFolder().path();
    EXPECT_EQ(path.substr(1, 2), ":\\");
    EXPECT_EQ(path.find('/'), std::string::npos);
    EXPECT_FALSE(path.ends_with('\\'));
}

}  // namespace kav
