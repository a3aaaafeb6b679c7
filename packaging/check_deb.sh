#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds and lints the Debian package, then installs it with apt-get (which
# pulls in the Qt runtime and wngerman) and checks it as a user meets it:
#   - the word list was generated at installation, with the full German list;
#   - lettriner-cli on the PATH finds it from any folder, as an ordinary user;
#   - the menu entry's command starts the window under Xvfb and it stays up;
#   - reinstalling (an upgrade) and changing wngerman regenerate the list;
#   - purging leaves nothing of the package behind.
# Changes the system (installs and purges the package); meant for a test machine.
#   packaging/check_deb.sh [--keep]    --keep leaves the package installed
set -euo pipefail
cd "$(dirname "$0")/.."

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
fi
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get "$@" >/dev/null
}
fail() { echo "FAIL: $*" >&2; exit 1; }

bash scripts/setup.sh --tests
apt install -y --no-install-recommends xvfb xauth
bash packaging/lint_package.sh
package="$PWD/$(ls build/release/lettriner_*_amd64.deb)"
dpkg-deb --field "$package" Package Version Depends

apt install -y "$package"
words="$(tr -cd '\n' </var/lib/lettriner/DB1.txt | wc -c)"
echo "installed word list: $words words"
[ "$words" -ge 300000 ] || fail "word list has only $words words"
[ -f /usr/share/icons/hicolor/48x48/apps/lettriner.png ] || fail "no 48x48 icon"
lettriner --version | grep -qx "lettriner [0-9.]*" || fail "lettriner --version"

# An ordinary user, in a folder without data files.
found="$("${as_root[@]}" runuser -u nobody -- sh -c \
    'cd /tmp && lettriner-cli --rack TRAUBEN --tsv' | awk -F '\t' '$1 == "found" { print $2 }')"
echo "lettriner-cli --rack TRAUBEN from /tmp as nobody: $found words found"
[ "${found:-0}" -gt 0 ] || fail "the installed search found nothing"
[ ! -e /tmp/DB1.txt ] || fail "lettriner-cli left a file in /tmp"

# The menu entry's command, in a fresh home: the window must still be up
# after five seconds.
command="$(sed -n 's/^Exec=//p' /usr/share/applications/lettriner.desktop)"
HOME="$(mktemp -d)" COMMAND="$command" xvfb-run -a -s "-screen 0 1024x768x24" sh -c '
    $COMMAND & pid=$!
    sleep 5
    kill -0 "$pid" || exit 3
    kill "$pid"
    exit 0' || fail "the installed program ended by itself"
echo "the menu entry started the window under Xvfb and it kept running"

# An upgrade and a wngerman change both build the list anew.
"${as_root[@]}" truncate -s 0 /var/lib/lettriner/DB1.txt
apt install -y --reinstall "$package"
[ -s /var/lib/lettriner/DB1.txt ] || fail "reinstalling did not regenerate the word list"
"${as_root[@]}" truncate -s 0 /var/lib/lettriner/DB1.txt
apt install -y --reinstall wngerman
[ -s /var/lib/lettriner/DB1.txt ] || fail "the wngerman trigger did not regenerate the word list"
echo "reinstalling and the wngerman trigger regenerated the word list"

if [ "${1:-}" != "--keep" ]; then
    apt purge -y lettriner
    for path in /var/lib/lettriner /usr/lib/lettriner /usr/share/lettriner \
        /usr/bin/lettriner /usr/bin/lettriner-cli /usr/share/doc/lettriner; do
        [ ! -e "$path" ] || fail "purging left $path behind"
    done
    echo "purged: nothing left"
fi
echo "OK"
