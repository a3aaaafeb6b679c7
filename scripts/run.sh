#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds a release and starts Lettriner from its run
# folder (the program reads its word list from the current folder).
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/setup.sh
cmake --preset release
cmake --build --preset release -j "$(nproc)"

cd build/release/run
if [ -x ./lettriner ]; then
    exec ./lettriner "$@"
fi
exec ./lettriner-cli "$@"
