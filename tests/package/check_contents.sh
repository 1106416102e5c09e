#!/usr/bin/env bash
# Checks the unpacked .deb: every file where a Debian desktop looks for it, the
# pieces naming each other rightly, and the control fields.
#   check_contents.sh DEB_DIR ROOT DATA_DIR VERSION extra=EXTRA_DEPENDS screenshots=URL
set -uo pipefail
deb_dir=$1 root=$2 data=$3 version=$4 extra=${5#extra=} screenshots=${6#screenshots=}
id=org.veridraw.Veridraw
source "$(dirname "$0")/checks.sh"
need_file() { [ -f "$root/$1" ] || fail "missing /$1"; }
need_program() { [ -f "$root/$1" ] && [ -x "$root/$1" ] || fail "missing or not executable: /$1"; }

# The width and height of a PNG, from its header.
png_size() { od -An -tu1 -j16 -N8 "$1" | awk '{print $1*16777216+$2*65536+$3*256+$4 "x" $5*16777216+$6*65536+$7*256+$8}'; }

need_program usr/bin/veridraw
need_program usr/bin/veridraw-script
need_program usr/bin/veridraw-start
for program in veridraw veridraw-script; do
  head -c4 "$root/usr/bin/$program" | grep -q ELF || fail "usr/bin/$program is not a program"
  sections=$(readelf -SW "$root/usr/bin/$program")
  grep -Eq ' \.(debug_info|symtab|comment) ' <<<"$sections" && fail "usr/bin/$program is not stripped"
done
[ "$(head -n1 "$root/usr/bin/veridraw-start")" = "#!/bin/sh" ] || fail "the launcher is not a sh script"

need_file "usr/share/applications/$id.desktop"
need_file "usr/share/metainfo/$id.metainfo.xml"
need_file "usr/share/icons/hicolor/scalable/apps/$id.svg"
grep -q '<svg' "$root/usr/share/icons/hicolor/scalable/apps/$id.svg" || fail "the scalable icon is no SVG"
for size in 48x48 256x256; do
  png="usr/share/icons/hicolor/$size/apps/$id.png"
  need_file "$png"
  [ -f "$root/$png" ] && [ "$(png_size "$root/$png")" = "$size" ] ||
    fail "/$png is not a $size picture"
done

# Manual pages, compressed, one for each program in usr/bin.
for program in "$root"/usr/bin/*; do
  page="usr/share/man/man1/${program##*/}.1.gz"
  need_file "$page"
  [ -f "$root/$page" ] && gzip -t "$root/$page" || fail "/$page is not gzip"
done
# A page that only points to another (.so) points to one that is there.
for page in "$root"/usr/share/man/man1/*.gz; do
  target=$(zcat "$page" | sed -n '1s/^\.so //p')
  [ -z "$target" ] || [ -f "$root/usr/share/man/$target.gz" ] || fail "${page##*/} points to a missing $target"
done
zcat "$root/usr/share/man/man1/veridraw.1.gz" | grep -q '^\.TH VERIDRAW 1 ' || fail "veridraw(1) has no title"
for section in NAME SYNOPSIS DESCRIPTION KEYS FILES "REPAIRING A FOLDER" "EXIT STATUS"; do
  zcat "$root/usr/share/man/man1/veridraw.1.gz" | grep -q "^\.SH $section\$" ||
    fail "veridraw(1) has no $section section"
done
for page in "$root"/usr/share/man/man1/*.gz; do
  zcat "$page" | grep -Eq '@[A-Z_]+@' && fail "${page##*/} holds a placeholder"
done
grep -Eq '@[A-Z_]+@' "$root/usr/share/metainfo/$id.metainfo.xml" && fail "the metadata holds a placeholder"
# The page names the folder of the delivered files, and that folder is there.
named=$(zcat "$root/usr/share/man/man1/veridraw.1.gz" | sed -n 's|^\.I \(/usr/share/veridraw\)$|\1|p')
[ -n "$named" ] && [ -d "$root$named" ] || fail "veridraw(1) names no delivered folder that exists"

