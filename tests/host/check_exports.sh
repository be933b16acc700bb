#!/usr/bin/env bash
# The shared library must export exactly ParseVRMLLumeric, CheckSyntax and
# gWarn, unmangled, and nothing else of its own.
set -euo pipefail
library="$1"
exported=$(nm -D --defined-only "$library" | awk '{print $NF}' | sort)
expected=$(printf '%s\n' CheckSyntax ParseVRMLLumeric gWarn | sort)
if [ "$exported" != "$expected" ]; then
  echo "exported symbols differ from the expected three:"
  diff <(echo "$expected") <(echo "$exported") || true
  exit 1
fi
echo "exports ok: $(echo $exported)"
