#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The main journey in a virtual display: opens a source file, compiles it and saves the program file.
# usage: journey.sh APPLICATION_FOLDER SOURCE [PICTURES]
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
. "$here/virtual_desktop.sh"

application=$(readlink -f "$1")
source_file=$2
pictures=${3:-$application/../journey}
mkdir -p "$pictures"
pictures=$(readlink -f "$pictures")

name=$(basename "$source_file")
name=${name%.*}
name=$(printf %s "$name" | tr -cd '[:alnum:]' | cut -c1-8)
saved=$pictures/$name.8xp
rm -f "$saved"

start_desktop
first_run=$(sed -n 16p "$application/prefs.ini" | tr -d ' \r')
"$application/kav-compiler" "$source_file" &
program=$!
if [ "$first_run" = 1 ]; then skip_registration; fi
wait_window "KAV Compiler"
picture 1-opened
key ctrl+l
wait_window "Compile Program"
type_text "$name"
key Return

saving_or_errors() { active_title_is "Save Compiled" || active_title_is "Errors in code"; }
wait_until 30 saving_or_errors || fail "the build gave no verdict"
if active_title_is "Errors in code"; then
    picture 2-errors
    key alt+n # No: the errors are told here instead
    wait_window "KAV Compiler"
    end_program
    grep '^temp\.z80 line ' "$application/temp.lst" | tr -d '\r' >&2
    echo "kav: '$source_file' has errors; the screenshot is $pictures/2-errors.png" >&2
    exit 1
fi
sleep 0.3
picture 2-saving
key ctrl+a
type_text "$saved"
key Return
wait_until 10 test -s "$saved" || fail "no program file was saved"
wait_window "KAV Compiler"
picture 3-success
end_program # in order, so that the next start is no first run
echo "kav: the program file is $saved"
echo "kav: the screenshot is $pictures/3-success.png"
