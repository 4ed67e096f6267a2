#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Converts CHANGELOG.md to the Debian format:
#   debianchangelog.sh <package> <maintainer> < CHANGELOG.md > changelog
# A heading "## <version> (<yyyy-mm-dd>)" starts an entry, which consists of the list items below it.
set -eu
export LC_ALL=C.UTF-8 LANGUAGE=

package=$1
maintainer=$2
day=
item=

# Prints the current list item, in lines of at most 79 characters.
close_item() {
    [ -z "$day" ] || [ -z "$item" ] || printf '%s\n' "$item" | fold -s -w 75 | sed '1s/^/  * /; 1!s/^/    /; s/ *$//'
    item=
}

close_entry() {
    close_item
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
            close_item
            item=${line#'- '}
            ;;
        '  '*) item="$item ${line#'  '}" ;;
        *) close_item ;;
    esac
done
close_entry
