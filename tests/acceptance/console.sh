#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# With "Show TASM" on, a console shows what the build script prints, and stays to be read.
. "$(dirname "$0")/journey.sh"

sed -i '6s/0/1/' "$application/prefs.ini"
cp "$project/examples/hello.z80" "$documents/hello.z80"
start_program "$documents/hello.z80"
compile hello
console_is_there() { xdotool search --name '^.*/comp\.bat$' >/dev/null 2>&1; }
wait_until 10 console_is_there || fail "no console appeared"
wait_window "Save Compiled TI-83+ Program"
picture 1-console
key Escape # no program file is saved, and that is no error
wait_until 10 console_is_there || fail "the console is gone"
xdotool search --name '^.*/comp\.bat$' windowactivate
sleep 0.5
picture 2-console
[ -z "$(find "$documents" -name '*.8xp')" ] || fail "Cancel saved a program file"
