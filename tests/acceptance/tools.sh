#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Paints a sprite and inserts it, designs a MirageOS button, and finds both in the programs that are built.
. "$(dirname "$0")/journey.sh"

# paint BUTTON X Y: presses a mouse button in the middle of the square centimetre that begins there.
paint() {
    local x=$(($2 * 378 / 10 + 19)) y=$(($3 * 378 / 10 + 19))
    xdotool mousemove --window "$(xdotool getactivewindow)" "$x" "$y" click "$1"
}

# expect_bytes FILE HEX: the file holds these bytes in a row.
expect_bytes() {
    od -An -v -tx1 "$1" | tr -d ' \n' | grep -q "${2// /}" || fail "$1 does not hold $2"
}

printf ' .org $9d93\r\n .db $bb,$6d\r\n ret\r\n' >"$documents/sprite.z80"
start_program "$documents/sprite.z80"
key ctrl+End
key alt
key Right Right Right Down # the Tools menu
key Up Up Return # its last entry but one
wait_window "Pixmoor"
paint 1 1 1
paint 1 3 2
paint 1 5 5
paint 1 7 7
paint 3 5 5
picture 1-painted
click 56 328 # Insert At Cursor
click 280 328 # Close
wait_window "KAV Compiler"
type_text "10000001" # the last line waits for more digits
key Return
picture 2-inserted
compile sprite
save_program "$documents/sprite.8xp"
expect_bytes "$documents/sprite.8xp" "bb 6d c9 80 00 40 00 00 00 02 00 81"

key ctrl+m
wait_window "New MirageOS Program"
type_text "Journey"
paint 1 1 3
paint 1 9 3
paint 1 15 16
picture 3-designed
click 146 642 # OK
wait_window "KAV Compiler"
compile button
save_program "$documents/button.8xp"
picture 4-built
empty=$(printf '00 %.0s' {1..24})
expect_bytes "$documents/button.8xp" "bb 6d c9 01 80 80 $empty 00 02 00 00 $(printf Journey | od -An -tx1) 00"
