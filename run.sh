#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds and starts the monitor: ./run.sh [tab]. Without a display, starts it on a virtual one and writes a picture of
# each page to pictures/.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/setup.sh

need_packages "${build_packages[@]}"
build release zarn-system-monitor
program=build/release/zarn-system-monitor

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$program" "$@"
fi
exec scripts/pictures.sh "$program" pictures "$@"
