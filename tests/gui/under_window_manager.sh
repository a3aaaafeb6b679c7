#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a Qt test program on a virtual X display under the openbox window
# manager, so that its windows get a real frame:
#   tests/gui/under_window_manager.sh PROGRAM [ARGUMENTS...]
# Exit code 77 (skipped) where Xvfb, openbox or the X utilities are missing or
# the display or the manager cannot start; otherwise the program's own.
set -u

skip() {
    echo "SKIPPED: $* (scripts/setup.sh --tests installs what is needed)"
    exit 77
}

for tool in Xvfb openbox xprop xwininfo; do
    command -v "$tool" >/dev/null || skip "$tool is not installed"
done

work="$(mktemp -d)"
pids=()
cleanup() {
    for pid in "${pids[@]}"; do
        kill "$pid" 2>/dev/null
    done
    wait 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

# Xvfb picks a free display itself and writes its number once it accepts clients.
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
pids+=($!)
for _ in $(seq 100); do
    [ -s "$work/display" ] && break
    kill -0 "${pids[0]}" 2>/dev/null || break
    sleep 0.1
done
[ -s "$work/display" ] || skip "Xvfb did not start: $(tail -n 1 "$work/xvfb.log")"
export DISPLAY=":$(head -n 1 "$work/display")"

# The manager is ready once it announces itself on the root window.
HOME="$work" openbox --sm-disable >"$work/openbox.log" 2>&1 &
pids+=($!)
for _ in $(seq 100); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
    kill -0 "${pids[1]}" 2>/dev/null || break
    sleep 0.1
done
xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' ||
    skip "openbox did not start: $(tail -n 1 "$work/openbox.log")"

env -u QT_QPA_PLATFORM "$@" -platform xcb
