#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: once in a normal
# build and once with AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
JOBS="$(nproc)"

"$ROOT/scripts/install-deps.sh"

run_suite() {
    local build_dir="$1"
    shift
    cmake -S "$ROOT" -B "$build_dir" -G Ninja -DDROVIA_WERROR=ON "$@"
    cmake --build "$build_dir" -j "$JOBS"
    ctest --test-dir "$build_dir" --output-on-failure -j "$JOBS"
}

run_suite "$ROOT/build"

# Leaks in the toolkit's and fontconfig's own start-up allocations are not ours;
# the suppression file names each one.
export LSAN_OPTIONS="suppressions=$ROOT/scripts/lsan.supp:print_suppressions=0"
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
run_suite "$ROOT/build-sanitize" -DDROVIA_SANITIZE=ON

# Each fuzz target for 20 seconds in a clang build of its own.
"$ROOT/scripts/fuzz.sh" 20
