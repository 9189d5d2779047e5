# What the doors share: packages, builds, the display, the Wine prefix. Sourced by bash scripts at the root.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

say() { printf '%s\n' "$*" >&2; }

as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"; else sudo -n "$@"; fi
}

# Installs the Debian packages that are missing, asking nothing. $1: what they are for; the rest: names.
need_packages() {
  local purpose=$1 missing=() name
  shift
  for name in "$@"; do
    dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'install ok installed' || missing+=("$name")
  done
  [ ${#missing[@]} = 0 ] && return 0
  say "installing for $purpose: ${missing[*]}"
  as_root apt-get update -q >/dev/null
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" >/dev/null
}

build_packages=(cmake ninja-build g++ googletest libgtest-dev zlib1g-dev)
sanitizer_packages=(clang libclang-rt-14-dev)  # what the portable tests and the fuzzers are built with
windows_packages=(g++-mingw-w64-x86-64-posix)
windows_x86_packages=(g++-mingw-w64-i686-posix)
packing_packages=(nsis zip unzip)
screens_packages=(xserver-xorg-core xserver-xorg-video-dummy)
window_manager_packages=(openbox)
manifest_packages=(python3 python3-yaml)
show_packages=(wine wine64 xvfb xauth xdotool imagemagick x11-utils x11-apps
  x11-xserver-utils fonts-liberation)

# A compiler cache, where there is one, may serve what precompiled headers made.
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime

# More options for setting up a build.
configure_options=()

# $1: preset. A build folder of another compiler's is made anew, for which CMake forgets the preset's other variables: they
# are set once more.
configure() {
  local said
  said=$(cmake --preset "$1" "${configure_options[@]}" 2>&1) || { printf '%s\n' "$said" && return 1; }
  printf '%s\n' "$said"
  [[ $said != *'require your cache to be deleted'* ]] || cmake --preset "$1" "${configure_options[@]}"
}

# $1: preset; the rest: targets (none = all).
build_preset() {
  local preset=$1
  shift
  local log="$root/out/build-$preset.log"
  mkdir -p "$root/out"
  if ! { configure "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    say "the build of '$preset' failed; all of its output: $log"
    return 1
  fi
}

# The program folder, ready to run from anywhere. $1: build folder, $2: where; without them out/Lumora.
lay_program_folder() {
  local build=${1:-$root/build-windows} folder=${2:-$root/out/Lumora}
  mkdir -p "$folder"
  cp "$build/Lumora.scr" "$folder/Lumora.scr"
  cp "$root/assets/zbfaone.ini" "$root/assets/image1.gif" "$root/assets/image2.gif" "$folder/"
  cp "$root/assets/lumoraHelp.htm" "$folder/"
}

export WINEDEBUG=-all
# Wine takes from it the language of the programs, and which names files can have.
export LC_ALL=C.UTF-8
# No web engines, and no entries in the menus of whoever runs the tests.
export WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d"
export WINEPREFIX="${LUMORA_WINEPREFIX:-$root/.wine}"

# A path as Windows writes it.
windows_path() { winepath -w "$1" 2>/dev/null | tr -d '\r'; }

# A display of our own, whose screen can be made smaller. $1: WIDTHxHEIGHT. Sets DISPLAY and xvfb_pid.
start_display() {
  local size=$1 pipe
  pipe=$(mktemp -u)
  mkfifo "$pipe"
  Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset 3>"$pipe" >/dev/null 2>&1 &
  xvfb_pid=$!
  local number
  read -r -t 30 number <"$pipe"
  rm -f "$pipe"
  export DISPLAY=":$number"
}

# A second size of the display's screen, for programs to choose. Needs a display of our own.
offer_smaller_screen() {
  xrandr --newmode 1024x768 63.5 1024 1072 1176 1328 768 771 775 798 -hsync +vsync
  xrandr --addmode screen 1024x768
}

# Makes the project's own Wine prefix once. Needs a display: a session that starts without one stays without.
prepare_wine() {
  [ -f "$WINEPREFIX/.lumora-ready" ] && return 0
  say "making the Wine prefix (once)"
  mkdir -p "$(dirname "$WINEPREFIX")"
  wine wineboot -i >/dev/null 2>&1
  # No window manager is needed, a crash ends a program instead of asking, colours are true.
  wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
  wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null 2>&1
  wineserver -w
  touch "$WINEPREFIX/.lumora-ready"
}

# Two program folders for the tests, $1 holding both: one on a full disk, one that may only be read. Mounting
# needs root; without it the tests that want them are left out, which is said.
make_hostile_folders() {
  local folder=$1 place
  mkdir -p "$folder/full" "$folder/readonly"
  for place in full readonly; do  # what a killed run may have left
    ! mountpoint -q "$folder/$place" || as_root umount "$folder/$place"
  done
  hostile_folders=$folder
  if ! { as_root mount -t tmpfs -o size=4m tmpfs "$folder/full" &&
    as_root mount -t tmpfs -o size=4m tmpfs "$folder/readonly"; } 2>/dev/null; then
    say "NOT TESTED: a full disk and a read-only folder (mounting is not permitted here)"
    return 0
  fi
  as_root cp -r "$root/out/Lumora/." "$folder/full"
  as_root cp -r "$root/out/Lumora/." "$folder/readonly"
  as_root dd if=/dev/zero of="$folder/full/filler" bs=4k >/dev/null 2>&1 || true  # until no room is left
  as_root mount -o remount,ro "$folder/readonly"
  LUMORA_FULL_FOLDER=$(windows_path "$folder/full")
  LUMORA_READONLY_FOLDER=$(windows_path "$folder/readonly")
  export LUMORA_FULL_FOLDER LUMORA_READONLY_FOLDER
}

# A folder $1 with a file that can be opened and never answers a read. Needs root; without it the tests that want
# it are left out, which is said.
make_silent_file() {
  local folder=$1 attempt
  ! mountpoint -q "$folder" || as_root umount -l "$folder"  # what a killed run may have left
  mkdir -p "$folder"
  silent_folder=$folder
  as_root python3 "$root/scripts/silent_file.py" "$folder" &
  for attempt in {1..50}; do
    ! mountpoint -q "$folder" || break
    sleep 0.1
  done
  if ! mountpoint -q "$folder"; then
    say "NOT TESTED: a file that does not answer (mounting is not permitted here)"
    return 0
  fi
  LUMORA_SILENT_FILE=$(winepath -w "$folder" 2>/dev/null | tr -d '\r')\\silent.jpg
  export LUMORA_SILENT_FILE
}

remove_silent_file() {
  [ -n "${silent_folder:-}" ] || return 0
  ! mountpoint -q "$silent_folder" || as_root umount -l "$silent_folder" || true
  rmdir "$silent_folder" || true
  silent_folder=
}

remove_hostile_folders() {
  [ -n "${hostile_folders:-}" ] || return 0
  local place
  for place in full readonly; do
    ! mountpoint -q "$hostile_folders/$place" || as_root umount "$hostile_folders/$place" || true
  done
  rmdir "$hostile_folders/full" "$hostile_folders/readonly" "$hostile_folders" || true
  hostile_folders=
}

# Stops the Wine server of our prefix and our own display, and takes the hostile folders away.
stop_show_machine() {
  wineserver -k 2>/dev/null || true
  wineserver -w 2>/dev/null || true
  remove_hostile_folders
  remove_silent_file
  if [ -n "${xvfb_pid:-}" ]; then
    kill "$xvfb_pid" 2>/dev/null || true
    wait "$xvfb_pid" 2>/dev/null || true
    xvfb_pid=
  fi
}
