#!/usr/bin/env bash
# Where the windows stand under a real window manager, whose frames have a
# title bar: at a screen scale of SCALE on a screen of SCREEN pixels, the
# window's frame is centred on the screen, the draw number's input box has its
# frame's top-left corner at its designed point of the 800 x 600 desktop
# centred on the screen, and the WARNING of a number out of range leaves the
# red cell it speaks of in view, its title bar included.
#   check_dialog_placement.sh VERIDRAW VERIDRAW_SCRIPT DATA_DIR SCALE SCREEN
set -uo pipefail
veridraw=$(realpath "$1") runner=$(realpath "$2") data=$(realpath "$3") scale=$4 screen=$5
source "$(dirname "$0")/session.sh"
start_session "$screen"

# frame WINDOW: "left top width height" of the window manager's frame around
# a client window.
frame() {
  local parent
  parent=$(xwininfo -tree -id "$1" | awk '/Parent window id/ {print $4}')
  xwininfo -id "$parent" | awk '/Absolute upper-left X/ {x=$4} /Absolute upper-left Y/ {y=$4}
    /Width:/ {w=$2} /Height:/ {h=$2} END {print x, y, w, h}'
}
# settled_frame WINDOW: the frame once it has stood still for a second (the
# window manager and the program may still move a window that just came).
settled_frame() {
  local now last="" still=0 tries
  for tries in $(seq 50); do
    now=$(frame "$1")
    if [ "$now" = "$last" ]; then still=$((still + 1)); else still=0; fi
    [ $still -ge 5 ] && break
    last=$now
    sleep 0.2
  done
  echo "$now"
}
# client WINDOW: "left top" of a client area on the screen.
client() {
  xwininfo -id "$1" | awk '/Absolute upper-left X/ {x=$4} /Absolute upper-left Y/ {y=$4}
    END {print x, y}'
}
# near A B: the two numbers differ by one pixel of the design at the most,
# which the rounding of a frame's edges at the scale may take.
near() { [ $(($1 - $2)) -le "$scale" ] && [ $(($2 - $1)) -le "$scale" ]; }
# twips N: N twips in pixels of the screen, a pixel of the design being 15.
twips() { echo $((($1 + 7) / 15 * scale)); }

# Where the third Lotto cell of the draw screen stands, as the scenario runner
# reads it after the same keys.
read -r cell_left cell_top cell_width cell_height < <(
  "$runner" <<'SCENARIO' | awk '/^TxtDrawnNumbers/ {print $2}' | tr '\n' ' '
deliver
start
key Enter
reply "12"
key Alt+L
reply 1
type "010299"
print TxtDrawnNumbers(3).Left
print TxtDrawnNumbers(3).Top
print TxtDrawnNumbers(3).Width
print TxtDrawnNumbers(3).Height
SCENARIO
)
[ -n "$cell_height" ] || fail "the runner didn't tell where the cell is"

mkdir -p "$work/folder"
cp "$data"/* "$work/folder"/
(cd "$work/folder" && QT_SCALE_FACTOR=$scale exec "$veridraw" >"$work/out" 2>"/tmp/dbg_err_$$") &
started+=($!)
program=$!
wait_for 15 sh -c "xdotool search --all --onlyvisible --pid $program --name '^Veridraw\$'" ||
  fail "no window"
start_window=$(xdotool search --all --onlyvisible --pid "$program" --name '^Veridraw$' | head -n1)
activate "$start_window" || fail "the window is not active"
xdotool key --clearmodifiers Return
# The draw screen comes in a window of its own.
draw_window() {
  xdotool search --all --onlyvisible --pid "$program" --name '^Veridraw$' | grep -vx "$start_window" |
    head -n1
}
wait_for 10 sh -c "[ -n \"\$(xdotool search --all --onlyvisible --pid $program --name '^Veridraw\$' | grep -vx $start_window)\" ]" ||
  fail "no draw screen"
window=$(draw_window)
read -r screen_width screen_height < <(xwininfo -root | awk '/Width:/ {w=$2} /Height:/ {h=$2} END {print w, h}')

# The window's frame, title bar included, centred on the screen.
read -r left top width height < <(settled_frame "$window")
near $((left + width / 2)) $((screen_width / 2)) && near $((top + height / 2)) $((screen_height / 2)) ||
  fail "the window's frame $left,$top ${width}x$height is not centred on ${screen_width}x$screen_height"

# The input box's frame at 3280, 2750 twips on the designed desktop.
xdotool key --clearmodifiers alt+l
wait_for 10 xdotool search --all --onlyvisible --pid "$program" --name '^Draw Number$' || fail "no input box"
box=$(xdotool search --all --onlyvisible --pid "$program" --name '^Draw Number$' | head -n1)
read -r box_left box_top box_width box_height < <(settled_frame "$box")
desktop_left=$(((screen_width - 800 * scale) / 2)) desktop_top=$(((screen_height - 600 * scale) / 2))
near "$box_left" $((desktop_left + $(twips 3280))) && near "$box_top" $((desktop_top + $(twips 2750))) ||
  fail "the input box's frame stands at $box_left,$box_top, not at $((desktop_left + $(twips 3280))),$((desktop_top + $(twips 2750)))"
echo "input box frame at $box_left,$box_top (${box_width}x$box_height)"

# A number out of range: the WARNING leaves the red cell in view.
xdotool type --delay 60 "12"
xdotool key --clearmodifiers Return
sleep 0.5
xdotool type --delay 120 "010299"
wait_for 10 xdotool search --all --onlyvisible --pid "$program" --name '^WARNING$' || fail "no warning"
warning=$(xdotool search --all --onlyvisible --pid "$program" --name '^WARNING$' | head -n1)
read -r warn_left warn_top warn_width warn_height < <(settled_frame "$warning")
read -r form_left form_top < <(client "$window")
x=$((form_left + $(twips "$cell_left"))) y=$((form_top + $(twips "$cell_top")))
w=$(twips "$cell_width") h=$(twips "$cell_height")
echo "warning frame $warn_left,$warn_top ${warn_width}x$warn_height; red cell $x,$y ${w}x$h"
if [ $((warn_left + warn_width)) -gt "$x" ] && [ $((x + w)) -gt "$warn_left" ] &&
  [ $((warn_top + warn_height)) -gt "$y" ] && [ $((y + h)) -gt "$warn_top" ]; then
  fail "the warning's frame covers the red cell"
fi
xdotool key --clearmodifiers Return

finish
