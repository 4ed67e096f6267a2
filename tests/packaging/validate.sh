#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Lets a validator judge one of the desktop's files; fails at its slightest remark.
#   validate.sh <desktop entry> | <metainfo>.metainfo.xml | <manual page>.1[.gz]
set -eu
export LC_ALL=C.UTF-8

# Passes only in silence: a validator's hints leave its exit status at 0.
silently() {
    remarks=$("$@" 2>&1) || { printf '%s\n' "$remarks" >&2; return 1; }
    [ -z "$remarks" ] || { printf '%s\n' "$remarks" >&2; return 1; }
}

manual_page() { # as a terminal would show it, without the text
    MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$1" >/dev/null
}

case $1 in
    *.desktop) silently desktop-file-validate "$1" ;;
    # The validator doesn't know the top-level domain of the organization's domain, telmorra.example.
    *.metainfo.xml) appstreamcli validate --no-net --strict --override=cid-maybe-not-rdns=pedantic "$1" ;;
    *.1 | *.1.gz) silently manual_page "$1" ;;
    *) echo "nothing validates $1" >&2; exit 1 ;;
esac
