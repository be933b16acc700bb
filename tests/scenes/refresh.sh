#!/usr/bin/env bash
# Rewrites the expectation of every scene test (or of the scenes named) from
# what the lumeric command does now.  Review the diff before committing.
#   tests/scenes/refresh.sh [BUILD_DIR] [SCENE...]
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
build="${1:-build/test}"
shift || true
lumeric="$(cd "$build" && pwd)/lumeric"
scenes=("$@")
if [ ${#scenes[@]} -eq 0 ]; then
  mapfile -t scenes < <(cd "$here" && ls *.vlm *.wrl 2>/dev/null | grep -v '\.inc\.' | sort)
fi
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
for scene in "${scenes[@]}"; do
  stem="${scene%.*}"
  rm -rf "$work"/* && cp -r "$here/." "$work/"
  args=()
  if [ -f "$here/$stem.args" ]; then read -r -a args < "$here/$stem.args"; fi
  if [[ " ${args[*]-} " != *" --check "* ]]; then args+=(-o -); fi
  set +e
  (cd "$work" && "$lumeric" "${args[@]}" "$scene" >"$work/.out" 2>"$work/.err")
  status=$?
  set -e
  {
    echo "status: $status"
    echo "--- messages"
    cat "$work/.err"
    echo "--- output"
    cat "$work/.out"
  } > "$here/$stem.expected"
  echo "refreshed $stem"
done
