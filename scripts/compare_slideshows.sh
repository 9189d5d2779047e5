#!/usr/bin/env bash
# Prints what Lumora's show and two native slideshows cost side by side on one virtual screen: frames a second,
# processor time of the program and of the X server, memory. Each shows the same photos, five seconds each, with a
# crossfade of a second and a slow glide where it has them.
#   --seconds N    how long each is watched (default 30)
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
seconds=30
[ "${1:-}" != --seconds ] || seconds=$2
need_packages "building" "${build_packages[@]}" "${windows_packages[@]}"
need_packages "running under Wine" "${show_packages[@]}"
need_packages "comparing" feh xscreensaver-gl xscreensaver-gl-extra libgl1-mesa-dri python3-xlib imagemagick procps
build_preset windows Lumora
xvfb_pid=
trap stop_show_machine EXIT
unset DISPLAY
start_display 1920x1080
prepare_wine
work=$root/out/compare
rm -rf "$work"
mkdir -p "$work/photos" "$work/home"
lay_program_folder
cp -r "$root/out/Lumora" "$work/program"
for number in 1 2; do
  convert "$root/assets/image$number.gif" -resize 4000x2250 -quality 92 "$work/photos/$number.jpg"
done
cat >"$work/home/.xscreensaver" <<END
grabDesktopImages: False
grabVideoFrames: False
chooseRandomImages: True
imageDirectory: $work/photos
END
folder=$(windows_path "$work/photos")
printf '%s\r\n' "[total]" "total=2" "[images]" "0=$folder\\1.jpg" "1=$folder\\2.jpg" "[image]" timeInterval=5 \
  picturePercent=99 "[extras]" loadAhead=1 fit=whole surround=blur change=crossfade transitionTime=1000 panZoom=8 \
  >"$work/program/zbfaone.ini"

# User and system time of a process and of those it has started, in clock ticks.
ticks() {
  local pid total=0
  for pid in "$1" $(pgrep -P "$1"); do
    [ ! -r "/proc/$pid/stat" ] || total=$((total + $(awk '{print $14 + $15}' "/proc/$pid/stat")))
  done
  echo "$total"
}

# $1: name; the rest is the program.
watch() {
  local name=$1 program frames own server per_second kibibytes
  shift
  HOME=$work/home "$@" >/dev/null 2>&1 &
  program=$!
  wait_until_drawn
  own=$(ticks "$program")
  server=$(ticks "$xvfb_pid")
  frames=$("$root/scripts/count_frames.py" "$seconds")
  own=$(($(ticks "$program") - own))
  server=$(($(ticks "$xvfb_pid") - server))
  kibibytes=$(awk '/^Private/ {sum += $2} END {print sum}' "/proc/$program/smaps_rollup")
  per_second=$(($(getconf CLK_TCK) * seconds))
  awk -v name="$name" -v frames="$frames" -v own="$own" -v server="$server" -v all="$per_second" -v kib="$kibibytes" \
    'BEGIN { printf "%-34s | %10s | %13.2f | %13.2f | %11d\n", name, frames, own / all, server / all, kib / 1024 }'
  kill "$program"
  wait "$program" 2>/dev/null || true
}

# Until something has come onto the empty screen, for some seconds at most.
wait_until_drawn() {
  local attempt
  for attempt in {1..20}; do
    [ "$("$root/scripts/count_frames.py" 0.5)" = 0.0 ] || return 0
  done
}

echo "program                            | frames / s | its processor | the X server's | private MiB"
watch "Lumora, crossfade and glide" wine "$work/program/Lumora.scr" /S
watch "XScreenSaver's glslideshow" /usr/libexec/xscreensaver/glslideshow --root --duration 5 --pan 5 --fade 1 --zoom 92
watch "feh, plain changes" feh --fullscreen --hide-pointer --slideshow-delay 5 "$work/photos"
