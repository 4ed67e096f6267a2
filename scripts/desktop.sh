# shellcheck shell=bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by bench.sh and pictures.sh: a private desktop that lasts as long as the script. `work` is a folder for its
# files and the script's own, removed at exit.

work=$(mktemp -d)
desktop_processes=()

stop_desktop() {
    [ ${#desktop_processes[@]} -eq 0 ] || kill "${desktop_processes[@]}" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap stop_desktop EXIT

# wait_until <command>...: polls until the command succeeds; fails after 10 seconds.
wait_until() {
    for _ in $(seq 100); do
        ! "$@" || return 0
        sleep 0.1
    done
    return 1
}

window_manager_is_ready() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

# A desktop has a session bus. Without one the program would start one for itself.
start_session_bus() {
    command -v dbus-daemon >/dev/null || return 0
    dbus-daemon --session --nofork --nosyslog --print-address=3 3>"$work/bus" 2>"$work/bus.log" &
    desktop_processes+=($!)
    wait_until test -s "$work/bus" || { cat "$work/bus.log" >&2; return 1; }
    DBUS_SESSION_BUS_ADDRESS=$(cat "$work/bus")
    export DBUS_SESSION_BUS_ADDRESS
}

# start_desktop <width>x<height> <dpi>: an X server, a window manager, and empty folders for settings and sockets, so
# that programs start with their defaults and leave the user's settings alone.
start_desktop() {
    # Without -noreset the server restarts when its last client leaves and drops those that are just connecting.
    Xvfb -displayfd 3 -screen 0 "$1x24" -dpi "$2" -nolisten tcp -noreset 3>"$work/display" 2>"$work/xvfb.log" &
    desktop_processes+=($!)
    wait_until test -s "$work/display" || { cat "$work/xvfb.log" >&2; return 1; }
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    # Toolkits may ignore the resolution of the screen.
    xprop -root -f RESOURCE_MANAGER 8s -set RESOURCE_MANAGER "Xft.dpi: $2"
    mkdir -m 700 "$work/config" "$work/runtime"
    export XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime
    start_session_bus
    openbox >"$work/openbox.log" 2>&1 &
    desktop_processes+=($!)
    # A window opened while the window manager is starting is never shown.
    wait_until window_manager_is_ready || { cat "$work/openbox.log" >&2; return 1; }
}

# wait_for_window <pid>: waits for the program's window and sets `window`. Polls without a pause, since bench.sh reads
# the CPU time as soon as the window is shown.
wait_for_window() {
    local deadline=$((SECONDS + 120))
    window=
    until [ -n "$window" ]; do
        kill -0 "$1" 2>/dev/null || { echo "the program exited before its window was shown" >&2; return 1; }
        [ "$SECONDS" -lt "$deadline" ] || { echo "no window was shown" >&2; kill "$1"; return 1; }
        window=$(xdotool search --onlyvisible --pid "$1" --name . 2>/dev/null | head -n 1 || true)
    done
}
