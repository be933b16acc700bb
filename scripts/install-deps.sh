#!/usr/bin/env bash
# Installs what building and testing lumeric needs, when it is missing.
# Debian packages only; needs root (or sudo) the first time.
set -euo pipefail

packages=(cmake g++ make bison libgtest-dev libbenchmark-dev libcoin-dev binutils pkg-config groff-base
  libtinygltf-dev nlohmann-json3-dev libstb-dev admesh assimp-utils view3dscene xvfb xauth)
# `install-deps.sh fuzz` adds clang and its libFuzzer runtime.
if [ "${1:-}" = fuzz ]; then packages+=(clang libclang-rt-dev); fi
missing=()
for p in "${packages[@]}"; do
  dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi
echo "Installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq "${missing[@]}"
