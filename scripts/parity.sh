# The comparison of what the builds compute (tests/parity/). Sourced behind lib.sh and test_groups.sh.

# Notes what a build prints. $1: its name, the rest: the command that runs it.
note_parity() {
  local name=$1
  shift
  "$@" >"$root/out/parity-$name.txt" 2>/dev/null || say "$name: lumora_parity broke off"
}

# Compares what the native build and another one have printed. $1: the other one's name.
compare_parity() {
  group "parity-$1" "$root/tests/checks/check_parity.sh" "$root/out/parity-native.txt" "$root/out/parity-$1.txt"
}
