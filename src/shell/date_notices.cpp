// SPDX-License-Identifier: GPL-3.0-or-later
// What the program says on special days when the easter eggs are on.
#include "shell/date_notices.h"

#include <array>

namespace kav {

namespace {

struct Anniversary {
    int year;
    int month;
    int day;
    const char* title;
    const char* text;
};

// No record is kept of a notice: "after today" is true because each date comes once.
constexpr std::array<Anniversary, 2> kAnniversaries{{
    {2005, 1, 21, "KAV COMPILER IS OOOOOOOOOOOLLLLLLLLLLLLLDDDDDD!!!",
     "WOW! KAV Compiler is still in use in this year? I'm truely amazed. "
     "This won't appear again after today."},
    {2010, 1, 20, "No Aliens? Or do they program Z80 too?",
     "That is pushing it. Aliens haven't landed yet? This won't appear again after today."},
}};

}  // namespace

std::optional<DateNotice> dateNotice(const LocalTime& today) {
    for (const Anniversary& date : kAnniversaries) {
        if (date.year == today.year && date.month == today.month && date.day == today.day) {
            return DateNotice{date.title, date.text};
        }
    }
    return std::nullopt;
}

bool isNewYearsDay(const LocalTime& today) {
    return today.month == 1 && today.day == 1;
}

}  // namespace kav
