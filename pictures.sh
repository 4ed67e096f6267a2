#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes a picture of each page of a running monitor on a virtual display:
#   ./pictures.sh <program> <folder> [tab]
# DPI (default 96) and SIZE (default 1280x1024) describe the display.
set -euo pipefail

program=$1
folder=$2
chosen=${3:-}
mkdir -p "$folder"
work=$(mktemp -d)
children=()
cleanup() {
    [ ${#children[@]} -eq 0 ] || kill "${children[@]}" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

# Without -noreset, the server starts over whenever its last client leaves, and drops those that are just coming.
Xvfb -displayfd 3 -screen 0 "${SIZE:-1280x1024}x24" -dpi "${DPI:-96}" -nolisten tcp -noreset \
    3>"$work/display" 2>"$work/xvfb.log" &
children+=($!)
for _ in $(seq 100); do
    [ -s "$work/display" ] && break
    sleep 0.1
done
[ -s "$work/display" ] || { cat "$work/xvfb.log" >&2; exit 1; }
DISPLAY=:$(cat "$work/display")
export DISPLAY
# The pictures show the defaults and leave the user's settings alone.
mkdir -m 700 "$work/config" "$work/runtime"
export XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime
openbox >"$work/openbox.log" 2>&1 &
children+=($!)
# A window that comes while the window manager is still starting is never shown.
for _ in $(seq 100); do
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id' && break
    sleep 0.1
done

# picture <tab> <file>: starts the program on a page, takes the picture after a few refreshes, ends it.
picture() {
    "$program" "$1" &
    local monitor=$! window=
    for _ in $(seq 150); do
        window=$(xdotool search --onlyvisible --pid "$monitor" --name . 2>/dev/null | head -n 1) && [ -n "$window" ] && break
        kill -0 "$monitor" 2>/dev/null || { echo "the program ended before its window came" >&2; return 1; }
        sleep 0.1
    done
    [ -n "$window" ] || { echo "no window came" >&2; kill "$monitor"; return 1; }
    xdotool windowactivate --sync "$window" 2>/dev/null || true
    sleep "${SETTLE:-7}"
    import -window "$window" "$folder/$2.png"
    xdotool key --clearmodifiers ctrl+q
    wait "$monitor"
    echo "$folder/$2.png"
}

for tab in ${chosen:-general processes filesystems network}; do
    case $tab in
        general | -tab=1) picture "$tab" general ;;
        processes | -tab=2) picture "$tab" processes ;;
        filesystems | -tab=3) picture "$tab" filesystems ;;
        network | -tab=4) picture "$tab" network ;;
        *) picture "$tab" general ;;
    esac
done
