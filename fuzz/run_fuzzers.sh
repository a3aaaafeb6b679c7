#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the libFuzzer targets (preset "fuzz", clang) and runs each for a
# bounded time from its seed corpus: every folder of fuzz/corpus/ names one.
# Findings land in fuzz/findings/.
#   fuzz/run_fuzzers.sh [SECONDS_PER_TARGET]   (default 60)
set -euo pipefail
cd "$(dirname "$0")/.."

seconds="${1:-60}"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -j "$(nproc)" >/dev/null

mkdir -p fuzz/findings
status=0
for corpus in fuzz/corpus/*/; do
    target="$(basename "$corpus")"
    work="$(mktemp -d)"
    cp -r "fuzz/corpus/$target/." "$work/"
    echo "== fuzz_$target (${seconds}s)"
    if ! "build/fuzz/fuzz/fuzz_$target" -max_total_time="$seconds" -print_final_stats=1 \
        -artifact_prefix="fuzz/findings/${target}-" "$work" 2>"$work.log"; then
        status=1
        tail -n 30 "$work.log"
    fi
    grep -E '^(stat::number_of_executed_units|stat::peak_rss_mb)|DONE' "$work.log" || true
    rm -rf "$work" "$work.log"
done
exit "$status"
