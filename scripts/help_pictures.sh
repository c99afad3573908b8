#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes the pictures of the help from the program's real windows, each cropped to its window and small.
# usage: help_pictures.sh APPLICATION_FOLDER [FOLDER]   (FOLDER: docs/help/pictures)
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
. "$here/virtual_desktop.sh"

built_application=$(readlink -f "$1")
pictures=$(readlink -f "${2:-$here/../docs/help/pictures}")
mkdir -p "$pictures"
start_desktop 1280x900

application=$desktop_folder/kav # documents are named as seen from here, so that their captions are short
cp -a "$built_application" "$application"
rm -rf "$application/Projects"
mkdir "$application/Projects"
cd "$application"
projects=Projects

# The program of the help's first page, as a reader would have typed it.
sed -n '/<pre class="program" id="hello">/,/<\/pre>/p' "$here/../docs/help/first-program.html" | sed '$d' |
    sed 's/<[^>]*>//g; s/$/\r/' >"$projects/hello.kvf"
sed 's/disp(greeting)/disp(greting)/' "$projects/hello.kvf" >"$projects/mistake.kvf"
sed 's/disp(greeting)/disp(greting)/; s/pause()/puase()/' "$projects/hello.kvf" >"$projects/two.kvf"
cp "$built_application/examples/lantern.z80" "$projects/lantern.kvf"

# start_program FILE: the program with the file that was used last.
start_program() {
    sed "16s/1/0/; 20s|.*|$1\r|; 10s/.*/Emulator\r/; 11s|.*|/usr/bin/emulator\r|" \
        "$here/../packaging/prefs.ini" >"$application/prefs.ini"
    "$application/kav-compiler" &
    program=$!
    wait_window "KAV Compiler"
    xdotool windowsize --sync "$(xdotool getactivewindow)" 760 540
    sleep 0.5
}

# take NAME: the window that has the keyboard, with its frame, in few colours.
take() {
    sleep 0.4 # tips and cursors come to rest
    local left right top bottom
    read -r left right top bottom < <(
        xprop -id "$(xdotool getactivewindow)" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g'
    )
    take_with_edges "$1" "$left" "$right" "$top" "$bottom"
}

# take_with_edges NAME LEFT RIGHT TOP BOTTOM: the same, with so many pixels around the window's content.
take_with_edges() {
    local window X Y WIDTH HEIGHT
    window=$(xdotool getactivewindow)
    X=$(xwininfo -id "$window" | awk '/Absolute upper-left X/ { print $4 }')
    Y=$(xwininfo -id "$window" | awk '/Absolute upper-left Y/ { print $4 }')
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
    import -window root -crop "$((WIDTH + $2 + $3))x$((HEIGHT + $4 + $5))+$((X - $2))+$((Y - $4))" +repage \
        -strip +dither -colors "${colours:-64}" -define png:compression-level=9 "png8:$pictures/$1.png"
}

# take_and_close NAME TITLE: a window once it is there, which Alt+F4 closes.
take_and_close() {
    wait_window "$2"
    take "$1"
    key alt+F4
    wait_window "KAV Compiler"
}

# tools_entry NUMBER: chooses an entry of the Tools menu, counted from its top.
tools_entry() {
    local step
    key alt
    key Right Right Right Down
    for ((step = 1; step < $1; ++step)); do key Down; done
    key Return
}

