#!/usr/bin/env bash
# Two packed programs add records to one record file at the same time; no
# record may be lost, and the file must stay sound.
#
#   two_writers.sh <tamrix-pack> <tamrix-db> <work-folder>
set -euo pipefail
packer=$1
tool=$2
work=$3
here=$(cd "$(dirname "$0")" && pwd)
per_writer=5000

rm -rf "$work"
mkdir -p "$work"
mkdir -m 700 "$work/.runtime"
"$packer" -o "$work/add_records" "$here/add_records.tam"

run() {
  (cd "$work" && env QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$work/.runtime" LC_ALL=C.UTF-8 \
    TAMRIX_EXIT=1 TAMRIX_ANSWERS= TAMRIX_TRACE="$work/trace.$1.txt" timeout 120 ./add_records "$1")
}

# The file and its first record exist before the two start.
run first
run A &
a=$!
run B &
b=$!
wait "$a"
wait "$b"

if grep -h '^box' "$work"/trace.*.txt; then
  echo "FAIL: a writer showed a box"
  exit 1
fi
"$tool" check "$work/Shared.Zrf"
# Every writer's numbers, each exactly once.
"$tool" dump "$work/Shared.Zrf" | awk -v n="$per_writer" '
  /^record [0-9]+:/ { seen[$3 " " $4]++; count[$3]++ }
  END {
    bad = 0
    for (w in count) if (count[w] != n) { print "FAIL: " w " has " count[w] " records"; bad = 1 }
    for (k in seen) if (seen[k] != 1) { print "FAIL: " k " stands " seen[k] " times"; bad = 1 }
    if (length(count) != 3) { print "FAIL: " length(count) " writers"; bad = 1 }
    exit bad
  }'
echo "ok: two writers, no record lost"
