#!/usr/bin/env bash
# Runs the playground's browser test against the built site SITE.
#   tests/web/run_playground_test.sh SITE
set -euo pipefail
site="$1"
root="$(cd "$(dirname "$0")/../.." && pwd)"
if [ ! -f "$site/index.html" ] || [ ! -f "$site/lumeric-engine.wasm" ]; then
  echo "The playground is not built in $site (make web builds it); skipped."
  exit 77
fi
if [ ! -d "$root/web/node_modules/puppeteer-core" ]; then
  echo "web/node_modules is missing (scripts/install-deps.sh web installs it); skipped."
  exit 77
fi
SITE="$site" SCREENSHOT="${SCREENSHOT:-$root/build/web-test/playground.png}" \
  exec node --test "$root/web/test/playground.test.mjs"
