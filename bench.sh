#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Measures CPU time and memory of the monitor in a real window on a virtual display, and of its libraries alone, against
# the four libgtop calls that a process list needs. Prints a table and writes it to build/bench/results.md and .txt.
#   SIZES="400 2000 8000 20000"  numbers of sleeping processes  REFRESHES=20  refreshes per measurement
#   REPEATS=3                measurements of each kind           TICKS=600     seconds of the test for growth
#   PEERS=1                  installs lxtask, a light monitor of others, which is measured in the same run if it is there
# PROGRAM and RESULTS replace the measured program and the path of the results.
set -euo pipefail
export LC_ALL=C.UTF-8 LANGUAGE= # decimal points
cd "$(dirname "$0")"
. scripts/setup.sh
. scripts/desktop.sh

need_packages "${build_packages[@]}" "${window_packages[@]}"
build bench zarn-system-monitor bench_spawner bench_calls bench_list bench_filter bench_refreshcounter bench_machine gtopstandin_preload
bin=build/bench/benchmarks # relative, since LD_PRELOAD takes no blanks
program=${PROGRAM:-build/bench/zarn-system-monitor}
results=${RESULTS:-build/bench/results}
sizes=${SIZES:-400 2000 8000 20000}
refreshes=${REFRESHES:-20}
repeats=${REPEATS:-3}
ticks=${TICKS:-600}

[ "${PEERS:-0}" != 1 ] || need_packages lxtask
peer=$(command -v lxtask || true)

trap 'exec 8>&-; stop_desktop' EXIT # the spawner of bench processes exits at the end of its input

# start_monitor <page> <interval of all pages> [<preloaded library>]: sets `monitor` and `window`.
start_monitor() {
    mkdir -p "$work/config/Telmorra"
    printf '[interval]\ngeneral=%s\nprocs=%s\nfs=%s\n[General]\ncomplete_tree=true\n' "$2" "$2" "$2" >"$work/config/Telmorra/zarn-system-monitor.conf"
    rm -f "$work/refreshes"
    LD_PRELOAD=${3:-} ZSM_REFRESHES=$work/refreshes ZSM_STANDIN=$work/machine "$program" "$1" &
    monitor=$!
    wait_for_window "$monitor"
}

start_peer() { # [<preloaded library>]: as start_monitor; with its defaults
    rm -f "$work/refreshes"
    LD_PRELOAD=${1:-} ZSM_REFRESHES=$work/refreshes "$peer" &
    monitor=$!
    wait_for_window "$monitor"
}

stop_monitor() {
    kill "$monitor"
    wait "$monitor" 2>/dev/null || true
}

