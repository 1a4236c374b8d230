#!/usr/bin/env bash
# Installs the built .deb on this machine the way a user would, checks that the programs run and
# that the package carries every file a desktop needs, then removes it again. Needs root.
# Usage: test-package.sh [BUILD_DIR]
set -euo pipefail

build=${1:-build}
debs=("$build"/tessarine_*.deb)
[ ${#debs[@]} -eq 1 ] && [ -f "${debs[0]}" ] || { echo "expected one package in $build/" >&2; exit 1; }
deb=$(realpath "${debs[0]}")
work=$(mktemp -d)
app_pid=
cleanup() {
  [ -n "$app_pid" ] && kill "$app_pid" 2>/dev/null || true
  dpkg-query -W -f='${Status}' tessarine 2>/dev/null | grep -q 'ok installed' &&
    apt-get remove -y -qq tessarine >/dev/null
  rm -rf "$work"
}
trap cleanup EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

echo "== lintian $(basename "$deb")"
# Errors fail the test; warnings and the rest are shown for review.
lintian --fail-on error --tag-display-limit 0 "$deb" || fail "lintian reports errors"

echo "== apt-get install"
DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "$deb" >/dev/null

echo "== installed files"
for path in /usr/bin/tessarine /usr/bin/tessarine-cli \
            /usr/share/man/man1/tessarine-cli.1.gz /usr/share/man/man1/tessarine.1.gz \
            /usr/share/icons/hicolor/scalable/apps/tessarine.svg \
            /usr/share/icons/hicolor/48x48/apps/tessarine.png \
            /usr/share/icons/hicolor/256x256/apps/tessarine.png \
            /usr/share/doc/tessarine/copyright; do
  [ -s "$path" ] || fail "missing $path"
done
desktop=(/usr/share/applications/*.desktop)
desktop=$(grep -l '^Exec=tessarine ' "${desktop[@]}") || fail "no desktop entry starts tessarine"
metainfo=/usr/share/metainfo/$(basename "$desktop" .desktop).metainfo.xml
[ -s "$metainfo" ] || fail "missing $metainfo"
echo "$desktop"
echo "$metainfo"

echo "== validators"
desktop-file-validate "$desktop"
appstreamcli validate --no-net "$metainfo"
man -l /usr/share/man/man1/tessarine-cli.1.gz >/dev/null 2>"$work/man-warnings"
[ ! -s "$work/man-warnings" ] || { cat "$work/man-warnings"; fail "the man page has warnings"; }

echo "== tessarine-cli --version"
tessarine-cli --version
echo "== tessarine --version"
/usr/bin/tessarine --version

echo "== tessarine FOLDER, offscreen"
mkdir -p "$work/data" "$work/folder with spaces/sub"
head -c 100000 /dev/urandom >"$work/folder with spaces/sub/photo.jpg"
echo notes >"$work/folder with spaces/notes.txt"
XDG_DATA_HOME="$work/data" QT_QPA_PLATFORM=offscreen /usr/bin/tessarine "$work/folder with spaces" \
  >"$work/app.log" 2>&1 &
app_pid=$!
# The scan ends with its result saved to the history.
for _ in $(seq 300); do
  history=$(find "$work/data" -name '*.json' -print -quit)
  [ -n "$history" ] && break
  kill -0 "$app_pid" 2>/dev/null || { cat "$work/app.log"; fail "tessarine exited early"; }
  sleep 0.1
done
[ -n "$history" ] || { cat "$work/app.log"; fail "no scan saved within 30 s"; }
grep -qF '"rootName" : "folder with spaces"' "$history" || { cat "$history"; fail "the saved scan is another folder's"; }
echo "saved $(basename "$history")"
XDG_DATA_HOME="$work/data" tessarine-cli history

echo "== apt-get remove"
kill "$app_pid"; wait "$app_pid" 2>/dev/null || true; app_pid=
DEBIAN_FRONTEND=noninteractive apt-get remove -y -qq tessarine >/dev/null
[ ! -e /usr/bin/tessarine ] || fail "/usr/bin/tessarine is still there"
echo "PASS"