# paint TOP CELL...: clicks the cells "x,y" of a grid that begins so many centimetres down.
paint() {
    local top=$1 cell x y
    shift
    for cell in "$@"; do
        x=$((${cell%,*} * 378 / 10 + 19)) y=$(((${cell#*,} + top) * 378 / 10 + 19))
        click "$x" "$y"
    done
}

# fill X Y TEXT: replaces what stands in the box at that place.
fill() {
    click "$1" "$2"
    key ctrl+a
    type_text "$3"
}

# request_build NAME: as far as the question for the name.
request_build() {
    key ctrl+l
    wait_window "Compile Program"
    type_text "$1"
}

# fail_build NAME: a build with mistakes, as far as the question about them.
fail_build() {
    request_build "$1"
    key Return
    wait_window "Errors in code"
}

take_editing() {
    start_program "$projects/hello.kvf"
    take editor
    key F3
    wait_window Find
    type_text greeting
    take_and_close find Find
    key F5
    take_and_close quicklist QuickList
    key ctrl+i
    wait_window "New Ion File"
    key Return
    wait_window "KAV Compiler"
    key alt
    key Right Right Down Down Down Down Return # View, Tile Horizontally
    xdotool mousemove --window "$(xdotool getactivewindow)" 134 40
    take main-window
    request_build HELLO
    take compile
    key Escape
    wait_window "Errors in code" # a program without a name
    key alt+n
    wait_window "KAV Compiler"
    xdotool mousemove 5 5
    key ctrl+o
    wait_window "Load File"
    key Escape
    wait_window "Non Fatal Error"
    take reporter
    key Escape
    wait_window "KAV Compiler"
    end_unsaved
}

# end_unsaved: ends the program, which asks about each document that was changed.
end_unsaved() {
    key alt+F4
    while ! wait_until 1 program_has_ended; do
        if active_title_is "Save changes?"; then key alt+n; fi
    done
    program=
}

take_errors() {
    start_program "$projects/mistake.kvf"
    fail_build HELLO
    take errors-question
    key alt+y
    take_and_close task-list "Task List"
    end_unsaved
    start_program "$projects/two.kvf"
    fail_build HELLO
    key alt+y
    wait_window "Task List"
    fill 30 42 1
    fill 90 42 15
    fill 315 42 "Think of a friendlier greeting"
    click 560 42 # Add Task
    take_and_close tasks "Task List"
    fail_build HELLO
    key Escape
    wait_window "$application/temp.lst"
    xdotool windowsize --sync "$(xdotool getactivewindow)" 760 460
    take_with_edges listing 0 0 0 0 # its title is a long path
    key alt+F4
    wait_window "KAV Compiler"
    end_unsaved
}

take_tools() {
    start_program "$projects/hello.kvf"
    tools_entry 1
    take_and_close settings "Settings - KAV Compiler"
    tools_entry 2
    take_and_close registry Registry
    tools_entry 3
    wait_window "Stack Visualizer"
    fill 30 33 12AB
    fill 30 57 0010
    fill 30 81 4000
    click 28 176 # Push AF, BC, DE
    click 28 192
    click 28 208
    take_and_close stack-visualizer "Stack Visualizer"
    tools_entry 4
    wait_window "String Converter"
    type_text "Welcome to the castle. It is dark here."
    click 52 397 # Convert
    take_and_close string-converter "String Converter"
    tools_entry 5
    wait_window Pixmoor
    paint 0 4,1 5,1 3,2 4,2 5,2 6,2 2,3 3,3 4,3 5,3 6,3 7,3 4,4 5,4 4,5 5,5 4,6 5,6 4,7 5,7
    xdotool mousemove 5 5
    take_and_close sprite-editor Pixmoor
    key ctrl+m
    wait_window "New MirageOS Program"
    type_text "A smile"
    xdotool windowsize --sync "$(xdotool getactivewindow)" 591 690 # the lowest row lies under the buttons
    paint 2 6,1 7,1 8,1 9,1 10,1 4,2 5,2 11,2 12,2 3,3 13,3 2,4 14,4 2,5 5,5 6,5 10,5 11,5 14,5 \
        1,6 5,6 6,6 10,6 11,6 15,6 1,7 15,7 1,8 15,8 1,9 15,9 1,10 4,10 12,10 15,10 2,11 5,11 11,11 14,11 \
        2,12 6,12 7,12 8,12 9,12 10,12 14,12 3,13 13,13 4,14 5,14 11,14 12,14 6,15 7,15 8,15 9,15 10,15
    xdotool mousemove 5 5
    colours=24 take_and_close mirage-wizard "New MirageOS Program" # random rings do not compress
    key F12
    take_and_close custom-tools "Set Custom Tools"
    end_unsaved
}

take_editing
take_errors
take_tools
echo "kav: $(find "$pictures" -name '*.png' | wc -l) pictures are in $pictures"
