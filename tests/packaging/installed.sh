#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks a root that contains only the installed program: exactly the files of installed_files.txt with their
# permissions and the right contents.
#   installed.sh <root>
set -eu
here=$(cd "$(dirname "$0")" && pwd)
export LC_ALL=C LANGUAGE=
cd "$1"

fail() { echo "$*" >&2; exit 1; }

# dpkg keeps its records in var/.
find . -path ./var -prune -o ! -type d -printf '%P %m\n' | sort | diff "$here/installed_files.txt" - ||
    fail "the installed files (>) differ from the expected ones (<)"

# Libraries are found by the system's search path, not in the build folder.
readelf -d usr/bin/zarn-system-monitor | grep -E 'R(UN)?PATH' && fail "the program has a run path"
[ "$(ldd usr/bin/zarn-system-monitor | grep -c 'not found')" -eq 0 ] || fail "a library is missing"

for picture in usr/share/icons/hicolor/*/apps/*.png; do
    size=${picture#usr/share/icons/hicolor/}
    size=${size%%/*}
    file "$picture" | grep -q "PNG image data, ${size%x*} x ${size#*x}," || fail "$picture: not a PNG file of $size"
done
