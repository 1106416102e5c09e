#!/usr/bin/env bash
# Runs the installed launcher against temporary data folders, with a stand-in
# for the program installed beside it that records where and how it ran.
#   check_launcher.sh CMAKE BUILD_DIR DATA_DIR WORK
set -uo pipefail
cmake=$1 build=$2 data=$3 work=$4
source "$(dirname "$0")/checks.sh"

rm -rf "$work"
mkdir -p "$work"
"$cmake" --install "$build" --prefix "$work/prefix" >"$work/install.log" 2>&1 || {
  cat "$work/install.log"
  exit 1
}
launcher=$work/prefix/bin/veridraw-start
record=$work/record
cat >"$work/prefix/bin/veridraw" <<'STANDIN'
#!/bin/sh
# Stand-in for the program: records its folder and its number of arguments.
pwd >"$VERIDRAW_TEST_RECORD"
echo "$#" >>"$VERIDRAW_TEST_RECORD"
exit "${VERIDRAW_TEST_STATUS:-0}"
STANDIN
chmod +x "$work/prefix/bin/veridraw"

# A `veridraw` first in PATH must not be the one that runs.
mkdir -p "$work/decoy"
printf '#!/bin/sh\necho decoy >"$VERIDRAW_TEST_RECORD"\n' >"$work/decoy/veridraw"
chmod +x "$work/decoy/veridraw"

# launch [-u NAME]... [NAME=VALUE]... : runs the launcher from another folder,
# with that environment and a clean record.
launch() {
  rm -f "$record"
  (cd / && env -u XDG_DATA_HOME "$@" PATH="$work/decoy:$PATH" VERIDRAW_TEST_RECORD="$record" \
    "$launcher")
}
# ran_in FOLDER: the program ran once, in FOLDER, with no arguments.
ran_in() {
  local expected
  expected=$(printf '%s\n0' "$(cd "$1" 2>/dev/null && pwd)")
  [ -f "$record" ] && [ "$(cat "$record")" = "$expected" ] ||
    fail "$2: the program didn't run in $1 (record: $(cat "$record" 2>/dev/null))"
}
same_as_delivered() {
  for file in "$data"/*; do
    cmp -s "$file" "$1/${file##*/}" || fail "$2: ${file##*/} is not the delivered file"
  done
}

# 1. A new user: the folder is made, with the parents it needs, and filled.
launch XDG_DATA_HOME="$work/new/data" HOME="$work/nohome"
status=$?
[ $status -eq 0 ] || fail "new user: the launcher ended with $status"
folder=$work/new/data/veridraw
[ -d "$folder" ] || fail "new user: $folder was not made"
same_as_delivered "$folder" "new user"
ran_in "$folder" "new user"
[ ! -e "$work/nohome" ] || fail "new user: HOME was used although XDG_DATA_HOME is set"

# 2. A user with draws and tickets of their own: nothing of theirs is touched;
# only a missing delivered file is copied.
folder=$work/user/veridraw
mkdir -p "$folder"
printf ' 1107 \r\n' >"$folder/DrawNumber"
printf ' 4 \r\nLotto # 7\r\n010203040506\r\n' >"$folder/Lotto # 7"
printf 'Lotto # 7\r\n' >"$folder/TicketNumber"
cp -p "$folder/DrawNumber" "$work/DrawNumber.mine"
cp -p "$folder/Lotto # 7" "$work/ticket.mine"
launch XDG_DATA_HOME="$work/user"
cmp -s "$folder/DrawNumber" "$work/DrawNumber.mine" || fail "user: DrawNumber was overwritten"
cmp -s "$folder/Lotto # 7" "$work/ticket.mine" || fail "user: the ticket was overwritten"
[ "$(cat "$folder/TicketNumber")" = "$(printf 'Lotto # 7\r')" ] || fail "user: TicketNumber changed"
for file in "$data"/*; do
  [ "${file##*/}" = DrawNumber ] && continue
  cmp -s "$file" "$folder/${file##*/}" || fail "user: the missing ${file##*/} was not copied"
done
ran_in "$folder" "user"
# A delivered draw file that the user has changed since stays as it is.
for file in "$data"/*; do
  [ "${file##*/}" = DrawNumber ] && continue
  printf 'changed\r\n' >"$folder/${file##*/}"
done
launch XDG_DATA_HOME="$work/user"
for file in "$data"/*; do
  [ "${file##*/}" = DrawNumber ] && continue
  [ "$(cat "$folder/${file##*/}")" = "$(printf 'changed\r')" ] || fail "user: ${file##*/} was overwritten"
done

# 3. Without XDG_DATA_HOME, or with a relative one, the folder is in HOME.
launch HOME="$work/home"
ran_in "$work/home/.local/share/veridraw" "default"
same_as_delivered "$work/home/.local/share/veridraw" "default"
launch HOME="$work/home2" XDG_DATA_HOME=relative/data
ran_in "$work/home2/.local/share/veridraw" "relative XDG_DATA_HOME"
[ ! -e /relative ] || fail "a relative XDG_DATA_HOME was used"

# 4. The program's exit status is the launcher's.
launch XDG_DATA_HOME="$work/new/data" VERIDRAW_TEST_STATUS=3
status=$?
[ $status -eq 3 ] || fail "exit status: the launcher ended with $status, the program with 3"

# 5. With neither XDG_DATA_HOME nor HOME there is nowhere to go.
launch -u HOME >"$work/nohome.out" 2>&1
status=$?
[ $status -ne 0 ] && [ ! -f "$record" ] && grep -q "neither XDG_DATA_HOME nor HOME" "$work/nohome.out" ||
  fail "no HOME: the launcher ended with $status: $(cat "$work/nohome.out")"

finish
