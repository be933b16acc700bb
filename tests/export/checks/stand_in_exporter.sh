#!/bin/sh
# Runs stand_in_exporter.mjs as a command, the way the checks run lumeric.
exec node "$(dirname "$0")/stand_in_exporter.mjs" "$@"
