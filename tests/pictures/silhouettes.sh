#!/usr/bin/env bash
# Pictures of a few scenes taken both ways: the VRML 1.0 translation by the
# VRML viewer (view3dscene) and the glTF export by three.js in headless
# Chromium (scripts/render), each 480x360 from the scene's own camera, or
# from the view both fit to the scene when it has none (expressions.vlm,
# fitted.wrl).  compare.mjs
# then bounds the share of pixels covered in one picture and not in the
# other; see BOUND below.
#   tests/pictures/silhouettes.sh LUMERIC [KEEP_DIR]
# KEEP_DIR keeps the pictures.  Exits 77 (skipped) while LUMERIC writes no
# glTF, or when a viewer is not installed (scripts/install-deps.sh installs
# them).
set -euo pipefail
lumeric="$1"
here="$(cd "$(dirname "$0")" && pwd)"
root="$(cd "$here/../.." && pwd)"
render="$root/scripts/render"

# What legitimately differs lies along outlines: the curved primitives'
# polygons (the exporter's 24 segments against the viewer's own), edge
# pixels rasterized on either side, lines drawn 2 pixels wide by two
# methods.  On these scenes that is at most 0.5% of the covered pixels
# (about 1.5% on the example of many small spheres, left out here).  A
# shape missing, misplaced, or turned inside out changes every pixel it
# covers: caught whenever that shape covers more than 1%, as every shape
# here does but a few steps, rails and inner walls partly hidden.
BOUND=0.01

# NAME, the scene exported, and the scene whose translation the VRML viewer
# draws (the same one, except where the viewer draws the scene differently
# from VRML 1.0: it turns mirrored faces inside out, so the reference has
# the mirror worked out by hand).
cases=(
  control "$root/examples/control.vlm" "$root/examples/control.vlm"
  expressions "$root/examples/expressions.vlm" "$root/examples/expressions.vlm"
  floorplan "$root/examples/floorplan.vlm" "$root/examples/floorplan.vlm"
  staircase "$root/examples/staircase.vlm" "$root/examples/staircase.vlm"
  mirrored "$here/mirrored.wrl" "$here/mirrored-reference.wrl"
  fitted "$here/fitted.wrl" "$here/fitted.wrl"
  orthographic "$here/orthographic.wrl" "$here/orthographic.wrl"
)

skip() {
  echo "skipped: $1"
  exit 77
}

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

"$lumeric" -o "$work/probe.glb" "$here/mirrored.wrl" >/dev/null 2>&1 || true
[ "$(head -c 4 "$work/probe.glb" 2>/dev/null)" = glTF ] || skip "$lumeric -o FILE.glb writes no glTF yet"
command -v view3dscene >/dev/null || skip "view3dscene is not installed"
command -v xvfb-run >/dev/null || skip "xvfb-run is not installed"
command -v node >/dev/null || skip "node is not installed"
[ -x "${CHROMIUM:-/usr/bin/chromium}" ] || skip "chromium is not installed"
[ -d "$render/node_modules" ] || skip "the Node packages of scripts/render are not installed"

renders=()
comparisons=()
for ((i = 0; i < ${#cases[@]}; i += 3)); do
  name="${cases[i]}"
  for output in "$name.glb ${cases[i + 1]}" "$name.wrl ${cases[i + 2]}"; do
    "$lumeric" -o "$work/${output%% *}" "${output#* }" >"$work/messages" 2>&1 ||
      { cat "$work/messages"; echo "lumeric failed on ${output#* }"; exit 1; }
  done
  # xvfb-run -a can lose the race for a display to a test started at the
  # same moment: try again.
  for attempt in 1 2 3; do
    xvfb-run -a -s "-screen 0 1024x768x24" \
      view3dscene "$work/$name.wrl" --geometry 480x360 --screenshot 0 "$work/$name-vrml.png" >/dev/null 2>&1 || true
    [ -s "$work/$name-vrml.png" ] && break
  done
  [ -s "$work/$name-vrml.png" ] || { echo "view3dscene took no picture of $name"; exit 1; }
  renders+=("$work/$name.glb" "$work/$name-gltf.png")
  comparisons+=("$name" "$work/$name-vrml.png" "$work/$name-gltf.png")
done
node "$render/render-gltf.mjs" "${renders[@]}"
status=0
node "$here/compare.mjs" "$BOUND" "${comparisons[@]}" || status=$?
if [ -n "${2:-}" ]; then
  mkdir -p "$2"
  cp "$work"/*.png "$2"/
fi
exit $status
