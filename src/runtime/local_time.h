// SPDX-License-Identifier: GPL-3.0-or-later
// A moment as the clock on the wall shows it.
#pragma once

namespace kav {

/// A date and time in the user's time zone. Months and days count from 1, hours from 0 to 23.
struct LocalTime {
    int year = 2005;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

}  // namespace kav
