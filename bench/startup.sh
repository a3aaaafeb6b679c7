#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Start-up as a user meets it: whole fresh processes, so that loading the
# program, reading the word list and the kernel's page faults all count
# (the Google Benchmark figures reuse memory already mapped and miss that).
#
#   bench/startup.sh [BUILD_DIR]      (default build/release; needs the
#                                      packages of scripts/setup.sh --bench)
#
# Prints: lettriner-cli with the default texts against `an -w` on the same
# list and rack (hyperfine, with warm-up), the peak memory of each
# (/usr/bin/time -v), the window's "painted to data ready" time (median of
# eleven fresh runs of lettriner-gui-bench), a board query as a whole process
# (the lexicon file checked and read, the best 20 moves of a mid-game
# position), and a list thirty times the shipped one (median of five runs).
set -euo pipefail
cd "$(dirname "$0")/.."
source_root="$PWD"
build="$(realpath "${1:-build/release}")"
run="$build/run"
for tool in hyperfine /usr/bin/time /usr/games/an; do
    command -v "$tool" >/dev/null || {
        echo "missing $tool: run scripts/setup.sh --bench" >&2
        exit 2
    }
done
[ -x "$run/lettriner-cli" ] || {
    echo "no $run/lettriner-cli: build the release preset first" >&2
    exit 2
}

cd "$run"
# `an` wants lower case; the list is Windows-1252 like the program reads it.
anagrams=(/usr/games/an -d DB1.txt -w afeezhrb)

echo "== whole process, default texts (rack AFEEZHRB) against an -w"
# hyperfine prints wall time and, per command, user and system CPU time.
hyperfine -N --warmup 5 --runs 40 --style basic "$run/lettriner-cli" "${anagrams[*]}" 2>&1 |
    grep -E 'Benchmark|Time|Range|±.*faster|times faster|lettriner-cli$'

peak() { /usr/bin/time -v "$@" 2>&1 >/dev/null | sed -n 's/.*Maximum resident set size (kbytes): //p'; }
echo "== peak memory (kB): lettriner-cli $(peak "$run/lettriner-cli"), an -w $(peak "${anagrams[@]}")"

if [ -x "$build/bench/gui/lettriner-gui-bench" ]; then
    times=()
    for _ in $(seq 11); do
        times+=("$("$build/bench/gui/lettriner-gui-bench" 2>/dev/null |
            sed -n 's/.*window painted to word list and letter values ready \([0-9.]*\) ms/\1/p')")
    done
    median="$(printf '%s\n' "${times[@]}" | sort -n | sed -n 6p)"
    echo "== window: painted to data ready, median of 11 fresh processes: ${median} ms"
fi

# The mid-game position with one blank of the board benchmarks.
position="$(sed -n 's/^mid-1-blank-a //p' "$source_root/bench/positions.cgp")"
if [ -f DB1.lex ] && [ -n "$position" ]; then
    echo "== whole process, board query: best 20 moves of mid-1-blank-a"
    hyperfine -N --warmup 5 --runs 40 --style basic "$run/lettriner-cli --cgp '$position'" 2>&1 |
        grep -E 'Time|Range'
    echo "   peak memory (kB): $(peak "$run/lettriner-cli" --cgp "$position")"
fi

big="$(mktemp -d)"
trap 'rm -rf "$big"' EXIT
cp Bewertung1.txt Bewertung2.txt "$big/"
for _ in $(seq 30); do cat DB1.txt; done >"$big/DB1.txt"
# One run first, not counted: the first process to take this much memory
# after the file was written pays for the kernel's first use of it (on a
# virtual machine several times the rest), which is not the program's figure.
"$run/lettriner-cli" -C "$big" >/dev/null
echo "== a list 30 times the shipped one ($(wc -l <"$big/DB1.txt") lines), median of 5 runs by wall time"
for _ in $(seq 5); do
    /usr/bin/time -f "%e s wall, %U s user, %S s system, peak %M kB" \
        "$run/lettriner-cli" -C "$big" 2>&1 >/dev/null
done | sort -n | sed -n '3s/^/   /p'
