#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Says how many lines the tests of the coverage preset have run, and fails below the goals. The lines that no
# test runs are marked in out/coverage/report/logic.html and out/coverage/report/windows.html.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
report=out/coverage/report
mkdir -p "$report"

# group NAME GOAL FOLDER...: the source files whose object files are in the folders.
group() {
    local name=$1 goal=$2
    shift 2
    # Headers of the toolkit and what its tools write stay out.
    gcovr --root . --filter src/ --filter toolchain/ --exclude-unreachable-branches --sort-uncovered \
        --txt "$report/$name.txt" --html-details "$report/$name.html" --print-summary "$@" >"$report/$name.log" ||
        { cat "$report/$name.log" >&2; return 1; }
    local percent
    percent=$(sed -n 's/^lines: \([0-9.]*\)%.*/\1/p' "$report/$name.log")
    echo "kav: tests run $percent% of the lines of $name; the goal is more than $goal%"
    awk -v percent="$percent" -v goal="$goal" 'BEGIN { exit !(percent > goal) }' && return
    # The files with the most of them first.
    sed -n '1,/^-----.*$/p; /^\(src\|toolchain\)/p' "$report/$name.txt" | head -n 30 >&2
    echo "kav: $report/$name.html shows the lines that no test runs" >&2
    return 1
}

verdict=0
group logic 95 out/coverage/src/CMakeFiles/kav_logic.dir out/coverage/toolchain || verdict=1
group windows 80 out/coverage/src/CMakeFiles/kav_windows.dir || verdict=1
exit "$verdict"
