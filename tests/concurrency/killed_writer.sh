#!/usr/bin/env bash
# A writer killed (-9) while it adds records. tamrix-db repair refuses while
# the writer runs; after the kill it leaves a file that passes the check and
# holds the writer's numbers 0, 1, 2... in order: nothing is lost beyond the
# record being written.
#
#   killed_writer.sh <tamrix-pack> <tamrix-db> <work-folder> [tries]
set -euo pipefail
packer=$1
tool=$2
work=$3
tries=${4:-4}
here=$(cd "$(dirname "$0")" && pwd)

rm -rf "$work"
mkdir -p "$work"
mkdir -m 700 "$work/.runtime"
"$packer" -o "$work/endless_writer" "$here/endless_writer.tam"
cd "$work"

for try in $(seq 1 "$tries"); do
  rm -f Shared.Zrf Shared.Zrf.bak*
  env QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$work/.runtime" LC_ALL=C.UTF-8 TAMRIX_EXIT=1 \
    TAMRIX_ANSWERS= ./endless_writer K &  # env runs the program in its own process: the kill reaches it
  writer=$!
  # Wait until the writer has added a few hundred records.
  for _ in $(seq 1 400); do
    size=$(stat -c %s Shared.Zrf 2>/dev/null || echo 0)
    ((size > 20000 + 300 * 32)) && break
    sleep 0.05
  done
  if ! kill -0 "$writer" 2>/dev/null; then
    echo "FAIL: try $try: the writer ended before it could be killed"
    exit 1
  fi
  if "$tool" repair Shared.Zrf; then
    echo "FAIL: try $try: repair went ahead while the writer had the file open"
    exit 1
  fi
  sleep "0.0$((RANDOM % 10))"
  kill -9 "$writer"
  wait "$writer" || true

  "$tool" check Shared.Zrf || true
  "$tool" repair Shared.Zrf
  "$tool" check Shared.Zrf
  "$tool" dump Shared.Zrf | awk -v try="$try" '
    /^record [0-9]+:/ {
      split($4, number, "=")
      if (number[2] != n) { print "FAIL: try " try ": record " n " holds number " number[2]; exit 1 }
      n++
    }
    END { if (n < 300) { print "FAIL: try " try ": only " n " records"; exit 1 } }'
done

echo "ok: $tries writers killed and repaired"
