# SPDX-License-Identifier: GPL-3.0-or-later
# What every acceptance journey starts with. Called with the application folder, the program that runs what
# was built, and the folder for pictures. Each journey works in a copy of the application folder, on a path
# that DOS names would have to shorten.
set -euo pipefail
project=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../..
. "$project/scripts/virtual_desktop.sh"

# For checked builds.
export LSAN_OPTIONS="suppressions=$project/tests/acceptance/leaks.supp:print_suppressions=0"

built_application=$1 run_program=$2 pictures=$3
rm -rf "$pictures"
start_desktop "${display_size:-1280x900}"
application="$desktop_folder/Calculator Programs/KAV Compiler of mine"
mkdir -p "$(dirname "$application")"
cp -a "$built_application" "$application"
rm -rf "$application/Projects" "$application"/*.z80 "$application"/*.8xp "$application/comp.bat"
# The user has run the program before; a journey through the first run says so (begin_first_run).
mkdir "$application/Projects"
sed '16s/1/0/' "$project/packaging/prefs.ini" >"$application/prefs.ini"
documents="$desktop_folder/documents"
mkdir -p "$documents"

# begin_first_run: the application folder as it is installed.
begin_first_run() {
    rm -rf "$application/Projects"
    cp "$project/packaging/prefs.ini" "$application/prefs.ini"
}

# start_program [FILE]: starts it and waits for its window.
start_program() {
    "$application/kav-compiler" "$@" 2>"$desktop_folder/program.log" &
    program=$!
    wait_window "KAV Compiler"
}

# compile NAME: the keys that start a build.
compile() {
    key ctrl+l
    wait_window "Compile Program"
    type_text "$1"
    key Return
}

# save_program PATH: answers the save dialog that follows a success.
save_program() {
    wait_window "Save Compiled TI-83+ Program"
    key ctrl+a
    type_text "$1"
    key Return
    wait_until 10 test -s "$1" || fail "no program file was saved at $1"
    wait_window "KAV Compiler"
}

preference_line() { sed -n "${1}p" "$application/prefs.ini" | tr -d '\r'; }

# read_window [GEOMETRY]: the words that the window with the keyboard shows, read off the screen as an eye
# does: one line there, or, all over it, first as a page and then as words scattered about.
read_window() {
    local page=$desktop_folder/read.png layouts=(6 11) layout
    [ $# -eq 0 ] || layouts=(7)
    import -window "$(xdotool getactivewindow)" "$page"
    convert "$page" ${1:+-crop "$1" +repage} -colorspace Gray -resize 300% "$page"
    for layout in "${layouts[@]}"; do
        tesseract "$page" - --psm "$layout" 2>>"$desktop_folder/read.log"
    done
}

# legible TEXT: its letters and digits as an eye may take them that mixes up those that look alike.
legible() { tr -cd '[:alnum:]' <<<"$1" | tr '[:upper:]' '[:lower:]' | tr -s 'yi1t0' 'vllfo'; }

# shows TEXT [GEOMETRY]: whether the window with the keyboard shows it, there or anywhere.
shows() { [[ "$(legible "$(read_window ${2:+"$2"})")" == *"$(legible "$1")"* ]]; }

# expect_shown TEXT [GEOMETRY]: fails when the window does not come to show it.
expect_shown() { wait_until 20 shows "$@" || fail "'$1' is not shown, but: $(read_window ${2:+"$2"})"; }

# stub_browser: from now on, addresses that the program opens stand in the file $opened instead.
stub_browser() {
    opened=$desktop_folder/opened
    mkdir -p "$desktop_folder/bin"
    printf '#!/bin/sh\nprintf "%%s\\n" "$@" >>"%s"\n' "$opened" >"$desktop_folder/bin/xdg-open"
    chmod +x "$desktop_folder/bin/xdg-open"
    export PATH=$desktop_folder/bin:$PATH
}

# expect_opened ADDRESS: waits until this is the last address that was opened.
expect_opened() { wait_until 10 was_opened "$1" || fail "opened was: $(cat "$opened")"; }
was_opened() { [ "$(tail -n 1 "$opened" 2>/dev/null)" = "$1" ]; }

# expect_file FILE TEXT: the file holds this text, byte for byte.
expect_file() {
    cmp "$1" <(printf %s "$2") || fail "$1 holds: $(od -c "$1")"
}
