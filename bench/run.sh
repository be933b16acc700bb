#!/usr/bin/env bash
# Throughput benchmark of the translator against the independent reader.
#
#   bench/run.sh [BUILD_DIR]
#
# Generates two plain VRML 1.0 scenes in a temporary directory (a Coordinate3
# of 2*10^5 points and an IndexedFaceSet, about 10 MB; 10^6 points, about
# 50 MB), and the shared benchmark scene when ../shared/bench/gen-big-vrml1.py
# is there (186,915 points, seed 1, about 10 MB, with numbers of eight
# digits), and measures, on the same files and in this order:
#   cat        cat FILE > /dev/null, the floor set by reading the bytes
#   lumeric    the release translator, lumeric -o OUT FILE
#   coin       Coin reading and writing the scene (vrml1check roundtrip)
#   numcopy    the shared number-copy tool (../shared/bench/numcopy.cpp
#              --to-chars), when that file is there
# Each is run REPEAT times (default 3; environment variable BENCH_REPEAT); the
# table shows the shortest wall time and the largest peak resident memory
# of the process. Columns and summary lines keep their format so that runs
# can be compared.
#
# vrml1check is always built in build/bench (Release, tests on for its
# target, sanitizers off; only that target is built).  lumeric is taken from
# BUILD_DIR (make bench passes build/release) when that is a release build
# without sanitizers; otherwise it is built in build/bench as well.  The
# micro-benchmarks of bench/CMakeLists.txt (expression evaluation, long field
# lists) are separate programs, built with -DLUMERIC_BENCH=ON and run by hand.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:-}"
case "$build" in /* | "") ;; *) build="$PWD/$build" ;; esac
bench_build="$root/build/bench"
repeat="${BENCH_REPEAT:-3}"
jobs="$(nproc 2>/dev/null || echo 2)"

cache_value() {  # cache_value BUILD_DIR NAME
  sed -n "s/^$2:[A-Z]*=//p" "$1/CMakeCache.txt" 2>/dev/null
}

is_release_build() {
  [ -f "$1/CMakeCache.txt" ] && [ "$(cache_value "$1" CMAKE_BUILD_TYPE)" = Release ] &&
    [ "$(cache_value "$1" LUMERIC_SANITIZE)" != ON ]
}

cmake -S "$root" -B "$bench_build" -DCMAKE_BUILD_TYPE=Release -DLUMERIC_TESTS=ON \
  -DLUMERIC_SANITIZE=OFF -DLUMERIC_BENCH=OFF -DLUMERIC_COIN_TOOLS=ON >/dev/null
cmake --build "$bench_build" -j "$jobs" --target vrml1check >/dev/null
reader="$bench_build/tests/vrml1check"

if [ -n "$build" ] && is_release_build "$build" && [ -x "$build/lumeric" ]; then
  translator="$build/lumeric"
else
  if [ -n "$build" ]; then
    echo "note: $build has no release lumeric without sanitizers; using $bench_build" >&2
  fi
  translator="$bench_build/lumeric"
  if ! cmake --build "$bench_build" -j "$jobs" --target lumeric_cli >/dev/null 2>"$bench_build/lumeric-build.log"; then
    echo "note: lumeric failed to build (see $bench_build/lumeric-build.log); its rows say so" >&2
    translator=""
  fi
fi

work="$(mktemp -d "${TMPDIR:-/tmp}/lumeric-bench-XXXXXX")"
trap 'rm -rf "$work"' EXIT

# A process started from Python inherits Python's resident-memory high-water
# mark into its own (Linux keeps it across exec), so the runs are started by
# this small launcher instead: peak REPORT_FILE COMMAND... writes the peak of
# COMMAND in kilobytes to REPORT_FILE and exits with COMMAND's status.
cat > "$work/peak.c" <<'C'
#include <stdio.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
int main(int argc, char** argv) {
  if (argc < 3) return 125;
  pid_t pid = fork();
  if (pid == 0) {
    execvp(argv[2], argv + 2);
    _exit(127);
  }
  int status = 0;
  struct rusage usage;
  if (pid < 0 || wait4(pid, &status, 0, &usage) < 0) return 126;
  FILE* report = fopen(argv[1], "w");
  if (report == NULL) return 126;
  fprintf(report, "%ld\n", usage.ru_maxrss);
  fclose(report);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}
C
cc -O2 -o "$work/peak" "$work/peak.c"
python3 "$root/bench/make_scene.py" 200000 10 "$work/points-2e5.wrl" >/dev/null
python3 "$root/bench/make_scene.py" 1000000 50 "$work/points-1e6.wrl" >/dev/null

# The number-copy tool of the shared benchmark material, when it is there:
# it only parses every number and writes it back, the speed limit of a
# text-to-text translator.
numcopy=""
numcopy_source="$root/../shared/bench/numcopy.cpp"
if [ -f "$numcopy_source" ] && c++ -O2 -std=c++17 -o "$work/numcopy" "$numcopy_source" 2>/dev/null; then
  numcopy="$work/numcopy"
fi
# The shared benchmark scene (eight-digit coordinates, rounded when
# written), when its generator is there: a third row of every tool.
shared_scene=""
if [ -f "$root/../shared/bench/gen-big-vrml1.py" ] &&
  python3 "$root/../shared/bench/gen-big-vrml1.py" --points 186915 --seed 1 "$work/shared-10mb.wrl" >/dev/null 2>&1; then
  shared_scene="shared-10mb.wrl"
fi

python3 - "$work" "$translator" "$reader" "$repeat" "$numcopy" "$shared_scene" <<'PYTHON'
import os
import subprocess
import sys
import time

work, translator, reader, repeat, numcopy = sys.argv[1], sys.argv[2], sys.argv[3], int(sys.argv[4]), sys.argv[5]
files = ["points-2e5.wrl", "points-1e6.wrl"] + ([sys.argv[6]] if sys.argv[6] else [])
launcher = os.path.join(work, "peak")


def measure(command, cwd):
    """Wall seconds, peak resident MB and exit status of one run."""
    report = os.path.join(work, "peak.txt")
    start = time.perf_counter()
    code = subprocess.call([launcher, report, *command], cwd=cwd,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    seconds = time.perf_counter() - start
    with open(report) as text:
        peak_kb = int(text.read().strip() or 0)
    return seconds, peak_kb / 1024.0, code


def best(command, cwd):
    runs = [measure(command, cwd) for _ in range(repeat)]
    failed = [code for _, _, code in runs if code != 0]
    return (min(r[0] for r in runs), max(r[1] for r in runs), failed[0] if failed else 0)


def tools(path):
    yield "cat", ["cat", path]
    yield "lumeric", [translator, "-o", os.path.join(work, "out.wrl"), path] if translator else None
    yield "coin", [reader, "roundtrip", path]
    if numcopy:
        yield "numcopy", [numcopy, "--to-chars", path]


rows = {}
print(f"{'file':<16} {'size MB':>8} {'tool':<8} {'seconds':>9} {'MB/s':>9} {'peak MB':>9} {'peak/input':>10}")
for name in files:
    path = os.path.join(work, name)
    size_mb = os.path.getsize(path) / 1e6
    for tool, command in tools(path):
        if command is None:
            print(f"{name:<16} {size_mb:8.1f} {tool:<8} {'not built':>9}")
            continue
        seconds, peak, code = best(command, work)
        rows[(name, tool)] = seconds
        note = "" if code == 0 else f"  (exit status {code})"
        print(f"{name:<16} {size_mb:8.1f} {tool:<8} {seconds:9.3f} {size_mb / seconds:9.1f} "
              f"{peak:9.1f} {peak / size_mb:10.2f}{note}")

print()
for name in files:
    if (name, "lumeric") in rows:
        ratio = rows[(name, "coin")] / rows[(name, "lumeric")]
        print(f"speed lumeric/coin {name}: {ratio:.2f} (coin seconds / lumeric seconds)")
    else:
        print(f"speed lumeric/coin {name}: n/a")
    if (name, "lumeric") in rows and (name, "numcopy") in rows:
        ratio = rows[(name, "numcopy")] / rows[(name, "lumeric")]
        print(f"speed lumeric/numcopy {name}: {ratio:.2f} (numcopy seconds / lumeric seconds)")
small, large = files[:2]
size_growth = os.path.getsize(os.path.join(work, large)) / os.path.getsize(os.path.join(work, small))
for tool in ("lumeric", "coin", "cat"):
    if (small, tool) in rows and (large, tool) in rows:
        print(f"time growth {small} -> {large} {tool}: {rows[(large, tool)] / rows[(small, tool)]:.2f} "
              f"(size {size_growth:.2f})")
    else:
        print(f"time growth {small} -> {large} {tool}: n/a")
PYTHON
