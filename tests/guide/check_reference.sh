#!/usr/bin/env bash
# Checks that the reference describes every keyword of the run-time.
#
#   check_reference.sh <tamrix-syntax> <keyword-handlers> <reference-folder>
#
# Each keyword has exactly one entry, a heading "### <Keyword>" that runs to
# the next heading. An entry either holds a tested example (a `tamrix`
# block) or says "Not available yet"; a keyword that the dispatcher takes
# may not say so.
set -euo pipefail

syntax_tool=$1
handlers_tool=$2
reference=$3

handled=$("$handlers_tool")
failed=0
while IFS= read -r keyword; do
  entries=$(cat "$reference"/*.md | grep -cxF -- "### $keyword" || true)
  if [[ $entries -ne 1 ]]; then
    echo "FAIL: the keyword $keyword has $entries reference entries, not 1"
    failed=1
    continue
  fi
  entry=$(awk -v head="### $keyword" '
    $0 == head { inside = 1; next }
    inside && /^#/ { inside = 0 }
    inside { print }' "$reference"/*.md)
  if grep -q "Not available yet" <<<"$entry"; then
    if grep -qxF "$keyword" <<<"$handled"; then
      echo "FAIL: $keyword works in this version, but its entry says it is not available yet"
      failed=1
    fi
    if grep -q '^```tamrix' <<<"$entry"; then
      echo "FAIL: $keyword is not available yet, but its entry has an example"
      failed=1
    fi
  elif ! grep -q '^```tamrix' <<<"$entry"; then
    echo "FAIL: the entry of $keyword has no example"
    failed=1
  fi
done < <("$syntax_tool" keywords)
[[ $failed -eq 0 ]] || exit 1
echo "ok: every keyword has its reference entry"
