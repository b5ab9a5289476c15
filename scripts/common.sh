# shellcheck shell=bash
# What ./run and ./test share. Expects `root`, the folder of the checkout. Everything said here goes to standard error, so that
# the program's own output stays clean.

# shellcheck source=scripts/packages.sh
source "$root/scripts/packages.sh"
mkdir -p "$root/build"

# A second checkout, in another folder, finds what the first one compiled.
export CCACHE_BASEDIR="$root" CCACHE_NOHASHDIR=1

say() { printf 'vantrel: %s\n' "$*" >&2; }
die() { say "$*"; exit 1; }

# install_packages NAME PACKAGE...
# Installs those that are missing. A stamp in build/ makes the second call free; it holds the list, so a longer list voids it.
install_packages() {
  local stamp="$root/build/.packages-$1"
  shift
  if [[ -n ${VANTREL_SKIP_INSTALL:-} ]] || [[ -f $stamp && $(<"$stamp") == "$*" ]]; then return; fi
  local missing=() package
  for package; do
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
  done
  if ((${#missing[@]})); then apt_install "${missing[@]}"; fi
  printf '%s' "$*" >"$stamp"
}

apt_install() {
  local log="$root/build/install.log" as_root=()
  local by_hand="install them by hand and set VANTREL_SKIP_INSTALL=1"
  command -v apt-get >/dev/null || die "missing packages: $*; there is no apt-get here: $by_hand"
  if ((EUID != 0)); then
    command -v sudo >/dev/null || die "missing packages: $*; neither root nor sudo: $by_hand"
    as_root=(sudo)
    [[ -t 0 ]] || as_root+=(-n)
  fi
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 -qq) status=0
  say "installing $*"
  # The tests start PostgreSQL servers of their own. The package is not to start one of its own for good.
  local no_server=/etc/postgresql-common/createcluster.d/vantrel.conf
  if [[ " $* " == *" postgresql "* ]]; then
    "${as_root[@]}" install -D -m 644 /dev/stdin "$no_server" <<<"create_main_cluster = false"
  fi
  { "${apt[@]}" update && "${apt[@]}" install -y --no-install-recommends "$@"; } >"$log" 2>&1 </dev/null || status=$?
  if [[ -f $no_server ]]; then "${as_root[@]}" rm -f "$no_server"; fi
  ((status == 0)) || die "could not install $*: $(grep -m 1 -E '^E:|sudo:' "$log" || tail -n 1 "$log")"
}

# forget_packages NAME: the next call looks at every package again. For when something failed that worked before.
forget_packages() { rm -f "$root/build/.packages-$1"; }

# locked COMMAND...: two builds of one checkout, say in a pipe of two ./run, take turns.
locked() {
  local status=0
  exec 9>"$root/build/.lock"
  flock 9
  "$@" 9>&- || status=$?
  exec 9>&-
  return "$status"
}

# logged LOG COMMAND...: says nothing unless the command fails; then its last lines.
logged() {
  local log=$1
  shift
  if "$@" >"$log" 2>&1 </dev/null; then return; fi
  tail -n 80 "$log" >&2
  say "failed: $*; the whole log is in ${log#"$root"/}"
  return 1
}
