#!/usr/bin/env bash
# database-files.sh DATA: what only databases in files have: the default one, and files that are none.
set -euo pipefail
source "$(dirname "$0")/common.sh"
data=$1

# The first use makes the default database, for its user alone.
run 0 import "$data/order-handling.pnml"
file=$XDG_DATA_HOME/vantrel/vantrel.db
[[ $(stat -c %a "$XDG_DATA_HOME/vantrel") == 700 ]] || fail "the folder is open to others"
run 0 list --json --db "$file"
json 'len(a["workflows"]) == 1'
(
  export HOME=$scratch/home
  unset XDG_DATA_HOME
  mkdir "$HOME"
  run 0 list
  [[ -f $HOME/.local/share/vantrel/vantrel.db ]] || fail "no database below HOME"
  finish
) || fail "the default database below HOME"
(
  export XDG_DATA_HOME=$scratch/left-empty
  mkdir -p "$XDG_DATA_HOME/vantrel"
  : >"$XDG_DATA_HOME/vantrel/vantrel.db" # what a process leaves that ends while it makes the file
  run 0 list
  finish
) || fail "the default database after an end in the middle of its making"
(
  unset XDG_DATA_HOME HOME
  fails list
  finish
) || fail "no folder for the default database"
fails db create
says "vantrel.db"

fails list --db "$scratch/missing.db"
says "missing.db: no such database; \`vantrel db create --db $scratch/missing.db"
[[ ! -e $scratch/missing.db ]] || fail "a database that was only asked for was made"
head -c 5000 /dev/urandom >"$scratch/noise.db"
cp "$file" "$scratch/cut.db"
truncate -s 5000 "$scratch/cut.db"
for bad in noise.db cut.db; do
  fails list --db "$scratch/$bad"
  says "$bad"
done
fails list --db "$scratch"

# Tables of other versions and of other systems.
cp "$file" "$scratch/newer.db"
python3 - "$scratch" <<'END'
import sqlite3, sys
newer = sqlite3.connect(sys.argv[1] + "/newer.db")
newer.execute("UPDATE vantrel_schema SET Version = 99")
newer.commit()
other = sqlite3.connect(sys.argv[1] + "/other.db")
other.execute("CREATE TABLE Workflow (Step TEXT)")
other.commit()
END
for command in list "db upgrade"; do
  # shellcheck disable=SC2086
  fails $command --db "$scratch/newer.db"
  says "version 99"
  # shellcheck disable=SC2086
  fails $command --db "$scratch/other.db"
  says "not a database of this system"
done
run 0 db upgrade --db "$file"
grep -q "up to date" "$scratch/out" || fail "the newest version is not up to date"
fails db create --db "$scratch/no/such/folder.db"
says "no/such/folder.db"

# A file is a file even if its name is a number.
cp "$data/order-handling.pnml" "$scratch/1"
(cd "$scratch" && play 0 1 --marking && finish) || fail "a file named 1"

# Ctrl-C between two files of many.
mkdir "$scratch/many"
for i in {1..3000}; do ln -s "$data/order-handling.pnml" "$scratch/many/$i.pnml"; done
interrupted import "$scratch/many"
if ((status != 3)); then fail "Ctrl-C: status $status: $(cat "$scratch/err")"; fi
says "interrupted after"
printed=$(wc -l <"$scratch/out")
run 0 list --json
json "len(a['workflows']) == 1 + $printed"

finish
