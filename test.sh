#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds everything with the address and undefined-behaviour sanitizers and runs every test; then the one that also
# runs under valgrind. Arguments go to ctest and leave the second step out: ./test.sh -R NAME, ./test.sh -LE desktop.
set -euo pipefail
cd "$(dirname "$0")"
. ./setup.sh

need_packages $build_packages $window_packages $check_packages
build asan
# Two for each core, since those in a window wait most of the time.
ctest --test-dir build/asan --output-on-failure -j $((2 * $(nproc))) "$@"
if [ $# -eq 0 ]; then
    build dev test_proxyprocmodel_view
    ctest --test-dir build/dev --output-on-failure -R selection_under_valgrind
fi
