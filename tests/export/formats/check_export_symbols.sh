#!/usr/bin/env bash
# The exporter's shared library must export ExportVRMLLumeric, unmangled,
# and nothing else of its own.
set -euo pipefail
exported=$(nm -D --defined-only "$1" | awk '{print $NF}' | sort)
if [ "$exported" != "ExportVRMLLumeric" ]; then
  echo "exported symbols differ from ExportVRMLLumeric alone:"
  echo "$exported"
  exit 1
fi
echo "exports ok: $exported"
