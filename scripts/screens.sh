# A display of three screens, which Xvfb does not have: an X server on a graphics card that does not exist.
# Sourced behind lib.sh and test_groups.sh.
screens_pid=

# Starts the display: a primary screen, one left of it and one below. Sets DISPLAY and screens_pid, and names programs
# that pull the plug of the lower one and put it in again (with the left one the origin would move, and Wine's windows do
# not move along). $1: folder for what it needs. Fails where that is not allowed.
start_screens() {
  local folder=$1 number tries
  mkdir -p "$folder"
  cat >"$folder/xorg.conf" <<'CONF'
Section "Device"
  Identifier "none"
  Driver "dummy"
  VideoRam 256000
EndSection
Section "Monitor"
  Identifier "any"
  HorizSync 5-1000
  VertRefresh 5-200
EndSection
Section "Screen"
  Identifier "screen"
  Device "none"
  Monitor "any"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Virtual 3840 2160
  EndSubSection
EndSection
CONF
  for number in $(seq 90 120); do [ -e "/tmp/.X$number-lock" ] || break; done
  local server=(Xorg ":$number" -noreset -novtswitch -sharevts -nolisten tcp -config "$folder/xorg.conf"
    -logfile "$folder/xorg.log")
  # The server itself, not a shell around it, is what is stopped later.
  [ "$(id -u)" = 0 ] || server=(sudo -n "${server[@]}")
  "${server[@]}" >/dev/null 2>&1 &
  screens_pid=$!
  export DISPLAY=":$number"
  for tries in $(seq 100); do
    ! xrandr >/dev/null 2>&1 || break
    kill -0 "$screens_pid" 2>/dev/null && [ "$tries" != 100 ] || return 1
    sleep 0.1
  done
  cat >"$folder/plug" <<'PLUG'
#!/bin/sh
xrandr --output DUMMY0 --mode 1280x720 --pos 800x0 --primary --output DUMMY1 --mode 800x600 --pos 0x60 \
  --output DUMMY2 --mode 720x405 --pos 800x720
xrandr --listmonitors
PLUG
  cat >"$folder/unplug" <<'UNPLUG'
#!/bin/sh
xrandr --output DUMMY2 --off
xrandr --listmonitors
UNPLUG
  chmod +x "$folder/plug" "$folder/unplug"
  # Outputs beyond the first have no modes of their own.
  xrandr --addmode DUMMY1 800x600
  xrandr --addmode DUMMY2 720x405
  "$folder/plug" >"$folder/screens.log" || return 1
  # Wine sees all of them only after somebody has asked.
  xrandr --listmonitors >>"$folder/screens.log"
  LUMORA_PLUG=$(windows_path "$folder/plug") LUMORA_UNPLUG=$(windows_path "$folder/unplug")
  export LUMORA_PLUG LUMORA_UNPLUG
}

stop_screens() {
  [ -n "$screens_pid" ] || return 0
  as_root kill "$screens_pid" 2>/dev/null || true
  wait "$screens_pid" 2>/dev/null || true
  screens_pid=
}

# Runs the end-to-end tests that want several screens, in the Wine session of on_own_display. $1...: their command.
test_several_screens() {
  trap 'stop_show_machine; stop_screens; rm -rf "$WINEPREFIX"' EXIT
  if start_screens "$root/out/screens"; then
    group several-screens timeout "${screens_limit:-300}" "$@"
  else
    say "NOT TESTED: several screens (the X server for them does not start here: $root/out/screens/xorg.log)"
  fi
}
