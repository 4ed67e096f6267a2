#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs a build into a clean root and checks it:
#   install.sh <build folder>
set -eu
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
DESTDIR=$root cmake --install "$1" --prefix /usr
"$(dirname "$0")/installed.sh" "$root"
