#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, then checks the formatting and builds and runs
# every test three ways:
#   1. the debug build with warnings as errors (GoogleTest and QtTest suites),
#   2. the same suites under AddressSanitizer and UndefinedBehaviorSanitizer,
#   3. each libFuzzer target for a short bounded time;
# then builds the Debian package and lints it.
# LETTRINER_FUZZ_SECONDS sets the time per fuzz target (default 20).
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/setup.sh --tests
export QT_QPA_PLATFORM=offscreen

echo "== formatting"
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror

echo "== debug build, every test"
cmake --preset dev
cmake --build --preset dev -j "$(nproc)"
ctest --preset dev -j "$(nproc)"
ctest --preset dev-slow

echo "== sanitizer build, every test"
cmake --preset asan
cmake --build --preset asan -j "$(nproc)"
ctest --preset asan -j "$(nproc)"
ctest --preset asan-slow

echo "== fuzz targets"
bash fuzz/run_fuzzers.sh "${LETTRINER_FUZZ_SECONDS:-20}"

echo "== Debian package"
bash packaging/lint_package.sh
