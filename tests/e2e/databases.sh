# shellcheck shell=bash
# Databases for the scripts, on the engine that $engine names; exits with 77 where there is no server for it.

if [[ $engine == postgres ]]; then
  if [[ -z ${VANTREL_POSTGRES:-} ]]; then
    echo "VANTREL_POSTGRES names no server: skipped" >&2
    exit 77
  fi
  made=()
  drop_databases() {
    for name in ${made[@]+"${made[@]}"}; do
      psql -q "$VANTREL_POSTGRES" -c "DROP DATABASE IF EXISTS $name WITH (FORCE)" >/dev/null 2>&1 || true
    done
    rm -rf "$scratch"
  }
  trap drop_databases EXIT
fi

# empty_database NAME: sets $db to the address of a database without tables.
empty_database() {
  if [[ $engine == postgres ]]; then
    local name="e2e_$1_$$_$RANDOM"
    psql -q "$VANTREL_POSTGRES" -c "CREATE DATABASE $name" >/dev/null
    made+=("$name")
    db=${VANTREL_POSTGRES%/*}/$name
  else
    db=$scratch/$1.db
  fi
}

# new_database NAME: the same with the tables.
new_database() {
  empty_database "$1"
  run 0 db create --db "$db"
}
