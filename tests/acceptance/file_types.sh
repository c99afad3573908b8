#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Registers .kvf files in the dialog of the first run; a double click then opens one in the program, "Compile"
# compiles it, and after unregistering neither does.
. "$(dirname "$0")/journey.sh"

window_is_gone() { ! xdotool search --name '^KAV Compiler by' >/dev/null 2>&1; }
close_window() {
    key alt+F4
    wait_until 10 window_is_gone || fail "the program did not end"
}

begin_first_run
cp "$project/examples/hello.z80" "$documents/my hello.kvf"
"$application/kav-compiler" 2>"$desktop_folder/program.log" &
program=$!
wait_window "Registry"
key Tab space # from the first box to the second
picture 1-ticked
key Return
wait_window "KAV Compiler"
end_program

# As a file manager does.
gio open "$documents/my hello.kvf"
wait_window "KAV Compiler"
picture 2-double-clicked
compile hello
save_program "$documents/hello.8xp"
close_window
[ "$(preference_line 20)" = "$documents/my hello.kvf" ] || fail "the program opened '$(preference_line 20)'"

gio launch "$HOME/.local/share/applications/kav-compiler-compile.desktop" "$documents/my hello.kvf"
wait_window "Compile Program"
picture 3-compile
key Escape # a build without a name, which fails
wait_window "Errors in code"
key alt+n
wait_window "KAV Compiler"
close_window

"$application/unregister-file-types" >"$desktop_folder/unregistered"
grep -q 'kav-compiler.desktop$' "$desktop_folder/unregistered" || fail "nothing was taken back"
[ "$(xdg-mime query default text/x-kav-z80)" = "" ] || fail "the program still opens .kvf files"
