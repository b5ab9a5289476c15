#!/usr/bin/env bash
# kill-play.sh ENGINE DATA: a run that stores its tokens is killed again and again, and goes on each time from a whole state.
set -euo pipefail
source "$(dirname "$0")/common.sh"
engine=$1 data=$2
source "$(dirname "$0")/databases.sh"

new_database kills
run 0 import "$data/order-handling.pnml" --db "$db"

# killed SECONDS ARGUMENT...: the run, ended by force after that time if it is not over by then.
killed() {
  local seconds=$1
  shift
  { timeout --signal=KILL "$seconds" "$VANTREL" play 1 --db "$db" --case-tracking --max-firings 10000000 "$@" || true; } &>/dev/null
}

# stored MEMBER: a number that `vantrel show` gives.
stored() {
  run 0 show 1 --json --db "$db"
  python3 -c "import json; print(json.load(open('$scratch/out'))['stored']['$1'])"
}

# One firing stored by halves would lose a token, so that its case never finishes, or leave one behind.
for seconds in 0.5 1 2 4 8 16; do
  killed "$seconds" --pick random --cases 4000 --save
  (($(stored tokens_in_places) == 0)) || break
done
(($(stored tokens_in_places) > 0)) || fail "no run was killed halfway"
for i in {1..8}; do killed "0.$((2 + RANDOM % 7))" --pick random --seed "$i" --resume; done
cases=$(stored cases)
((cases > 0)) || fail "nothing was stored"
run 0 play 1 --db "$db" --json --case-tracking --max-firings 10000000 --resume
account 'a["cases"]["finished"] == a["cases"]["taken_up"] and a["marking"] == {}'
run 0 play 1 --db "$db" --json --case-tracking --resume
account 'a["cases"]["taken_up"] == 0 and a["firings"] == 0'
run 0 show 1 --json --db "$db"
json "a['stored']['cases'] == $cases and a['stored']['tokens_in_places'] == 0 and a['stored']['tokens'] >= 9 * $cases"

# Ctrl-C stores all that the account tells of.
interrupted play 1 --db "$db" --cases 1000000 --save --json
account 'a["stopped"] == "limit" and a["cases"]["started"] > 0'
lying=$(python3 -c "import json; print(sum(json.load(open('$scratch/out'))['marking'].values()))")
[[ $(stored tokens_in_places) == "$lying" ]] || fail "$(stored tokens_in_places) tokens are stored, not $lying"

finish
