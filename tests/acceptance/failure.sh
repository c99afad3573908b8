#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Compiles a program with a mistake, imports the errors as tasks, and goes to the first one with the mouse.
. "$(dirname "$0")/journey.sh"

printf '#include "ti83plus.inc"\r\n .org userMem-2\r\n .db $BB,$6D\r\n nop\r\n ld hl,messagge\r\n ret\r\nmessage:\r\n .db 0\r\n' \
    >"$documents/wrong.z80"
start_program "$documents/wrong.z80"
# A second document in front, so that Goto has a window to bring back.
key ctrl+i
wait_window "New Ion File"
key Return
wait_window "KAV Compiler"
key ctrl+Tab # back to the program, which is built
compile wrong
wait_window "Errors in code - KAV Compiler"
picture 1-question
key alt+y
wait_window "Task List"
picture 2-tasks

# The first task, ticked and selected, then the Goto button.
key space
click 100 67
picture 3-selected
click 557 70
wait_window "KAV Compiler"
sleep 0.3
picture 4-gone-to
# What is typed now stands at the end of line 4.
type_text "!"
key ctrl+p
wait_window "Save to projects folder"
type_text "after"
key Return
wait_until 10 test -s "$application/Projects/after.kvf" || fail "nothing was saved to the projects folder"
sed -n 4p "$application/Projects/after.kvf" | grep -q '^ nop.*!' ||
    fail "Goto led elsewhere: $(cat "$application/Projects/after.kvf")"
[ ! -e "$application/wrong.8xp" ] || fail "a program file was written in spite of the error"
