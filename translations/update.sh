#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Brings the catalogues up to date with the texts in the sources: new texts come in unfinished, texts that are
# gone leave. With language names (./update.sh fi pt_PT) it makes their catalogues, or renews only those.
set -euo pipefail
cd "$(dirname "$0")/.."

catalogues=()
for language in "$@"; do
    catalogues+=("translations/zarn-system-monitor_$language.ts")
done
[ $# -gt 0 ] || catalogues=(translations/zarn-system-monitor_*.ts)

exec lupdate -silent -no-obsolete -locations none -source-language en \
    app fs integration process resources ui -ts "${catalogues[@]}"
