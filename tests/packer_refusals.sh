#!/usr/bin/env bash
# tamrix-pack refuses, with status 2 and a message, an output that exists and
# is not a regular file, and a source larger than the memory it may use.
#
#   packer_refusals.sh <tamrix-pack> <work-folder> [sanitized]
# With "sanitized" (a build with AddressSanitizer, whose shadow memory needs
# far more address space than any such limit), the memory case is skipped.
set -uo pipefail
packer=$1
work=$2
sanitized=${3:-}

rm -rf "$work"
mkdir -p "$work"
cd "$work" || exit 1
printf 'Write "hi"\n' >hello.tam
fail=0

# Runs tamrix-pack; the status must be 2 and the message must name tamrix-pack.
expect_refusal() {
  local what=$1
  shift
  "$@" 2>err.txt
  local status=$?
  if [[ $status -ne 2 ]]; then
    echo "FAIL: $what: status $status, not 2"
    cat err.txt
    fail=1
  elif ! grep -q '^tamrix-pack: ' err.txt; then
    echo "FAIL: $what: no message"
    fail=1
  fi
}

mkfifo pipe
expect_refusal "a FIFO as output" "$packer" -o pipe hello.tam
[[ -p pipe ]] || { echo "FAIL: the FIFO was replaced"; fail=1; }

ln -s /dev/null device
expect_refusal "a link to a device as output" "$packer" -o device hello.tam
[[ -L device ]] || { echo "FAIL: the link was replaced"; fail=1; }

# A 400 MB source against 300 MB of address space.
if [[ $sanitized == sanitized ]]; then
  echo "skipped: a source larger than memory (no address-space limit under the sanitizers)"
else
  truncate -s 400M big.tam
  expect_refusal "a source larger than memory" bash -c "ulimit -v 300000; exec \"$packer\" -o big big.tam"
  [[ -e big ]] && { echo "FAIL: a packed file was left"; fail=1; }
fi

# An ordinary output is still written over.
printf 'old' >hello
"$packer" -o hello hello.tam || { echo "FAIL: a regular output was refused"; fail=1; }

((fail == 0)) && echo "ok: tamrix-pack refusals"
exit "$fail"
