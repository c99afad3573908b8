#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# F1 opens the help, in which pages are searched and read; a listing leads from error to error; a missing help
# file is told.
. "$(dirname "$0")/journey.sh"

printf ' .org $9d93\r\n .db $bb,$6d\r\n ld hl,here\r\n ld de,there\r\n ret\r\n' >"$documents/two.z80"
start_program "$documents/two.z80"
key F1
wait_window "KAV Compiler Help"
picture 1-contents
key ctrl+k
type_text "disk full"
key Return
wait_window "When something goes wrong - KAV Compiler Help"
picture 2-found
key alt+Left
wait_window "KAV Compiler Help"
key ctrl+Next
wait_window "A first program in ten minutes - KAV Compiler Help"
picture 3-first-program
key alt+F4
wait_window "KAV Compiler by"

compile two
wait_window "Errors in code"
key Escape # Cancel: the listing instead
wait_window "$application/temp.lst"
expect_shown "Line 3: Label not found"
expect_shown "Line 4: Label not found"
picture 4-first-error
key F4
picture 5-next-error
key alt+F4
wait_window "KAV Compiler by"

rm "$application/kavhelp.hlp"
key F1
wait_window "KAV Compiler Viewer"
expect_shown "File not found"
picture 6-missing
key Return
wait_window "KAV Compiler by"
end_program
