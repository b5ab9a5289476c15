#!/usr/bin/env bash
# window.sh SCREENSHOT FOLDER: from an empty chart to a stored workflow and back, with mouse and keyboard in the real window on a display
# of its own. SCREENSHOT is the program that takes pictures, which land in FOLDER.
set -euo pipefail
source "$(dirname "$0")/common.sh"
screenshot=$1 pictures=$2
for tool in Xvfb openbox xdotool; do
  command -v $tool >/dev/null || { echo "skipped: $tool is not here" >&2; exit 77; }
done
mkdir -p "$pictures"
rm -f "$pictures"/window-*.png
database=$scratch/nets.db

processes=()
stop() {
  for process in "${processes[@]}"; do kill "$process" 2>/dev/null || true; done
  wait || true
  rm -rf "$scratch"
}
trap stop EXIT

# until_true COMMAND...: waits for its success, five minutes at most: a busy machine is slow, and a hang must end.
until_true() {
  local try
  for ((try = 0; try < 3000; ++try)); do
    if "$@" >/dev/null 2>&1; then return; fi
    sleep 0.1
  done
  fail "waited in vain: $*; the program said: $(cat "$scratch/program")"
  picture given-up
  exit 1
}

picture() { "$screenshot" "$pictures/window-$1.png" "${@:2}" 2>/dev/null || fail "no screenshot $1"; }

# settled NAME AREA...: a picture of an area in which nothing moves any more.
settled() {
  until_true unmoved "$@"
}
unmoved() {
  picture "$@"
  sleep 0.2
  picture again "${@:2}"
  cmp "$pictures/window-$1.png" "$pictures/window-again.png"
}
area=(300 250 800 400) # of the display, with the whole chart in it
looks_as_before() {
  picture after "${area[@]}"
  cmp "$pictures/window-before.png" "$pictures/window-after.png"
}

start_display() {
  Xvfb -displayfd 3 -screen 0 1280x860x24 -nolisten tcp 3>"$scratch/display" 2>/dev/null &
  processes+=($!)
  until_true test -s "$scratch/display"
  DISPLAY=:$(<"$scratch/display")
  export DISPLAY
  openbox --sm-disable 2>/dev/null &
  processes+=($!)
}

# titled NAME: the window's title begins with that name, without the mark of changes; changed NAME: with it. Its dash may be missing.
titled() { xdotool search --onlyvisible --name "^$1( .*)?\$"; }
changed() { xdotool search --onlyvisible --name "^$1[*]( .*)?\$"; }
asks() { xdotool search --onlyvisible --name '^Vantrel$'; }

# opens NAME ARGUMENT...: the window is there, has the keyboard, and has drawn its chart.
opens() {
  "$VANTREL" design --db "$database" "${@:2}" >"$scratch/program" 2>&1 &
  program=$!
  processes+=("$program")
  until_true titled "$1"
  xdotool windowactivate --sync "$(titled "$1")"
  xdotool windowmove --sync "$(titled "$1")" 0 0 windowsize --sync "$(titled "$1")" 1270 800
}

gone() { ! kill -0 "$program" 2>/dev/null; }
closes() {
  xdotool key ctrl+q
  until_true gone
  wait "$program" || fail "the program ended with $?: $(cat "$scratch/program")"
}

# Two clicks at one place in quick succession are another thing.
click_again() { sleep 0.6; click "$@"; }
click() { xdotool mousemove "$1" "$2" click 1; }
drag() { xdotool mousemove "$1" "$2" mousedown 1 mousemove "$3" "$4" mouseup 1; }

left=400 top=400 # of the first place, pixels on the display; the others follow at its right
start_display
run 0 db create --db "$database"
opens 'New workflow'
xdotool key ctrl+a Delete
until_true changed 'New workflow'
# The letters after the first are the new object's text.
for text in pinitial tape pat; do
  click $left $top
  xdotool type --delay 40 $text
  xdotool key Return
  left=$((left + 250))
done
picture nodes

# Arcs from each object to the next one; the centre of a picture is 16 pixels inside.
click 416 416
xdotool key a
click 666 416
click_again 666 416
xdotool key a
picture arc
click 916 416

# The second arc is bent: its middle becomes a handle, which is dragged up.
click 790 416
xdotool key e
drag 791 416 791 300
picture bend

# The first place's caption, typed in place.
xdotool mousemove 412 392 click --repeat 2 --delay 60 1
sleep 0.3
xdotool key ctrl+a
xdotool type --delay 20 'Inbox & more'
picture typing
xdotool key Return
click 600 600
xdotool key ctrl+s
until_true titled 'Workflow 1'
picture saved
settled before "${area[@]}"
closes

run 0 show 1 --json --db "$database"
json "[len(a[k]) for k in ('places', 'transitions', 'arcs')] == [2, 1, 2]"
json "a['places'][0]['caption'] == 'Inbox & more' and a['places'][1]['caption'] == 'at' and a['transitions'][0]['caption'] == 'ape'"
json "a['transitions'][0]['left'] - a['places'][0]['left'] == 250 * 15"
json "len(a['arcs'][1]['path']) == 3 and a['arcs'][1]['path'][1][1] < a['places'][1]['top'] - 1000"
cp "$scratch/out" "$scratch/first"

# What is opened looks as it did, and saving it again stores the same.
opens 'Workflow 1' 1
xdotool mousemove 600 600
until_true looks_as_before
xdotool key ctrl+s
closes
run 0 show 1 --json --db "$database"
cmp "$scratch/first" "$scratch/out" || fail "saved again, it is another workflow"

# Unsaved changes are asked for.
opens 'Workflow 1'
xdotool key p
until_true changed 'Workflow 1'
xdotool key alt+F4
until_true asks
picture question
xdotool key Escape
xdotool key ctrl+s
until_true titled 'Workflow 1'
closes
run 0 show 1 --json --db "$database"
json "len(a['places']) == 3"
rm -f "$pictures/window-again.png"
finish
