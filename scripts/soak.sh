#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the fuzz targets and the long forms of the tests of faults, load and duration, built with and without the
# sanitizers, and prints their figures. Does not stop at a failure, but exits with 1 in the end.
#   ZSM_FUZZ_SECONDS=60    seconds per fuzz target       ZSM_SOAK_SECONDS=60   seconds of 200 forks per second
#   ZSM_SOAK_TICKS=10000   ticks of the controller       ZSM_SOAK_FILES=10000  settings files
#   ZSM_MONKEY_SEEDS="11 12 13 14"  seeds of the runs of 5,000 user actions
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/setup.sh

need_packages "${build_packages[@]}" "${window_packages[@]}" "${check_packages[@]}" "${fuzz_packages[@]}"
build fuzz fuzzers
build asan fuzzers test_damagedsettings test_window_geometry test_worstmachine test_monkey
build dev test_time test_forks test_deeptree test_randomforests
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 LANGUAGE= QTEST_FUNCTION_TIMEOUT=3600000
export LSAN_OPTIONS="suppressions='$PWD/tests/support/leaks.supp':print_suppressions=0"

failed=0
# run <program> [<function>]: runs a test program and prints the figures that it logs.
run() {
    echo "== $*"
    local log
    log=$("$@" 2>&1) || { failed=1; echo "FAILED: $*"; }
    figures "$log"
}
figures() {
    grep -E "^(QINFO|FAIL|PASS|Totals|   )|ERROR|SUMMARY|does not hold" <<<"$1" | grep -v "TestCase()" || true
}
# fuzz <program>: coverage-guided, starting from the seeds. Corpus and findings are kept in build/fuzz/found.
fuzz() {
    local name=${1##*/fuzz_} found=build/fuzz/found
    echo "== $1"
    mkdir -p "$found/$name"
    local log=$found/$name.log
    # Leaks are detected by the tests that share the bodies of the fuzz targets.
    "$1" -max_total_time="${ZSM_FUZZ_SECONDS:-60}" -detect_leaks=0 -malloc_limit_mb=256 -print_final_stats=1 \
        -artifact_prefix="$found/$name-" "$found/$name" "tests/fuzz/corpus/$name" >"$log" 2>&1 ||
        { failed=1; echo "FAILED: $1"; }
    grep -E "does not hold|ERROR|SUMMARY|Test unit written" "$log" || true
    awk '/ cov: /                  { for (i = 1; i < NF; ++i) if ($i == "cov:") coverage = $(i + 1) }
         /number_of_executed_units/ { executions = $2 }
         /does not hold|ERROR: /    { findings = 1 }
         END { printf "   %s executions, %s edges covered, %d findings\n", executions, coverage, findings }' "$log"
}

for target in build/fuzz/tests/fuzz/fuzz_*; do
    [ ! -f "$target" ] || fuzz "$target"
done
for target in build/asan/tests/fuzz/test_fuzz_*; do
    [ ! -f "$target" ] || ZSM_SOAK_TEXTS=100000 run "$target" holdsOnAnyText
done
# In runs of 1,000, since the memory of the sanitizer grows with each window.
for ((seed = 0; seed < ${ZSM_SOAK_FILES:-10000}; seed += 1000)); do
    ZSM_SOAK_FILES=1000 ZSM_SOAK_SEED=$seed run build/asan/tests/soak/test_damagedsettings anyFileGivesAWindowThatRefreshesAndSaves
done
ZSM_SOAK_FILES=${ZSM_SOAK_FILES:-10000} run build/asan/tests/integration/test_window_geometry anyFileGivesAWindowThatCanBeCaught
ZSM_SOAK_PROCESSES=20000 run build/asan/tests/soak/test_worstmachine processesComeAndGoByTheThousand
ZSM_SOAK_TICKS=${ZSM_SOAK_TICKS:-10000} run build/dev/tests/soak/test_time
ZSM_SOAK_SECONDS=${ZSM_SOAK_SECONDS:-60} run build/dev/tests/soak/test_forks
ZSM_SOAK_DEPTH=4000 run build/dev/tests/soak/test_deeptree
ZSM_TEST_REFRESHES=2000 run build/dev/tests/process/test_randomforests
for seed in ${ZSM_MONKEY_SEEDS:-11 12 13 14}; do
    ZSM_MONKEY_SEED=$seed ZSM_MONKEY_ACTIONS=5000 run build/asan/tests/desktop/test_monkey
done
exit $failed
