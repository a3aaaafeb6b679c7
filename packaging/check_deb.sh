#!/usr/bin/env bash
# Builds the Debian package, installs it with apt-get (which pulls in the Qt
# runtime and wngerman), and checks that the installed program works:
#   - the word list was generated at installation, with the full German list,
#   - the installed command-line search finds words in the data folder,
#   - the menu's launcher starts the window under Xvfb and it stays up,
#   - the desktop entry and the icon are in place.
# Changes the system (installs the package); meant for a test machine.
#   packaging/check_deb.sh [--keep]    --keep leaves the package installed
set -euo pipefail
cd "$(dirname "$0")/.."

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
fi

bash scripts/setup.sh
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
    xvfb xauth dpkg-dev >/dev/null
cmake --preset release >/dev/null
cmake --build --preset release -j "$(nproc)" >/dev/null
(cd build/release && cpack -G DEB >/dev/null)
package="$(ls build/release/lettriner_*_amd64.deb | tail -n 1)"
echo "package: $package"
dpkg-deb --field "$package" Package Version Depends

"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y "./$package" >/dev/null
fail() { echo "FAIL: $*" >&2; exit 1; }

words="$(tr -cd '\n' </usr/share/lettriner/DB1.txt | wc -c)"
echo "installed word list: $words words"
[ "$words" -ge 300000 ] || fail "word list has only $words words"
[ -f /usr/share/applications/lettriner.desktop ] || fail "no desktop entry"
[ -f /usr/share/icons/hicolor/scalable/apps/lettriner.svg ] || fail "no icon"

found="$(cd /usr/share/lettriner && /usr/lib/lettriner/lettriner-cli --rack TRAUBEN --tsv |
    awk -F '\t' '$1 == "found" { print $2 }')"
echo "installed command-line search, rack TRAUBEN: $found words found"
[ "${found:-0}" -gt 0 ] || fail "the installed search found nothing"

# The launcher from the menu entry, in a fresh home: the window must still be
# up after five seconds. Where ImageMagick is at hand, a screenshot of it shows
# the word count the window loaded.
shot="$PWD/build/release/installed-window.png"
rm -f "$shot"
HOME="$(mktemp -d)" SHOT="$shot" xvfb-run -a -s "-screen 0 1024x768x24" sh -c '
    lettriner & pid=$!
    sleep 5
    kill -0 "$pid" || exit 3
    if command -v import >/dev/null; then import -window root "$SHOT"; fi
    kill "$pid"
    exit 0' || fail "the installed program ended by itself"
echo "installed program started under Xvfb and kept running"
[ ! -f "$shot" ] || echo "screenshot: $shot"

if [ "${1:-}" != "--keep" ]; then
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get remove -y lettriner >/dev/null
    [ ! -e /usr/share/lettriner/DB1.txt ] || fail "removing left the word list behind"
    echo "removed again"
fi
echo "OK"
