#!/usr/bin/env bash
# Takes the installer's two pictures of the show anew (packaging/pictures/look_*.bmp): a photo-shaped part of a sample
# picture, as the built program shows it in either look.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
need_packages "running the show" "${show_packages[@]}"
shot=$(mktemp -d)
trap 'stop_show_machine; rm -rf "$shot"' EXIT
unset DISPLAY
start_display 1920x1080
prepare_wine

# $1: look, "today" or "classic".
take_look() {
  local folder="$shot/$1" key value show
  lay_program_folder "$root/build-windows" "$folder"
  convert "$root/assets/image1.gif" -crop 940x705+560+140 +repage "$folder/image1.gif"
  sed -i 's/^timeDisplay=[0-9]*/timeDisplay=0/; s/^timeInterval=[0-9]*/timeInterval=60/' "$folder/zbfaone.ini"
  if [ "$1" = today ]; then
    while IFS== read -r key value; do
      sed -i "s/^$key=[^\r]*/$key=$value/" "$folder/zbfaone.ini"
    done <"$root/packaging/look_today.txt"
  fi
  wine "$folder/Lumora.scr" /S &
  show=$!
  "$root/scripts/take_shots.sh" "$show" 9 "$folder/shots" /S >/dev/null
  convert "$folder/shots/3-first-picture.png" -filter Lanczos -resize '210x118!' "BMP3:$root/packaging/pictures/look_$1.bmp"
}
take_look today
take_look classic
