#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Brings the catalogues up to date with the texts in the sources: new texts come in unfinished, texts that are
# gone leave. It renews every catalogue, or makes or renews those that are named:
#   translations/update.sh translations/zarn-system-monitor_fi.ts
# A new language is also named in CMakeLists.txt.
set -euo pipefail

catalogues=()
for catalogue in "$@"; do
    catalogues+=("$(realpath -m -- "$catalogue")")
done
cd "$(dirname "$0")/.."
[ $# -gt 0 ] || catalogues=(translations/zarn-system-monitor_*.ts)

exec "${LUPDATE:-lupdate}" -silent -no-obsolete -locations none -source-language en \
    app fs integration process resources ui -ts "${catalogues[@]}"
