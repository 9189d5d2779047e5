#!/usr/bin/env bash
# Lets a running program go on for a time, then ends it with a key. $1: process, $2: seconds.
set -u
deadline=$((SECONDS + $2))
while kill -0 "$1" 2>/dev/null && [ $SECONDS -lt $deadline ]; do sleep 0.1; done
# A key that arrives before the window has the keyboard is lost, so it is pressed until the program has gone.
for _ in $(seq 50); do
  kill -0 "$1" 2>/dev/null || exit 0
  xdotool key Escape 2>/dev/null
  sleep 0.2
done
