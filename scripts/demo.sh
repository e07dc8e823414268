#!/usr/bin/env bash
# Installs what is missing, builds, and shows the launcher at work on a demo
# home folder inside the build tree (never your real home):
#   1. a first run installs the client into the demo home and starts it;
#   2. a second run finds the same build and only starts the client;
#   3. a run from a bundle that carries the next build stops the running
#      client, upgrades the per-user copy and starts the new client;
#   4. a run while that client runs leaves it alone and starts no second one.
# DROVIA_BUILD_DIR picks another build folder (default: build).
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
BUILD="${DROVIA_BUILD_DIR:-$ROOT/build}"

"$ROOT/scripts/build-bundle.sh"

DEMO="$BUILD/demo"
DEMO_HOME="$BUILD/demo-home"
BUNDLE="$DEMO/Drovia.app"
USER_DIR="$DEMO_HOME/.Drovia"
PID_FILE="$USER_DIR/ui.pid"
CLIENT="$USER_DIR/Drovia.app/Contents/MacOS/cloud-ui"
LOG="$USER_DIR/log/launcher.log"
CLIENT_START_TIMEOUT=50   # tenths of a second

[ -n "${DISPLAY:-}" ] || export QT_QPA_PLATFORM=offscreen

client_pid() {
    [ -f "$PID_FILE" ] && sed -n 's/^pid=\([0-9][0-9]*\)$/\1/p' "$PID_FILE"
}

# True only for a cloud-ui that runs from the demo home, that is one that
# this demo's launcher started.
is_demo_client() {
    local pid="$1"
    [ -n "$pid" ] && [ "$pid" -gt 0 ] || return 1
    local exe
    exe="$(readlink "/proc/$pid/exe" 2>/dev/null)" || return 1
    [ "${exe% (deleted)}" = "$(realpath -m "$CLIENT")" ]
}

stop_demo_client() {
    local pid
    pid="$(client_pid || true)"
    is_demo_client "$pid" || return 0
    kill -TERM "$pid"
    for _ in $(seq "$CLIENT_START_TIMEOUT"); do
        is_demo_client "$pid" || break
        sleep 0.1
    done
    echo "   (demo stopped the client, pid $pid)"
}
trap stop_demo_client EXIT

wait_for_client() {
    for _ in $(seq "$CLIENT_START_TIMEOUT"); do
        is_demo_client "$(client_pid || true)" && return 0
        sleep 0.1
    done
    return 1
}

build_of() {
    sed -n 's/^build_version=//p' "$1"
}

show_tree() {
    echo "-- per-user tree ($DEMO_HOME):"
    (cd "$DEMO_HOME" && find . -mindepth 1 -not -path './.Drovia/log/*' | LC_ALL=C sort | sed 's/^/   /')
}

show_state() {
    echo "-- installed build: $(build_of "$USER_DIR/Drovia.app/Contents/Resources/INFO")"
    if wait_for_client; then
        local pid
        pid="$(client_pid)"
        echo "-- client running: pid $pid, $(readlink "/proc/$pid/exe")"
    else
        echo "-- client: not running"
    fi
}

run_launcher() {
    local title="$1"
    local log_start=0
    [ -f "$LOG" ] && log_start="$(wc -l < "$LOG")"
    local old_pid
    old_pid="$(client_pid || true)"
    is_demo_client "$old_pid" || old_pid=""
    echo
    echo "== $title (bundle build $(build_of "$BUNDLE/Contents/Resources/INFO"))"
    local status=0
    (cd "$DEMO" && HOME="$DEMO_HOME" ./Drovia.app/Contents/MacOS/launcher 2>> "$DEMO/launcher.stderr") || status=$?
    echo "-- launcher exit status: $status"
    echo "-- log:"
    tail -n "+$((log_start + 1))" "$LOG" | cut -c17- | sed 's/^/   /'
    if [ -n "$old_pid" ]; then
        if is_demo_client "$old_pid"; then
            echo "-- old client (pid $old_pid): still running"
        else
            echo "-- old client (pid $old_pid): stopped by the launcher"
        fi
    fi
}

# The next build: the same binaries, packed again with a raised build number.
bump_build() {
    "$ROOT/scripts/set-build-number.sh" "$BUNDLE" $(($(build_of "$BUNDLE/Contents/Resources/INFO") + 1))
}

stop_demo_client
rm -rf "$DEMO" "$DEMO_HOME"
mkdir -p "$DEMO" "$DEMO_HOME"
cp -a "$BUILD/Drovia.app" "$DEMO/"
mkdir -p "$BUNDLE/log"
printf 'launcher_debug=7\nservice_debug=7\nextractor_debug=7\n' > "$BUNDLE/log/launcher.debug"

echo
echo "Demo bundle: $BUNDLE"
echo "Demo home:   $DEMO_HOME"

run_launcher "First run: nothing installed yet"
show_state
show_tree
stop_demo_client
run_launcher "Second run: same build, client not running"
show_state
bump_build
run_launcher "Third run: the bundle carries the next build, the client still runs"
show_state
run_launcher "Fourth run: same build, the client runs"
show_state
echo
echo "Launcher and client diagnostics: $DEMO/launcher.stderr"
