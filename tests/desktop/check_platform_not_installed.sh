#!/usr/bin/env bash
# A display that works, and QT_QPA_PLATFORM naming a platform that isn't
# installed: the one line says so, names it, and the program ends with 69.
#   check_platform_not_installed.sh VERIDRAW
set -uo pipefail
veridraw=$(realpath "$1")
source "$(dirname "$0")/session.sh"
start_session

mkdir -p "$work/folder"
(cd "$work/folder" && QT_QPA_PLATFORM=bogus exec timeout 30 "$veridraw" >"$work/out" 2>"$work/err")
status=$?
[ $status -eq 69 ] || fail "exit status $status, not 69"
err=$(cat "$work/err")
[ "$(wc -l <"$work/err")" -eq 1 ] || fail "standard error is not one line: $err"
grep -q '^veridraw: the graphical platform "bogus" named by QT_QPA_PLATFORM is not installed; installed: .*xcb' \
  <<<"$err" || fail "standard error was: $err"
grep -q "no graphical display" <<<"$err" && fail "it says that no display was found"
[ ! -s "$work/out" ] || fail "standard output was: $(cat "$work/out")"
[ -z "$(ls -A "$work/folder")" ] || fail "left files behind: $(ls -A "$work/folder")"

finish