# The delivered files, byte for byte, and the draw that DrawNumber names.
for file in "$data"/*; do
  cmp -s "$file" "$root/usr/share/veridraw/${file##*/}" || fail "/usr/share/veridraw/${file##*/} differs from data/"
done
current=$(tr -d ' \r\n' <"$root/usr/share/veridraw/DrawNumber")
[ -n "$current" ] && [ -f "$root/usr/share/veridraw/$current" ] || fail "no draw file for DrawNumber ($current)"

need_file usr/share/doc/veridraw/copyright
need_file usr/share/doc/veridraw/changelog.gz

# Nothing outside usr/, nothing under usr/local.
outside=$(cd "$root" && find . -mindepth 1 -maxdepth 1 ! -name usr)
[ -z "$outside" ] || fail "files outside /usr: $outside"
[ ! -e "$root/usr/local" ] || fail "files under /usr/local"

# The menu entry runs the launcher and shows the installed icon; the metadata
# launches that entry.
desktop="$root/usr/share/applications/$id.desktop"
exec_line=$(sed -n 's/^Exec=//p' "$desktop")
[ -n "$exec_line" ] && [ -x "$root/usr/bin/${exec_line%% *}" ] || fail "Exec=$exec_line is no installed program"
[ "$exec_line" = veridraw-start ] || fail "the menu entry doesn't run the launcher: Exec=$exec_line"
[ "$(sed -n 's/^Icon=//p' "$desktop")" = "$id" ] || fail "the menu entry's Icon is not $id"
grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$root/usr/share/metainfo/$id.metainfo.xml" ||
  fail "the metadata doesn't launch $id.desktop"
grep -q "<release version=\"$version\"" "$root/usr/share/metainfo/$id.metainfo.xml" ||
  fail "the metadata has no release $version"
# The screenshots are listed when the folder where they are published is
# given, and not otherwise.
wanted_screenshots=3
[ -n "$screenshots" ] || wanted_screenshots=0
[ "$(grep -Ec '<screenshot( |>)' "$root/usr/share/metainfo/$id.metainfo.xml")" -eq $wanted_screenshots ] ||
  fail "the metadata doesn't list $wanted_screenshots screenshots"
# No address that can't resolve: no host under a name reserved for examples
# and tests (RFC 2606, RFC 6761).
for file in "usr/share/metainfo/$id.metainfo.xml" "usr/share/applications/$id.desktop" \
  usr/share/doc/veridraw/copyright; do
  hosts=$(grep -Eo '[a-z]+://[^/"<> ]+' "$root/$file" | sed 's|.*://||')
  for host in $hosts; do
    grep -Eq '(^|\.)(invalid|example|test|localhost)$|^example\.(com|org|net)$' <<<"$host" &&
      fail "/$file names a host that can't resolve: $host"
  done
done

# The licence: the GNU GPL, version 3 or later, said alike by the metadata and
# the machine-readable copyright file, which points to Debian's copy of the
# text.
copyright="$root/usr/share/doc/veridraw/copyright"
grep -q '<project_license>GPL-3.0-or-later</project_license>' "$root/usr/share/metainfo/$id.metainfo.xml" ||
  fail "the metadata's project_license is not GPL-3.0-or-later"
[ "$(head -n1 "$copyright")" = "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/" ] ||
  fail "the copyright file is not in the machine-readable format"
licences=$(sed -n 's/^License: *//p' "$copyright" | sort -u)
[ "$licences" = GPL-3.0-or-later ] || fail "the copyright file's licences: $licences"
[ "$(grep -c '^Files: \*$' "$copyright")" -eq 1 ] || fail "the copyright file doesn't cover every file"
grep -q '/usr/share/common-licenses/GPL-3' "$copyright" || fail "the copyright file doesn't point to the GPL's text"
grep -qi 'rights are reserved\|proprietary' "$copyright" "$root/usr/share/metainfo/$id.metainfo.xml" &&
  fail "a licence text still reserves all rights"

# Control fields.
deb=$(echo "$deb_dir"/*.deb)
field() { dpkg-deb -f "$deb" "$1"; }
[ "$(field Package)" = veridraw ] || fail "Package: $(field Package)"
[ "$(field Version)" = "$version" ] || fail "Version: $(field Version), not $version"
[ "$(field Architecture)" = "$(dpkg --print-architecture)" ] || fail "Architecture: $(field Architecture)"
for name in Maintainer Section Priority Description Installed-Size; do
  [ -n "$(field "$name")" ] || fail "no $name field"
done
depends=$(field Depends)
echo "Depends: $depends"
# The clauses of Depends, one a line; the names of the libraries' packages
# without their versions.
clauses=$(sed 's/, */\n/g' <<<"$depends")
depended=$(sed 's/[ (].*//' <<<"$clauses")
for package in libc6 libstdc++6 libqt6core6 libqt6gui6 libqt6widgets6; do
  grep -qxF "$package" <<<"$depended" || fail "Depends lacks $package"
done
# Each extra dependency stands as a clause of its own, alternatives included.
IFS=';' read -r -a extras <<<"$extra"
for clause in "${extras[@]}"; do
  grep -qxF "$clause" <<<"$clauses" || fail "Depends lacks $clause"
done

echo "$(stat -c %s "$deb") bytes: ${deb##*/}"
finish
