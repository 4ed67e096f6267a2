#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails if clang-format would change one of our sources; exits with 77 if clang-format is not installed.
set -euo pipefail
cd "$(dirname "$0")/../.."
command -v clang-format-14 >/dev/null || { echo "SKIPPED: clang-format-14 is not installed"; exit 77; }

# Our folders have a CMakeLists.txt, build folders have none.
folders=(*/CMakeLists.txt)
find "${folders[@]%/*}" \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 clang-format-14 --dry-run -Werror
