#!/usr/bin/env bash
# scripts/run must look for a display before it installs or builds anything.
# It runs here from a scratch copy of the checkout's scripts, where
# install-dependencies is a stand-in that records its call and stops the run.
#   check_run_script.sh SOURCE_DIR WORK
set -uo pipefail
source_dir=$1 work=$2
source "$(dirname "$0")/checks.sh"

rm -rf "$work"
mkdir -p "$work/scripts"
cp "$source_dir/scripts/run" "$work/scripts/run"
printf '#!/bin/sh\necho called >"%s/installed"\nexit 1\n' "$work" >"$work/scripts/install-dependencies"
chmod +x "$work/scripts/run" "$work/scripts/install-dependencies"

display=$(unserved_display)

# run NAME EXPECTED_STATUS ENV...
run() {
  local name=$1 expected=$2
  shift 2
  rm -f "$work/installed"
  env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$@" timeout 60 "$work/scripts/run" \
    >"$work/$name.out" 2>&1
  local status=$?
  [ $status -eq "$expected" ] || fail "$name: status $status, not $expected: $(cat "$work/$name.out")"
}
refused() {
  run "$@"
  grep -q '^scripts/run: no graphical display found; run it on a desktop' "$work/$1.out" ||
    fail "$1: no message: $(cat "$work/$1.out")"
  [ ! -e "$work/installed" ] || fail "$1: it went on to install and build"
  [ ! -e "$work/build" ] || fail "$1: it made a build folder"
}
refused nothing 69
refused x_server_gone 69 DISPLAY=":$display"
refused wayland_gone 69 WAYLAND_DISPLAY="veridraw-none-$display" XDG_RUNTIME_DIR="$work"

# With a platform asked for, it goes on to the installation (the stand-in then
# stops it).
run offscreen 1 QT_QPA_PLATFORM=offscreen
[ -e "$work/installed" ] || fail "offscreen: it didn't go on to the installation"

finish
