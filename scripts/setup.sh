#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Debian packages the build needs, when missing.
#   scripts/setup.sh           what building and running the program needs
#   scripts/setup.sh --tests   also what the tests, sanitizers and fuzzers need
#   scripts/setup.sh --bench   also what bench/startup.sh compares against
set -euo pipefail

packages=(
    cmake g++ make
    qt6-base-dev qt6-svg-dev qt6-qpa-plugins qt6-translations-l10n
    libgtest-dev libgmock-dev libbenchmark-dev nlohmann-json3-dev
    # The two word lists DB1.txt is generated from, and zlib to unpack the second.
    wngerman tanglet-data zlib1g-dev
    fonts-dejavu-core
)
if [ "${1:-}" = "--tests" ]; then
    # clang and its runtime for the libFuzzer targets; Xvfb for screenshots;
    # openbox and the X utilities for the window test under a window manager;
    # devscripts for hardening-check on the built programs.
    packages+=(clang libclang-rt-14-dev xvfb xauth openbox x11-utils devscripts)
    # The formatting check, and building and checking the Debian package.
    packages+=(clang-format dpkg-dev lintian desktop-file-utils appstream)
fi
if [ "${1:-}" = "--bench" ]; then
    # Whole-process timing, peak memory, and a plain anagram finder to compare with.
    packages+=(hyperfine time an)
fi

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done

if ((${#missing[@]} > 0)); then
    echo "Installing: ${missing[*]}"
    as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"
fi
