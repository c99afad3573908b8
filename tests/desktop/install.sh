#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the program into a user's folder, starts it and its assembler from there, and installs it again over
# what the user has made their own. usage: install.sh BUILD_FOLDER PROJECT
set -euo pipefail
build=$1 project=$2
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home QT_QPA_PLATFORM=offscreen
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME
folder="$home/my tools/KAV Compiler"

fail() {
    echo "$0: $*" >&2
    exit 1
}

install_program() { cmake --install "$build" --prefix "$folder" >"$home/install.log" || fail "$(cat "$home/install.log")"; }

install_program
for part in kav-compiler kav-viewer kav-asm asm unregister-file-types; do
    [ -x "$folder/$part" ] || fail "$part is no program"
done
for part in kavhelp.hlp include/ti83plus.inc examples/hello.z80 icons/hicolor/48x48/apps/kav-compiler.png kav-asm.1 kav-compiler.1; do
    [ -s "$folder/$part" ] || fail "$part is missing"
done
[ "$(wc -l <"$folder/prefs.ini")" -eq 23 ] || fail "prefs.ini has $(wc -l <"$folder/prefs.ini") lines"
[ "$(sed -n 16p "$folder/prefs.ini" | tr -d ' \r')" = 1 ] || fail "the first start would be no first run"

cd "$home"
"$folder/kav-asm" -o HELLO.8xp "$folder/examples/hello.z80" || fail "the example does not assemble"
[ -s HELLO.8xp ] || fail "there is no program file"

# The first run makes the projects folder, in the application folder that it was started from.
"$folder/kav-compiler" &
program=$!
for ((i = 0; i < 300; i++)); do
    [ ! -d "$folder/Projects" ] || break
    kill -0 "$program" 2>/dev/null || fail "the program has ended"
    sleep 0.1
done
kill "$program"
wait "$program" 2>/dev/null || true
[ -d "$folder/Projects" ] || fail "the program has not started"
[ ! -e "$home/.local/share/kav-compiler" ] || fail "the program took another folder for its own"

echo "my preferences" >"$folder/prefs.ini"
echo "my script" >"$folder/asm"
install_program
[ "$(cat "$folder/prefs.ini")" = "my preferences" ] || fail "the user's preferences are gone"
[ "$(cat "$folder/asm")" = "my script" ] || fail "the user's script is gone"
cmp "$folder/asm.new" "$project/toolchain/asm" || fail "the new script is not beside the user's"
