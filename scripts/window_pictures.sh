#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes a picture of every window of the program, for eyes to look at.
# usage: window_pictures.sh APPLICATION_FOLDER FOLDER [SCALE]   (SCALE: 1, or 2 for a display of twice the density)
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
. "$here/virtual_desktop.sh"

built_application=$(readlink -f "$1")
scale=${3:-1}
mkdir -p "$2"
pictures=$(readlink -f "$2")
start_desktop $((1280 * scale))x$((900 * scale))
export QT_SCALE_FACTOR=$scale

application=$desktop_folder/app
cp -a "$built_application" "$application"
rm -rf "$application/Projects"
mkdir "$application/Projects"
cp "$here/../examples/hello.z80" "$application/Projects/hello.z80"
printf ' .org $9d93\r\n .db $bb,$6d\r\n ld hl,messagge\r\n ret\r\nmessage:\r\n .db 0\r\n' >"$application/Projects/wrong.z80"

# preferences LINE TEXT ...: the file as it is installed, with other lines.
preferences() {
    sed '16s/1/0/; 10s/.*/My tool\r/; 11s/.*/my-tool "a b"\r/' "$here/../packaging/prefs.ini" >"$application/prefs.ini"
    while [ $# -gt 0 ]; do
        sed -i "${1}s|.*|$2\r|" "$application/prefs.ini"
        shift 2
    done
}

start_program() {
    "$application/kav-compiler" "$@" &
    program=$!
}

# at_scale X Y: clicks there, in pixels of the program.
at_scale() { click $(($1 * scale)) $(($2 * scale)); }

# take NAME TITLE: a picture once the window is there.
take() {
    wait_window "$2"
    picture "$1"
}

# take_and_close NAME TITLE: the same, and Escape.
take_and_close() {
    take "$1" "$2"
    key Escape
    wait_window "KAV Compiler"
}

# tools_entry NUMBER: chooses an entry of the Tools menu, counted from its top.
tools_entry() {
    key alt
    key Right Right Right Down
    local step
    for ((step = 1; step < $1; ++step)); do key Down; done
    key Return
}

take_menus() {
    local name
    key alt
    key Down
    for name in file edit view tools help; do
        sleep 0.4
        picture "menu-$name"
        key Right
    done
    key Escape Escape
}

take_editing() {
    key F3
    take find Find
    type_text nowhere
    key Return
    take not-found "Find nowhere"
    key Return
    wait_window Find
    key Escape
    wait_window "KAV Compiler"
    key F5
    take quicklist QuickList
    xdotool mousemove --window "$(xdotool getactivewindow)" $((60 * scale)) $((10 * scale)) click 3
    sleep 0.5
    picture quicklist-menu
    key Escape
    key alt+F4
    wait_window "KAV Compiler"
    key ctrl+d
    take_and_close optimize "Optimize Code?"
    key ctrl+n
    take_and_close new-kav "New KAV File"
    key ctrl+o
    take open "Load File"
    key Escape
    take_and_close reporter "Non Fatal Error"
}

take_tools() {
    key F4
    take tasks "Task List"
    key alt+F4
    wait_window "KAV Compiler"
    tools_entry 1
    take_and_close settings "Settings - KAV Compiler"
    tools_entry 2
    take_and_close registry "Registry"
    tools_entry 3
    take stack "Stack Visualizer"
    key alt+F4
    wait_window "KAV Compiler"
    tools_entry 4
    take strings "String Converter"
    key alt+F4
    wait_window "KAV Compiler"
    tools_entry 5
    take sprite Pixmoor
    key alt+F4
    wait_window "KAV Compiler"
    key ctrl+m
    take mirage "New MirageOS Program"
    key alt+F4
    wait_window "KAV Compiler"
    key F12
    take custom-tools "Set Custom Tools"
    key alt+F4
    wait_window "KAV Compiler"
}

take_help() {
    key alt
    key Right Right Right Right Down Down Return
    take_and_close about "About KAV Compiler"
    key F1
    take help ""
    sleep 1
    picture help
    key alt+F4
    wait_window "KAV Compiler"
}

# take_build NAME: the boxes of a build.
take_build() {
    key ctrl+l
    take "$1-name" "Compile Program"
    type_text "$1"
    key Return
}

preferences 20 "$application/Projects/hello.z80" 6 " 1 "
start_program
take main "KAV Compiler"
take_menus
take_editing
take_tools
take_help
take_build hello
take saving "Save Compiled"
key Escape
xdotool search --name '/comp\.bat$' windowactivate --sync
sleep 0.5
picture console
key alt+F4
wait_window "KAV Compiler"
type_text x
key alt+F4
take closing "Save changes?"
key alt+n
wait_until 10 program_has_ended || fail "the program did not end"

preferences 20 "$application/Projects/wrong.z80"
start_program
wait_window "KAV Compiler"
take_build wrong
take errors "Errors in code"
key alt+y
take imported-tasks "Task List"
key alt+F4
wait_window "KAV Compiler"
take_build wrong
take errors "Errors in code"
key Escape
take viewer "$application/temp.lst"
key alt+F4
wait_window "KAV Compiler"
end_program

preferences 17 " 7199 "
start_program
take survey "Please Fill Out Survey"
key alt+n
wait_window "KAV Compiler"
end_program

rm -r "$application/Projects"
cp "$here/../packaging/prefs.ini" "$application/prefs.ini"
start_program
take first-run Registry
key Escape
wait_window "KAV Compiler"
end_program

rm "$application/prefs.ini"
start_program 2>/dev/null
take refusal "KAV Compiler"
key Return
program=
echo "kav: $(find "$pictures" -name '*.png' | wc -l) pictures are in $pictures"
