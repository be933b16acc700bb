#!/usr/bin/env bash
# Builds the fuzz targets with clang's libFuzzer in build/fuzz and runs each
# for FUZZ_TIME seconds (default 180), one after the other on one core, or
# FUZZ_PARALLEL targets at a time.
# The seed corpus is made from tests/scenes/ and examples/ (the expression
# target starts from fuzz/expression-seeds/); what a target
# finds goes to build/fuzz/artifacts/ (keep every crash or hang as a
# regression file in tests/fuzz/regressions/).
#   scripts/fuzz.sh [TARGET...]     TARGET: ParseFuzzer CheckFuzzer ExpressionFuzzer ExportFuzzer
# FUZZ_RUNS=N runs N inputs per target instead of a time.
# FUZZ_PARALLEL=N runs up to N targets at once (default 1).
# FUZZ_TIMEOUT=S counts an input as a hang after S seconds (default 10);
# raise it when the targets share the machine with other work.
# Each target logs to build/fuzz/run/TARGET/fuzz-0.log; the last lines give
# its count of executions (stat::number_of_executed_units).
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$root/build/fuzz"
time="${FUZZ_TIME:-180}"
parallel="${FUZZ_PARALLEL:-1}"
targets=("$@")
[ ${#targets[@]} -eq 0 ] && targets=(ParseFuzzer CheckFuzzer ExpressionFuzzer ExportFuzzer)

"$root/scripts/install-deps.sh" fuzz
CC=clang CXX=clang++ cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O2 -g" \
  -DLUMERIC_FUZZ=ON -DLUMERIC_TESTS=OFF -DLUMERIC_COIN_TOOLS=OFF >/dev/null
cmake --build "$build" -j 2 --target $(printf 'lumeric_fuzz_%s ' "${targets[@]}")

seeds="$build/seeds"
mkdir -p "$seeds" "$build/artifacts"
cp "$root"/tests/scenes/*.vlm "$root"/tests/scenes/*.wrl "$root"/examples/*.vlm "$root"/examples/*.wrl "$seeds"/
cp "$root"/tests/fuzz/regressions/* "$seeds"/ 2>/dev/null || true

runTarget() {
  local target="$1"
  local corpus="$build/corpus/$target" workdir="$build/run/$target"
  mkdir -p "$corpus" "$workdir"
  # The expression target reads one expression from the first line of its
  # input, so whole scenes make poor seeds for it.
  local targetSeeds="$seeds"
  [ "$target" = ExpressionFuzzer ] && targetSeeds="$root/fuzz/expression-seeds"
  local limit=(-max_total_time="$time")
  [ -n "${FUZZ_RUNS:-}" ] && limit=(-runs="$FUZZ_RUNS")
  echo "== $target (log: $workdir/fuzz-0.log)"
  # The scene files each input becomes are kept in memory when possible.
  local scratch=/tmp
  [ -d /dev/shm ] && [ -w /dev/shm ] && scratch=/dev/shm
  # Allocation stacks make a fifth of every execution's time; a finding is
  # replayed with them afterwards (run the target on the artifact).
  (cd "$workdir" && TMPDIR="$scratch" ASAN_OPTIONS="${ASAN_OPTIONS:-malloc_context_size=0}" "$build/fuzz/lumeric_fuzz_$target" "$corpus" "$targetSeeds" \
    -dict="$root/fuzz/lumeric.dict" -jobs=1 -workers=1 \
    -timeout="${FUZZ_TIMEOUT:-10}" -rss_limit_mb=2048 -max_len=4096 -print_final_stats=1 "${limit[@]}" \
    -artifact_prefix="$build/artifacts/$target-") ||
    echo "== $target stopped on a finding: see $build/artifacts/"
  grep -h 'stat::number_of_executed_units' "$workdir/fuzz-0.log" | sed "s/^/$target: /" || true
}

for target in "${targets[@]}"; do
  runTarget "$target" &
  while [ "$(jobs -rp | wc -l)" -ge "$parallel" ]; do wait -n || true; done
done
wait
