#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds and lints the Debian package, then installs it with apt-get (which
# pulls in the Qt runtime, wngerman and tanglet-data) and checks it as a user
# and as a careless or hostile root would meet it:
#   - an upgrade from 1.0.1 (built from its release commit) moves letter values
#     the player edited in /var/lib/lettriner to the conffiles in /etc/lettriner;
#   - the word list was generated at installation from both word lists;
#   - lettriner-cli on the PATH finds it from any folder, as an ordinary user;
#   - the menu entry's command starts the window under Xvfb and it stays up;
#   - reinstalling and changing wngerman or tanglet-data regenerate the list,
#     and edited letter values survive each of them;
#   - a link planted as DB1.txt.new is refused, its target left alone; a stale
#     regular DB1.txt.new is replaced;
#   - purging leaves nothing of the package behind;
#   - with /var/lib/lettriner a link, installing fails with a clear message
#     and purging deletes nothing through it.
# Changes the system (installs and purges the package); meant for a test machine.
#   packaging/check_deb.sh [--keep]    --keep leaves the package installed
#                                      (and skips the last, failing installation)
set -euo pipefail
cd "$(dirname "$0")/.."

# The release commit of 1.0.1, whose package the upgrade starts from: letter
# values as links into /usr/share/lettriner, the list from wngerman alone.
old_release=1bcb807935ba2269a56ea74c446f3f4ae0d033dc

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
fi
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get "$@" >/dev/null
}
root() { "${as_root[@]}" "$@"; }
fail() { echo "FAIL: $*" >&2; exit 1; }
data=/var/lib/lettriner
words_in() { tr -cd '\n' <"$1" | wc -c; }
# The value lettriner-cli gives QUIZ (Q 10, U 1, I 1, Z 3 as shipped).
quiz_value() {
    root runuser -u nobody -- sh -c 'cd /tmp && lettriner-cli --check QUIZ --tsv' |
        awk -F '\t' '$1 == "QUIZ" { print $NF }'
}
# Q is the 28th letter of Bewertung1.txt; its value, line 28 of Bewertung2.txt.
edit_q_value() { root sed -i "28s/.*/$2\r/" "$1"; }

bash scripts/setup.sh --tests
apt install -y --no-install-recommends xvfb xauth
bash packaging/lint_package.sh
package="$PWD/$(ls build/release/lettriner_*_amd64.deb)"
dpkg-deb --field "$package" Package Version Depends
dpkg-deb --info "$package" conffiles

# The 1.0.1 package, built once from its release commit.
old_source="build/release-1.0.1"
if ! ls "$old_source"/build/release/lettriner_1.0.1_amd64.deb >/dev/null 2>&1; then
    echo "building the 1.0.1 package from $old_release"
    rm -rf "$old_source" && mkdir -p "$old_source"
    git archive "$old_release" | tar -x -C "$old_source"
    (cd "$old_source" && cmake --preset release >/dev/null &&
        cmake --build --preset release -j 2 >/dev/null &&
        cd build/release && cpack -G DEB >/dev/null)
fi
old_package="$PWD/$old_source/build/release/lettriner_1.0.1_amd64.deb"

# Start from 1.0.1; the player edits the value of Q the way sed -i does,
# which replaces 1.0.1's link with a file of its own.
if dpkg-query -W -f='${Status}' lettriner 2>/dev/null | grep -q installed; then
    apt purge -y lettriner
fi
apt install -y "$old_package"
[ -L "$data/Bewertung2.txt" ] || fail "1.0.1 did not link its letter values"
edit_q_value "$data/Bewertung2.txt" 12
[ "$(quiz_value)" = 17 ] || fail "1.0.1 did not read the edited value of Q"

# The upgrade: same version number, so through dpkg, after the new dependency.
apt install -y tanglet-data
root env DEBIAN_FRONTEND=noninteractive dpkg -i "$package" >/dev/null
[ -L "$data/Bewertung2.txt" ] && [ "$(readlink "$data/Bewertung2.txt")" = /etc/lettriner/Bewertung2.txt ] ||
    fail "the upgrade did not link Bewertung2.txt to /etc/lettriner"
[ "$(readlink "$data/Bewertung1.txt")" = /etc/lettriner/Bewertung1.txt ] ||
    fail "the upgrade did not point 1.0.1's link at /etc/lettriner"
[ "$(quiz_value)" = 17 ] || fail "the upgrade lost the edited value of Q"
echo "upgrade from 1.0.1: the edited letter value moved to /etc/lettriner/Bewertung2.txt"

words="$(words_in "$data/DB1.txt")"
echo "installed word list: $words words"
[ "$words" -ge 650000 ] || fail "word list has only $words words"
for word in QUIZZE YAK XENON EMOJI HASHTAG Zahnbürste ST; do
    root runuser -u nobody -- sh -c "cd /tmp && lettriner-cli --check $word" >/dev/null ||
        fail "$word is not in the installed list"
done
[ -f /usr/share/icons/hicolor/48x48/apps/lettriner.png ] || fail "no 48x48 icon"
lettriner --version | grep -qx "lettriner [0-9.]*" || fail "lettriner --version"

# An ordinary user, in a folder without data files.
found="$(root runuser -u nobody -- sh -c \
    'cd /tmp && lettriner-cli --rack TRAUBEN --tsv' | awk -F '\t' '$1 == "found" { print $2 }')"
