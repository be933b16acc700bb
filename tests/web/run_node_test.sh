#!/usr/bin/env bash
# Runs one of the playground's Node tests; skipped while its Node packages
# are not installed (scripts/install-deps.sh web installs them).
#   tests/web/run_node_test.sh TEST.mjs
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
if [ ! -d "$root/web/node_modules/esbuild" ]; then
  echo "web/node_modules is missing (scripts/install-deps.sh web installs it); skipped."
  exit 77
fi
exec node --test "$1"
