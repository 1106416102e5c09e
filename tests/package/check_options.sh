#!/usr/bin/env bash
# The programs of the unpacked .deb answer --help, -h and --version without a
# display and refuse any other argument with one line of usage.
#   check_options.sh ROOT VERSION
set -uo pipefail
root=$1 version=$2
source "$(dirname "$0")/checks.sh"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# run PROGRAM ARGUMENT...: runs an installed program in an empty folder, with
# no display in its environment, and keeps its status, output and errors.
run() {
  local program=$1
  shift
  (cd "$work" && exec env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM \
    timeout 20 "$root/usr/bin/$program" "$@" >"$work/.out" 2>"$work/.err")
  status=$?
  out=$(cat "$work/.out")
  err=$(cat "$work/.err")
  rm -f "$work/.out" "$work/.err"
  local left
  left=$(ls -A "$work")
  [ -z "$left" ] || fail "$program $*: left files behind: $left"
}

for program in veridraw veridraw-start veridraw-script; do
  usage_status=64
  [ $program = veridraw-script ] && usage_status=2  # the runner's contract

  run $program --version
  [ $status -eq 0 ] || fail "$program --version: status $status"
  [ "$out" = "$program $version" ] || fail "$program --version printed: $out"
  [ -z "$err" ] || fail "$program --version wrote on standard error: $err"

  for option in --help -h; do
    run $program $option
    [ $status -eq 0 ] || fail "$program $option: status $status"
    [ -z "$err" ] || fail "$program $option wrote on standard error: $err"
    grep -q "^usage: $program " <<<"$out" || fail "$program $option: no usage line in: $out"
    # The manual page it names is in the package.
    page=$(grep -Eo "$program\\(1\\)" <<<"$out" | head -n1)
    [ -n "$page" ] || fail "$program $option names no manual page"
    [ -f "$root/usr/share/man/man1/$program.1.gz" ] || fail "$program $option: no page $program(1)"
  done

  for arguments in "--bogus" "--version --help" "-h extra" "-x"; do
    # shellcheck disable=SC2086
    run $program $arguments
    [ $status -eq $usage_status ] || fail "$program $arguments: status $status, not $usage_status"
    [ -z "$out" ] || fail "$program $arguments printed: $out"
    [ "$(wc -l <<<"$err")" -eq 1 ] || [ $program = veridraw-script ] ||
      fail "$program $arguments: standard error is not one line: $err"
    grep -q "usage: $program " <<<"$err" || fail "$program $arguments: no usage on standard error: $err"
  done
done

# The program takes no file or other word either.
run veridraw DrawNumber
[ $status -eq 64 ] || fail "veridraw DrawNumber: status $status"
[ "$err" = 'veridraw: unknown argument "DrawNumber"; usage: veridraw [--help | --version]' ] ||
  fail "veridraw DrawNumber: $err"

finish
