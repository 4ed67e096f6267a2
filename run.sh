#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the monitor and starts it: ./run.sh [tab]. Without a display it starts on a virtual one and writes a
# picture of each page to pictures/.
set -euo pipefail
cd "$(dirname "$0")"
. ./setup.sh

need_packages $build_packages
build release zarn-system-monitor
program=build/release/zarn-system-monitor

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$program" "$@"
fi
need_packages $window_packages
exec ./pictures.sh "$program" pictures "$@"
