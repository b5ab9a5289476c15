# shellcheck shell=bash
# What the scripts that drive the program share. A check that fails says so and lets the others run; end with `finish`.

failures=0
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# Never the user's own database, settings or display.
export XDG_DATA_HOME=$scratch/data-home XDG_CONFIG_HOME=$scratch/config-home XDG_RUNTIME_DIR=$scratch
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  failures=$((failures + 1))
}

# The end: 1 after a failure, 77, which means skipped, when nets of the field are missing.
finish() {
  if ((failures)); then exit 1; fi
  if [[ -e $scratch/missing-nets ]]; then
    echo "skipped: VANTREL_NETS has no net $(sort -u "$scratch/missing-nets" | paste -sd ' ')" >&2
    exit 77
  fi
  exit 0
}

# field_net PREFIX: the path of the net of the field whose name begins so; fails where it is not at hand.
field_net() {
  local files=("${VANTREL_NETS:-/nowhere}/$1"_*)
  if [[ -e ${files[0]} ]]; then
    printf '%s\n' "${files[0]}"
  else
    printf '%s\n' "$1" >>"$scratch/missing-nets"
    return 1
  fi
}

# run STATUS ARGUMENT...: runs the program, whose output goes to $scratch/out and $scratch/err, and checks the exit status.
run() {
  local wanted=$1 status=0
  shift
  "$VANTREL" "$@" >"$scratch/out" 2>"$scratch/err" || status=$?
  if ((status != wanted)); then fail "$*: status $status, not $wanted: $(head -n 3 "$scratch/err")"; fi
}

# fails ARGUMENT...: status 2, one line on standard error, nothing on standard output.
fails() {
  run 2 "$@"
  if [[ $(wc -l <"$scratch/err") != 1 || -s $scratch/out ]]; then fail "$*: not one line: $(cat "$scratch/out" "$scratch/err")"; fi
}

play() { run "$1" play "${@:2}"; }

# interrupted ARGUMENT...: runs the program and sends Ctrl-C after a second. Where the machine is so busy that the program was not ready for
# it by then, and died of it, tries again with more time.
interrupted() {
  local seconds
  for seconds in 1 5 25 125; do
    status=0
    timeout --signal=INT --preserve-status "$seconds" "$VANTREL" "$@" >"$scratch/out" 2>"$scratch/err" || status=$?
    if ((status != 130)); then return; fi
  done
  fail "$*: dies of Ctrl-C"
}
refuses() { fails play "$@"; }

# json EXPRESSION: the JSON of the last run, a dictionary `a`, makes the Python expression true.
json() {
  python3 - "$1" "$scratch/out" <<'PYTHON' || fail "$1: $(head -c 600 "$scratch/out")"
import json, sys
a = json.load(open(sys.argv[2], encoding="utf-8"))
sys.exit(not eval(sys.argv[1]))
PYTHON
}

# account EXPRESSION: the same for an account with its trace.
account() { json "len(a['trace']) == a['firings'] and ($1)"; }

says() { grep -qF -- "$1" "$scratch/err" || fail "standard error lacks '$1': $(cat "$scratch/err")"; }
