#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need, when missing.
# Sourced by run.sh and test.sh; safe to run on its own.
set -euo pipefail

packages=(
    cmake g++ make
    qt6-base-dev qt6-svg-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    wngerman
    xvfb xauth fonts-dejavu-core
)

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
