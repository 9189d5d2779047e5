#!/usr/bin/env bash
# Draws the rooms of src/ and the includes between them into docs/pictures/house.svg.
#   --check   only compares docs/pictures/house.dot with the code; reports in GoogleTest's form
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
dot=docs/pictures/house.dot

purpose() {
  case $1 in
    startup) echo "run modes, input, the way out" ;;
    saver) echo "the show, its stage, transitions" ;;
    dialog) echo "the settings dialog" ;;
    auxwin) echo "folder import, viewer, about" ;;
    settings) echo "the settings file" ;;
    forms) echo "controls and their windows" ;;
    pictures) echo "picture files" ;;
    library) echo "which pictures, in what order" ;;
    os) echo "the machine" ;;
    base) echo "plain values" ;;
    *) echo "" ;;
  esac
}

# Every arrow is an include that stands in the code.
draw() {
  local room target
  echo 'digraph house {'
  echo '  rankdir=TB; ranksep=0.55; nodesep=0.5; bgcolor=white;'
  echo '  node [shape=box, style="rounded,filled", fillcolor="#f3efe6", color="#8a7f6a", fontname="Helvetica", fontsize=12];'
  echo '  edge [color="#6b6355", arrowsize=0.7];'
  for room in src/*/; do
    room=$(basename "$room")
    echo "  $room [label=<<b>$room</b><br/><font point-size=\"10\">$(purpose "$room")</font>>];"
  done
  for room in src/*/; do
    room=$(basename "$room")
    grep -rhoE '^#include "[a-z]+/' "src/$room" | sed -E 's/.*"(.*)\//\1/' | sort -u | while read -r target; do
      [ "$target" = "$room" ] || echo "  $room -> $target;"
    done
  done
  echo '}'
}

if [ "${1:-}" = --check ]; then
  if draw | cmp -s - "$dot"; then
    echo "[  PASSED  ] 1 test."
  else
    echo "Failure"
    echo "$dot differs from the includes in src/: scripts/draw_house.sh draws it anew"
    echo "[  FAILED  ] House.PictureShowsTheRoomsAsTheyAre (0 ms)"
    exit 1
  fi
else
  need_packages "drawing" graphviz
  draw >"$dot"
  # An arrow that others imply already is left out of the picture, not out of the .dot file.
  tred "$dot" 2>/dev/null | dot -Tsvg -o docs/pictures/house.svg
  say "drawn: docs/pictures/house.svg"
fi
