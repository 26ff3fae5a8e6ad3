#!/usr/bin/env bash
# Runs one end-to-end case unattended and compares its trace with the
# expected one.
#
#   run_program.sh <tamrix> <tamrix-pack> <case> <work-folder> [<snapshot-pixels>]
#
# <case> is tests/programs/<name>, and the case is made of files beside it:
#   <name>.expected     the trace that the run must write, exactly (required)
#   <name>.tam          unit 0 of the program; without it the bare run-time
#                       stub runs (its about window)
#   <name>.unit1.tam .. <name>.unit6.tam   the further units, in that order
#   <name>.answers      the value of TAMRIX_ANSWERS (default: set but empty,
#                       so every box takes its default button)
#   <name>.args         command-line arguments, split at blanks
#   <name>.env          extra VARIABLE=value lines for the run (LC_ALL=...)
#   <name>.files/       copied beside the program before it runs
#   <name>.input        replayed user input (TAMRIX_INPUT)
#   <name>.screen       (empty) boxes and dialogs show on screen, with
#                       TAMRIX_ANSWERS unset, for the replayed input to answer
#   <name>.pixels       pixels that the snapshot of the main window must show,
#                       checked by <snapshot-pixels> (see tools/snapshot_pixels.cpp)
#   <name>.program      the name that the packed program is renamed to before
#                       it runs (default: <name>)
#   <name>.post         a bash script run in <work-folder> after the trace
#                       matched, with TAMRIX_DB naming the record file tool;
#                       the case fails when it fails
# The program runs in <work-folder> under the offscreen platform with
# TAMRIX_EXIT=1, at most 20 seconds, and its exit status must be the one
# that its trace names.
set -euo pipefail

stub=$1
packer=$2
case_path=$3
work=$4
pixel_checker=${5:-}
name=$(basename "$case_path")
timeout_seconds=20

rm -rf "$work"
mkdir -p "$work"
mkdir -m 700 "$work/.runtime"
program="$work/$name"
trace="$work/trace.txt"

if [[ -f "$case_path.tam" ]]; then
  units=()
  for i in 1 2 3 4 5 6; do
    [[ -f "$case_path.unit$i.tam" ]] && units+=("$case_path.unit$i.tam")
  done
  "$packer" -o "$program" "$case_path.tam" "${units[@]}"
else
  cp "$stub" "$program"
fi
if [[ -f "$case_path.program" ]]; then
  mv "$program" "$work/$(<"$case_path.program")"
  program="$work/$(<"$case_path.program")"
fi
if [[ -d "$case_path.files" ]]; then
  cp -R "$case_path.files/." "$work/"
fi

answers=""
[[ -f "$case_path.answers" ]] && answers=$(<"$case_path.answers")
answers_env=(TAMRIX_ANSWERS="$answers")
[[ -f "$case_path.screen" ]] && answers_env=(-u TAMRIX_ANSWERS)
args=()
[[ -f "$case_path.args" ]] && read -ra args <"$case_path.args"
extra_env=()
[[ -f "$case_path.input" ]] && extra_env+=("TAMRIX_INPUT=$case_path.input")
snapshot="$work/snapshot.png"
[[ -f "$case_path.pixels" ]] && extra_env+=("TAMRIX_SNAPSHOT=$snapshot")
if [[ -f "$case_path.env" ]]; then
  while IFS= read -r line; do
    [[ -z "$line" || "$line" == \#* ]] || extra_env+=("$line")
  done <"$case_path.env"
fi

status=0
(
  cd "$work"
  env -u TAMRIX_SNAPSHOT -u TAMRIX_INPUT -u TAMRIX_PRINTER "${answers_env[@]}" \
    QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$work/.runtime" LC_ALL=C.UTF-8 \
    TAMRIX_EXIT=1 TAMRIX_TRACE="$trace" \
    "${extra_env[@]}" \
    timeout "$timeout_seconds" "$program" "${args[@]}"
) || status=$?
touch "$trace"

if [[ $status -eq 124 ]]; then
  echo "FAIL: $name did not end within $timeout_seconds seconds"
  diff -u --label expected --label trace "$case_path.expected" "$trace" || true
  exit 1
fi
if ! diff -u --label expected --label trace "$case_path.expected" "$trace"; then
  echo "FAIL: $name wrote another trace (exit status $status)"
  exit 1
fi
traced_status=$(awk -F'\t' '$1 == "exit" { s = $2 } END { print s }' "$trace")
if [[ -n "$traced_status" && "$traced_status" != "$status" ]]; then
  echo "FAIL: $name traced exit status $traced_status but ended with $status"
  exit 1
fi
if [[ -f "$case_path.pixels" ]]; then
  if [[ -z "$pixel_checker" ]]; then
    echo "FAIL: $name has pixels to check but no checker was given"
    exit 1
  fi
  if ! "$pixel_checker" "$snapshot" "$case_path.pixels"; then
    echo "FAIL: $name drew other pixels"
    exit 1
  fi
fi
if [[ -f "$case_path.post" ]]; then
  if ! (cd "$work" && bash "$case_path.post"); then
    echo "FAIL: $name failed its post-check"
    exit 1
  fi
fi
echo "ok: $name"
