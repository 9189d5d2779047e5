#!/usr/bin/env bash
# Takes pictures of the screen while a program runs, then ends it with a key.
# $1: process, $2: seconds, $3: folder for the pictures, $4: the program's switch.
set -u
process=$1 seconds=$2 folder=$3 switch=${4:-/S}
mkdir -p "$folder"
rm -f "$folder"/*.png "$folder"/*.xwd

now_ms() { date +%s%3N; }
alive() { kill -0 "$process" 2>/dev/null; }
until_ms() { while alive && [ "$(now_ms)" -lt "$1" ]; do sleep 0.02; done; }
shoot() { xwd -root -silent -out "$folder/$1.xwd" 2>/dev/null; }

# The clock starts when the program's window is there.
give_up=$(($(now_ms) + 20000))
while alive && [ "$(now_ms)" -lt $give_up ]; do
  xdotool search --onlyvisible --name 'Lumora' >/dev/null 2>&1 && break
  sleep 0.02
done
start=$(now_ms)

if [ "${switch:0:2}" = /C ] || [ "${switch:0:2}" = /c ]; then
  until_ms $((start + 1500)); shoot 1-dialog
else
  until_ms $((start + 200)); shoot 1-background
  until_ms $((start + 850)); shoot 2-first-transition
  until_ms $((start + 2500)); shoot 3-first-picture
  # The change comes timeInterval seconds after the first picture; the pictures taken around it show it.
  until_ms $((start + (seconds - 1) * 1000)); shoot 4-after-the-change
fi
"$(dirname "$0")/end_with_key.sh" "$process" "$(((start + seconds * 1000 - $(now_ms)) / 1000))"
for shot in "$folder"/*.xwd; do
  [ -f "$shot" ] || continue
  convert "$shot" "${shot%.xwd}.png" && rm -f "$shot" && printf '%s\n' "${shot%.xwd}.png"
done
