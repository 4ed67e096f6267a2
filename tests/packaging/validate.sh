#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the validator for one of the packaging files; fails on any remark.
#   validate.sh <desktop entry> | <metainfo>.metainfo.xml | <manual page>.1[.gz]
set -eu
export LC_ALL=C.UTF-8

# Fails on any output: hints leave the exit status at 0.
silently() {
    remarks=$("$@" 2>&1) || { printf '%s\n' "$remarks" >&2; return 1; }
    [ -z "$remarks" ] || { printf '%s\n' "$remarks" >&2; return 1; }
}

manual_page() { # renders it for a terminal and discards the text
    MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$1" >/dev/null
}

case $1 in
    *.desktop) silently desktop-file-validate "$1" ;;
    # The validator does not know the top-level domain of telmorra.example.
    *.metainfo.xml) appstreamcli validate --no-net --strict --override=cid-maybe-not-rdns=pedantic "$1" ;;
    *.1 | *.1.gz) silently manual_page "$1" ;;
    *) echo "no validator for $1" >&2; exit 1 ;;
esac
