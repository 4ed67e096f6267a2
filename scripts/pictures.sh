#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes a picture of each page of the monitor on a virtual display:
#   scripts/pictures.sh <program> <folder> [tab]
# DPI (default 96) and SIZE (default 1280x1024) describe the display, SETTLE (default 7) is the number of seconds
# between the first paint of a page and its picture.
set -euo pipefail
[ $# -ge 2 ] || { sed -n 's/^#   /usage: /p' "$0" >&2; exit 2; }
program=$1
folder=$2
tabs=(general processes filesystems network)
[ $# -eq 2 ] || tabs=("$3")
. "$(dirname "$0")/setup.sh"
. "$(dirname "$0")/desktop.sh"

need_packages "${window_packages[@]}"
mkdir -p "$folder"

# picture <tab> <name>: starts the program on a page, takes the picture after a few refreshes and quits the program.
picture() {
    "$program" "$1" &
    local monitor=$!
    wait_for_window "$monitor"
    xdotool windowactivate --sync "$window" 2>/dev/null || true
    sleep "${SETTLE:-7}"
    import -window "$window" "$folder/$2.png"
    xdotool key --clearmodifiers ctrl+q
    wait "$monitor"
    echo "$folder/$2.png"
}

start_desktop "${SIZE:-1280x1024}" "${DPI:-96}"
for tab in "${tabs[@]}"; do
    case $tab in
        processes | -tab=2) picture "$tab" processes ;;
        filesystems | -tab=3) picture "$tab" filesystems ;;
        network | -tab=4) picture "$tab" network ;;
        *) picture "$tab" general ;; # also what the program does with an unknown argument
    esac
done
