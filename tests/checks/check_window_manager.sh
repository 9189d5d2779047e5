#!/usr/bin/env bash
# The show on a desktop with a window manager, as ./run meets one: it gets the keyboard, has no button on the taskbar,
# and ends by a key. Needs a display without a window manager, and a Wine prefix that may be changed. $1: a program
# folder, run from a copy. Reports in GoogleTest's form.
set -u
work=$(mktemp -d)
manager_pid= show_pid= window=

stop() {
  [ -z "$show_pid" ] || kill "$show_pid" 2>/dev/null
  [ -z "$manager_pid" ] || kill "$manager_pid" 2>/dev/null
  wait
  rm -rf "$work"
}
trap stop EXIT

# Waits until a command succeeds, fifteen seconds at most.
wait_for() {
  local tries
  for tries in $(seq 300); do
    ! "$@" || return 0
    sleep 0.05
  done
  return 1
}

fail() {
  echo "Failure"
  echo "$1"
  [ -z "$window" ] || xprop -id "$window" _NET_WM_STATE _NET_WM_WINDOW_TYPE
  xprop -root _NET_ACTIVE_WINDOW
  echo "[  FAILED  ] WindowManager.LetsAKeyEndTheShowAndKeepsItOffTheTaskbar (0 ms)"
  exit 1
}

is_managed() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }
find_show() { window=$(xdotool search --onlyvisible --class lumora 2>/dev/null | head -n 1) && [ -n "$window" ]; }
has_keyboard() { [ "$(xdotool getwindowfocus 2>/dev/null)" = "$window" ]; }
has_no_button() { xprop -id "$window" _NET_WM_STATE 2>/dev/null | grep -q _NET_WM_STATE_SKIP_TASKBAR; }
has_ended() { ! kill -0 "$show_pid" 2>/dev/null; }

cp -r "$1" "$work/Lumora"
openbox >/dev/null 2>&1 &
manager_pid=$!
wait_for is_managed || fail "the window manager does not start"
wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d Y /f >/dev/null 2>&1
wineserver -w

wine "$work/Lumora/Lumora.scr" /S >/dev/null 2>&1 &
show_pid=$!
wait_for find_show || fail "the show has no window"
wait_for has_keyboard || fail "the show does not get the keyboard"
wait_for has_no_button || fail "the show has a button on the taskbar"
xdotool key Escape
wait_for has_ended || fail "a key does not end the show"
show_pid=
echo "[  PASSED  ] 1 test."
