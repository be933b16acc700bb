#!/usr/bin/env bash
# Installs what building and testing lumeric needs, when it is missing.
# Debian packages only; needs root (or sudo) the first time.
set -euo pipefail

packages=(cmake g++ make bison libgtest-dev libbenchmark-dev libcoin-dev binutils pkg-config groff-base)
# The export checks: Node.js for the glTF validator and readers, admesh (STL),
# assimp (OBJ), view3dscene and tovrmlx3d under a virtual X server (X3D).
packages+=(nodejs admesh assimp-utils view3dscene xvfb xauth)
# A Node.js that comes without npm (Debian's own) needs Debian's npm.
if command -v node >/dev/null 2>&1 && ! command -v npm >/dev/null 2>&1; then packages+=(npm); fi
# `install-deps.sh fuzz` adds clang and its libFuzzer runtime.
if [ "${1:-}" = fuzz ]; then packages+=(clang libclang-rt-dev); fi
missing=()
for p in "${packages[@]}"; do
  dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo=""
  if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq "${missing[@]}"
  # Debian's nodejs brings no npm; install it once node is there.
  if ! command -v npm >/dev/null 2>&1; then $sudo apt-get install -y -qq npm; fi
fi

# The export checks' Node packages, as the lock file pins them: installed when
# missing or older than the lock file.
export_checks="$(cd "$(dirname "$0")/.." && pwd)/tests/export"
installed_lock="$export_checks/node_modules/.package-lock.json"
if [ ! -f "$installed_lock" ] || [ "$export_checks/package-lock.json" -nt "$installed_lock" ]; then
  echo "Installing the Node packages of tests/export"
  npm ci --prefix "$export_checks" --no-audit --no-fund --loglevel=error
fi
