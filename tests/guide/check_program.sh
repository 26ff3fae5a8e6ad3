#!/usr/bin/env bash
# Runs tamrix-pack --check on the planted faults of check/ and compares its
# findings; then checks that it finds nothing in the examples.
#
#   check_program.sh <tamrix-pack> <examples-folder>
set -euo pipefail

packer=$1
examples=$2
cd "$(dirname "$0")/check"
failed=0
for findings in *.findings; do
  name=${findings%.findings}
  units=()
  for i in 1 2 3 4 5 6; do
    [[ -f "$name.unit$i.tam" ]] && units+=("$name.unit$i.tam")
  done
  status=0
  output=$("$packer" --check "$name.tam" "${units[@]}") || status=$?
  if ! diff -u --label "$findings" --label found "$findings" <(printf '%s\n' "$output"); then
    echo "FAIL: --check found other things in $name.tam"
    failed=1
  elif [[ $status -ne 1 ]]; then
    echo "FAIL: --check exited with $status, not 1, for $name.tam"
    failed=1
  fi
done
for program in clean.tam "$examples"/*.tam; do
  status=0
  output=$("$packer" --check "$program") || status=$?
  if [[ $status -ne 0 || -n "$output" ]]; then
    echo "FAIL: --check found something in $program (exit status $status):"
    echo "$output"
    failed=1
  fi
done
status=0
"$packer" --check no-such-file.tam 2>/dev/null || status=$?
if [[ $status -ne 2 ]]; then
  echo "FAIL: --check of a missing file exited with $status, not 2"
  failed=1
fi
[[ $failed -eq 0 ]] || exit 1
echo "ok: --check finds the planted faults and nothing else"
