#!/usr/bin/env bash
# Builds the playground into build/web/ (`make web`): GLU's tessellator
# sources, the engine with Emscripten into build/web-engine/, then the page
# bundled by esbuild.
#   scripts/build-web.sh [JOBS]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
jobs="${1:-2}"
cd "$root"
# Debian's Emscripten runs its JavaScript optimizer with the system's Node,
# which finds Debian's own acorn only here.
export NODE_PATH=/usr/share/nodejs
scripts/fetch-glu-tess.sh build/web-deps
emcmake cmake -S web/engine -B build/web-engine -DCMAKE_BUILD_TYPE=Release \
  -DLUMERIC_GLU_SOURCE="$root/build/web-deps/glu-9.0.2" >/dev/null
cmake --build build/web-engine -j "$jobs"
node web/build.mjs build/web-engine build/web
echo "The playground is in build/web/ (make serve serves it)."
