#!/bin/sh
# Starts Lettriner in its data folder: the program reads its word list and
# letter values from the current folder. Works wherever the prefix lies.
prefix="$(dirname "$(dirname "$(readlink -f "$0")")")"
cd "$prefix/share/lettriner" || exit 1
exec "$prefix/lib/lettriner/lettriner" "$@"
