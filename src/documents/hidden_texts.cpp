// SPDX-License-Identifier: GPL-3.0-or-later
// The hidden texts: phrases that, typed as a document's whole text, bring a surprise.
#include "documents/hidden_texts.h"

#include "runtime/lines.h"
#include "runtime/number_text.h"

#include <algorithm>
#include <array>

namespace kav {

namespace {

using Effect = HiddenText::Effect;

/// The eleven lines of the verse table: six for the first phrase, five for the second.
constexpr std::array<std::string_view, 6> kDarknessVerse{
    "Eight small bits in a silent row, asleep in the cold of the chip,",
    "Six pale pins on a blackened board where the solder beads and drips,",
    "Two dim lamps on a lonely desk where the midnight coder sits,",
    "One long loop without an end that swallows the stack in bits:",
    "Call them once and they answer not, call twice and they lose your place,",
    "And the last of the light is a cursor's blink on a tired and happy face.",
};
constexpr std::array<std::string_view, 5> kOrlamundVerse{
    "Orlamund walked where the segments glow",        "With a lamp in her hand and a map of the ROM;",
    "She counted the cycles, the fast and the slow,", "And never would say where the numbers came from,",
    "But her code still runs in the rooms below.",
};

template <std::size_t Count>
std::string verseText(const std::array<std::string_view, Count>& lines) {
    return joinedLines({lines.begin(), lines.end()});
}

HiddenText darknessVerse(double) {
    return {Effect::Italic, verseText(kDarknessVerse), {}};
}

HiddenText orlamundVerse(double) {
    return {Effect::Bold, verseText(kOrlamundVerse), {}};
}

HiddenText timeSpent(double usageSeconds) {
    return {
        Effect::None,
        "They say no one died wishing they had spent more time at the office.\r\n\r\n"
        "You spent a total of " +
            plainDecimal(usageSeconds) +
            " seconds with KAV Compiler running. P.S. Switch the lamp off and listen to \"Clair de lune\" "
            "with the window open.",
        {}};
}

HiddenText laugh(double) {
    return {Effect::Browser,
            {},
            "C:\\Program Files\\Internet Explorer\\iexplore.exe https://www.kav-compiler.example/laugh"};
}

HiddenText ducks(double) {
    return {Effect::None,
            "So do we, DUCKOS FOREVER QUACK, QUACK, QUACK!!!!!!!!!!!!!!!!!!! "
            "(Its best not to think about it:)",
            {}};
}

struct Trigger {
    std::string_view phrase;
    HiddenText (*make)(double usageSeconds);
};

constexpr std::array<Trigger, 5> kTriggers{{
    {"In the darkness bind them", darknessVerse},
    {"Orlamund", orlamundVerse},
    {"On their deathbed", timeSpent},
    {"Make me laugh", laugh},
    {"I HATE MIRAGEOS!", ducks},
}};

}  // namespace

std::optional<HiddenText> hiddenTextFor(std::string_view text, double usageSeconds) {
    for (const Trigger& trigger : kTriggers) {
        if (text == trigger.phrase) return trigger.make(usageSeconds);
    }
    return std::nullopt;
}

bool mayBeHiddenText(std::size_t length) {
    return std::any_of(kTriggers.begin(), kTriggers.end(),
                       [length](const Trigger& trigger) { return trigger.phrase.size() == length; });
}

}  // namespace kav
