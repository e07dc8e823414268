#!/usr/bin/env bash
# The long forms of the reliability checks, outside the default test run:
# an upgrade stopped at every call it makes, forty starts of two
# bundle copies together, eight hundred damaged packages, then every fuzz
# target for a while (docs/reliability.md):
#   soak.sh [seconds of fuzzing per target]     (default 600)
# DROVIA_BUILD_DIR picks another build folder (default: build).
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
BUILD="${DROVIA_BUILD_DIR:-$ROOT/build}"

"$ROOT/scripts/install-deps.sh"
cmake -S "$ROOT" -B "$BUILD" -G Ninja > /dev/null
cmake --build "$BUILD" -j "$(nproc)"
# The test binaries themselves: CTest's time limits are the default run's.
export DROVIA_SOAK=1
"$BUILD/tests/service/Drovia.app/Contents/MacOS/service_test" --gtest_filter='*DamagedPackages*'
"$ROOT/tests/support/in-own-namespace.sh" "$BUILD/tests/e2e/e2e_test" --gtest_filter='Installation.*:*StoppedUpgrade*'
"$ROOT/scripts/fuzz.sh" "${1:-600}"
