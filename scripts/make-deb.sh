#!/usr/bin/env bash
# Builds the bundle and its Debian package, drovia_<major>.<minor>.<build>_<arch>.deb,
# in build/deb:
#   make-deb.sh [build number]
# Without a number the package carries the build tree's build
# (-DDROVIA_BUILD_NUMBER). With one, the same binaries are packed as that
# build without compiling anything: a quick way to try an upgrade by hand.
# DROVIA_BUILD_DIR picks another build folder (default: build).
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
BUILD="${DROVIA_BUILD_DIR:-$ROOT/build}"

"$ROOT/scripts/build-bundle.sh"
cpack --config "$BUILD/CPackConfig.cmake" -B "$BUILD/deb" ${1:+-D "DROVIA_BUILD_NUMBER=$1"}
