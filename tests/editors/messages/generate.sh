#!/bin/sh
# Runs the command on broken.vlm, as an editor would, and keeps its messages
# in the gnu format in OUT for the editors' message tests.
# Usage: generate.sh LUMERIC OUT
set -u
lumeric=$1
out=$2
case $out in /*) ;; *) out=$PWD/$out ;; esac
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$here/broken.vlm" "$work/"
cd "$work" || exit 1
"$lumeric" -W unknown --message-format gnu -o - broken.vlm >/dev/null 2>"$out"
status=$?
if [ "$status" -ne 1 ]; then
  echo "lumeric exited with $status, expected 1" >&2
  exit 1
fi
if [ ! -s "$out" ]; then
  echo "lumeric printed no message" >&2
  exit 1
fi
cat "$out"
