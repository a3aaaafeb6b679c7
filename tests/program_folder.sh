#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The window program in a folder whose name is not valid UTF-8 (a Latin-1 "ä",
# the single byte 0xE4), started from another folder: Settings.txt must land
# beside the program, never in the current folder.
# usage: program_folder.sh PROGRAM
set -euo pipefail
program=$(realpath "$1")
work=$(mktemp -d)
pid=
cleanup() {
    [ -z "$pid" ] || kill "$pid" 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
export QT_QPA_PLATFORM=offscreen
fail() { echo "FAIL: $*"; exit 1; }

folder="$work/Spiele-"$'\xe4'
mkdir "$folder" "$work/current"
cp "$program" "$folder/lettriner" # a copy: a link would resolve to the build folder
cd "$work/current"
"$folder/lettriner" 2>"$work/err.log" &
pid=$!
# Start-up writes the absent settings file before it reads the word list; the
# program keeps running until closed, so it is ended once a file shows up.
for _ in $(seq 1200); do
    if [ -e "$folder/Settings.txt" ] || [ -e Settings.txt ] || ! kill -0 "$pid" 2>/dev/null; then
        break
    fi
    sleep 0.1
done
kill "$pid" 2>/dev/null || fail "the program ended by itself: $(cat "$work/err.log")"
wait "$pid" 2>/dev/null || true
pid=

[ ! -e Settings.txt ] || fail "Settings.txt was written into the current folder"
[ "$(cat "$folder/Settings.txt")" = "$(printf '[Language]\t\t0\r\n')" ] ||
    fail "Settings.txt is missing beside the program"
echo "ok: Settings.txt beside the program in a folder named in Latin-1"
