#!/usr/bin/env bash
# database.sh ENGINE DATA: nets of the folder DATA through a database and back.
set -euo pipefail
source "$(dirname "$0")/common.sh"
engine=$1 data=$2
source "$(dirname "$0")/databases.sh"

new_database nets
fails db create --db "$db"
run 0 list --db "$db"
grep -q "no workflow" "$scratch/out" || fail "an empty database: $(cat "$scratch/out")"

# In: files and folders; a bad file is named, the others are stored all the same.
mkdir "$scratch/folder"
cp "$data"/*.pnml "$scratch/folder"
printf '<pnml>\n<net id="n">\n<place/></net></pnml>' >"$scratch/folder/b.pnml"
run 2 import "$scratch/folder" --json --db "$db"
says "b.pnml: "
json '[i["id"] is not None for i in a["imported"]] == [False, True, True] and "b.pnml" in a["imported"][0]["error"]'
run 0 list --json --db "$db"
json 'len(a["workflows"]) == 3 and sum(len(w["embedded_in"]) for w in a["workflows"]) == 1'
id_of() { python3 -c "import json; print([w['id'] for w in json.load(open('$scratch/out'))['workflows'] if $1][0])"; }
inner=$(id_of 'w["embedded_in"]')
outer=$(id_of 'w["places"] < 10 and not w["embedded_in"]')
orders=$(id_of 'w["places"] == 10')

# Out: what is exported and imported again is the same workflow under new ids.
stored() { # stored ID FILE: all of it but the ids
  run 0 show "$1" --json --db "$db"
  python3 - "$scratch/out" >"$2" <<'PYTHON'
import json, sys
def plain(x):
    if isinstance(x, list): return [plain(v) for v in x]
    if isinstance(x, dict): return {k: plain(v) for k, v in x.items() if k not in ("id", "guid", "embeds", "object_name")}
    return x
print(json.dumps(plain(json.load(open(sys.argv[1], encoding="utf-8"))), indent=1))
PYTHON
}
for id in "$orders" "$outer"; do
  stored "$id" "$scratch/before"
  run 0 export "$id" "$scratch/again.pnml" --db "$db"
  run 0 import "$scratch/again.pnml" --json --db "$db"
  copy=$(python3 -c "import json; print(json.load(open('$scratch/out'))['imported'][0]['id'])")
  stored "$copy" "$scratch/after"
  cmp -s "$scratch/before" "$scratch/after" || fail "workflow $id is another one after export and import: $(diff "$scratch/before" "$scratch/after" | head -n 6)"
  run 0 export "$id" - --db "$db"
  cmp -s "$scratch/out" "$scratch/again.pnml" || fail "standard output and file differ"
  run 0 delete "$copy" --embedded --db "$db"
done
run 0 list --json --db "$db"
json 'len(a["workflows"]) == 3'
run 0 show "$orders" --db "$db"
fails export "$orders" "$scratch/missing/out.pnml" --db "$db"

# Play, store, go on.
run 0 play "$orders" --json --cases 3 --db "$db"
account 'a["cases"] == {"started": 3, "finished": 3}'
run 3 play "$orders" --json --cases 5 --case-tracking --max-firings 8 --save --db "$db"
run 0 show "$orders" --json --db "$db"
json 'a["stored"]["cases"] == 5 and a["stored"]["tokens_in_places"] >= 5'
run 0 play "$orders" --json --case-tracking --cases 2 --resume --db "$db"
account 'a["cases"] == {"taken_up": 5, "started": 2, "finished": 7} and a["marking"] == {}'
run 0 play "$orders" --json --case-tracking --resume --db "$db"
account 'a["cases"] == {"taken_up": 0, "started": 0, "finished": 0} and a["firings"] == 0'
run 0 show "$orders" --json --db "$db"
json 'a["stored"]["cases"] == 7 and a["stored"]["tokens_in_places"] == 0'
# A subflow under way begins anew: nothing of it is stored.
run 3 play "$outer" --max-firings 3 --save --db "$db"
run 0 play "$outer" --resume --json --db "$db"
account 'a["cases"] == {"taken_up": 1, "started": 0, "finished": 1} and a["marking"] == {}'

# Delete: all or nothing, and nothing from under others.
fails delete "$inner" --db "$db"
says "is embedded in workflow $outer"
fails delete "$orders" 99 --db "$db"
says "no workflow 99"
run 0 list --json --db "$db"
json 'len(a["workflows"]) == 3'

# Copies keep everything but ids, and go with what they embed.
source_db=$db
stored "$outer" "$scratch/before"
new_database target
run 0 copy "$outer" --db "$source_db" --to "$db"
copy=$(cat "$scratch/out")
stored "$copy" "$scratch/after"
diff <(grep -v '"cases"\|"tokens' "$scratch/before") <(grep -v '"cases"\|"tokens' "$scratch/after") >"$scratch/diff" ||
  fail "the copy differs: $(head -n 6 "$scratch/diff")"
run 0 list --json --db "$db"
json 'len(a["workflows"]) == 2'
inside_copy=$(id_of 'w["embedded_in"]')
run 0 play "$copy" --json --db "$db"
account '"Transition2/Transition4" in a["trace"]'
run 0 delete "$inside_copy" --force --db "$db"
run 0 show "$copy" --json --db "$db"
json 'all(t["embeds"] is None for t in a["transitions"])' # so that a new workflow of that id takes no place in it
run 0 copy "$copy" --db "$db" --to "$db"

run 0 delete "$outer" --embedded --db "$source_db"
run 0 list --json --db "$source_db"
json 'len(a["workflows"]) == 1'

# What cannot be done is said in one line that names the database.
empty_database bare
[[ $engine == postgres ]] || python3 -c "import sqlite3; c = sqlite3.connect('$db'); c.execute('CREATE TABLE t (x)'); c.commit()"
for command in "list" "show 1" "export 1 -" "delete 1" "play 1" "import $data/order-handling.pnml"; do
  # shellcheck disable=SC2086
  fails $command --db "$db"
  says "${db##*/}"
  says "vantrel db create --db"
done
for arguments in "show 99" "export 99 -" "delete 99" "play 99" "play 99 --resume" "copy 99 --to $source_db"; do
  # shellcheck disable=SC2086
  fails $arguments --db "$source_db"
  says "no workflow 99"
done
for arguments in "show 0" "show x" "show 2147483648" "show -1" "delete" "play $orders --marking" "play $orders --net n" \
  "play $data/order-handling.pnml --save" "play $data/order-handling.pnml --resume" "import $scratch/nothing-here" "list extra"; do
  # shellcheck disable=SC2086
  fails $arguments --db "$source_db"
done

finish
