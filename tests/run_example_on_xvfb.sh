#!/usr/bin/env bash
# Runs an example program on a real X display (Xvfb) and checks sampled
# pixels of its snapshot.
#
#   run_example_on_xvfb.sh <tamrix-pack> <snapshot-pixels> <example> <work-folder>
#
# examples/<example>.tam is packed and run under xvfb-run with TAMRIX_EXIT=1
# (and examples/<example>.input replayed when it exists); the snapshot of
# the main window must show tests/examples/<example>.pixels.
set -euo pipefail
pack=$1 pixels=$2 example=$3 work=$4
top=$(cd "$(dirname "$0")/.." && pwd)
rm -rf "$work" && mkdir -p "$work"
"$pack" -o "$work/$example" "$top/examples/$example.tam"
input=()
[[ -f "$top/examples/$example.input" ]] && input=("TAMRIX_INPUT=$top/examples/$example.input")
status=0
( cd "$work" && timeout 60 xvfb-run -a env -u QT_QPA_PLATFORM XDG_RUNTIME_DIR="$work" TAMRIX_EXIT=1 \
    TAMRIX_ANSWERS= TAMRIX_SNAPSHOT="$work/snapshot.png" "${input[@]}" "./$example" ) > "$work/output" 2>&1 || status=$?
if [[ $status -ne 0 ]]; then
  echo "FAIL: $example ended with status $status"
  cat "$work/output"
  exit 1
fi
"$pixels" "$work/snapshot.png" "$top/tests/examples/$example.pixels"
