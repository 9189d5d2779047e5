# The comparison of what the builds compute (tests/parity/). Sourced behind lib.sh and test_groups.sh.

# Compares a build for Windows with the native one. $1: build folder, $2: the group's name, the rest: what runs Windows
# programs here (wine by default).
test_parity() {
  local build=$1 name=$2
  shift 2
  [ $# != 0 ] || set -- wine
  build_preset native lumora_parity
  "$root/build-native/lumora_parity" >"$root/out/parity-native.txt" 2>&1 || true
  "$@" "$build/lumora_parity.exe" >"$root/out/parity-$name.txt" 2>/dev/null || true
  group "parity-$name" "$root/tests/checks/check_parity.sh" "$root/out/parity-native.txt" "$root/out/parity-$name.txt"
}
