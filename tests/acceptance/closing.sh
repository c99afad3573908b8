#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Closing the program asks for each modified document; Cancel keeps it open, No lets it go.
. "$(dirname "$0")/journey.sh"

cp "$application/prefs.ini" "$desktop_folder/prefs.ini"
start_program
type_text "first"
key ctrl+i
wait_window "New Ion File"
key Return
wait_window "KAV Compiler"
type_text "second"

key alt+F4
wait_window "Save changes?"
picture 1-question
key Escape # Cancel
wait_window "KAV Compiler"
program_has_ended && fail "Cancel ended the program"
cmp "$desktop_folder/prefs.ini" "$application/prefs.ini" || fail "the preferences were written in spite of Cancel"

# Delete in the task list removes no character of the document behind it.
key F4
wait_window "Task List"
key Delete Delete
key alt+F4
wait_window "KAV Compiler"

key alt+F4
wait_window "Save changes?"
key alt+y
wait_window "Save Untitled"
key ctrl+a
type_text "$documents/first.kvf"
key Return
wait_window "Save changes?"
key alt+n
wait_until 10 program_has_ended || fail "the program did not end"
wait "$program" || fail "the program ended with exit code $?"
program=
grep -q '^first' "$documents/first.kvf" || fail "saved: $(cat "$documents/first.kvf")"
[ "$(preference_line 20)" = "$documents/first.kvf" ] || fail "the preferences were not written"
