#!/usr/bin/env bash
# Fuzzes long, one target after the other at low priority, and puts what it found into the corpus, minimised.
#   scripts/fuzz_long.sh [SECONDS [TARGET...]]   15 minutes each and every target by default
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
source "$root/scripts/fuzz_lib.sh"
seconds=${1:-900}
targets=("${@:2}")
[ ${#targets[@]} != 0 ] || mapfile -t targets < <(fuzz_targets)

need_packages "fuzzing" "${build_packages[@]}" "${sanitizer_packages[@]}"
build_preset fuzz
renice -n 19 $$ >/dev/null
for target in "${targets[@]}"; do
  corpus="$root/tests/fuzz/corpus/$target"
  found="$root/out/fuzz/found-$target"
  say "fuzzing: $target, $seconds seconds"
  if ! fuzz_target "$target" "$seconds" "$found"; then
    fuzz_report "$target" >&2
    exit 1
  fi
  minimised=$(mktemp -d)
  # One input for each thing that the code does, not for each number of times: small enough to be kept.
  "$root/build-fuzz/$target" -merge=1 -use_counters=0 -max_len="$(fuzz_length "$target")" "$minimised" "$corpus" "$found" \
    >"$root/out/fuzz/$target-merge.log" 2>&1
  rm -rf "$corpus"
  mkdir -p "$corpus"
  cp "$minimised"/* "$corpus/"
  rm -rf "$minimised"
  say "corpus of $target: $(find "$corpus" -type f | wc -l) files, $(du -sb "$corpus" | cut -f1) bytes"
done
