#!/usr/bin/env bash
# Builds a release launcher with the benchmark helpers and runs the
# benchmarks; results land in <work folder>/results (see docs/performance.md).
#   bench/run.sh [upgrade|launch|memory|gui|all]...   (no argument: all)
#   bench/run.sh upgrade:zip   measures some package formats again
#   bench/run.sh report        rewrites results.md from the results there
# BUILD_DIR (default build-perf) and WORK_DIR (default $BUILD_DIR/bench-work)
# move the build and the generated packages, runs and results elsewhere.
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
BUILD_DIR="${BUILD_DIR:-$ROOT/build-perf}"
WORK_DIR="${WORK_DIR:-$BUILD_DIR/bench-work}"

"$ROOT/scripts/install-deps.sh"
cmake -S "$ROOT" -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DDROVIA_BUILD_TESTS=OFF -DDROVIA_BUILD_BENCH=ON > /dev/null
cmake --build "$BUILD_DIR" -j2
uptime
python3 "$ROOT/bench/bench.py" "$BUILD_DIR" "$WORK_DIR" "$@"
