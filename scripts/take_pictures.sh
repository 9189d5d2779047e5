#!/usr/bin/env bash
# Takes the README's pictures of the built program anew: the show in the look of today, the settings dialog, more options
# (docs/pictures/show.jpg, settings-caption.png, more-options.png).
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
need_packages "running the show" "${show_packages[@]}"
work=$(mktemp -d)
dialog=
trap '[ -z "$dialog" ] || kill "$dialog" 2>/dev/null || true; stop_show_machine; rm -rf "$work"' EXIT
unset DISPLAY
start_display 1280x720
prepare_wine
pictures="$root/docs/pictures"
folder="$work/Lumora"
lay_program_folder "$root/build-windows" "$folder"

set_look_of_today() {
  local key value
  while IFS== read -r key value; do
    sed -i "s/^$key=[^\r]*/$key=$value/" "$folder/zbfaone.ini"
  done <"$root/packaging/look_today.txt"
}

# The X window of a title, once it is there and was painted.
window_named() {
  local attempt id
  for attempt in {1..100}; do
    id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1) && [ -n "$id" ] && printf '%s\n' "$id" && return 0
    sleep 0.1
  done
  say "no window is called '$1'"
  return 1
}

# $1: title, $2: picture. What moves in small has five seconds to come.
take_window() {
  local id
  id=$(window_named "$1")
  sleep 5
  import -window "$id" "$pictures/$2"
}

take_dialog() {
  lay_program_folder "$root/build-windows" "$folder"
  sed -i 's/^timeInterval=[0-9]*/timeInterval=60/' "$folder/zbfaone.ini"
  xdotool mousemove 1279 719  # no tool-tip in the pictures
  wine "$folder/Lumora.scr" /C &
  dialog=$!
  window_named "Lumora Screen Saver" >/dev/null
  sleep 3
  for _ in 1 2 3 4 5 6; do
    xdotool key ctrl+Tab
    sleep 0.5
  done
  take_window "Lumora Screen Saver" settings-caption.png
  xdotool key alt+m
  window_named "More Options" >/dev/null
  sleep 1
  xdotool key ctrl+Tab ctrl+Tab
  sleep 2
  xdotool key alt+t
  take_window "More Options" more-options.png
  xdotool key Escape
  sleep 1
  xdotool key Escape
  wait "$dialog" || true
  dialog=
}

# A photo-shaped part of a sample picture, whole on its own soft surround, with caption and clock.
take_show() {
  local show
  convert "$root/assets/image1.gif" -crop 940x705+560+140 +repage "$folder/image1.gif"
  sed -i 's/^timeInterval=[0-9]*/timeInterval=60/' "$folder/zbfaone.ini"
  set_look_of_today
  wine "$folder/Lumora.scr" /S &
  show=$!
  "$root/scripts/take_shots.sh" "$show" 9 "$work/shots" /S >/dev/null
  convert "$work/shots/3-first-picture.png" -quality 88 "$pictures/show.jpg"
}
take_show
take_dialog
