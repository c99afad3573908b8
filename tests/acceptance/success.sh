#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Opens a program, compiles it by keys, saves the program file, and runs that on the emulated calculator.
. "$(dirname "$0")/journey.sh"

cp "$project/examples/hello.z80" "$documents/hello.z80"
start_program "$documents/hello.z80"
picture 1-opened
compile hello
save_program "$documents/hello.8xp"
picture 2-success

screen=$("$run_program" "$documents/hello.8xp")
[[ $screen == HELLO$'\n'"Hello, world!"* ]] || fail "the calculator shows: $screen"

# The template of New KAV File builds as it stands.
key ctrl+n
wait_window "New KAV File"
type_text "Journey"
key Return
wait_window "KAV Compiler"
compile kavprog
save_program "$documents/kavprog.8xp"
picture 3-template
end_program
[ "$(preference_line 20)" = "$documents/hello.z80" ] || fail "the recent file is '$(preference_line 20)'"