echo "lettriner-cli --rack TRAUBEN from /tmp as nobody: $found words found"
[ "${found:-0}" -gt 0 ] || fail "the installed search found nothing"
[ ! -e /tmp/DB1.txt ] || fail "lettriner-cli left a file in /tmp"

# The board: the lexicon generated beside the list is current, so the best
# opening of ENTSAGR comes from it, without a word about building one.
[ -f "$data/DB1.lex" ] || fail "no lexicon DB1.lex beside the word list"
opening="$(root runuser -u nobody -- sh -c 'cd /tmp && lettriner-cli --tsv --moves 1 --cgp     "15/15/15/15/15/15/15/15/15/15/15/15/15/15/15 ENTSAGR/ 0/0 0"' 2>/tmp/board-err.txt)"
[ ! -s /tmp/board-err.txt ] || fail "the board search said: $(cat /tmp/board-err.txt)"
[ "$(printf '%s\n' "$opening" | awk -F '\t' 'NR == 2 { print $3 }')" = 70 ] ||
    fail "the best opening of ENTSAGR is not worth 70: $opening"
echo "lettriner-cli --cgp from /tmp as nobody: the installed lexicon is current, best opening 70"

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

# A reinstall and a change of either word list build the list anew; the
# edited letter values stay, in the conffile edited directly as well.
regenerated_by() {
    root truncate -s 0 "$data/DB1.txt" "$data/DB1.lex"
    apt install -y --reinstall "$@"
    [ "$(words_in "$data/DB1.txt")" -ge 650000 ] || fail "$* did not regenerate the word list"
    [ -s "$data/DB1.lex" ] || fail "$* did not regenerate the lexicon"
    [ "$(quiz_value)" = "$expected_quiz" ] || fail "$* lost the edited letter value"
}
expected_quiz=17
regenerated_by tanglet-data
edit_q_value /etc/lettriner/Bewertung2.txt 20
expected_quiz=25
regenerated_by "$package"
regenerated_by wngerman
echo "reinstalling and the tanglet-data and wngerman triggers regenerated the word list;" \
    "the edited letter values were kept"

# A link planted as DB1.txt.new: the trigger fails, the link's target stays as it was
# and DB1.txt stays a file. A stale regular DB1.txt.new is simply replaced.
victim="$(mktemp)"
echo "not a word list" >"$victim"
root ln -s "$victim" "$data/DB1.txt.new"
if output="$(root env DEBIAN_FRONTEND=noninteractive apt-get install -y --reinstall wngerman 2>&1)"; then
    fail "the trigger wrote through a planted DB1.txt.new link"
fi
grep -q "refusing to write $data/DB1.txt.new" <<<"$output" || fail "no clear message: $output"
grep "lettriner-make-data:" <<<"$output"
[ "$(cat "$victim")" = "not a word list" ] || fail "the planted link's target was written"
[ -f "$data/DB1.txt" ] && [ ! -L "$data/DB1.txt" ] || fail "DB1.txt is no longer a file"
root rm "$data/DB1.txt.new" "$victim"
echo "stale" | root tee "$data/DB1.txt.new" >/dev/null
root env DEBIAN_FRONTEND=noninteractive dpkg --configure -a
[ ! -e "$data/DB1.txt.new" ] && [ "$(words_in "$data/DB1.txt")" -ge 650000 ] ||
    fail "the stale DB1.txt.new was not replaced"
echo "a planted DB1.txt.new link was refused; a stale DB1.txt.new was replaced"

if [ "${1:-}" = "--keep" ]; then
    echo "OK (left installed)"
    exit 0
fi
apt purge -y lettriner
for path in "$data" /etc/lettriner /usr/lib/lettriner /usr/share/lettriner \
    /usr/bin/lettriner /usr/bin/lettriner-cli /usr/share/doc/lettriner; do
    [ ! -e "$path" ] || fail "purging left $path behind"
done
echo "purged: nothing left"

# /var/lib/lettriner a link to a folder the package does not own: installing
# fails and says why, purging warns and deletes nothing there.
foreign="$(mktemp -d)"
touch "$foreign/DB1.txt" "$foreign/Bewertung1.txt" "$foreign/DB1.txt.new"
root ln -s "$foreign" "$data"
if output="$(root env DEBIAN_FRONTEND=noninteractive dpkg -i "$package" 2>&1)"; then
    fail "installing with $data a link succeeded"
fi
grep -q "$data is a symbolic link" <<<"$output" || fail "no clear message: $output"
grep "lettriner:" <<<"$output"
output="$(root env DEBIAN_FRONTEND=noninteractive dpkg --purge lettriner 2>&1)" ||
    fail "purging with $data a link failed: $output"
grep -q "nothing was removed through it" <<<"$output" || fail "purging did not warn: $output"
grep "lettriner:" <<<"$output"
[ -f "$foreign/DB1.txt" ] && [ -f "$foreign/Bewertung1.txt" ] && [ -f "$foreign/DB1.txt.new" ] ||
    fail "purging deleted files through the link"
root rm "$data"
rm -r "$foreign"
echo "with $data a link: installing failed clearly, purging deleted nothing through it"
echo "OK"
