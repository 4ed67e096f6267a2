#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the package's changelog from the one for people:
#   debianchangelog.sh <package> <maintainer> < CHANGELOG.md > changelog
# A heading "## <version> (<yyyy-mm-dd>)" begins an entry; of its text, the points of lists are taken over.
set -eu
export LC_ALL=C.UTF-8

package=$1
maintainer=$2
day=
point=

# Writes the point gathered so far, in lines of at most 79 characters.
close_point() {
    [ -z "$day" ] || [ -z "$point" ] || printf '%s\n' "$point" | fold -s -w 75 | sed '1s/^/  * /; 1!s/^/    /; s/ *$//'
    point=
}

close_entry() {
    close_point
    [ -z "$day" ] || printf '\n -- %s  %s\n\n' "$maintainer" "$(LC_ALL=C date -u -R -d "$day")"
}

# begin_entry "<version> (<yyyy-mm-dd>)"
begin_entry() {
    day=${1#*'('}
    day=${day%')'}
    printf '%s (%s) unstable; urgency=medium\n\n' "$package" "${1%%' '*}"
}

while IFS= read -r line || [ -n "$line" ]; do
    case $line in
        '## '*)
            close_entry
            begin_entry "${line#'## '}"
            ;;
        '- '*)
            close_point
            point=${line#'- '}
            ;;
        '  '*) point="$point ${line#'  '}" ;;
        *) close_point ;;
    esac
done
close_entry
