# What the desktop tests share, sourced by each of them: the count of the
# failures of the package checks, bounded waits, and an X session of their
# own (Xvfb on a free display and the openbox window manager), stopped when
# the test ends, with every program that the test started.
source "$(dirname "${BASH_SOURCE[0]}")/../package/checks.sh"

for tool in Xvfb openbox xdotool xprop xwininfo xmessage; do
  command -v $tool >/dev/null || {
    echo "SKIP: $tool is not installed (scripts/install-dependencies installs it)"
    exit 77
  }
done

work=$(mktemp -d)
started=()
stop_all() {
  local pid
  for pid in "${started[@]}"; do kill "$pid" 2>/dev/null; done
  for pid in "${started[@]}"; do wait "$pid" 2>/dev/null; done
  rm -rf "$work"
}
trap stop_all EXIT

# wait_for SECONDS COMMAND...: runs the command every tenth of a second until
# it succeeds; fails after SECONDS.
wait_for() {
  local tenths=$(($1 * 10))
  shift
  while ! "$@" >/dev/null 2>&1; do
    tenths=$((tenths - 1))
    [ $tenths -gt 0 ] || return 1
    sleep 0.1
  done
}

# Xvfb picks a free display and writes its number when it is ready; openbox
# then manages the screen, as a desktop's window manager does.
# start_session [WIDTHxHEIGHT]: a screen of 1024x768 unless told.
start_session() {
  Xvfb -displayfd 3 -nolisten tcp -screen 0 "${1:-1024x768}x24" 3>"$work/display" >"$work/xvfb.log" 2>&1 &
  started+=($!)
  wait_for 10 test -s "$work/display" || {
    cat "$work/xvfb.log"
    echo "Xvfb didn't start"
    exit 1
  }
  export DISPLAY=":$(head -n1 "$work/display")"
  openbox --sm-disable >"$work/openbox.log" 2>&1 &
  started+=($!)
  wait_for 10 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"' || {
    cat "$work/openbox.log"
    echo "openbox didn't start"
    exit 1
  }
  # The runtime folder of this session alone, as a login gives one.
  export XDG_RUNTIME_DIR="$work/runtime"
  mkdir -m 700 "$XDG_RUNTIME_DIR"
  unset WAYLAND_DISPLAY QT_QPA_PLATFORM
}

# The visible windows of a process whose title is "Veridraw", one a line.
windows_of() {
  xdotool search --all --onlyvisible --pid "$1" --name '^Veridraw$' 2>/dev/null
}
