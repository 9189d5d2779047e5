#!/usr/bin/env bash
# Replays the corpus of every fuzzer and fuzzes each for 10 seconds ($1: for so many), two at a time. A part of
# ./test: reports in GoogleTest's form, each target as one test.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
source "$root/scripts/fuzz_lib.sh"
seconds=${1:-10}

# One target as one test.
one() {
  local target=$1 found
  found=$(mktemp -d)
  if fuzz_target "$target" "$seconds" "$found"; then
    echo "[       OK ] Fuzz.$target (0 ms)"
  else
    echo "Failure"
    fuzz_report "$target"
    echo "[  FAILED  ] Fuzz.$target (0 ms)"
  fi
  rm -rf "$found"
}

rm -rf "$root/out/fuzz"
results=$(mktemp)
mapfile -t targets < <(fuzz_targets)
for ((i = 0; i < ${#targets[@]}; i += 2)); do
  first=$(mktemp)
  one "${targets[i]}" >"$first" &
  [ $((i + 1)) -ge ${#targets[@]} ] || one "${targets[i + 1]}" >>"$results"
  wait
  cat "$first" >>"$results"
  rm -f "$first"
done
cat "$results"
passed=$(grep -c '^\[       OK \]' "$results" || true)
rm -f "$results"
echo "[  PASSED  ] $passed tests."
[ "$passed" = ${#targets[@]} ]
