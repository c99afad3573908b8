#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# By mouse over the toolbar: each of its 17 regions shows its help from its first pixel to its last and runs its
# command, on displays of single and double density.
display_size=2560x1800
. "$(dirname "$0")/journey.sh"
stub_browser

# Left bound, bound on the right, help.
regions=(
    "0 16 New KAV File-Creates a new file with the KAV header."
    "16 33 New Ion File-Creates a new file with the Ion header."
    "33 50 New Blank File-Creates a new file with no header."
    "50 67 New Mirage File-Creates a new file with the Mirage header."
    "67 89 Open-Opens a file from your hard drive"
    "89 111 Save-Saves a file to your hard drive"
    "111 123 Save to Projects Folder-Saves a file to $application\\Projects which can then be opened using the quicklist"
    "123 145 Compile-This calls TASM and DevPac to assemble the file into a .8xp and/or .83p"
    "145 167 Cut-This copies the selected text onto the clipboard and deletes it from the document"
    "167 184 Copy-This copies the selected text onto the clipboard."
    "184 194 Paste-This copies the clipboard onto the selected text/where the cursor is."
    "194 211 Delete-This deletes the selected text."
    "211 235 Find-This opens the find dialog to search for text and/or replace certain text with other text."
    "235 256 Settings-This opens the settings dialog."
    "256 279 About-Displays version and copyright notice."
    "279 296 Visit my Webpage-Opens your browser (set under settings) and goes to my webpage, https://www.kav-compiler.example/"
    "296 318 Mail Me-This sends me an e-mail message through the mailto method of your browser (set under settings), my address is tamsin.orrel@kav-compiler.example"
)

# point_at X: the mouse to a pixel of the toolbar, counted as the display does.
point_at() { xdotool mousemove --window "$window" $((strip_left + $1)) $((strip_top)); }

# find_toolbar: the first pixel from the left where the first help appears.
find_toolbar() {
    local help="New KAV File"
    strip_top=$((39 * scale))
    for ((strip_left = 0; strip_left < 20 * scale; ++strip_left)); do
        point_at 0
        sleep 0.2
        if shows "$help" "$status_bar"; then return; fi
    done
    fail "the toolbar is not found"
}

# sweep PAUSE: points at the first and the last pixel of each region and reads what the status bar's first panel
# has said by then, a line each.
sweep() {
    local left right help number=1000 lines="$desktop_folder/lines"
    rm -rf "$lines"
    mkdir "$lines"
    for region in "${regions[@]}"; do
        read -r left right help <<<"$region"
        for place in $((left * scale)) $((right * scale - 1)); do
            point_at "$place"
            sleep "$1"
            import -window "$window" -crop "$status_bar" +repage "$lines/$((number++)).png"
        done
    done
    convert "$lines"/*.png -append -colorspace Gray -resize $((300 / scale))% "$lines/all.png"
    # The second panel tells where the caret is.
    tesseract "$lines/all.png" - --psm 6 2>>"$desktop_folder/read.log" | grep -v '^[[:space:]]*$' |
        sed -E 's/ *Line [0-9]+, column [0-9]+ *$//' >"$desktop_folder/said"
}

# without_folder TEXT: without the name of the desktop's folder, which is made of letters that look alike.
without_folder() { sed -E 's|/[^/]*/[^/]*/Calculator|/Calculator|' <<<"$1"; }

# says_every_help PAUSE: whether a sweep read the help of each region twice.
says_every_help() {
    local left right help line region
    sweep "$1"
    for region in "${regions[@]}"; do
        read -r left right help <<<"$region"
        for _ in first last; do
            read -r line || return
            [ "$(legible "$(without_folder "$line")")" = "$(legible "$(without_folder "$help")")" ] || return
        done
    done <"$desktop_folder/said"
}

hover_everywhere() {
    says_every_help 0.05 || says_every_help 0.5 || fail "the status bar says: $(cat "$desktop_folder/said")"
    picture "$scale-help"
    # Behind the last region the last help stays, and leaving the toolbar keeps it, too.
    point_at $((318 * scale))
    sleep 0.3
    shows "Mail Me" "$status_bar" || fail "the help went away behind the toolbar"
    xdotool mousemove --window "$window" $((300 * scale)) $((300 * scale))
    sleep 0.3
    shows "Mail Me" "$status_bar" || fail "the help went away with the mouse"
}

# press X [BUTTON]: a button over the region around this pixel.
press() {
    point_at $(($1 * scale))
    xdotool click "${2:-1}"
}

# press_and_leave X TITLE: the window that comes up, put away again.
press_and_leave() {
    press "$1" "${3:-1}"
    wait_window "$2"
    key Escape
    wait_window "KAV Compiler"
}

press_every_region() {
    press_and_leave 8 "New KAV File"
    press_and_leave 24 "New Ion File"
    press 41 # a blank file
    type_text " ret ; blank file"
    expect_shown "ret ; blank file"
    press 117
    wait_window "Save to projects folder"
    type_text "blank$scale"
    key Return
    wait_window "KAV Compiler"
    expect_file "$application/Projects/blank$scale.kvf" $' ret ; blank file\r\n'
    press 134
    wait_window "Compile Program"
    type_text blank
    key Return
    save_program "$documents/blank$scale.8xp"
    press 58
    wait_window "New MirageOS Program"
    key alt+F4
    wait_window "KAV Compiler"
    press_and_leave 223 Find
    press_and_leave 245 "Settings - KAV Compiler"
    press_and_leave 267 "About KAV Compiler" 3 # any button presses
    press 287
    expect_opened "https://www.kav-compiler.example/"
    press 307
    expect_opened "mailto:tamsin.orrel@kav-compiler.example?subject=KAV Compiler Mailer IE"
}

edit_with_the_mouse() {
    printf 'one two' >"$documents/edit.z80"
    press 78
    wait_window "Load File"
    key ctrl+a
    type_text "$documents/edit.z80"
    key Return
    wait_window "KAV Compiler"
    expect_shown "ne two" # the caret stands before the first letter
    key shift+End
    press 175 # copy
    key End
    press 189 # paste
    key Home shift+End
    press 156 # cut
    press 189
    press 189
    key ctrl+Home
    press 202 # delete
    press 100 # save
    wait_until 5 grep -q 'ne twoone twoone twoone two' "$documents/edit.z80" || fail "saved: $(cat "$documents/edit.z80")"
    expect_file "$documents/edit.z80" $'ne twoone twoone twoone two\r\n'
    picture "$scale-edited"
}

for scale in 1 2; do
    export QT_SCALE_FACTOR=$scale
    start_program
    window=$(xdotool getactivewindow)
    xdotool windowsize --sync "$window" $((1270 * scale)) $((600 * scale))
    status_bar="$((1270 * scale))x$((22 * scale))+0+$((578 * scale))"
    sleep 0.5
    find_toolbar
    hover_everywhere
    press_every_region
    edit_with_the_mouse
    end_program
    sed -i '20,23s/.*/\r/' "$application/prefs.ini"
done
