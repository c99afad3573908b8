#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A monkey uses the program: clicks, types, shuts windows. The program may neither end, nor leak, nor lose a
# text. Called as the journeys are, with the monkey instead of the program that runs what was built; MONKEY_SECONDS
# says how long (15 seconds by default) and MONKEY_SEED repeats a run.
. "$(dirname "$0")/journey.sh"

monkey=$(readlink -f "$run_program")
pictures=$(realpath -m "$pictures")
seconds=${MONKEY_SECONDS:-15}
seed=${MONKEY_SEED:-$(($(date +%s) % 100000))}

# Nothing leaves the program's windows: the browser and the viewer are empty scripts, and the window manager
# answers to no key and no click but Alt+F4.
mkdir -p "$desktop_folder/bin" "$pictures"
printf '#!/bin/sh\n' | tee "$desktop_folder/bin/xdg-open" >"$application/kav-viewer"
chmod +x "$desktop_folder/bin/xdg-open" "$application/kav-viewer"
export PATH=$desktop_folder/bin:$PATH
bind_no_keys

# Each run begins with the same folder, so that its seed repeats it: a recent file, a tool, and sources of
# several kinds.
sed -i "10s/.*/Nothing\r/; 11s/.*/true\r/; 20s|.*|$application/Projects/hello.z80\r|" "$application/prefs.ini"
cp "$project/examples/hello.z80" "$application/Projects/hello.z80"
printf 'a\0b\r\n\377\376 caf\303\251\nlone\rends' >"$application/Projects/bytes.txt"
: >"$application/Projects/empty.kvf"
head -c 20000 /dev/zero | tr '\0' x >"$application/Projects/long.asm"
cp -a "$application" "$desktop_folder/fresh"

tell() {
    tail -n 40 "$pictures/actions.txt" >&2
    cat "$pictures/errors.txt" >&2
    fail "$1; ./kav monkey 60 $seed does it again"
}

# use_program SECONDS: one run, from a start of the program to its end.
use_program() {
    echo "monkey: seed $seed, $1 seconds"
    rm -rf "$application" "$documents"
    cp -a "$desktop_folder/fresh" "$application"
    mkdir "$documents"
    cd "$documents"
    "$monkey" "$application" "$seed" "$1" >"$pictures/actions.txt" 2>"$pictures/errors.txt" &
    program=$!
    wait_until $(($1 + 120)) program_has_ended || tell "the program did not end in time"
    local code=0
    wait "$program" || code=$?
    program=
    [ "$code" -eq 0 ] || tell "exit code $code"
    ! grep -qE 'runtime error|Sanitizer|Run-time error' "$pictures/errors.txt" || tell "the program complains"
    echo "monkey: $(wc -l <"$pictures/actions.txt") gestures"
}

# The monkey may close the program at any time.
end=$((SECONDS + seconds))
while [ "$SECONDS" -lt "$end" ]; do
    use_program $((end - SECONDS))
    seed=$((seed + 1))
done
