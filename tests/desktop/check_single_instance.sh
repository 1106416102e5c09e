#!/usr/bin/env bash
# One program per folder, under a real X server and window manager: a second
# start in the same folder raises the first window and ends with 0 at once; a
# start in another folder opens a window of its own; nothing is written into
# the folders for it; a lock left by a program that was killed is taken over.
#   check_single_instance.sh VERIDRAW DATA_DIR
set -uo pipefail
veridraw=$(realpath "$1") data=$(realpath "$2")
source "$(dirname "$0")/session.sh"
start_session

mkdir -p "$work/first" "$work/other"
cp "$data"/* "$work/first"/
cp "$data"/* "$work/other"/
delivered=$(ls "$data")

# start FOLDER NAME: starts the program in FOLDER in the background; its pid
# goes into the variable NAME.
start() {
  (cd "$1" && exec "$veridraw" >"$work/$2.out" 2>"$work/$2.err") &
  started+=($!)
  printf -v "$2" '%s' $!
}
one_window() { [ "$(windows_of "$1" | wc -l)" -eq 1 ]; }

start "$work/first" first
wait_for 15 one_window "$first" || fail "the first start shows no window"
window=$(windows_of "$first")

# Another window comes to the front over it.
xmessage -geometry 1000x700+0+0 "in front" &
started+=($!)
cover=$!
# xmessage doesn't tell its pid; it is known by its class.
wait_for 10 xdotool search --onlyvisible --class '^Xmessage$' || fail "the covering window didn't come"
activate "$(xdotool search --onlyvisible --class '^Xmessage$' | head -n1)" || fail "the window didn't come to the front"
[ "$(xdotool getactivewindow)" != "$window" ] || fail "the covering window is not in front"

# The second start in the same folder ends at once with 0...
started_at=$(date +%s%N)
(cd "$work/first" && exec timeout 10 "$veridraw" >"$work/second.out" 2>"$work/second.err")
status=$?
took=$((($(date +%s%N) - started_at) / 1000000))
[ $status -eq 0 ] || fail "the second start ended with $status, not 0: $(cat "$work/second.err")"
[ $took -lt 5000 ] || fail "the second start took $took ms"
[ ! -s "$work/second.out" ] || fail "the second start printed: $(cat "$work/second.out")"
[ ! -s "$work/second.err" ] || fail "the second start wrote on standard error: $(cat "$work/second.err")"
echo "the second start ended with $status after $took ms"
# ... and the first window is in front again, the only one of its folder.
wait_for 5 sh -c "[ \"\$(xdotool getactivewindow)\" = $window ]" ||
  fail "the first window was not raised (active: $(xdotool getactivewindow))"
kill -0 "$first" 2>/dev/null || fail "the first program is gone"
one_window "$first" || fail "the first program doesn't show one window"

# A start in another folder is a program of its own.
start "$work/other" other
wait_for 15 one_window "$other" || fail "a start in another folder shows no window"
kill -0 "$first" 2>/dev/null || fail "the first program ended when another folder was opened"

# Nothing was written into the folders: they hold the delivered files only.
[ "$(ls -A "$work/first")" = "$delivered" ] || fail "the first folder holds: $(ls -A "$work/first")"
[ "$(ls -A "$work/other")" = "$delivered" ] || fail "the other folder holds: $(ls -A "$work/other")"
# The lock and the socket of each folder are in the runtime folder.
[ "$(find "$XDG_RUNTIME_DIR" -name 'veridraw-*.lock' | wc -l)" -eq 2 ] ||
  fail "no lock for each folder in the runtime folder: $(ls -A "$XDG_RUNTIME_DIR")"
[ "$(find "$XDG_RUNTIME_DIR" -type s -name 'veridraw-*' | wc -l)" -eq 2 ] ||
  fail "no socket for each folder in the runtime folder: $(ls -A "$XDG_RUNTIME_DIR")"

# A program that is killed leaves its lock behind; the next start takes it
# over and opens its window.
kill -KILL "$first"
wait "$first" 2>/dev/null
start "$work/first" again
wait_for 15 one_window "$again" || fail "a start after a killed program shows no window"
[ ! -s "$work/again.err" ] || fail "the start after a killed program wrote: $(cat "$work/again.err")"

finish
