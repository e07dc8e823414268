#!/usr/bin/env bash
# The Debian package as a user meets it. Packs the build tree as build N and
# as build N+1 (the same binaries, nothing compiled), checks the package, then
# on this machine installs N and runs the installed launcher for a scratch
# home, installs N+1 over it and runs the launcher again under Xvfb while the
# old client runs (a screenshot keeps the dialog), and removes the package.
#   deb-package-test.sh <build folder> <folder for the screenshot>
# The work runs as the first process of a PID namespace of its own, so every
# process it starts ends with it, with a /tmp and a network of its own; the
# package is removed however it ends.
set -euo pipefail

BUILD="$1"
ARTEFACTS="$2"
NAME=drovia
APP="/opt/$NAME/Drovia.app"
LAUNCHER="$APP/Contents/MacOS/launcher"
LEVEL_FILE="$APP/log/launcher.debug"
DESKTOP_ENTRY="/usr/share/applications/$NAME.desktop"
METAINFO="/usr/share/metainfo/example.velmora.$NAME.metainfo.xml"
TIMEOUT=100  # tenths of a second

skip() {
    echo "skipped: $*"
    exit 77
}
fail() {
    echo "FAILED: $*" >&2
    exit 1
}

if [ "${IN_PID_NAMESPACE:-}" != 1 ]; then
    [ "${DROVIA_SANITIZE:-0}" = 0 ] || skip "sanitizer binaries need ASan at run time; the plain build runs this test"
    [ "$(id -u)" -eq 0 ] || skip "installing a package needs root"
    for tool in dpkg cpack lintian desktop-file-validate appstreamcli Xvfb xwininfo import unshare; do
        command -v "$tool" > /dev/null || skip "$tool is not installed"
    done
    if dpkg-query -W "$NAME" > /dev/null 2>&1 || [ -e "/opt/$NAME" ]; then
        skip "$NAME is already on this machine; the test installs and removes only a package of its own"
    fi
    unshare -pf --mount-proc true 2> /dev/null || skip "unshare cannot create a PID namespace here"
    IN_PID_NAMESPACE=1 exec unshare -pf --net --kill-child=TERM --mount-proc "$0" "$@"
fi
# A /tmp and a network of its own: Xvfb, which sees no process outside the
# namespace, would otherwise take another X server's display for stale.
. "$(dirname "$0")/../support/private-tmp.sh"
private_tmp "$0" "$BUILD" "$ARTEFACTS" || fail "no /tmp of its own"

SCRATCH="$(mktemp -d)"
export HOME="$SCRATCH/home" TMPDIR="$SCRATCH/tmp" LC_ALL=C LANG=C
USER_APP="$HOME/.Drovia/Drovia.app"
CLIENT="$USER_APP/Contents/MacOS/cloud-ui"
mkdir -p "$HOME" "$TMPDIR"

xvfb=""
cleanup() {
    set +e
    if [ -n "$xvfb" ]; then
        kill "$xvfb"
        wait "$xvfb"
    fi
    rm -rf "$APP/log"
    dpkg-query -W "$NAME" > /dev/null 2>&1 && dpkg --purge "$NAME" > /dev/null
    rm -rf "$SCRATCH"
}
trap cleanup EXIT
trap 'exit 143' TERM INT

wait_until() {
    for _ in $(seq "$TIMEOUT"); do
        "$@" && return
        sleep 0.1
    done
    return 1
}
version_of() { sed -n "s/^$1=//p" "$2"; }
installed_build() { version_of build_version "$USER_APP/Contents/Resources/INFO"; }
client_pid() { version_of pid "$HOME/.Drovia/ui.pid" 2> /dev/null; }
# A client of the per-user copy, other than the one given, has written its pid.
other_client() {
    local pid
    pid="$(client_pid)"
    [ -n "$pid" ] && [ "$pid" != "$1" ] && [ "$(readlink "/proc/$pid/exe" 2> /dev/null)" = "$CLIENT" ]
}
dialog_shown() { xwininfo -root -tree | grep -q '"Velmora Drovia": ("launcher"'; }

# Two packages from one build tree.
INFO="$BUILD/Drovia.app/Contents/Resources/INFO"
N="$(version_of build_version "$INFO")"
NEXT=$((N + 1))
VERSION="$(version_of major_version "$INFO").$(version_of minor_version "$INFO")"
ARCH="$(dpkg --print-architecture)"
deb_of() { echo "$SCRATCH/deb/${NAME}_$VERSION.$1_$ARCH.deb"; }
for build in "$N" "$NEXT"; do
    cpack --config "$BUILD/CPackConfig.cmake" -B "$SCRATCH/deb" -D "DROVIA_BUILD_NUMBER=$build" \
        > "$SCRATCH/cpack.log" || fail "cpack for build $build: $(cat "$SCRATCH/cpack.log")"
    [ -f "$(deb_of "$build")" ] || fail "no $(deb_of "$build")"
