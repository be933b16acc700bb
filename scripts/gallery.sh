#!/usr/bin/env bash
# Renders the examples gallery: translates every scene of the extended
# language in examples/ (*.vlm) with lumeric and takes a picture of the
# result with a headless VRML viewer, into docs/gallery/NAME.png; exports
# each scene to glTF too and takes a picture of that with three.js in
# headless Chromium (scripts/render), into docs/gallery/NAME-gltf.png.
#   scripts/gallery.sh [LUMERIC]
# LUMERIC defaults to build/release/lumeric.  The viewer (view3dscene), the
# virtual display it draws on (xvfb-run) and Chromium are installed with
# apt-get when missing, the Node packages of scripts/render with npm ci.
# A lumeric that writes no glTF yet leaves the -gltf pictures as they are.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
lumeric="${1:-$root/build/release/lumeric}"
out="$root/docs/gallery"
render="$root/scripts/render"

missing=()
command -v view3dscene >/dev/null || missing+=(view3dscene)
command -v xvfb-run >/dev/null || missing+=(xvfb xauth)
[ -x /usr/bin/chromium ] || [ -n "${CHROMIUM:-}" ] || missing+=(chromium)
if [ ${#missing[@]} -gt 0 ]; then
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get update
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y "${missing[@]}"
fi
if [ ! -d "$render/node_modules" ]; then
  (cd "$render" && PUPPETEER_SKIP_DOWNLOAD=1 npm ci --no-audit --no-fund)
fi

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
mkdir -p "$out"
gltf_pictures=()
for scene in "$root"/examples/*.vlm; do
  name="$(basename "${scene%.*}")"
  "$lumeric" -o "$work/$name.wrl" "$scene"
  # The picture is taken once the scene is loaded (the 0 is the time in the
  # scene); the window size is the picture's size.
  xvfb-run -a -s "-screen 0 1024x768x24" \
    view3dscene "$work/$name.wrl" --geometry 480x360 --screenshot 0 "$out/$name.png" >/dev/null 2>&1
  echo "docs/gallery/$name.png"
  "$lumeric" -o "$work/$name.glb" "$scene" >/dev/null 2>&1 || true
  if [ "$(head -c 4 "$work/$name.glb" 2>/dev/null)" = glTF ]; then
    gltf_pictures+=("$work/$name.glb" "$out/$name-gltf.png")
  fi
done

if [ ${#gltf_pictures[@]} -eq 0 ]; then
  echo "gallery: $lumeric writes no glTF; the -gltf pictures are left as they are" >&2
  exit 0
fi
# One browser draws every glTF picture, from the scene's camera as the VRML
# viewer does, or without one from the view the viewer fits to the scene.
node "$render/render-gltf.mjs" "${gltf_pictures[@]}"
for ((i = 1; i < ${#gltf_pictures[@]}; i += 2)); do
  echo "docs/gallery/$(basename "${gltf_pictures[i]}")"
done
