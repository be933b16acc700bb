#!/usr/bin/env bash
# Brings GLU's polygon tessellator (the SGI libtess sources) for the
# WebAssembly build, which has no GLU library to link: the Debian source
# package of libglu, fetched through apt with a source list of its own (the
# system's lists stay as they are), checked against the digest of the
# version the build was made with, and unpacked into DEST.
#
#   scripts/fetch-glu-tess.sh DEST
set -euo pipefail
dest="$1"
version="9.0.2"
tarball="libglu_${version}.orig.tar.gz"
sha256="24effdfb952453cc00e275e1c82ca9787506aba0282145fff054498e60e19a65"
if [ -f "$dest/glu-$version/src/libtess/tess.c" ]; then exit 0; fi
mkdir -p "$dest/apt/lists/partial"
work="$(cd "$dest" && pwd)"
echo "deb-src http://deb.debian.org/debian bookworm main" >"$work/apt/sources.list"
apt_options=(-o "Dir::Etc::SourceList=$work/apt/sources.list" -o "Dir::Etc::SourceParts=/nonexistent"
  -o "Dir::State::Lists=$work/apt/lists" -o "APT::Get::List-Cleanup=0" -o "Dir::Cache=$work/apt/cache"
  -o "APT::Sandbox::User=root")
if [ ! -f "$work/$tarball" ]; then
  apt-get "${apt_options[@]}" update -qq
  # Only the upstream tarball is needed; the Debian changes are packaging.
  (cd "$work" && apt-get "${apt_options[@]}" source --download-only -qq "libglu=${version}-1.1" 2>/dev/null || true)
fi
echo "$sha256  $work/$tarball" | sha256sum --check --quiet
tar -xzf "$work/$tarball" -C "$work" "glu-$version/src/libtess" "glu-$version/src/include" "glu-$version/include"
