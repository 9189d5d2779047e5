# The program for 32-bit Windows in a 32-bit system of its own: Debian for i386 in a folder, with Wine. Only as root.
# Sourced behind lib.sh and test_groups.sh.
x86_system="${LUMORA_X86_SYSTEM:-$root/.x86-system}"
x86_packages=(debootstrap)

# What the system has besides the least: what running and looking at a show takes.
x86_contents=wine,wine32,xvfb,xauth,x11-xserver-utils,fonts-liberation,xdotool,imagemagick,unzip

# Makes the system once; about two minutes and 1.3 GB.
prepare_x86_system() {
  [ ! -e "$x86_system/.lumora-ready" ] || return 0
  say "making the 32-bit system (once): $x86_system"
  rm -rf "$x86_system"
  mkdir -p "$root/out"
  debootstrap --arch=i386 --variant=minbase --include="$x86_contents" bookworm "$x86_system" >"$root/out/debootstrap.log" || {
    tail -n 20 "$root/out/debootstrap.log" >&2
    return 1
  }
  touch "$x86_system/.lumora-ready"
}

# Runs scripts/x86_inside.sh in the system, where the repository lies where it lies outside, as the tests know it. What is
# mounted for it is seen by it alone and goes away with it, however it ends. $1...: its arguments.
in_x86_system() {
  # shellcheck disable=SC2016  # expanded by the inner shell
  unshare --mount --propagation private bash -euc '
    system=$1 root=$2
    shift 2
    mkdir -p "$system$root"
    mount --rbind /proc "$system/proc"
    mount --rbind /dev "$system/dev"
    mount --bind "$root" "$system$root"
    chroot "$system" /usr/bin/env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin WINEARCH=win32 \
      LUMORA_WINEPREFIX=/root/lumora-prefix bash "$root/scripts/x86_inside.sh" "$@"' - "$x86_system" "$root" "$@"
}

# Whether what is mounted for a process alone may be mounted here.
may_mount() { unshare --mount --propagation private mount --bind "$root" "$root" 2>/dev/null; }

# Ends what cannot be tested here. $1: why, $2: "if-possible" where that is no failure.
leave_x86_out() {
  say "NOT TESTED: the program for 32-bit Windows ($1)"
  [ "$2" = if-possible ] || exit 2
  exit 0
}

# $1: "if-possible" to leave the tests out, saying so, where no 32-bit system can be had.
test_x86() {
  local if_possible=${1:-}
  source scripts/package.sh
  source scripts/package_test.sh
  [ "$(id -u)" = 0 ] || leave_x86_out "only root may make and enter a system of its own" "$if_possible"
  may_mount || leave_x86_out "mounting is not permitted here" "$if_possible"
  need_packages "building" "${build_packages[@]}" "${windows_x86_packages[@]}"
  need_packages "packing" "${packing_packages[@]}"
  need_packages "a 32-bit system" "${x86_packages[@]}"
  prepare_x86_system || leave_x86_out "the 32-bit system cannot be made here" "$if_possible"
  try_x86_packages
  pack_for_test
  build_preset windows-x86
  build_preset native lumora_parity
  lay_program_folder "$root/build-windows-x86" "$root/out/Lumora-x86"
  group x86-imports "$root/tests/checks/check_imports.sh" "$tried/first/$tried_name-$first_version-imports.txt"
  note_parity native "$root/build-native/lumora_parity"
  note_parity x86 in_x86_system run lumora_parity.exe
  compare_parity x86
  group x86-windows in_x86_system run lumora_win_tests.exe
  group x86-end-to-end in_x86_system end-to-end
  group x86-packages in_x86_system packages
}
