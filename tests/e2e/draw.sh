#!/usr/bin/env bash
# draw.sh DATA [stored]: draws nets of the folder DATA without a display; "stored": also one of a database.
set -euo pipefail
source "$(dirname "$0")/common.sh"
source "$(dirname "$0")/pictures.sh"
data=$1

formats "$data/order-handling.pnml" "Buy goods" "Order closed"

LC_ALL=C draws "$data/order-handling.pnml" "$scratch/Übersicht.PNG"
[[ -s $scratch/Übersicht.PNG ]] || fail "a name beyond ASCII"

# What cannot be drawn leaves neither a new file nor a changed one.
mkdir "$scratch/bad"
echo kept >"$scratch/bad/kept.png"
refuses_drawing() { # TEXT ARGUMENT...
  local text=$1
  shift
  fails draw "$@"
  says "$text"
}
net=$data/order-handling.pnml
refuses_drawing ".png, .svg or .pdf" "$net" "$scratch/bad/chart.gif"
for zoom in 0 -1 nan inf abc "" 2x; do refuses_drawing "number above 0" "$net" "$scratch/bad/kept.png" --zoom "$zoom"; done
refuses_drawing "16000 a side is the most: zoom " "$net" "$scratch/bad/kept.png" --zoom 100
refuses_drawing "fits" "$net" "$scratch/bad/chart.svg" --zoom 1e300
refuses_drawing "cannot be written" "$net" "$scratch/bad/nowhere/chart.png"
refuses_drawing "not UTF-8" "$net" "$scratch/bad/"$'\xff.png'
refuses_drawing "no such file" "$scratch/missing.pnml" "$scratch/bad/kept.png"
head -c 300 "$net" >"$scratch/cut.pnml"
refuses_drawing "cut.pnml" "$scratch/cut.pnml" "$scratch/bad/kept.png"
refuses_drawing "--db" "$net" "$scratch/bad/kept.png" --db "$scratch/nets.db"
for name in kept.png chart.svg chart.pdf; do # as on a full disk
  (
    trap '' XFSZ
    ulimit -f 4
    run 2 draw "$net" "$scratch/bad/$name"
    says "bad/$name: cannot be written"
    finish
  ) || fail "a full disk: $name"
done
printf '<fontconfig><dir>/nowhere</dir><cachedir>%s</cachedir></fontconfig>\n' "$scratch/cache" >"$scratch/fonts.conf"
FONTCONFIG_FILE=$scratch/fonts.conf refuses_drawing "no fonts" "$net" "$scratch/bad/kept.png"
[[ $(ls -A "$scratch/bad") == kept.png && $(cat "$scratch/bad/kept.png") == kept ]] || fail "left behind: $(ls -A "$scratch/bad")"

if [[ ${2:-} == stored ]]; then
  run 0 import "$net"
  draws "$net" "$scratch/file.svg"
  draws 1 "$scratch/stored.svg"
  cmp "$scratch/file.svg" "$scratch/stored.svg" || fail "a stored net looks otherwise than its file"
  refuses_drawing "no workflow 7" 7 "$scratch/bad/kept.png"
  refuses_drawing "are for files" 1 "$scratch/bad/kept.png" --net n
  cp "$data/claim-handling.pnml" "$scratch/1" # a file is a file even if its name is a number
  (cd "$scratch" && draws 1 1.svg && grep -q "Claim reported" 1.svg && finish) || fail "a file named 1"
fi

draws "$data/claim-handling.pnml" "$scratch/claim.svg"
if grep -q "Check policy" "$scratch/claim.svg"; then fail "a sub-process is drawn, too"; fi

# The program alone says that there is no display, draws its sample, plays it, and says where the picture is.
run 0
says 'no display'
drawn=$(sed -n 's/^A picture of it: //p' "$scratch/out")
[[ -s $drawn && $(size "$drawn") =~ ^[0-9]{4}\ [0-9]{3,4}$ ]] || fail "no picture of the sample: $(cat "$scratch/out")"
grep -q 'finished' "$scratch/out" || fail "the sample was not played: $(cat "$scratch/out")"
fails design
says 'no display'
DISPLAY=:4711 fails design
says ':4711 does not answer'

finish
