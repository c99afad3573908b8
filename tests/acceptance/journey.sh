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
start_desktop
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

# read_window [GEOMETRY]: the words that the window with the keyboard shows, there or all over, as an eye would
# read them off the screen.
read_window() {
    import -window "$(xdotool getactivewindow)" "$desktop_folder/window.png"
    convert "$desktop_folder/window.png" ${1:+-crop "$1" +repage} -colorspace Gray -resize 300% "$desktop_folder/read.png"
    tesseract "$desktop_folder/read.png" - --psm 6 2>>"$desktop_folder/read.log"
}

# legible TEXT: its letters and digits as an eye may take them that mixes up those that look alike.
legible() { tr -cd '[:alnum:]' <<<"$1" | tr '[:upper:]' '[:lower:]' | tr -s 'yi1t0' 'vllfo'; }

# shows TEXT [GEOMETRY]: whether the window with the keyboard shows it, there or anywhere.
shows() { [[ "$(legible "$(read_window ${2:+"$2"})")" == *"$(legible "$1")"* ]]; }

# expect_shown TEXT [GEOMETRY]: fails when the window does not come to show it.
expect_shown() { wait_until 5 shows "$@" || fail "'$1' is not shown, but: $(read_window ${2:+"$2"})"; }

# expect_file FILE TEXT: the file holds this text, byte for byte.
expect_file() {
    cmp "$1" <(printf %s "$2") || fail "$1 holds: $(od -c "$1")"
}
