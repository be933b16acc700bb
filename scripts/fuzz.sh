#!/usr/bin/env bash
# Builds the fuzz targets with clang's libFuzzer in build/fuzz and runs each
# for FUZZ_TIME seconds (default 180), one after the other on one core.
# The seed corpus is made from tests/scenes/ and examples/ (the expression
# target starts from fuzz/expression-seeds/); what a target
# finds goes to build/fuzz/artifacts/ (keep every crash or hang as a
# regression file in tests/fuzz/regressions/).
#   scripts/fuzz.sh [TARGET...]     TARGET: ParseFuzzer CheckFuzzer ExpressionFuzzer
# FUZZ_RUNS=N runs N inputs per target instead of a time.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$root/build/fuzz"
time="${FUZZ_TIME:-180}"
targets=("$@")
[ ${#targets[@]} -eq 0 ] && targets=(ParseFuzzer CheckFuzzer ExpressionFuzzer)

CC=clang CXX=clang++ cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g" \
  -DLUMERIC_FUZZ=ON -DLUMERIC_TESTS=OFF -DLUMERIC_COIN_TOOLS=OFF >/dev/null
cmake --build "$build" -j 2 --target $(printf 'lumeric_fuzz_%s ' "${targets[@]}")

seeds="$build/seeds"
mkdir -p "$seeds" "$build/artifacts"
cp "$root"/tests/scenes/*.vlm "$root"/tests/scenes/*.wrl "$root"/examples/*.vlm "$root"/examples/*.wrl "$seeds"/
cp "$root"/tests/fuzz/regressions/* "$seeds"/ 2>/dev/null || true

for target in "${targets[@]}"; do
  corpus="$build/corpus/$target"
  mkdir -p "$corpus"
  # The expression target reads one expression from the first line of its
  # input, so whole scenes make poor seeds for it.
  targetSeeds="$seeds"
  [ "$target" = ExpressionFuzzer ] && targetSeeds="$root/fuzz/expression-seeds"
  limit=(-max_total_time="$time")
  [ -n "${FUZZ_RUNS:-}" ] && limit=(-runs="$FUZZ_RUNS")
  echo "== $target (log: $build/fuzz-0.log)"
  cd "$build"
  "$build/fuzz/lumeric_fuzz_$target" "$corpus" "$targetSeeds" -dict="$root/fuzz/lumeric.dict" -jobs=1 -workers=1 \
    -timeout=10 -rss_limit_mb=2048 -max_len=4096 -print_final_stats=1 "${limit[@]}" \
    -artifact_prefix="$build/artifacts/$target-"
done
