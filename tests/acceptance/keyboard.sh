#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# By keyboard alone: opens a source from the QuickList, finds, replaces, optimizes, saves it to the projects folder
# and opens it again.
. "$(dirname "$0")/journey.sh"

printf 'start:\r\n;x x\r\n ld a,0\r\n LD b,1\r\n ld c,2\r\n cp 0\r\n ret' >"$application/Projects/game.kvf"
printf ' ret' >"$application/Projects/another.kvf"
start_program

gone() { ! shows "$1"; }

# fill TEXT: puts a text into the box that has the caret.
fill() {
    key Home shift+End
    type_text "$1"
}

# The QuickList lists the folder by name; Enter opens the second file.
key F5
wait_window QuickList
expect_shown "another.kvf"
key Down
picture 1-quicklist
key Return
wait_window "KAV Compiler"
expect_shown "LD b,1"

# Find looks for letters in either case. What is typed over the second match shows that it was selected.
key F3
wait_window Find
fill LD
key Return
wait_window "KAV Compiler"
key F3
wait_window Find
key Return
wait_window "KAV Compiler"
picture 2-found
type_text in
expect_shown "in b,1"

# Replace All goes on from there, so that the first ld stays.
key F3
wait_window Find
fill ld
key Tab
fill load
key Tab Tab Tab space # past the box and Find, to Replace All
# From the top, by way of Reset. The second x is replaced where it stood, which the longer first
# replacement has shifted.
key Tab Tab space
key shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab
fill yy
key shift+Tab
fill x
key Tab Tab Tab Tab space
picture 3-replaced

# Nothing more is found: a box says so, and Enter closes it.
key shift+Tab shift+Tab shift+Tab shift+Tab
fill nowhere
key Return
wait_window "Find nowhere"
expect_shown "nowhere not found."
picture 4-not-found
key Return
wait_window Find
key Escape
wait_window "KAV Compiler"

key ctrl+d
wait_window "Optimize Code? - KAV Compiler"
expect_shown "it is not undoable. Are you sure you want to optimize?"
key alt+y
wait_window "KAV Compiler"
expect_shown "xor a"
picture 5-optimized

key ctrl+p
wait_window "Save to projects folder - KAV Compiler"
type_text keyed
key Return
wait_window "KAV Compiler"
text=$'start:\r\n;yyyyx\r\n xor a\r\n in b,1\r\n load c,2\r\n or a\r\n ret'
expect_file "$application/Projects/keyed.kvf" "$text"$'\r\n'
expect_file "$application/Projects/game.kvf" $'start:\r\n;x x\r\n ld a,0\r\n LD b,1\r\n ld c,2\r\n cp 0\r\n ret'

# What is saved closes without a word; the QuickList, shown anew, lists the new file.
key ctrl+F4
wait_until 20 gone "load c,2" || fail "the document did not close"
key F5 F5
wait_window QuickList
key Down Down Return
wait_window "KAV Compiler"
expect_shown "load c,2"
picture 6-reopened
end_program
[ "$(preference_line 20)" = "$application/Projects/keyed.kvf" ] || fail "the recent file is '$(preference_line 20)'"
