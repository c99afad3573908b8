#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Writes a program with the list of words coming and going: what is typed stands there as it was typed, what is
# taken from the list stands there whole, and the program builds.
. "$(dirname "$0")/journey.sh"

printf '#include "ti83plus.inc"\r\n .org userMem-2\r\n .db $BB,$6D\r\n' >"$documents/words.z80"
start_program "$documents/words.z80"
key ctrl+End
sleep 1 # a pause, in which names become known
type_text " bcall(_clrl"
sleep 0.5
picture 1-list
key Down Down Return
type_text ")"
key Return
type_text "again: ld a,5 ; ag"
key Return
sleep 1
type_text " dj"
key Up Return
type_text " ag"
key ctrl+space Tab
key Return
type_text " re"
key Escape
type_text "t"
key Return
xdotool mousemove --window "$(xdotool getactivewindow)" 120 170
sleep 1.5
picture 2-hover
compile words
save_program "$documents/words.8xp"

expected=$' bcall(_ClrLCDFull)\r\nagain: ld a,5 ; ag\r\n djnz again\r\n ret\r'
written=$(tail -n +14 "$application/words.z80" | head -n 4)
[ "$written" = "$expected" ] || fail "the program reads: $written"

key alt+F4
wait_window "Save changes? - KAV Compiler"
key alt+n
wait_until 10 program_has_ended || fail "the program did not end"
wait "$program" || fail "the program ended with exit code $?"
program=
