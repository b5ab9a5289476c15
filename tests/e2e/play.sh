#!/usr/bin/env bash
# play.sh DATA: plays nets of the folder DATA and small ones of its own.
set -euo pipefail
source "$(dirname "$0")/common.sh"
data=$1

# net FILE ARCS: a PNML file with places in*, p*, out* and transitions t*.
net() {
  python3 - "$1" "$2" <<'PYTHON'
import sys
arcs = [arc.split(">") for arc in sys.argv[2].split()]
nodes = dict.fromkeys(end for arc in arcs for end in arc)
with open(sys.argv[1], "w", encoding="utf-8") as file:
    file.write('<pnml><net id="n" type="t"><name><text>A "quoted"\\ net</text></name>')
    file.writelines(f'<{"transition" if n[0] == "t" else "place"} id="{n}"/>' for n in nodes)
    file.writelines(f'<arc id="a{i}" source="{a}" target="{b}"/>' for i, (a, b) in enumerate(arcs))
    file.write("</net></pnml>")
PYTHON
}

play 0 "$data/order-handling.pnml" --json --cases 3
account 'a["cases"] == {"started": 3, "finished": 3} and a["stopped"] == "quiet" and a["marking"] == {} and a["error"] is None'
play 0 "$data/order-handling.pnml" --json --keep-history --case-tracking --cases 2
account 'a["marking"] == {a["end"]: 2}'
play 0 "$data/claim-handling.pnml" --json
account '"Transition2/Transition4" in a["trace"] and a["transitions"] == 4'
play 0 "$data/order-handling.pnml" --json --marking
account 'a["cases"] == {"started": 0, "finished": 1}'

for seed in 7 8; do
  play 0 "$data/order-handling.pnml" --json --pick random --seed $seed --cases 20
  mv "$scratch/out" "$scratch/first-$seed"
  play 0 "$data/order-handling.pnml" --json --pick random --seed $seed --cases 20
  cmp -s "$scratch/out" "$scratch/first-$seed" || fail "seed $seed: two runs differ"
done
if cmp -s "$scratch/first-7" "$scratch/first-8"; then fail "two seeds, one run"; fi

net "$scratch/endless.pnml" "in>t1 t1>p1 p1>t2 t2>p2 p2>t3 t3>p1 p2>t4 t4>out"
play 3 "$scratch/endless.pnml" --json --max-firings 30
account 'a["stopped"] == "limit" and a["firings"] == 30 and a["net"] == "A \"quoted\"\\ net"'
play 3 "$scratch/endless.pnml" --json --automatic
account 'a["stopped"] == "error" and "without end" in a["error"]'

net "$scratch/no-end.pnml" "in>t1 t1>p1 p1>t2 t2>p1"
play 3 "$scratch/no-end.pnml" --max-firings 5
says "no-end.pnml: the net has no end place"
play 3 "$scratch/no-end.pnml" --max-firings 5 --json
account 'a["end"] is None'

net "$scratch/no-start.pnml" "in1>t1 in2>t1 t1>out"
refuses "$scratch/no-start.pnml"
says "no-start.pnml: the net has no start place: 2 places"
play 0 "$scratch/no-start.pnml" --marking

printf '<pnml>\n<net id="n">\n<place/></net></pnml>' >"$scratch/bad.pnml"
refuses "$scratch/bad.pnml" --json
says "bad.pnml: "
says "(line 3, "
refuses "$scratch/missing.pnml"
refuses
for options in --cases=0 --cases=-1 --cases=x "--cases 99999999999" --pick=last --seed=-1 --max-firings=1.5 --unknown "--marking --cases 2" "--net other"; do
  # shellcheck disable=SC2086
  refuses "$data/order-handling.pnml" $options
done
play 0 "$data/order-handling.pnml" --json --cases 010
account 'a["cases"]["started"] == 10'

# Ctrl-C, with transitions that the user fires and with automatic ones, which double at every step.
doubling=$(for i in {0..40}; do printf 'p%d>t%d t%d>p%d t%d>p%d ' "$i" "$i" "$i" $((i + 1)) "$i" $((i + 1)); done)
net "$scratch/doubling.pnml" "in>t t>p0 $doubling p41>t41 p41>t42 t41>out t42>out"
for run in "$scratch/endless.pnml --max-firings 999999999999" "$scratch/doubling.pnml --automatic"; do
  # shellcheck disable=SC2086
  interrupted play $run --json
  account 'a["stopped"] == "limit" and a["firings"] > 0'
done

"$VANTREL" >"$scratch/out" || fail "without arguments: status $?"
grep -q "1 started, 1 finished" "$scratch/out" || fail "without arguments: $(cat "$scratch/out")"
if "$VANTREL" play "$data/order-handling.pnml" >/dev/full 2>"$scratch/err"; then fail "a full disk goes unnoticed"; fi

finish
