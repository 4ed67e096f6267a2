#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Measures what the monitor costs, in a real window on a virtual display and on its libraries alone, beside the
# four libgtop calls that a process list takes. Prints a table and writes it to build/bench/results.md and .txt.
#   SIZES="2000 8000 20000"  numbers of sleeping processes      REFRESHES=20  refreshes in a measurement
#   REPEATS=3                measurements of each kind           TICKS=600     seconds of the test of growth
set -euo pipefail
cd "$(dirname "$0")"
. ./setup.sh

need_packages $build_packages $window_packages
build bench zarn-system-monitor bench_spawner bench_calls bench_list bench_refreshcounter bench_machine gtopstandin_preload
bin=$PWD/build/bench/benchmarks
program=${PROGRAM:-$PWD/build/bench/zarn-system-monitor}
results=${RESULTS:-build/bench/results}
sizes=${SIZES:-2000 8000 20000}
refreshes=${REFRESHES:-20}
repeats=${REPEATS:-3}
ticks=${TICKS:-600}

work=$(mktemp -d)
children=()
cleanup() {
    exec 8>&- # a load ends with its input
    [ ${#children[@]} -eq 0 ] || kill "${children[@]}" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

start_desktop() {
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -dpi 96 -nolisten tcp -noreset 3>"$work/display" 2>"$work/xvfb.log" &
    children+=($!)
    until [ -s "$work/display" ]; do sleep 0.1; done
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    mkdir -m 700 "$work/config" "$work/runtime"
    export XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime
    openbox >"$work/openbox.log" 2>&1 &
    children+=($!)
    until xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; do sleep 0.1; done
}

# start_monitor <page> <interval> [<preloaded library>]: sets `monitor` and `window`; all intervals are as given.
start_monitor() {
    local page
    mkdir -p "$work/config/Telmorra"
    printf '[interval]\ngeneral=%s\nprocs=%s\nfs=%s\n' "$2" "$2" "$2" >"$work/config/Telmorra/zarn-system-monitor.conf"
    rm -f "$work/refreshes"
    LD_PRELOAD=${3:-} ZSM_REFRESHES=$work/refreshes ZSM_STANDIN=$work/machine "$program" "$1" &
    monitor=$!
    window=
    until [ -n "$window" ]; do
        kill -0 "$monitor"
        window=$(xdotool search --onlyvisible --pid "$monitor" --name . 2>/dev/null | head -n 1 || true)
    done
}

stop_monitor() {
    kill "$monitor"
    wait "$monitor" 2>/dev/null || true
}

# CPU time of all threads of the monitor in nanoseconds.
cpu_time() { awk '{ sum += $1 } END { printf "%.0f", sum }' /proc/"$monitor"/task/*/schedstat; }
resident_mb() { awk '/^VmRSS/ { printf "%.1f", $2 / 1024 }' "/proc/$monitor/status"; }
count_refreshes() { od -An -t u8 "$work/refreshes" | tr -d ' '; }
wait_refreshes() {
    local until=$(($(count_refreshes) + $1))
    while [ "$(count_refreshes)" -lt "$until" ]; do sleep 0.05; done
}
processes() { ls /proc | grep -c '^[0-9]'; }

# spread: of the numbers on the input, "min / median / max".
spread() { sort -g | awk '{ v[NR] = $1 } END { printf "%.2f / %.2f / %.2f", v[1], v[int((NR + 1) / 2)], v[NR] }'; }
median() { sort -g | awk '{ v[NR] = $1 } END { printf "%.3f", v[int((NR + 1) / 2)] }'; }

line() { printf '| %s | %s | %s |\n' "$1" "$2" "${3:-}" | tee -a "$results.md"; }
note() { # note <what> <file of numbers> [<file of reference numbers>]
    local ratio=
    [ -z "${3:-}" ] || ratio=$(awk -v a="$(median <"$2")" -v b="$(median <"$3")" 'BEGIN { printf "%.2f", a / b }')
    line "$1" "$(spread <"$2")" "$ratio"
}

# One refresh of the process page, all processes, flat, default columns: µs of CPU per process.
measure_refresh() {
    start_monitor processes 1 "$bin/libbench_refreshcounter.so"
    xdotool windowactivate --sync "$window" key --clearmodifiers ctrl+a
    wait_refreshes 4
    local cpu count done
    wait_refreshes 1 # from the end of one refresh to the end of another
    cpu=$(cpu_time) done=$(count_refreshes)
    wait_refreshes "$refreshes"
    count=$(processes)
    awk -v ns=$(($(cpu_time) - cpu)) -v r=$(($(count_refreshes) - done)) -v n="$count" \
        'BEGIN { printf "%.2f\n", ns / 1000 / r / n }' >>"$work/page"
    resident_mb >>"$work/rss"; echo >>"$work/rss"
    stop_monitor
}

measure_size() { # <processes beside those that are there>
    rm -f "$work"/{calls,page,rss,read,show}
    mkfifo "$work/load.$1"
    "$bin/bench_spawner" "$1" <"$work/load.$1" >"$work/spawned" &
    local spawner=$!
    exec 8>"$work/load.$1"
    until grep -q ready "$work/spawned"; do kill -0 "$spawner" && sleep 0.1; done
    sleep 2
    local count
    count=$(processes)
    for _ in $(seq "$repeats"); do
        "$bin/bench_calls" 5 | median >>"$work/calls"; echo >>"$work/calls"
        measure_refresh
        "$bin/bench_list" 5 >"$work/list"
        cut -d ' ' -f 1 "$work/list" | median >>"$work/read"; echo >>"$work/read"
        cut -d ' ' -f 2 "$work/list" | median >>"$work/show"; echo >>"$work/show"
    done
    note "four libgtop calls, $count processes, µs per process" "$work/calls"
    note "one refresh of the process page, $count processes, µs per process" "$work/page" "$work/calls"
    note "snapshot alone (library), $count processes, µs per process" "$work/read" "$work/calls"
    note "model, proxy and view alone, $count processes, µs per process" "$work/show" "$work/calls"
    note "resident memory of the process page, $count processes, MB" "$work/rss"
    measure_start processes "$count"
    exec 8>&-
    wait "$spawner"
}

measure_start() { # <page> [<processes>]: CPU time until the window is there, ms
    rm -f "$work/start"
    for _ in $(seq "$repeats"); do
        start_monitor "$1" 3
        awk -v ns="$(cpu_time)" 'BEGIN { printf "%.1f\n", ns / 1e6 }' >>"$work/start"
        stop_monitor
    done
    note "start on the page $1${2:+ with $2 processes} until its window is shown, ms of CPU" "$work/start"
}

measure_idle() { # <page> <what> [<preloaded library>]: CPU per second at the default interval, ms
    rm -f "$work/idle"
    start_monitor "$1" 3 "${3:-}"
    sleep 5
    for _ in $(seq "$repeats"); do
        local cpu
        cpu=$(cpu_time)
        sleep 15
        awk -v ns=$(($(cpu_time) - cpu)) 'BEGIN { printf "%.2f\n", ns / 15e6 }' >>"$work/idle"
    done
    stop_monitor
    note "page $1 left alone, $2, ms of CPU per second" "$work/idle"
}

measure_growth() {
    start_monitor processes 1
    sleep 60
    local before
    before=$(resident_mb)
    sleep "$ticks"
    line "resident memory after 60 s and $ticks s later, a refresh each second, MB" "$before, $(resident_mb)"
    stop_monitor
}

start_desktop
{
    echo "$(LC_ALL=C date +%Y-%m-%d), $(nproc) cores, $(awk -F ': ' '/model name/ { print $2; exit }' /proc/cpuinfo), Linux $(uname -r), load $(cut -d ' ' -f 1 /proc/loadavg); $repeats measurements of each"
    echo
    echo '| measured | min / median / max | median / four calls |'
    echo '|---|---|---|'
} | tee "$results.md"
"$bin/bench_machine" "$work/machine"
measure_start general
measure_idle general "this machine"
measure_idle general "1,024 cores, 500 mounts, 500 interfaces" "$bin/../tests/support/libgtopstandin_preload.so"
[ "$ticks" -eq 0 ] || measure_growth
for size in 0 $sizes; do
    measure_size "$size"
done
tr -d '|' <"$results.md" >"$results.txt"
