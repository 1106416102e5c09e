#!/usr/bin/env bash
# Makes the .deb of this build with CPack and unpacks it into a scratch root.
#   make_deb.sh CPACK CONFIG DEB_DIR ROOT
set -euo pipefail
cpack=$1 config=$2 deb_dir=$3 root=$4

rm -rf "$deb_dir" "$root"
mkdir -p "$deb_dir"
"$cpack" --config "$config" -G DEB -B "$deb_dir" >"$deb_dir/cpack.log" 2>&1 || {
  cat "$deb_dir/cpack.log"
  exit 1
}
debs=("$deb_dir"/*.deb)
if [ ${#debs[@]} -ne 1 ] || [ ! -f "${debs[0]}" ]; then
  echo "expected one .deb in $deb_dir, found: ${debs[*]}"
  exit 1
fi
dpkg-deb -x "${debs[0]}" "$root"
echo "made and unpacked ${debs[0]##*/}"
