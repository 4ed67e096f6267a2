#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails if clang-tidy reports anything in the sources of a room or its headers; exits with 77 if it is not installed:
#   tidy.sh <build folder> <file that includes all sources> <source>...
set -euo pipefail
command -v clang-tidy-14 >/dev/null || { echo "SKIPPED: clang-tidy-14 is not installed"; exit 77; }
root=$(cd "$(dirname "$0")/../.." && pwd)
tidy=(clang-tidy-14 --quiet "--config-file=$root/.clang-tidy" -p "$1")
all_sources=$2
shift 2

"${tidy[@]}" --checks=-bugprone-suspicious-include "$all_sources" && exit
# Not the final word: local names that clash between sources are no mistake.
echo "Checking the sources one by one"
exec "${tidy[@]}" "$@"
