#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the Debian package from the release build and checks it without
# installing it: lintian (no error, no warning), the desktop entry, the
# AppStream metainfo, and that no word list is shipped.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset release >/dev/null
cmake --build --preset release -j "$(nproc)" >/dev/null
(cd build/release && rm -f lettriner_*.deb && cpack -G DEB >/dev/null)
package="$(ls build/release/lettriner_*_amd64.deb)"
echo "package: $package"

if dpkg-deb -c "$package" | grep -qE 'DB1\.(txt|lex)'; then
    echo "FAIL: the package ships a word list" >&2
    exit 1
fi
if ! report="$(lintian --fail-on error,warning "$package" 2>&1)"; then
    echo "$report" >&2
    echo "FAIL: lintian reports errors or warnings" >&2
    exit 1
fi
desktop-file-validate packaging/lettriner.desktop
appstreamcli validate --no-net packaging/org.lettriner.Lettriner.metainfo.xml
echo "package checks passed"
