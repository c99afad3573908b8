#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Debian package, uses the program as an ordinary user, upgrades it, removes it, and finds nothing
# left. Runs as root, on a machine where the package is not installed.
# usage: package_check.sh PACKAGE.deb [PICTURES]
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
. "$here/virtual_desktop.sh"

package=$(readlink -f "$1")
pictures=${2:-$(dirname "$package")/pictures}
mkdir -p "$pictures"
pictures=$(readlink -f "$pictures")
user=kav-check

[ "$(id -u)" -eq 0 ] || fail "installing a package takes root"
! dpkg-query -W kav-compiler >/dev/null 2>&1 || fail "kav-compiler is installed already"
! id "$user" >/dev/null 2>&1 || fail "there is a user $user already"

clean_up() {
    stop_desktop
    chown --recursive --reference="$package" "$pictures"
    userdel "$user" 2>/dev/null || true
    dpkg --purge kav-compiler >/dev/null 2>&1 || true
}

start_desktop
trap clean_up EXIT
chmod 711 "$desktop_folder"
home=$desktop_folder/user
useradd --home-dir "$home" --create-home --shell /bin/sh "$user"
application=$home/.local/share/kav-compiler

as_user() { runuser -u "$user" -- env HOME="$home" "$@"; }
start_program() {
    as_user kav-compiler "$@" 2>"$desktop_folder/program.log" &
    program=$!
}
preference_line() { sed -n "${1}p" "$application/prefs.ini" | tr -d '\r'; }

dpkg --install "$package" >"$desktop_folder/dpkg.log"
dpkg --listfiles kav-compiler >"$desktop_folder/files"
desktop-file-validate /usr/share/applications/kav-compiler.desktop
[ -s /usr/share/icons/hicolor/48x48/apps/kav-compiler.png ] || fail "the menu has no icon"
[ "$(as_user xdg-mime query default text/x-kav-z80)" = kav-compiler.desktop ] || fail ".kvf files open elsewhere"

as_user kav-asm -o "$home/HELLO.8xp" /usr/lib/kav-compiler/examples/hello.z80 || fail "the assembler does not assemble"

# The first start makes a folder for the user; what is compiled there is the user's.
as_user cp "$here/../examples/hello.z80" "$home/hello.z80"
start_program "$home/hello.z80"
skip_registration
wait_window "KAV Compiler"
key ctrl+l
wait_window "Compile Program"
type_text hello
key Return
wait_window "Save Compiled TI-83+ Program"
key ctrl+a
type_text "$home/hello.8xp"
key Return
wait_until 10 test -s "$home/hello.8xp" || fail "no program file was saved"
wait_window "KAV Compiler"
picture package-compiled
end_program
[ "$(stat -c %U "$home/hello.8xp")" = "$user" ] || fail "the program file is not the user's"
[ "$(preference_line 16)" = " 0 " ] || fail "the preferences are not in the user's folder"
! dpkg --verify kav-compiler | grep /usr/lib/ || fail "the program has changed what was installed"

# root gets a folder, too.
QT_QPA_PLATFORM=offscreen kav-compiler 2>/dev/null &
program=$!
wait_until 20 test -d "$HOME/.local/share/kav-compiler/Projects" || fail "root's start made no folder"
kill "$program"
wait "$program" 2>/dev/null || true
program=

# An upgrade reaches the user's folder and leaves what is the user's.
dpkg-deb --raw-extract "$package" "$desktop_folder/newer"
sed -i 's/^Version: .*/Version: 99/' "$desktop_folder/newer/DEBIAN/control"
echo '# newer' >>"$desktop_folder/newer/usr/lib/kav-compiler/asm"
dpkg-deb --root-owner-group --build "$desktop_folder/newer" "$desktop_folder/newer.deb" >/dev/null
dpkg --install "$desktop_folder/newer.deb" >"$desktop_folder/dpkg.log"
as_user mkdir "$application/Projects/mine"
start_program
wait_window "KAV Compiler"
end_program
[ "$(tail -n 1 "$application/asm")" = "# newer" ] || fail "the upgrade did not reach the user's script"
[ "$(preference_line 20)" = "$home/hello.z80" ] || fail "the user's preferences were replaced"
[ -d "$application/Projects/mine" ] || fail "the user's projects are gone"

dpkg --remove kav-compiler >"$desktop_folder/dpkg.log"
dpkg --purge kav-compiler >>"$desktop_folder/dpkg.log" 2>&1
while read -r file; do
    [ -d "$file" ] && [ "$(basename "$file")" != kav-compiler ] && continue # folders that others use, too
    [ ! -e "$file" ] || fail "$file is left"
done <"$desktop_folder/files"
[ -s "$application/prefs.ini" ] || fail "removing the package took what is the user's"
echo "kav: the package installs, runs, upgrades and leaves as it should"