done
OLD="$(deb_of "$N")"
NEW="$(deb_of "$NEXT")"
dpkg --compare-versions "$(dpkg-deb -f "$NEW" Version)" gt "$(dpkg-deb -f "$OLD" Version)" ||
    fail "build $NEXT does not make a newer Debian version"
dpkg-deb -f "$OLD" Depends | grep -q libqt5widgets5 || fail "no dependencies computed from the binaries"
dpkg-deb -e "$OLD" "$SCRATCH/control"
scripts="$(ls "$SCRATCH/control" | grep -vx -e control -e md5sums || true)"
[ -z "$scripts" ] || fail "maintainer scripts in the package: $scripts"
lintian --fail-on error "$OLD" > "$SCRATCH/lintian.log" 2>&1 || fail "lintian: $(cat "$SCRATCH/lintian.log")"

# Build N, installed and run for a user who has no copy yet.
dpkg -i "$OLD" > /dev/null
problems="$(desktop-file-validate "$DESKTOP_ENTRY" 2>&1)" && [ -z "$problems" ] || fail "menu entry: $problems"
appstreamcli validate --no-net "$METAINFO" > "$SCRATCH/appstream.log" 2>&1 ||
    fail "software centre data: $(cat "$SCRATCH/appstream.log")"
grep -qx "Exec=$LAUNCHER" "$DESKTOP_ENTRY" && [ -x "$LAUNCHER" ] || fail "the menu entry does not start $LAUNCHER"
[ -f "/usr/share/icons/hicolor/72x72/apps/$NAME.png" ] || fail "no icon in the hicolor theme"
mkdir -p "$APP/log"
printf 'launcher_debug=7\nservice_debug=7\n' > "$LEVEL_FILE"
QT_QPA_PLATFORM=offscreen "$LAUNCHER" > "$SCRATCH/launcher.out" 2>&1 || fail "first run exited with $?"
[ "$(installed_build)" = "$N" ] || fail "build $N not installed for the user"
wait_until other_client "" || fail "the client of build $N did not start"
old_client="$(client_pid)"

# Build N+1 over it; the user's next start upgrades while the old client runs.
# A watcher samples the per-user copy: the new build must never be there
# while the old client still runs.
dpkg -i "$NEW" > /dev/null
# -noreset: a server that resets when its last client leaves can drop one
# that connects in that moment.
Xvfb -displayfd 3 -nolisten tcp -noreset -screen 0 640x480x24 3> "$SCRATCH/display" 2> /dev/null &
xvfb=$!
wait_until test -s "$SCRATCH/display" || fail "Xvfb reported no display"
export DISPLAY=":$(cat "$SCRATCH/display")"
(
    while kill -0 "$old_client" 2> /dev/null; do
        [ "$(installed_build 2> /dev/null)" != "$NEXT" ] || echo "overlap" > "$SCRATCH/order"
        sleep 0.01
    done
) &
watcher=$!
QT_QPA_PLATFORM=xcb "$LAUNCHER" >> "$SCRATCH/launcher.out" 2>&1 &
launcher=$!
# The dialog lives while the old client stops and the package unpacks, which
# on a loaded machine can pass between two looks: the screenshot is kept when
# caught, and the end-to-end dialog test holds the dialog itself.
shown_or_over() { dialog_shown || ! kill -0 "$launcher" 2> /dev/null; }
if wait_until shown_or_over && dialog_shown; then
    import -window root "$ARTEFACTS/deb-upgrade-dialog.png"
else
    echo "note: the upgrade dialog came and went before a screenshot"
fi
wait "$launcher" || fail "second run exited with $?"
[ "$(installed_build)" = "$NEXT" ] || fail "the per-user copy was not upgraded to build $NEXT"
wait_until other_client "$old_client" || fail "the client of build $NEXT did not start"
new_client="$(client_pid)"
! kill -0 "$old_client" 2> /dev/null || fail "the old client still runs"
wait "$watcher"
[ ! -e "$SCRATCH/order" ] || fail "the per-user copy was replaced while the old client still ran"
grep -q "local appdata exist" "$HOME/.Drovia/log/launcher.log" || fail "the level file in $APP/log was not read"

# Removal takes everything of the package and nothing of the user's.
user_copy() { (cd "$USER_APP" && find . -type f -exec md5sum {} + | sort); }
before="$(user_copy)"
rm -r "$APP/log"  # not the package's: the administrator removes it (README)
dpkg --purge "$NAME" > /dev/null
for path in $(dpkg-deb --fsys-tarfile "$NEW" | tar -t | grep "$NAME" | sed 's/^\.//'); do
    [ ! -e "$path" ] || fail "$path is left after removal"
done
[ "$(user_copy)" = "$before" ] || fail "removing the package changed the per-user copy"
kill -0 "$new_client" || fail "removing the package stopped the user's client"
echo "passed: builds $N and $NEXT installed, upgraded and removed"
