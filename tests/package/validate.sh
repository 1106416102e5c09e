#!/usr/bin/env bash
# Runs a validator on a file of the unpacked package; a validator that is not
# installed makes the test count as skipped (77). A warning fails as an error.
#   validate.sh TOOL [ARGUMENT...] FILE
set -uo pipefail
if ! command -v "$1" >/dev/null; then
  echo "$1 is not installed (scripts/install-dependencies installs it)"
  exit 77
fi
output=$("$@" 2>&1)
status=$?
echo "$output"
[ $status -eq 0 ] || exit 1
if grep -Eq '^(W|E|warning|error):|: (warning|error):' <<<"$output"; then
  echo "the validator reported a problem"
  exit 1
fi
