# What the fuzzing scripts share. Sourced after lib.sh.

# Every target's name, one a line.
fuzz_targets() {
  local source
  for source in "$root"/tests/fuzz/*_fuzz.cpp; do basename "$source" .cpp; done
}

# The greatest length of an input in bytes: enough for every structure that the target knows, and no more.
fuzz_length() {
  case $1 in
    ini_document_fuzz | load_settings_fuzz | gif_fuzz) echo 2048 ;;
    caption_template_fuzz) echo 1024 ;;
    exif_fuzz | picture_facts_fuzz) echo 66000 ;;
    command_line_fuzz) echo 256 ;;
    number_text_fuzz | date_text_fuzz) echo 64 ;;
    *) echo 4096 ;;
  esac
}

# Replays the corpus of a target and its seeds, which are made by hand and stay whatever the corpus becomes, then fuzzes
# from them. $1: target, $2: seconds, $3: folder for new inputs.
# The log and an input that breaks a property go to out/fuzz/.
fuzz_target() {
  local target=$1 seconds=$2 found=$3 known
  known=("$root/tests/fuzz/corpus/$target")
  mkdir -p "$root/out/fuzz" "$found" "${known[0]}"
  [ ! -d "$root/tests/fuzz/seeds/$target" ] || known+=("$root/tests/fuzz/seeds/$target")
  "$root/build-fuzz/$target" -max_total_time="$seconds" -max_len="$(fuzz_length "$target")" -timeout=20 \
    -rss_limit_mb=1024 -malloc_limit_mb=256 -print_final_stats=1 \
    -dict="$root/tests/fuzz/dictionaries/$target.dict" -artifact_prefix="$root/out/fuzz/$target-" \
    "$found" "${known[@]}" >"$root/out/fuzz/$target.log" 2>&1
}

# Says what a failed run of a target found and where the input lies.
fuzz_report() {
  local log="$root/out/fuzz/$1.log"
  grep -aE 'broken property|runtime error|ERROR: |exception' "$log" | head -n 5
  sed -n 's/.*Test unit written to /the input: /p' "$log"
  echo "all of the output: $log"
}
