#!/usr/bin/env bash
# Runs the playground's browser test against the built site SITE; with
# LUMERIC, the native command, its files are compared with the engine's.
#   tests/web/run_playground_test.sh SITE [LUMERIC]
set -euo pipefail
site="$1"
cli="${2:-}"
root="$(cd "$(dirname "$0")/../.." && pwd)"
if [ ! -f "$site/index.html" ] || [ ! -f "$site/lumeric-engine.wasm" ]; then
  echo "The playground is not built in $site (make web builds it); skipped."
  exit 77
fi
if [ ! -d "$root/web/node_modules/puppeteer-core" ]; then
  echo "web/node_modules is missing (scripts/install-deps.sh web installs it); skipped."
  exit 77
fi
LUMERIC_CLI="$cli" SITE="$site" SCREENSHOT="${SCREENSHOT:-$root/build/web-test/playground.png}" \
  exec node --test "$root/web/test/playground.test.mjs"
