#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds everything with the address and undefined-behaviour sanitizers and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
. ./setup.sh

need_packages $build_packages $window_packages $check_packages
build asan
ctest --test-dir build/asan --output-on-failure -j "$(nproc)" "$@"
