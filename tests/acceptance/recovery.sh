#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Types a text and never saves it: after a kill, it is one double click away in the QuickList, and an end that
# the system asks for keeps even what was typed last.
. "$(dirname "$0")/journey.sh"

projects="$application/Projects"
copy="$projects/Untitled 1 (unsaved).kvf"

copy_holds() { [ -f "$2" ] && [[ "$(cat "$2")" == "$1" ]]; }

start_program
end_program
[ -z "$(ls -A "$projects")" ] || fail "a run without a change left $(ls -A "$projects")"

start_program
type_text "; a long evening's work"
[ ! -e "$copy" ] || fail "a copy was written before the keys came to rest"
wait_until 20 copy_holds "; a long evening's work" "$copy" || fail "no copy: $(ls -A "$projects")"
kill -KILL "$program"
wait "$program" 2>/dev/null && fail "the program outlived its kill"
program=

start_program
key F5
wait_window "QuickList"
picture 1-quicklist
xdotool mousemove --window "$(xdotool getactivewindow)" 60 12 click --repeat 2 --delay 60 1
wait_window "KAV Compiler"
picture 2-back-again
key ctrl+p
wait_window "Save to projects folder"
type_text "rescued"
key Return
wait_window "KAV Compiler"
wait_until 10 test -s "$projects/rescued.kvf" || fail "nothing was opened and saved"
[[ "$(cat "$projects/rescued.kvf")" == "; a long evening's work"* ]] || fail "saved: $(cat "$projects/rescued.kvf")"

# Deleted in the list, it is gone from the folder.
key F5 F5
wait_window "QuickList"
key Down Delete # the saved file stands first
wait_until 10 test ! -e "$copy" || fail "the copy could not be deleted: $(ls -A "$projects")"
key F5
xdotool search --name '^KAV Compiler' windowactivate
wait_window "KAV Compiler"

# The system ends the program in the middle of a word.
type_text "XY"
kill -TERM "$program"
wait_until 10 program_has_ended || fail "the program did not end"
wait "$program" || fail "the program ended with exit code $?"
program=
kept=("$projects"/*unsaved*)
[ ${#kept[@]} -eq 1 ] || fail "kept: ${kept[*]}"
[[ "$(cat "${kept[0]}")" == *XY* ]] || fail "kept is $(cat "${kept[0]}")"
[ "$(preference_line 16)" = " 0 " ] || fail "the preferences were not written"
