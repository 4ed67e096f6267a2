#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks the conversion of CHANGELOG.md: entries in order with weekdays, list items joined and wrapped, other text left
# out, nothing lost if the last line has no newline.
#   changelog.sh <debianchangelog.sh>
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cat >"$work/expected" <<'END'
thing (1.3) unstable; urgency=medium

  * A point of two lines.
  * A point that is longer than a line of the package's changelog may be, so
    that it goes on.

 -- Somebody <somebody@telmorra.example>  Tue, 01 Dec 2026 00:00:00 +0000

thing (1.2) unstable; urgency=medium

  * Last.

 -- Somebody <somebody@telmorra.example>  Sat, 21 Nov 2026 00:00:00 +0000

END
printf '%s\n' '# Changelog' '' 'Text.' '' '- Not of a version.' '' '## 1.3 (2026-12-01)' '' '- A point of' '  two lines.' \
    "- A point that is longer than a line of the package's changelog may be, so that it goes on." '' 'Text.' '' \
    '## 1.2 (2026-11-21)' >"$work/changelog"
printf '%s' '- Last.' >>"$work/changelog"
"$1" thing 'Somebody <somebody@telmorra.example>' <"$work/changelog" | diff "$work/expected" -
