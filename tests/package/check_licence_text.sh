#!/usr/bin/env bash
# The source carries the text of its licence, the GNU GPL version 3, as
# COPYING, and the README says what it is.
#   check_licence_text.sh SOURCE_DIR
set -uo pipefail
source_dir=$1
source "$(dirname "$0")/checks.sh"

copying=$source_dir/COPYING
[ -f "$copying" ] || fail "no COPYING"
[ "$(sed -n '1p' "$copying" | xargs)" = "GNU GENERAL PUBLIC LICENSE" ] || fail "COPYING is not the GNU GPL"
[ "$(sed -n '2p' "$copying" | xargs)" = "Version 3, 29 June 2007" ] || fail "COPYING is not version 3"
grep -q "END OF TERMS AND CONDITIONS" "$copying" || fail "COPYING is not whole"
# Debian's own copy, where it is installed, is the same text.
if [ -f /usr/share/common-licenses/GPL-3 ]; then
  cmp -s "$copying" /usr/share/common-licenses/GPL-3 || fail "COPYING differs from Debian's GPL-3"
fi
grep -q "GNU General Public License" "$source_dir/README.md" || fail "the README doesn't name the licence"
grep -q "version 3 of the License, or (at your option) any later" "$source_dir/README.md" ||
  fail "the README doesn't say version 3 or later"
finish
