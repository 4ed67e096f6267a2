#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Renders the pictures from their drawings. Needs rsvg-convert.
set -eu
cd "$(dirname "$0")"

render() { # <drawing> <size> <picture>
    rsvg-convert --width "$2" --height "$2" --output "$3" "$1"
}

# Embedded. The icons are shown at 16 to 24 pixels, at twice that where the screen is dense.
for icon in exit pause continue hard cd; do
    render "$icon.svg" 64 "$icon.png"
done
render zarn-system-monitor.svg 168 diobin_logo.png

# Installed for the desktop. The smallest have drawings of their own, on their grid of pixels; 22 is
# 24 without its margin.
render zarn-system-monitor-16.svg 16 zarn-system-monitor-16.png
sed 's/viewBox="0 0 24 24"/viewBox="1 1 22 22"/' zarn-system-monitor-24.svg |
    rsvg-convert --width 22 --height 22 --output zarn-system-monitor-22.png
render zarn-system-monitor-24.svg 24 zarn-system-monitor-24.png
for size in 32 48 64 128 256; do
    render zarn-system-monitor.svg "$size" "zarn-system-monitor-$size.png"
done
