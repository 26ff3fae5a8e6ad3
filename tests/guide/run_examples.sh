#!/usr/bin/env bash
# Runs every example of one guide page and compares its trace.
#
#   run_examples.sh <tamrix> <tamrix-pack> <page.md> <work-folder> [<snapshot-pixels>]
#
# An example is a fenced block marked `tamrix`, followed by the blocks that
# make its case: `trace` (required: the trace the run must write), and
# optionally `input` (replayed user input) and `answers` (box answers).
# Each case runs through tests/run_program.sh, the runner of the end-to-end
# tests, and tamrix-pack --check must find nothing in it. A `tamrix` block without its trace fails: every example runs.
set -euo pipefail

stub=$1
packer=$2
page=$3
work=$4
pixel_checker=${5:-}
runner="$(dirname "$0")/../run_program.sh"
name=$(basename "$page" .md)

rm -rf "$work"
mkdir -p "$work/cases"

# Writes each example's blocks to cases/<n>/guide.tam, guide.expected, ...
# (every example is a program named GUIDE, the title of its boxes) and
# lists each case with the line of the page where it starts.
awk -v dir="$work/cases" '
  function close_case() { if (n > 0) closed[n] = 1 }
  /^```tamrix[ \t]*$/ {
    close_case(); n++; system("mkdir -p \"" dir "/" n "\"")
    out = dir "/" n "/guide.tam"; printf "" > out; lines[n] = NR; inside = 1; next
  }
  /^```(trace|input|answers)[ \t]*$/ && n > 0 && !closed[n] {
    kind = substr($0, 4); sub(/[ \t]+$/, "", kind)
    ext = kind == "trace" ? "expected" : kind
    out = dir "/" n "/guide." ext; printf "" > out; inside = 1; next
  }
  /^```/ && inside { inside = 0; close(out); next }
  /^```/ { close_case(); next }
  inside { print > out; next }
  /^[ \t]*$/ { next }
  { close_case() }
  END { for (i = 1; i <= n; i++) print i, lines[i] > (dir "/index") }
' "$page"

[[ -f "$work/cases/index" ]] || { echo "ok: $name has no examples"; exit 0; }
failed=0
count=0
while read -r n line; do
  count=$((count + 1))
  case_path="$work/cases/$n/guide"
  if [[ ! -f "$case_path.expected" ]]; then
    echo "FAIL: $page:$line: the example has no trace block"
    failed=1
    continue
  fi
  # The checker must agree that the example is sound.
  if ! findings=$("$packer" --check "$case_path.tam"); then
    echo "FAIL: $page:$line: tamrix-pack --check finds: $findings"
    failed=1
  fi
  if ! bash "$runner" "$stub" "$packer" "$case_path" "$work/run/$n" $pixel_checker >"$work/$n.log" 2>&1; then
    echo "FAIL: $page:$line:"
    cat "$work/$n.log"
    failed=1
  fi
done <"$work/cases/index"
[[ $failed -eq 0 ]] || exit 1
echo "ok: $count examples of $name"
