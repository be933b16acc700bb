#!/usr/bin/env bash
# Regenerates the corpus expectations (tests/corpus/expected/) from what
# lumeric does now, for review with `git diff tests/corpus/expected` before
# they are committed.
#
#   tests/corpus/refresh.sh [BUILD_DIR] [CORPUS_FILE...]
#
# BUILD_DIR defaults to build/test (the sanitizer build of `make test`); it is
# configured like `make test` does when it does not exist yet, and lumeric and
# vrml1check are built in it first. With file names, only those files are
# refreshed. The corpus is found as the tests find it ($LUMERIC_CORPUS_DIR,
# else shared/vrml1-corpus above the source tree).
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
build="${1:-$root/build/test}"
[ $# -gt 0 ] && shift
case "$build" in /*) ;; *) build="$PWD/$build" ;; esac

if [ ! -f "$build/CMakeCache.txt" ]; then
  cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g" \
    -DLUMERIC_SANITIZE=ON >/dev/null
fi
cmake --build "$build" -j "$(nproc 2>/dev/null || echo 2)" --target lumeric_cli vrml1check

exec python3 "$root/tests/corpus/run_corpus.py" --refresh \
  --lumeric "$build/lumeric" --vrml1check "$build/tests/vrml1check" \
  --source-dir "$root" "$@"
