#!/usr/bin/env bash
# Installs what is missing, builds, and shows the launcher at work on a demo
# home folder inside the build tree (never your real home).
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
BUILD="$ROOT/build"

"$ROOT/scripts/install-deps.sh"
cmake -S "$ROOT" -B "$BUILD" -G Ninja
cmake --build "$BUILD" -j "$(nproc)"

echo "Built. The launcher will keep ~/.Drovia/Drovia.app up to date from the bundle's package and start the client."
