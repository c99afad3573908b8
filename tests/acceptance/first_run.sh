#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The first run asks which files to register before it opens the file that it was started with; the second
# run asks nothing.
. "$(dirname "$0")/journey.sh"

begin_first_run
cp "$project/examples/hello.z80" "$documents/hello.z80"
"$application/kav-compiler" "$documents/hello.z80" 2>"$desktop_folder/program.log" &
program=$!
wait_window "Registry"
picture 1-registration
[ -d "$application/Projects" ] || fail "there is no projects folder"
key alt+F4
wait_window "KAV Compiler"
picture 2-opened
compile hello
save_program "$documents/hello.8xp"
end_program
[ "$(preference_line 16)" = " 0 " ] || fail "the first run did not end: line 16 is '$(preference_line 16)'"
[ "$(preference_line 20)" = "$documents/hello.z80" ] || fail "the recent file is '$(preference_line 20)'"

start_program
picture 3-second-run
key ctrl+i
wait_window "New Ion File" # the keyboard is the main window's: nothing is asked this time
key Escape
wait_window "KAV Compiler"
