# shellcheck shell=bash
# What the scripts that drive the program share. A check that fails says so and lets the others run; end with `finish`.

failures=0
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  failures=$((failures + 1))
}

finish() { exit $((failures > 0)); }

# play STATUS ARGUMENT...: runs `vantrel play`, whose output goes to $scratch/out and $scratch/err, and checks the exit status.
play() {
  local wanted=$1 status=0
  shift
  "$VANTREL" play "$@" >"$scratch/out" 2>"$scratch/err" || status=$?
  if ((status != wanted)); then fail "play $*: status $status, not $wanted: $(head -n 3 "$scratch/err")"; fi
}

# refuses ARGUMENT...: status 2, one line on standard error, nothing on standard output.
refuses() {
  play 2 "$@"
  if [[ $(wc -l <"$scratch/err") != 1 || -s $scratch/out ]]; then fail "play $*: not one line: $(cat "$scratch/out" "$scratch/err")"; fi
}

# account EXPRESSION: the JSON of the last run, a dictionary `a`, makes the Python expression true.
account() {
  python3 - "$1" "$scratch/out" <<'PYTHON' || fail "$1: $(head -c 600 "$scratch/out")"
import json, sys
a = json.load(open(sys.argv[2], encoding="utf-8"))
assert len(a["trace"]) == a["firings"]
sys.exit(not eval(sys.argv[1]))
PYTHON
}

says() { grep -qF -- "$1" "$scratch/err" || fail "standard error lacks '$1': $(cat "$scratch/err")"; }