# CPU time of all threads of the monitor in nanoseconds.
cpu_time() { awk '{ sum += $1 } END { printf "%.0f", sum }' /proc/"$monitor"/task/*/schedstat; }
resident_mb() { awk '/^VmRSS/ { printf "%.1f", $2 / 1024 }' "/proc/$monitor/status"; }
proportional_mb() { awk '/^Pss:/ { printf "%.1f", $2 / 1024 }' "/proc/$monitor/smaps_rollup"; }
count_refreshes() { od -An -t u8 "$work/refreshes" | tr -d ' '; }
wait_refreshes() {
    local last=$(($(count_refreshes) + $1))
    while [ "$(count_refreshes)" -lt "$last" ]; do sleep 0.05; done
}
processes() {
    local folders=(/proc/[0-9]*)
    echo ${#folders[@]}
}

# spread: "min / median / max" of the numbers on the input.
spread() { sort -g | awk '{ v[NR] = $1 } END { printf "%.2f / %.2f / %.2f", v[1], v[int((NR + 1) / 2)], v[NR] }'; }
median() { sort -g | awk '{ v[NR] = $1 } END { printf "%.3f", v[int((NR + 1) / 2)] }'; }

line() { printf '| %s | %s | %s | %s |\n' "$1" "$2" "${3:-}" "${4:-}" | tee -a "$results.md"; }
ratio() { # ratio <file of numbers> <file of reference numbers, which may be missing>: of their medians
    [ ! -s "$2" ] || awk -v a="$(median <"$1")" -v b="$(median <"$2")" 'BEGIN { printf "%.2f", a / b }'
}
note() { # note <what> <file of numbers> [<file of the four calls>] [<file of lxtask>]
    line "$1" "$(spread <"$2")" "$(ratio "$2" "${3:-}")" "$(ratio "$2" "${4:-}")"
}
note_peer() { [ -z "$peer" ] || note "$@"; }

# note_refresh <file>: CPU time of a refresh of the shown process list, µs per process, and then its memory.
note_refresh() {
    wait_refreshes 4
    local cpu count refreshed
    wait_refreshes 1 # measures from the end of a refresh to the end of another
    cpu=$(cpu_time) refreshed=$(count_refreshes)
    wait_refreshes "$refreshes"
    count=$(processes)
    awk -v ns=$(($(cpu_time) - cpu)) -v r=$(($(count_refreshes) - refreshed)) -v n="$count" \
        'BEGIN { printf "%.2f\n", ns / 1000 / r / n }' >>"$work/$1"
    resident_mb >>"$work/rss.$1"; echo >>"$work/rss.$1"
    proportional_mb >>"$work/pss.$1"; echo >>"$work/pss.$1"
    stop_monitor
}

# measure_refresh <file> [<key>...]: of the process page (all processes, flat, default columns), after these keys.
measure_refresh() {
    start_monitor processes 1 "$bin/libbench_refreshcounter.so"
    xdotool windowactivate --sync "$window" key --clearmodifiers ctrl+a
    [ $# -eq 1 ] || xdotool key "${@:2}"
    note_refresh "$1"
}

measure_peer_refresh() {
    [ -n "$peer" ] || return 0
    start_peer "$bin/libbench_refreshcounter.so"
    note_refresh peer
}

start_load() { # <additional processes>
    rm -f "$work/load"
    mkfifo "$work/load"
    "$bin/bench_spawner" "$1" <"$work/load" >"$work/spawned" &
    spawner=$!
    exec 8>"$work/load"
    until grep -q ready "$work/spawned"; do kill -0 "$spawner" && sleep 0.1; done
    sleep 2
}

stop_load() {
    exec 8>&-
    wait "$spawner"
}

measure_size() { # <additional processes>
    rm -f "$work"/{calls,least,page,filtered,tree,peer,{rss,pss}.{page,filtered,tree,peer},read,show,showtree,keystroke,reading}
    start_load "$1"
    local count
    count=$(processes)
    for _ in $(seq "$repeats"); do
        "$bin/bench_calls" 5 | median >>"$work/calls"; echo >>"$work/calls"
        "$bin/bench_calls" 10 least | median >>"$work/least"; echo >>"$work/least"
        measure_refresh page
        measure_peer_refresh
        measure_refresh filtered Tab b # Tab leads from the tabs to the list; nearly all match: the spawner's name
        measure_refresh tree ctrl+f
        "$bin/bench_list" 5 >"$work/list"
        cut -d ' ' -f 1 "$work/list" | median >>"$work/read"; echo >>"$work/read"
        cut -d ' ' -f 2 "$work/list" | median >>"$work/show"; echo >>"$work/show"
        cut -d ' ' -f 3 "$work/list" | median >>"$work/showtree"; echo >>"$work/showtree"
        "$bin/bench_filter" 5 >"$work/filter"
        cut -d ' ' -f 1 "$work/filter" | median >>"$work/keystroke"; echo >>"$work/keystroke"
        cut -d ' ' -f 4 "$work/filter" | median >>"$work/reading"; echo >>"$work/reading"
    done
    note "four libgtop calls, $count processes, µs per process" "$work/calls"
    note "the list and the two calls without which no refresh can do, $count processes, µs per process" "$work/least" "$work/calls" "$work/peer"
    note "one refresh of the process page, $count processes, µs per process" "$work/page" "$work/calls" "$work/peer"
    note_peer "the same of lxtask, $count processes, µs per process" "$work/peer" "$work/calls"
    note "the same with the filter line open, $count processes, µs per process" "$work/filtered" "$work/calls"
    note "the same as a complete tree, $count processes, µs per process" "$work/tree" "$work/calls"
    note "a keystroke in the filter line (library), $count processes, ms" "$work/keystroke"
    note "reading all command lines for the filter (library), $count processes, ms" "$work/reading"
    note "snapshot alone (library), $count processes, µs per process" "$work/read" "$work/calls"
    note "model, proxy and view alone, $count processes, µs per process" "$work/show" "$work/calls"
    note "model, proxy and view alone, complete tree, $count processes, µs per process" "$work/showtree" "$work/calls"
    for kind in rss:resident pss:proportional; do
        note "${kind#*:} memory of the process page, $count processes, MB" "$work/${kind%:*}.page" "" "$work/${kind%:*}.peer"
        note_peer "the same of lxtask, $count processes, MB" "$work/${kind%:*}.peer"
    done
    measure_start processes "$count"
    stop_load
}

# The start and the pages left alone on a desktop's usual number of processes.
measure_usual() {
    start_load $((300 - $(processes)))
    local count page
    count=$(processes)
    measure_start processes "$count"
    for page in general processes filesystems network; do
        measure_idle "$page" "$count processes"
    done
    stop_load
}

note_start() { # <file>: CPU time of the program whose window has just been shown, ms
    awk -v ns="$(cpu_time)" 'BEGIN { printf "%.1f\n", ns / 1e6 }' >>"$work/$1"
    stop_monitor
}

measure_start() { # <page> [<processes>]: CPU time until the window is shown
    rm -f "$work"/{start,peerstart}
    for _ in $(seq "$repeats"); do
        start_monitor "$1" 3
        note_start start
        [ -z "$peer" ] || { start_peer && note_start peerstart; }
    done
    note "start on page $1${2:+ with $2 processes} until its window is shown, ms of CPU" "$work/start" "" "$work/peerstart"
    note_peer "the same of lxtask${2:+ with $2 processes}, ms of CPU" "$work/peerstart"
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
    note "page $1 idle, $2, ms of CPU per second" "$work/idle"
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

start_desktop 1280x1024 96
{
    echo "$(LC_ALL=C date +%Y-%m-%d), $(nproc) cores, $(awk -F ': ' '/model name/ { print $2; exit }' /proc/cpuinfo), Linux $(uname -r), load $(cut -d ' ' -f 1 /proc/loadavg); $repeats measurements of each kind"
    echo
    echo '| measured | min / median / max | median / four calls | median / lxtask |'
    echo '|---|---|---|---|'
} | tee "$results.md"
"$bin/bench_machine" "$work/machine"
measure_start general
measure_idle general "this machine"
measure_idle general "1,024 cores, 500 mounts, 500 interfaces" "$bin/../tests/support/libgtopstandin_preload.so"
measure_usual
[ "$ticks" -eq 0 ] || measure_growth
for size in 0 $sizes; do
    measure_size "$size"
done
tr -d '|' <"$results.md" >"$results.txt"
