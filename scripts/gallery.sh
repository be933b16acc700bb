#!/usr/bin/env bash
# Renders the examples gallery: translates every scene of the extended
# language in examples/ (*.vlm) with lumeric and takes a picture of the
# result with a headless VRML viewer, into docs/gallery/NAME.png.
#   scripts/gallery.sh [LUMERIC]
# LUMERIC defaults to build/release/lumeric.  The viewer (view3dscene) and
# the virtual display it draws on (xvfb-run) are installed with apt-get
# when missing.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
lumeric="${1:-$root/build/release/lumeric}"
out="$root/docs/gallery"

missing=()
command -v view3dscene >/dev/null || missing+=(view3dscene)
command -v xvfb-run >/dev/null || missing+=(xvfb xauth)
if [ ${#missing[@]} -gt 0 ]; then
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get update
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y "${missing[@]}"
fi

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
mkdir -p "$out"
for scene in "$root"/examples/*.vlm; do
  name="$(basename "${scene%.*}")"
  "$lumeric" -o "$work/$name.wrl" "$scene"
  # The picture is taken once the scene is loaded (the 0 is the time in the
  # scene); the window size is the picture's size.
  xvfb-run -a -s "-screen 0 1024x768x24" \
    view3dscene "$work/$name.wrl" --geometry 480x360 --screenshot 0 "$out/$name.png" >/dev/null 2>&1
  echo "docs/gallery/$name.png"
done
