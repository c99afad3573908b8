// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences file's 23 lines: one table, read and written in its order.
#include "shell/preferences_file.h"

#include "runtime/failure.h"
#include "runtime/lines.h"
#include "runtime/number_text.h"

namespace kav {

namespace {

/// How the main window reads one line of the file and what it writes there on exit.
struct Line {
    const char* meaning;
    void (*read)(Preferences& preferences, std::string_view text);
    std::string (*write)(const Preferences& preferences);
};

constexpr std::string_view kHeader = "Don't modify/move/delete this file. It contains KAV Compiler's files.";

/// A line that is read past, and always written the same.
template <const std::string_view& Text>
constexpr Line fixedLine(const char* meaning) {
    return {meaning, [](Preferences&, std::string_view) {},
            [](const Preferences&) { return std::string(Text); }};
}

template <std::string Preferences::*Value>
constexpr Line textLine(const char* meaning) {
    return {meaning, [](Preferences& preferences, std::string_view text) { preferences.*Value = text; },
            [](const Preferences& preferences) { return preferences.*Value; }};
}

template <bool Preferences::*Value>
constexpr Line flagLine(const char* meaning) {
    return {meaning,
            [](Preferences& preferences, std::string_view text) { preferences.*Value = flagValue(text); },
            [](const Preferences& preferences) { return printForm(preferences.*Value ? 1 : 0); }};
}

template <std::size_t Tool, std::string Preferences::CustomTool::*Value>
constexpr Line toolLine(const char* meaning) {
    return {
        meaning,
        [](Preferences& preferences, std::string_view text) { preferences.customTools[Tool].*Value = text; },
        [](const Preferences& preferences) { return preferences.customTools[Tool].*Value; }};
}

template <std::size_t Slot>
constexpr Line recentFileLine(const char* meaning) {
    return {meaning,
            [](Preferences& preferences, std::string_view text) { preferences.recentFiles[Slot] = text; },
            [](const Preferences& preferences) { return preferences.recentFiles[Slot]; }};
}

constexpr Line fontSizeLine(const char* meaning) {
    return {meaning,
            [](Preferences& preferences, std::string_view text) {
                preferences.fontSize = roundedInt16(numericValue(text));
            },
            [](const Preferences& preferences) { return printForm(preferences.fontSize); }};
}

/// The first exit ends the first run, so the flag is read but never written as set.
constexpr Line firstRunLine(const char* meaning) {
    return {meaning,
            [](Preferences& preferences, std::string_view text) { preferences.firstRun = flagValue(text); },
            [](const Preferences&) { return printForm(0); }};
}

constexpr Line usageSecondsLine(const char* meaning) {
    return {meaning,
            [](Preferences& preferences, std::string_view text) {
                preferences.usageSeconds = numericValue(text);
            },
            [](const Preferences& preferences) { return printForm(preferences.usageSeconds); }};
}

/// Unlike the flags above, "1x" is no 1 here: the whole line has to be a number.
constexpr Line surveyAskedLine(const char* meaning) {
    return {meaning,
            [](Preferences& preferences, std::string_view text) {
                preferences.surveyAsked = wholeNumber(text) == 1.0;
            },
            [](const Preferences& preferences) { return printForm(preferences.surveyAsked ? 1 : 0); }};
}

constexpr std::string_view kPlaceholder = "PLACEHOLDER";

using Tool = Preferences::CustomTool;

// Lines 7 and 8 are crossed on purpose: the settings dialog keeps its 'Easter Eggs' box on line 7 and its
// "I use Internet Explorer" box on line 8, and the main window reads them the other way round.
constexpr std::array<Line, kPreferenceLines> kLines{{
    /*  1 */ fixedLine<kHeader>("header"),
    /*  2 */ textLine<&Preferences::fontName>("document font name"),
    /*  3 */ fontSizeLine("document font size"),
    /*  4 */ flagLine<&Preferences::make83p>("make .83p"),
    /*  5 */ flagLine<&Preferences::make8xp>("make .8xp"),
    /*  6 */ flagLine<&Preferences::showTasm>("show TASM"),
    /*  7 */ flagLine<&Preferences::useInternetExplorer>("use Internet Explorer"),
    /*  8 */ flagLine<&Preferences::easterEggs>("easter eggs on"),
    /*  9 */ textLine<&Preferences::browserPath>("browser path"),
    /* 10 */ toolLine<0, &Tool::name>("custom tool 1 name"),
    /* 11 */ toolLine<0, &Tool::commandLine>("custom tool 1 command line"),
    /* 12 */ toolLine<1, &Tool::name>("custom tool 2 name"),
    /* 13 */ toolLine<1, &Tool::commandLine>("custom tool 2 command line"),
    /* 14 */ toolLine<2, &Tool::name>("custom tool 3 name"),
    /* 15 */ toolLine<2, &Tool::commandLine>("custom tool 3 command line"),
    /* 16 */ firstRunLine("first-run flag"),
    /* 17 */ usageSecondsLine("usage seconds"),
    /* 18 */ surveyAskedLine("survey asked"),
    /* 19 */ fixedLine<kPlaceholder>("placeholder"),
    /* 20 */ recentFileLine<0>("most recent file"),
    /* 21 */ recentFileLine<1>("second recent file"),
    /* 22 */ recentFileLine<2>("third recent file"),
    /* 23 */ recentFileLine<3>("fourth recent file"),
}};

Failure tooFewLines(std::size_t found) {
    return failureOf(kInputPastEnd, "the preferences have " + std::to_string(found) + " of " +
                                        std::to_string(kPreferenceLines) + " lines, line " +
                                        std::to_string(found + 1) + " (" + kLines[found].meaning +
                                        ") is the first that is missing");
}

std::string fileText(const std::array<std::string, kPreferenceLines>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        // A line break would move every line behind it to another meaning.
        if (line.find_first_of("\r\n") == std::string::npos) text += line;
        text += kCrLf;
    }
    return text;
}

std::array<std::string, kPreferenceLines> writtenLines(const Preferences& preferences) {
    std::array<std::string, kPreferenceLines> lines;
    for (std::size_t i = 0; i < lines.size(); ++i)
        lines[i] = kLines[i].write(preferences);
    return lines;
}

}  // namespace

Preferences parsePreferences(std::string_view text) {
    Preferences preferences;
    LineReader reader(text);
    for (std::size_t i = 0; i < kLines.size(); ++i) {
        const auto line = reader.next();
        if (!line) throw tooFewLines(i);
        kLines[i].read(preferences, *line);
    }
    return preferences;
}

std::string formatPreferences(const Preferences& preferences) {
    return fileText(writtenLines(preferences));
}

std::string firstRunPreferences() {
    Preferences preferences;
    preferences.fontName = "DejaVu Sans Mono";
    preferences.fontSize = 12;
    preferences.make8xp = true;
    // The settings dialog shows this line as its 'Easter Eggs' box, which starts ticked; and web links open
    // without a browser path. The date notices stay off: one of them writes into the user's document.
    preferences.useInternetExplorer = true;
    preferences.easterEggs = false;

    constexpr std::size_t kFirstRunLine = 16;
    auto lines = writtenLines(preferences);
    lines[kFirstRunLine - 1] = printForm(1);
    return fileText(lines);
}

}  // namespace kav
