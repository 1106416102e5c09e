# What the checks of this folder share, sourced by each of them: a count of the
# failures, the end that reports it, and an X display that nobody serves.
failures=0
fail() {
  echo "FAIL: $*"
  failures=$((failures + 1))
}
finish() {
  [ $failures -eq 0 ] || exit 1
  echo "all checks hold"
}
unserved_display() {
  local display=917
  while [ -e "/tmp/.X11-unix/X$display" ]; do display=$((display + 1)); done
  echo "$display"
}
