#!/usr/bin/env bash
# Plays nets that other tools drew. Skipped where one of them is missing.
set -euo pipefail
source "$(dirname "$0")/common.sh"

# finishes PREFIX OPTION...: the net whose name begins so runs from start to end and leaves no token.
finishes() {
  local net
  net=$(field_net "$1") || return 0
  shift
  play 0 "$net" --json "$@"
  account 'a["stopped"] == "quiet" and a["cases"]["started"] == a["cases"]["finished"] and a["marking"] == {}'
}

# refuses_field PREFIX TEXT: the one line of the refusal has the text.
refuses_field() {
  local net
  net=$(field_net "$1") || return 0
  refuses "$net"
  says "$2"
}

# Sound nets: without loops a run ends whatever is picked, with loops only chance leaves them.
for number in 04 06 13 15 17 20 33 41; do finishes "$number" --cases 2; done
for number in 04 05 06 13 14 15 17 19 20 33 41 D2; do
  for seed in 1 2 3; do finishes "$number" --pick random --seed $seed --case-tracking --cases 3; done
done

refuses_field 02 "the net has no start place: no place"
refuses_field 27 "the net has no start place: 784 places"
refuses_field 29 "(line 5, column"
refuses_field 34 "inhibitor"
refuses_field 36 "initial marking"

finish
