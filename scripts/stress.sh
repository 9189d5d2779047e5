# The end-to-end tests many times in turn, while other processes want the processors. Sourced behind lib.sh and
# test_groups.sh.
busy_pids=()
stress_parts=4  # they mostly wait, so there are more of them than processors

# Four processes that never rest.
keep_busy() {
  local i
  for i in 1 2 3 4; do
    (while :; do :; done) &
    busy_pids+=($!)
  done
}

stop_busy() {
  [ ${#busy_pids[@]} = 0 ] || kill "${busy_pids[@]}" 2>/dev/null || true
  busy_pids=()
}

# $1: how many times, $2: which tests (GoogleTest's filter).
test_stress() {
  local times=$1 filter=$2 part
  source scripts/screens.sh
  build_preset windows Lumora lumora_e2e password_stand_in marking_stand_in
  lay_program_folder
  xvfb_pid=
  trap 'stop_busy; stop_beside; stop_show_machine' EXIT
  prepare_end_to_end
  share_prefix
  keep_busy
  for ((part = 0; part < stress_parts; part++)); do
    beside "stress-$part" on_own_display "stress-$part" group "stress-$part" env GTEST_TOTAL_SHARDS=$stress_parts \
      GTEST_SHARD_INDEX=$part "${e2e[@]}" --gtest_repeat="$times" --gtest_filter="$filter:-*SeveralScreens.*"
  done
  # These have a display of their own; a filter leaves them out unless it names them.
  if [[ $filter = '*' || $filter = *SeveralScreens* ]]; then
    screens_limit=$((300 * times)) beside stress-screens on_own_display stress-screens test_several_screens "${e2e[@]}" \
      --gtest_repeat="$times" --gtest_filter='*SeveralScreens.*'
  fi
  wait_beside
  stop_busy
}
