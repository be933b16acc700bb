#!/usr/bin/env bash
# Installs what building and testing lumeric needs, when it is missing.
# Debian packages (apt-get) and Node packages (npm ci, from the committed
# lock files); needs root (or sudo) the first time.
#
#   scripts/install-deps.sh [build|test|web|bench|fuzz]
#
#   build  (the default) the library, the command and the exporter
#   web    build, plus what the playground is built with: Emscripten, Node
#          and the playground's Node packages (CodeMirror, three.js,
#          esbuild, puppeteer-core for its test)
#   test   build and web, plus what the test suite runs: GoogleTest, Coin
#          (the independent VRML 1.0 reader), the export checks' readers
#          and validator, the editors' test tools, headless Chromium
#   bench  build, plus Google Benchmark and Coin
#   fuzz   build, plus clang and its libFuzzer runtime
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
profile="${1:-build}"

packages=(cmake g++ make bison pkg-config
  libglu1-mesa-dev libstb-dev libtinygltf-dev nlohmann-json3-dev)
# Installed without the packages they recommend (Emacs would bring a mail
# server).
lean_packages=()
node_folders=()
case "$profile" in
  build) ;;
  web)
    packages+=(emscripten nodejs)
    node_folders+=(web)
    ;;
  test)
    packages+=(libgtest-dev libcoin-dev binutils groff-base
      nodejs admesh assimp-utils view3dscene xvfb xauth chromium emscripten)
    lean_packages+=(vim emacs-nox)
    node_folders+=(tests/export editors/vscode scripts/render web)
    ;;
  bench) packages+=(libbenchmark-dev libcoin-dev) ;;
  fuzz) packages+=(clang libclang-rt-dev) ;;
  *)
    echo "usage: $0 [build|test|web|bench|fuzz]" >&2
    exit 2
    ;;
esac
if [ ${#node_folders[@]} -gt 0 ] && ! command -v npm >/dev/null 2>&1; then packages+=(npm); fi

missing() {
  for p in "$@"; do dpkg -s "$p" >/dev/null 2>&1 || echo "$p"; done
}
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
mapfile -t needed < <(missing "${packages[@]}")
mapfile -t needed_lean < <(missing "${lean_packages[@]}")
if [ ${#needed[@]} -gt 0 ] || [ ${#needed_lean[@]} -gt 0 ]; then
  echo "Installing: ${needed[*]} ${needed_lean[*]}"
  $sudo apt-get update -qq
  if [ ${#needed[@]} -gt 0 ]; then $sudo apt-get install -y -qq "${needed[@]}"; fi
  if [ ${#needed_lean[@]} -gt 0 ]; then
    $sudo apt-get install -y -qq --no-install-recommends "${needed_lean[@]}"
  fi
fi

# Node packages, as each folder's lock file pins them: installed when
# node_modules is missing or older than the lock file.
for folder in "${node_folders[@]}"; do
  installed="$root/$folder/node_modules/.package-lock.json"
  if [ ! -f "$installed" ] || [ "$root/$folder/package-lock.json" -nt "$installed" ]; then
    echo "Installing the Node packages of $folder"
    npm ci --prefix "$root/$folder" --no-audit --no-fund --loglevel=error
  fi
done
