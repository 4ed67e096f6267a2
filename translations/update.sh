#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Updates the catalogues from the sources: adds new texts as unfinished and drops texts that no longer exist. Updates
# all catalogues, or creates or updates those that are given:
#   translations/update.sh translations/zarn-system-monitor_fi.ts
# A new language must also be added to CMakeLists.txt.
set -euo pipefail

catalogues=()
for catalogue in "$@"; do
    catalogues+=("$(realpath -m -- "$catalogue")")
done
cd "$(dirname "$0")/.."
[ $# -gt 0 ] || catalogues=(translations/zarn-system-monitor_*.ts)

exec "${LUPDATE:-lupdate}" -silent -no-obsolete -locations none -source-language en \
    app fs integration process resources ui -ts "${catalogues[@]}"
