#!/usr/bin/env bash
# Installs what is missing, builds with warnings as errors and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/setup.sh
cmake --preset dev
cmake --build --preset dev -j "$(nproc)"
QT_QPA_PLATFORM=offscreen ctest --preset dev -j "$(nproc)"
