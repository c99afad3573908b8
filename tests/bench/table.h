// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the benchmarks' table. Columns have TABs between them; `./kav bench` sets them under each
// other.
#pragma once

#include <cstdio>
#include <limits>
#include <string>

namespace kav::bench {

enum class Unit { seconds, bytes, plain };

/// The value with three digits or so, in the unit that suits its size. A difference of two measurements may
/// be below zero.
inline std::string shownValue(double value, Unit unit) {
    struct Scale {
        double least;
        double factor;
        const char* name;
    };
    constexpr double kAny = -std::numeric_limits<double>::infinity();
    constexpr Scale kSeconds[] = {{1, 1, "s"}, {1e-3, 1e3, "ms"}, {kAny, 1e6, "us"}};
    constexpr Scale kBytes[] = {{1e6, 1e-6, "MB"}, {1e3, 1e-3, "KB"}, {kAny, 1, "bytes"}};
    constexpr Scale kPlain[] = {{kAny, 1, ""}};
    const Scale* scale = unit == Unit::seconds ? kSeconds : unit == Unit::bytes ? kBytes : kPlain;
    while (value < scale->least)
        ++scale;
    char text[40];
    std::snprintf(text, sizeof text, "%.3g %s", value * scale->factor, scale->name);
    return text;
}

/// What was measured here and of a peer, in the same run. A ratio below 1 is in our favour.
inline void printRow(const std::string& what, double ours, double peers, const std::string& peer,
                     Unit unit = Unit::seconds) {
    std::printf("%s\t%s\t%s\t%.2f\t%s\n", what.c_str(), shownValue(ours, unit).c_str(),
                shownValue(peers, unit).c_str(), ours / peers, peer.c_str());
    std::fflush(stdout);
}

/// What has no peer, with a word on what it should be or is made of.
inline void printAlone(const std::string& what, double value, const std::string& remark,
                       Unit unit = Unit::seconds) {
    std::printf("%s\t%s\t-\t-\t%s\n", what.c_str(), shownValue(value, unit).c_str(), remark.c_str());
    std::fflush(stdout);
}

}  // namespace kav::bench
