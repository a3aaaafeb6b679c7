#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Starts Lettriner in its data folder: the program reads its word list and
# letter values from the current folder. Installed under /usr the word list is
# generated into /var/lib/lettriner; under any other prefix it lies in
# PREFIX/share/lettriner.
prefix="$(dirname "$(dirname "$(readlink -f "$0")")")"
data_folder="$prefix/share/lettriner"
if [ "$prefix" = "/usr" ]; then
    data_folder="/var/lib/lettriner"
fi
cd "$data_folder" || exit 1
exec "$prefix/lib/lettriner/lettriner" "$@"
