#!/usr/bin/env bash
# A fatal error under a real X server: "DrawNumber" names a draw whose file is
# missing, and Enter at the start screen opens the draw screen. The program
# shows its box and prints one line on standard error that names the error,
# the operation, the file and the folder; after OK it ends with 1.
#   check_fatal_error_line.sh VERIDRAW
set -uo pipefail
veridraw=$(realpath "$1")
source "$(dirname "$0")/session.sh"
start_session

folder=$work/draws
mkdir -p "$folder"
printf '1234\r\n' >"$folder/DrawNumber"
line="veridraw: error 53 (File not found) opening \"1234\" for input in $folder; see veridraw(1), REPAIRING A FOLDER"

(cd "$folder" && exec "$veridraw" >"$work/out" 2>"$work/err") &
started+=($!)
program=$!
wait_for 15 sh -c "xdotool search --all --onlyvisible --pid $program --name '^Veridraw\$'" ||
  fail "no window"
window=$(windows_of "$program" | head -n1)
activate "$window" || fail "the window didn't come to the front"
xdotool key --clearmodifiers Return

# The line comes while the box stands.
wait_for 10 grep -qF "$line" "$work/err" || fail "no line on standard error: $(cat "$work/err")"
kill -0 "$program" 2>/dev/null || fail "the program ended before its box was answered"
# The box is a window of its own over the form's, and has the keyboard; Enter
# presses its OK.
two_windows() { [ "$(windows_of "$program" | wc -l)" -eq 2 ]; }
wait_for 10 two_windows || fail "no box over the form: $(windows_of "$program")"
sleep 0.5
kill -0 "$program" 2>/dev/null || fail "the program ended before its box was answered"
xdotool key --clearmodifiers Return
if wait_for 10 sh -c "! kill -0 $program 2>/dev/null"; then
  wait "$program"
  status=$?
else
  fail "the program didn't end after OK"
  status=none
fi
[ "$status" = 1 ] || fail "exit status $status, not 1"
[ "$(cat "$work/err")" = "$line" ] || fail "standard error was: $(cat "$work/err")"
[ ! -s "$work/out" ] || fail "standard output was: $(cat "$work/out")"

finish
