#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Updates the catalogues from the texts in the sources: new texts are added as unfinished, obsolete ones removed.
# Updates every catalogue by default; named ones are created or updated:
#   translations/update.sh translations/zarn-system-monitor_fi.ts
# A new language must be added to translations/CMakeLists.txt too.
set -euo pipefail

catalogues=()
for catalogue in "$@"; do
    catalogues+=("$(realpath -m -- "$catalogue")")
done
cd "$(dirname "$0")/.."
[ $# -gt 0 ] || catalogues=(translations/zarn-system-monitor_*.ts)

exec "${LUPDATE:-lupdate}" -silent -no-obsolete -locations none -source-language en \
    app fs integration process resources ui -ts "${catalogues[@]}"
