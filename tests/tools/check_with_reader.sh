#!/usr/bin/env bash
# Asserts that written scenes load in the independent VRML 1.0 reader.
#
#   tests/tools/check_with_reader.sh OUTPUT_FILE...
#
# Exit status: 0 when every file loads; 1 when one does not (Coin's read
# errors are printed); 77 when vrml1check is not available (CTest's skip
# status, with SKIP_RETURN_CODE 77), 2 for a usage error.
#
# vrml1check is taken from $VRML1CHECK, else from the first build directory
# of this tree that has it (build/test, then any other build/*).
set -uo pipefail
if [ $# -eq 0 ]; then
  echo "usage: $0 OUTPUT_FILE..." >&2
  exit 2
fi

reader="${VRML1CHECK:-}"
if [ -z "$reader" ]; then
  root="$(cd "$(dirname "$0")/../.." && pwd)"
  for candidate in "$root/build/test/tests/vrml1check" "$root"/build/*/tests/vrml1check; do
    if [ -x "$candidate" ]; then
      reader="$candidate"
      break
    fi
  done
fi
if [ -z "$reader" ] || [ ! -x "$reader" ]; then
  echo "SKIP: vrml1check not found (build it, or set VRML1CHECK)" >&2
  exit 77
fi

status=0
for file in "$@"; do
  if ! messages="$("$reader" read "$file" 2>&1)"; then
    echo "$file does not load in the independent reader:" >&2
    printf '%s\n' "$messages" >&2
    status=1
  fi
done
exit $status
