#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Feeds one fuzz target with made-up inputs and says in a line what came of it.
# usage: fuzz_target.sh TARGET SECONDS
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
target=$1
seconds=$2

# What the fuzzer finds joins a corpus of its own; the seeds stay as they are.
found=out/fuzz/found/$target
log=out/fuzz/$target.log
mkdir -p "$found"
if ! "out/fuzz/tests/fuzz/$target" -max_total_time="$seconds" -timeout=5 -rss_limit_mb=2048 \
    -artifact_prefix="out/fuzz/$target-" "$found" "tests/fuzz/${target}_corpus" >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "kav: $target found a mistake; the input stands above" >&2
    exit 1
fi
echo "kav: $target: $(sed -n 's/^Done //p' "$log"), no mistake found"
