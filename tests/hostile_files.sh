#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Attacks that only show on a real process, for the programs in RUN_DIR:
#   - a library planted in the data folder is never looked for there;
#   - a dangling link as DB1.txt creates nothing at its target;
#   - a settings write on a full disk keeps the old Settings.txt byte for byte
#     (needs a tmpfs mount: skipped with a message where that is not allowed).
# usage: hostile_files.sh RUN_DIR
set -euo pipefail
run=$(cd "$1" && pwd)
work=$(mktemp -d)
trap 'umount "$work/full" 2>/dev/null || true; rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen
fail() { echo "FAIL: $*"; exit 1; }

# The data folder, with a planted Qt library and a dangling link as word list.
data="$work/data"
mkdir "$data"
cp "$run/Bewertung1.txt" "$run/Bewertung2.txt" "$data/"
echo 'not a library' >"$data/libQt6Widgets.so.6"
cp "$data/libQt6Widgets.so.6" "$data/libstdc++.so.6"
ln -s "$work/elsewhere/DB1.txt" "$data/DB1.txt"
mkdir "$work/elsewhere"
cd "$data"
# The command line finds no word list here and says so (exit 1), after loading.
LD_DEBUG=libs "$run/lettriner-cli" --rack AB >/dev/null 2>"$work/cli.log" || true
LD_DEBUG=libs timeout 3 "$run/lettriner" 2>"$work/window.log" || true
if grep -h "trying file=$data\|trying file=\./\|trying file=lib" "$work/cli.log" "$work/window.log"; then
    fail "the loader looked for libraries in the data folder"
fi
[ -z "$(ls -A "$work/elsewhere")" ] || fail "a file was created through the dangling link"
[ -L "$data/DB1.txt" ] || fail "the link was replaced"
echo "ok: no library from the data folder, nothing written through the link"

# A full disk under the program folder: the settings rewrite must fail cleanly.
mkdir "$work/full"
# Room for the program (a debug or sanitizer build is large) and a little more.
room_kb=$(($(stat -c %s "$run/lettriner") / 1024 + 4096))
if ! mount -t tmpfs -o "size=${room_kb}k" tmpfs "$work/full" 2>/dev/null; then
    echo "skipped: cannot mount a tmpfs here (needs root); full-disk settings write not checked"
    exit 0
fi
cp "$run/lettriner" "$run/Sprachen.txt" "$work/full/"
printf '[Other]\t1\r\n' >"$work/full/Settings.txt" # no language value: the program rewrites it
dd if=/dev/zero of="$work/full/filler" bs=4k 2>/dev/null || true
cd "$data"
timeout 3 "$work/full/lettriner" 2>/dev/null || true
[ "$(cat "$work/full/Settings.txt")" = "$(printf '[Other]\t1\r\n')" ] ||
    fail "Settings.txt changed on a full disk"
[ ! -e "$work/full/Settings.txt.new" ] || fail "a temporary settings file was left behind"
rm "$work/full/filler"
timeout 3 "$work/full/lettriner" 2>/dev/null || true
[ "$(cat "$work/full/Settings.txt")" = "$(printf '[Language]\t\t0\r\n')" ] ||
    fail "Settings.txt was not rewritten once there was room"
echo "ok: a full disk keeps the old Settings.txt; with room it is replaced"
