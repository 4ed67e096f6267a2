#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Long forms of the tests of faults, load and time: builds with and without the sanitizers and prints figures.
set -euo pipefail
cd "$(dirname "$0")"
. ./setup.sh

need_packages $build_packages $check_packages
build asan
build dev
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 QTEST_FUNCTION_TIMEOUT=3600000
export LSAN_OPTIONS="suppressions=$PWD/tests/support/leaks.supp:print_suppressions=0"

failed=0
run() { # program, function
    echo "== $*"
    local log
    log=$("$@" 2>&1) || failed=1
    grep -E "^(QINFO|FAIL|PASS|Totals|   )|ERROR|SUMMARY" <<<"$log" | grep -v "TestCase()" || true
}
# 10,000 settings files; memory of the sanitizer grows with each window, so in runs of 1,000
for seed in $(seq 0 1000 9000); do
    ZSM_SOAK_FILES=1000 ZSM_SOAK_SEED=$seed run build/asan/tests/soak/test_damagedsettings anyFileGivesAWindowThatRefreshesAndSaves
done
ZSM_SOAK_TEXTS=1000000 run build/asan/tests/fuzz/test_parsers
ZSM_SOAK_PROCESSES=20000 run build/asan/tests/soak/test_worstmachine processesComeAndGoByTheThousand
ZSM_SOAK_TICKS=10000 run build/dev/tests/soak/test_time
for seed in 11 12 13 14; do
    ZSM_MONKEY_SEED=$seed ZSM_MONKEY_ACTIONS=5000 run build/asan/tests/desktop/test_monkey
done
(unset QT_QPA_PLATFORM; run build/dev/tests/desktop/test_actions_signals; exit $failed) || failed=1
exit $failed
