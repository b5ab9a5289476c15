#!/usr/bin/env bash
# draw.sh DATA [stored]: draws nets of the folder DATA and of the field without a display; "stored": also one of a database.
set -euo pipefail
source "$(dirname "$0")/common.sh"
data=$1

# draws ARGUMENT...: status 0, and nobody is told anything.
draws() {
  run 0 draw "$@"
  if [[ -s $scratch/out || -s $scratch/err ]]; then fail "draw $*: $(cat "$scratch/out" "$scratch/err")"; fi
}

# size PNG: its width and height.
size() { python3 -c 'import struct, sys; print(*struct.unpack(">II", open(sys.argv[1], "rb").read(24)[16:]))' "$1"; }

# captions NET SVG: the names of all nodes stand in the picture, as text.
captions() {
  python3 - "$1" "$2" <<'PYTHON' || fail "captions of $1"
import sys
import xml.etree.ElementTree as tree
def named(end): return [e for e in tree.parse(sys.argv[1]).iter() if e.tag.rpartition("}")[2] == end]
wanted = {"".join(t.itertext()).strip() for kind in ("place", "transition") for node in named(kind)
          for name in node if name.tag.rpartition("}")[2] == "name" for t in name if t.tag.rpartition("}")[2] == "text"}
drawn = [t.text for t in tree.parse(sys.argv[2]).iter("{http://www.w3.org/2000/svg}text")]
missing = sorted(name for name in wanted if not any(name in (text or "") for text in drawn))
if missing: print("missing:", missing, file=sys.stderr)
sys.exit(bool(missing) or not wanted)
PYTHON
}

# formats NET TEXT...: the net becomes all three kinds of picture, and the PDF has the texts.
formats() {
  local net=$1 word width height wide high
  shift
  draws "$net" "$scratch/net.png"
  read -r width height <<<"$(size "$scratch/net.png")"
  draws "$net" "$scratch/net.png" --zoom 2
  read -r wide high <<<"$(size "$scratch/net.png")"
  if ((width < 100 || wide < 2 * width - 2 || wide > 2 * width || high < 2 * height - 2 || high > 2 * height)); then
    fail "$net: $width x $height, at zoom 2 $wide x $high"
  fi

  draws "$net" "$scratch/net.svg"
  captions "$net" "$scratch/net.svg"
  draws "$net" "$scratch/net.pdf"
  if command -v pdftotext >/dev/null; then
    pdftotext "$scratch/net.pdf" "$scratch/net.txt"
    for word; do grep -qF "$word" "$scratch/net.txt" || fail "$net: no '$word' in the PDF"; done
  else
    grep -qa '/Font' "$scratch/net.pdf" || fail "$net: no font in the PDF"
  fi
}

formats "$data/order-handling.pnml" "Buy goods" "Order closed"
if [[ -d ${VANTREL_NETS:-} ]]; then
  for file in "$VANTREL_NETS"/05_* "$VANTREL_NETS"/13_*; do [[ ! -e $file ]] || formats "$file"; done
fi

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
