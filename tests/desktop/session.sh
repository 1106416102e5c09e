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

# Xvfb picks a free display and writes its number, a whole line, when it is
# ready; openbox then manages the screen, as a desktop's window manager does.
# A server that another one starting at the same moment got in the way of is
# started again, three times at the most.
# start_session [WIDTHxHEIGHT]: a screen of 1024x768 unless told.
start_session() {
  local try
  for try in 1 2 3; do
    start_server "${1:-1024x768}" && break
    [ $try -lt 3 ] || exit 1
  done
  # The runtime folder of this session alone, as a login gives one.
  export XDG_RUNTIME_DIR="$work/runtime"
  mkdir -m 700 "$XDG_RUNTIME_DIR"
  unset WAYLAND_DISPLAY QT_QPA_PLATFORM
}

# start_server WIDTHxHEIGHT: Xvfb and openbox, or a failure with their words.
start_server() {
  local xvfb openbox
  : >"$work/display"
  Xvfb -displayfd 3 -nolisten tcp -screen 0 "$1x24" 3>"$work/display" >"$work/xvfb.log" 2>&1 &
  xvfb=$!
  started+=($xvfb)
  if ! wait_for 10 sh -c "[ \$(wc -l <'$work/display') -ge 1 ]"; then
    cat "$work/xvfb.log"
    echo "Xvfb didn't start"
    kill $xvfb 2>/dev/null
    return 1
  fi
  export DISPLAY=":$(head -n1 "$work/display")"
  openbox --sm-disable >"$work/openbox.log" 2>&1 &
  openbox=$!
  started+=($openbox)
  if ! wait_for 10 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"'; then
    cat "$work/openbox.log"
    echo "openbox didn't start"
    kill $openbox $xvfb 2>/dev/null
    return 1
  fi
}

# The visible windows of a process whose title is "Veridraw", one a line.
windows_of() {
  xdotool search --all --onlyvisible --pid "$1" --name '^Veridraw$' 2>/dev/null
}

# activate WINDOW: brings the window to the front with the keyboard, and waits
# (ten seconds at the most) until the window manager has done it.
activate() {
  xdotool windowactivate "$1" 2>/dev/null
  wait_for 10 sh -c "[ \"\$(xdotool getactivewindow 2>/dev/null)\" = $1 ]"
}
