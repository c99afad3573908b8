// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the readers of the preferences file, the main window's and the dialogs', with arbitrary files.
#include "expect.h"
#include "runtime/failure.h"
#include "runtime/lines.h"
#include "settings/preferences_table.h"
#include "shell/preferences_file.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace {

using kav::Preferences;
using kav::fuzz::expect;

std::optional<Preferences> parsed(std::string_view text) {
    const bool isWhole = kav::linesOf(text).size() >= kav::kPreferenceLines;
    try {
        const Preferences preferences = kav::parsePreferences(text);
        expect(isWhole, "a file that is too short is refused");
        return preferences;
    } catch (const kav::Failure& failure) {
        expect(failure.number() == kav::kInputPastEnd, "a refused file is too short");
        expect(!isWhole, "a whole file is read");
        return std::nullopt;
    }
}

/// The main window's exit and next start.
void checkRewritten(Preferences preferences) {
    const std::string text = kav::formatPreferences(preferences);
    expect(kav::linesOf(text).size() == kav::kPreferenceLines, "23 lines are written");
    const std::optional<Preferences> again = parsed(text);
    preferences.firstRun = false;
    expect(again == preferences, "what is written reads back, but for the first run, which is over");
    expect(kav::formatPreferences(*again) == text, "the second exit writes what the first one wrote");
}

/// A dialog that is opened and left with Ok, and the main window's next start.
void checkKeptByDialogs(std::string_view text, const Preferences& preferences) {
    const kav::PreferencesTable table(text);
    expect(parsed(table.fileText()) == preferences, "a dialog keeps what it does not show");
    const auto lines = kav::linesOf(text);
    for (std::size_t number = 1; number <= kav::kPreferenceLines; ++number)
        expect(table.line(number) == lines[number - 1], "a dialog sees the lines as they stand");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    if (const auto preferences = parsed(text)) {
        checkRewritten(*preferences);
        checkKeptByDialogs(text, *preferences);
    }
    return 0;
}
