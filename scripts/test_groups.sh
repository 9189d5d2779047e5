# How ./test runs its groups of tests and counts them. Sourced behind lib.sh.
# A file a group: passed, failed.
results=$root/out/test-results
rm -rf "$results"
mkdir -p "$results"
declare -A beside_pids=()  # by name

# Runs a group of tests and notes what passed and failed. $1: name, the rest: a command that reports in GoogleTest's form.
group() {
  local name=$1 log="$root/out/test-$1.log" status=0 ran bad seconds=$SECONDS
  shift
  say "testing: $name"
  mkdir -p "$root/out"
  "$@" >"$log" 2>&1 || status=$?
  ran=$(tr -d '\r' <"$log" | sed -n 's/^\[  PASSED  \] \([0-9]*\) tests\?\..*/\1/p' | awk '{ n += $1 } END { print n }')
  bad=$(tr -d '\r' <"$log" | grep -c '^\[  FAILED  \] .*(.*ms)$' || true)
  if [ "$status" != 0 ] || [ -z "$ran" ]; then
    [ "$bad" != 0 ] || bad=1
    tr -d '\r' <"$log" | grep -E -A 12 'Failure$|runtime error|ERROR: AddressSanitizer' | head -n 120 >&2 || true
    tail -n 20 "$log" >&2
    say "failed: $name (status $status); all of its output: $log"
  fi
  printf '%s %s\n' "${ran:-0}" "$bad" >"$results/$name"
  say "tested: $name, $((SECONDS - seconds)) s"
}

# Runs a GoogleTest program in twice as many parts as there are processors, all at the same time, so that a part that
# is through early leaves none idle. $1...: the command.
in_shards() {
  local count index status=0 logs pids=()
  count=$((2 * $(nproc)))
  logs=$(mktemp -d)
  for ((index = 0; index < count; index++)); do
    GTEST_TOTAL_SHARDS=$count GTEST_SHARD_INDEX=$index "$@" >"$logs/$index" 2>&1 &
    pids+=($!)
  done
  for ((index = 0; index < count; index++)); do
    wait "${pids[index]}" || status=$?
    cat "$logs/$index"
  done
  rm -rf "$logs"
  return "$status"
}

# Runs a function of groups at the side. One that breaks off counts as a failure. $1: its name, the rest: the command.
beside() {
  local name=$1
  shift
  (
    "$@"
    touch "$results/.$name-done"
  ) &
  beside_pids[$name]=$!
}

# As above, at low priority.
beside_idly() {
  beside "$@"
  renice -n 10 "${beside_pids[$1]}" >/dev/null
}

wait_beside() {
  local name
  for name in "${!beside_pids[@]}"; do
    wait "${beside_pids[$name]}" || true
    [ -e "$results/.$name-done" ] || {
      say "broke off: $name"
      printf '0 1\n' >"$results/$name-broke-off"
    }
  done
  beside_pids=()
}

# Ends what runs at the side, for a run that breaks off. Each puts its own display and session away.
stop_beside() {
  local pid
  for pid in "${beside_pids[@]}"; do
    pkill -P "$pid" 2>/dev/null || true
    kill "$pid" 2>/dev/null || true
  done
  # Not for all that this shell has started: its display goes last.
  for pid in "${beside_pids[@]}"; do wait "$pid" || true; done
}

# Prepares what the tests under Wine stand on: a display, the prefix, folders and files that make trouble. Sets e2e, the
# command of the end-to-end tests.
prepare_end_to_end() {
  unset DISPLAY
  start_display 1920x1080
  prepare_wine
  make_hostile_folders "$root/out/hostile"
  make_silent_file "$root/out/silent"
  e2e=(wine "$root/build-windows/lumora_e2e.exe" "$(windows_path "$root/out/Lumora")")
}

# From here on the prefix is there to be copied.
share_prefix() {
  wineserver -k || true
  wineserver -w || true
  shared_prefix=$WINEPREFIX
}

# Runs a command with a display and a Wine session of its own, in a copy of the prefix that goes away afterwards: tests
# under Wine mostly wait, so several run at the same time and never meet. $1: a name, the rest: the command.
on_own_display() {
  export WINEPREFIX="$root/out/prefixes/$1"
  shift
  rm -rf "$WINEPREFIX"
  mkdir -p "$root/out/prefixes"
  cp -a "$shared_prefix" "$WINEPREFIX"
  xvfb_pid=
  hostile_folders= silent_folder=  # they are the whole run's
  unset DISPLAY
  trap 'stop_show_machine; rm -rf "$WINEPREFIX"' EXIT
  start_display 1920x1080
  offer_smaller_screen
  "$@"
}

# Prints the sum; fails when a test did.
finish() {
  local passed failed
  read -r passed failed < <(cat "$results"/* | awk '{ p += $1; f += $2 } END { print p + 0, f + 0 }')
  say ""
  say "after $((SECONDS / 60)) min $((SECONDS % 60)) s"
  printf '%d passed, %d failed\n' "$passed" "$failed"
  [ "$failed" = 0 ]
}
