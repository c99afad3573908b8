// SPDX-License-Identifier: GPL-3.0-or-later
// What the error reporter tells the user and writes to the log on the desktop.
#include "shell/failure_report.h"

#include "runtime/lines.h"
#include "shell/addresses.h"

#include <algorithm>

namespace kav {

namespace {

std::string twoDigits(int number) {
    const std::string digits = std::to_string(number);
    return digits.size() < 2 ? "0" + digits : digits;
}

/// The twelve-hour time: "3:04:05 PM".
std::string timeOfDay(const LocalTime& time) {
    const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
    return std::to_string(hour) + ":" + twoDigits(time.minute) + ":" + twoDigits(time.second) +
           (time.hour < 12 ? " AM" : " PM");
}

/// The general form of a date and time in the United States, which shows no time at midnight.
std::string generalForm(const LocalTime& time) {
    std::string text =
        std::to_string(time.month) + "/" + std::to_string(time.day) + "/" + std::to_string(time.year);
    const bool midnight = time.hour == 0 && time.minute == 0 && time.second == 0;
    return midnight ? text : text + " " + timeOfDay(time);
}

std::string onOneLine(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return line;
}

}  // namespace

std::string failureMessage(std::string_view handler, int number, std::string_view description) {
    std::string text =
        "Sorry, an error has occured and the action you just attempted has been canceled. "
        "Recommend you save your work (or copy to clipboard) and restart KAV Compiler. "
        "If this persits send the below information to Tamsin Orrel (";
    text += kContactAddress;
    text +=
        ") along with a description of what you were doing. Abort=Exit KAV Compiler. "
        "Retry=Save error to logfile on desktop and continue. Ignore=Continue\n\n";
    text += "Error " + std::to_string(number) + "in module ";
    text += handler;
    text += ": ";
    text += description;
    return text + ".";
}

std::string failureLogLine(std::string_view handler, int number, std::string_view description,
                           const LocalTime& now, int count) {
    std::string line = "Error #" + std::to_string(number) + " occured at " + generalForm(now) + " in module ";
    line += handler;
    line += ": " + onOneLine(description) + " Count=" + std::to_string(count);
    line += kCrLf;
    return line;
}

}  // namespace kav
