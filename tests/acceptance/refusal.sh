#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Start-up refuses with a message and exit code 1 where it has to, and leaves what it found.
. "$(dirname "$0")/journey.sh"

# refused WHAT: starts the program, which shows a message and ends.
refused() {
    "$application/kav-compiler" 2>"$desktop_folder/program.log" &
    program=$!
    wait_until 20 program_shows_message || fail "$1: no message"
    picture "$1"
    key Return
    wait_until 10 program_has_ended || fail "$1: the program did not end"
    code=0
    wait "$program" || code=$?
    program=
    [ "$code" -eq 1 ] || fail "$1: exit code $code"
    grep -q "$2" "$desktop_folder/program.log" || fail "$1: it says $(cat "$desktop_folder/program.log")"
}

program_shows_message() { [ -s "$desktop_folder/program.log" ] && xdotool getactivewindow >/dev/null 2>&1 && sleep 0.5; }

begin_first_run
mkdir "$application/Projects"
refused first-run-with-projects-folder "Projects"
cmp "$project/packaging/prefs.ini" "$application/prefs.ini" || fail "the preferences were changed"

printf 'one\r\ntwo\r\n' >"$application/prefs.ini"
refused short-preferences "23"
[ "$(wc -l <"$application/prefs.ini")" -eq 2 ] || fail "the preferences were changed"

rm "$application/prefs.ini"
refused no-preferences "prefs.ini"
[ ! -e "$application/prefs.ini" ] || fail "a preferences file was made up"

# What nobody catches while the program runs ends it with a message, too.
sed '16s/1/0/' "$project/packaging/prefs.ini" >"$application/prefs.ini"
start_program
rm "$application/prefs.ini"
mkdir "$application/prefs.ini"
: >"$desktop_folder/program.log"
key alt+F4
wait_until 10 program_shows_message || fail "no message about preferences that cannot be written"
picture preferences-not-written
key Return
wait_until 10 program_has_ended || fail "the program did not end"
code=0
wait "$program" || code=$?
program=
[ "$code" -eq 1 ] || fail "exit code $code"
