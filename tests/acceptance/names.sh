#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Names that a shell would act on end in a clear error and touch nothing outside the application folder.
. "$(dirname "$0")/journey.sh"

outside() { find "$desktop_folder" -path "$application" -prune -o -newer "$desktop_folder/started" -type f -print | grep -v '\.log$' || true; }

printf ' ret\r\n' >"$documents/a.z80"
start_program "$documents/a.z80"
touch "$desktop_folder/started"
sleep 1
for name in 'a&touch' '$(touch)' 'a b' '`id`'; do
    compile "$name"
    wait_window "Errors in code - KAV Compiler"
    key Escape # Cancel: shows the listing
    wait_window "$application/temp.lst"
    picture "listing-${name//[^a-z]/_}"
    grep -q '^temp.z80 line 0001: ' "$application/temp.lst" || fail "$name: no error in $(tail -n 3 "$application/temp.lst")"
    key alt+F4
    wait_window "KAV Compiler"
done
compile ../x
wait_window "Non Fatal Error - KAV Compiler"
picture reported
key Escape # Ignore
wait_window "KAV Compiler"
[ -z "$(outside)" ] || fail "files outside the application folder: $(outside)"
end_program
