#!/usr/bin/env bash
# Starts the desktop program where it can't open a window: it must print the
# one plain line on standard error and end with 69, not abort (134), and leave
# no core file.
#   check_no_display.sh VERIDRAW WORK
set -uo pipefail
veridraw=$1 work=$2
line="veridraw: no graphical display found; run it on a desktop, or try veridraw-script for the scripted runner"
source "$(dirname "$0")/checks.sh"

display=$(unserved_display)

# case NAME ENV...: runs the program in a scratch folder with only the display
# variables given, and checks what it did.
case_() {
  local name=$1
  shift
  local folder="$work/$name"
  rm -rf "$folder"
  mkdir -p "$folder"
  (
    cd "$folder" && ulimit -c unlimited 2>/dev/null
    exec env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u XDG_SESSION_TYPE "$@" \
      timeout 60 "$veridraw" >stdout 2>stderr
  )
  local status=$?
  [ $status -eq 69 ] || fail "$name: exit status $status, not 69"
  [ "$(cat "$folder/stderr")" = "$line" ] || fail "$name: standard error was: $(cat "$folder/stderr")"
  [ ! -s "$folder/stdout" ] || fail "$name: standard output was: $(cat "$folder/stdout")"
  local left
  left=$(cd "$folder" && ls | grep -v -x -e stdout -e stderr)
  [ -z "$left" ] || fail "$name: left files behind: $left"
}

# No display and no platform asked for.
case_ nothing
# An X display that nobody serves: the platform plugin can't connect.
case_ x_server_gone DISPLAY=":$display"
case_ xcb_asked QT_QPA_PLATFORM=xcb DISPLAY=":$display"
# A Wayland display that nobody serves, on a session that says it is Wayland.
case_ wayland_gone WAYLAND_DISPLAY="veridraw-none-$display" XDG_SESSION_TYPE=wayland
# Wayland asked for where there is no runtime folder to find its socket in:
# the Wayland library's own complaint doesn't stand above the line.
case_ wayland_without_runtime_folder -u XDG_RUNTIME_DIR QT_QPA_PLATFORM=wayland
case_ wayland_egl_without_runtime_folder -u XDG_RUNTIME_DIR QT_QPA_PLATFORM=wayland-egl

finish
