#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a program lacks the hardening Debian packages get, as Debian's
# hardening-check sees it: PIE, stack protector, read-only relocations bound
# at start, and fortified C library calls.
# usage: check_hardening.sh [--nofortify] PROGRAM...
#   --nofortify   the build leaves the fortified calls off (sanitizer builds)
set -euo pipefail
if ! command -v hardening-check >/dev/null; then
    echo "skipped: hardening-check is missing (Debian package devscripts)"
    exit 77
fi
fortify=yes
if [ "${1:-}" = --nofortify ]; then
    fortify=no
    shift
fi
# Control flow protection is not asked for: its mark must be on every object
# linked, and the system's own start files (Scrt1.o, crti.o) carry none.
check() {
    local report
    report=$(hardening-check --quiet --nocfprotection "$@" 2>&1) && [ -z "$report" ] && return 0
    echo "$report"
    return 1
}
status=0
if [ "$fortify" = yes ]; then
    check "$@" || status=1
else
    check --nofortify "$@" || status=1
fi
[ "$status" -ne 0 ] || echo "hardened: $*"
exit "$status"
