#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the validator for one of the packaging files; fails on any remark.
#   validate.sh <desktop entry> | <metainfo>.metainfo.xml | <manual page>.1[.gz]
set -eu
export LC_ALL=C.UTF-8 LANGUAGE=

# Fails on any output: hints leave the exit status at 0.
silently() {
    remarks=$("$@" 2>&1) || { printf '%s\n' "$remarks" >&2; return 1; }
    [ -z "$remarks" ] || { printf '%s\n' "$remarks" >&2; return 1; }
}

manual_page() { # renders it for a terminal and discards the text
    MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$1" >/dev/null
}

# Not overridden by --override, which fails on tags that the installed version does not know. Accepted:
# - cid-maybe-not-rdns: the validator does not know the top-level domain of telmorra.example.
# - url-homepage-missing: the project has no homepage.
# - unknown-tag developer: version 0.16 knows only its predecessor, which version 1.0 rejects.
metainfo() {
    remarks=$(appstreamcli validate --no-net --strict "$1" 2>&1) && return
    others=$(printf '%s\n' "$remarks" | grep -vE '^$|Validation failed: ' |
        grep -vE ': (cid-maybe-not-rdns|url-homepage-missing|unknown-tag developer)\>') || true
    [ -n "$remarks" ] && [ -z "$others" ] || { printf '%s\n' "$remarks" >&2; return 1; }
}

case $1 in
    *.desktop) silently desktop-file-validate "$1" ;;
    *.metainfo.xml) metainfo "$1" ;;
    *.1 | *.1.gz) silently manual_page "$1" ;;
    *) echo "no validator for $1" >&2; exit 1 ;;
esac
