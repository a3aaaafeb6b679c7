#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a program below the given folders carries a run path with an
# empty or relative entry: the loader would take libraries from the current
# folder (or one relative to it), which for Lettriner is the data folder.
set -euo pipefail
status=0
checked=0
while IFS= read -r -d '' file; do
    [ "$(head -c 4 "$file" | od -An -c | tr -d ' ')" = '177ELF' ] || continue
    checked=$((checked + 1))
    paths=$(readelf -d "$file" | sed -n 's/.*(\(RUN\)\{0,1\}PATH).*\[\(.*\)\]/\2/p')
    [ -n "$paths" ] || continue
    IFS=: read -r -a entries <<<"$paths:"
    for entry in "${entries[@]}"; do
        if [ -z "$entry" ] || [ "${entry:0:1}" != / ]; then
            echo "$file: run path '$paths' has an empty or relative entry"
            status=1
            break
        fi
    done
done < <(find "$@" -type f -perm -u+x -print0)
echo "$checked programs checked"
[ "$checked" -gt 0 ] || { echo "no programs found in $*"; exit 1; }
exit "$status"
