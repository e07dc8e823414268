#!/usr/bin/env bash
# Installs what is missing and builds only the bundle, build/Drovia.app: the
# demo and the Debian package need neither the tests nor their build time.
# DROVIA_BUILD_DIR picks another build folder (default: build).
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
BUILD="${DROVIA_BUILD_DIR:-$ROOT/build}"

"$ROOT/scripts/install-deps.sh"
cmake -S "$ROOT" -B "$BUILD" -G Ninja > /dev/null
cmake --build "$BUILD" --target drovia_bundle -j "$(nproc)"
