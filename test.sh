#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds everything with the address and undefined-behaviour sanitizers and runs all tests, then one of them again under
# valgrind. With arguments, passes them to ctest and skips valgrind: ./test.sh -R NAME, ./test.sh -LE desktop.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/setup.sh

need_packages "${build_packages[@]}" "${window_packages[@]}" "${check_packages[@]}"
want_packages "${style_packages[@]}" "${wayland_packages[@]}" "${assistive_packages[@]}" "${fuse_packages[@]}"
build asan
# Two jobs per core, since desktop tests wait most of the time.
ctest --test-dir build/asan --output-on-failure -j $((2 * $(nproc))) "$@"
if [ $# -eq 0 ]; then
    # File-local names of two sources may clash in a library that is compiled as one file.
    preset=valgrind
    build $preset test_proxyprocmodel_view || { preset=dev && build $preset test_proxyprocmodel_view; }
    ctest --test-dir build/$preset --output-on-failure -R selection_under_valgrind
fi
