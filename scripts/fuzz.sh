#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each for a fixed time:
#   fuzz.sh [seconds per target]     (default 20; the long form is 3600)
# Each target starts from its seed corpus and the inputs that once broke it.
# New coverage goes to build-fuzz/corpus, never into the source tree. A
# crash leaves its input in build-fuzz/crashes/<target>/ and fails the run:
# copy it to tests/fuzz/regressions/<target>/ once fixed, where the test
# suite replays it.
set -euo pipefail

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
SECONDS_PER_TARGET="${1:-20}"
BUILD="${DROVIA_FUZZ_BUILD:-$ROOT/build-fuzz}"
TARGETS=(config extractor)

CC=clang CXX=clang++ cmake -S "$ROOT/tests/fuzz/engine" -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
cmake --build "$BUILD" -j 2

export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
status=0
for target in "${TARGETS[@]}"; do
    corpus="$BUILD/corpus/$target"
    crashes="$BUILD/crashes/$target"
    mkdir -p "$corpus" "$crashes"
    log="$BUILD/$target.log"
    inputs=("$corpus" "$ROOT/tests/fuzz/corpus/$target")
    # git keeps no empty folders: a target without regressions has none.
    regressions="$ROOT/tests/fuzz/regressions/$target"
    [ -d "$regressions" ] && inputs+=("$regressions")
    if ! "$BUILD/${target}_fuzzer" -max_total_time="$SECONDS_PER_TARGET" -timeout=10 -rss_limit_mb=2048 \
            -print_final_stats=1 -artifact_prefix="$crashes/" "${inputs[@]}" > "$log" 2>&1; then
        echo "fuzz: $target failed; input in $crashes, output in $log" >&2
        tail -n 30 "$log" >&2
        status=1
    fi
    runs="$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")"
    echo "fuzz: $target: ${runs:-?} inputs in $SECONDS_PER_TARGET s"
done
exit "$status"
