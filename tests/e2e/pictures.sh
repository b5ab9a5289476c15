# shellcheck shell=bash
# What the scripts that draw nets share.

# draws ARGUMENT...: status 0 and no output.
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
  pdftotext "$scratch/net.pdf" "$scratch/net.txt" || fail "$net: not a PDF with text"
  for word; do grep -qF "$word" "$scratch/net.txt" || fail "$net: no '$word' in the PDF"; done
}
