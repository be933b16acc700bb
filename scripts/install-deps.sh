#!/usr/bin/env bash
# Installs what building and testing lumeric needs, when it is missing.
# Debian packages only; needs root (or sudo) the first time.
set -euo pipefail

packages=(cmake g++ make bison libgtest-dev libcoin-dev binutils pkg-config groff-base
  libglu1-mesa-dev libstb-dev libtinygltf-dev nlohmann-json3-dev admesh assimp-utils view3dscene xvfb xauth)
# `install-deps.sh fuzz` adds clang and its libFuzzer runtime;
# `install-deps.sh bench` adds Google Benchmark, which only `make bench` uses.
case "${1:-}" in
  fuzz) packages+=(clang libclang-rt-dev) ;;
  bench) packages+=(libbenchmark-dev) ;;
esac
missing=()
for p in "${packages[@]}"; do
  dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
if [ ${#missing[@]} -ne 0 ]; then
  echo "Installing: ${missing[*]}"
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq "${missing[@]}"
fi

# The editor tests run vim and Emacs headless, and the TextMate grammar test
# tool, which npm installs into editors/vscode from its lock file whenever
# node_modules is missing or older than the lock.
editor_packages=()
command -v vim >/dev/null 2>&1 || editor_packages+=(vim)
command -v emacs >/dev/null 2>&1 || editor_packages+=(emacs-nox)
command -v npm >/dev/null 2>&1 || editor_packages+=(nodejs npm)
if [ ${#editor_packages[@]} -ne 0 ]; then
  echo "Installing: ${editor_packages[*]}"
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq --no-install-recommends "${editor_packages[@]}"
fi
vscode="$(cd "$(dirname "$0")/.." && pwd)/editors/vscode"
if [ ! -d "$vscode/node_modules" ] || [ "$vscode/package-lock.json" -nt "$vscode/node_modules" ]; then
  echo "Installing the grammar test tool in editors/vscode"
  npm ci --prefix "$vscode" --no-audit --no-fund --loglevel=error
  touch "$vscode/node_modules"
fi
