#!/usr/bin/env bash
# Runs the SQL cases against real servers: the table program on SQLite
# through ODBC, and on a throwaway PostgreSQL server (started here in a
# scratch folder, reached by a Unix socket only, stopped at the end) both
# natively and through ODBC; then PostgreSQL's failures, and two programs
# that add rows to one table at the same time.
#
#   sql_servers.sh <tamrix-pack> <work-folder>
#
# Exits 77 (skipped) when the machine has no PostgreSQL server programs.
set -euo pipefail

packer=$1
work=$2
here=$(cd "$(dirname "$0")" && pwd)
programs=$here/../programs

rm -rf "$work"
mkdir -p "$work"
chmod 755 "$work"

failures=0
# Runs a packed program in a folder of its own: run <name> <program> [args...]
run() {
  local name=$1 program=$2
  shift 2
  local folder=$work/$name
  mkdir -p "$folder/.runtime"
  chmod 700 "$folder/.runtime"
  "$packer" -o "$folder/$name" "$program"
  (
    cd "$folder"
    env -u TAMRIX_SNAPSHOT -u TAMRIX_INPUT TAMRIX_ANSWERS= QT_QPA_PLATFORM=offscreen \
      XDG_RUNTIME_DIR="$folder/.runtime" LC_ALL=C.UTF-8 TAMRIX_EXIT=1 TAMRIX_TRACE="$folder/trace.txt" \
      timeout 60 "./$name" "$@" 2>>"$folder/stderr.txt"
  ) || true
  touch "$folder/trace.txt"
}
# Compares a trace, with the server's folder written as SERVER, to the
# expected one.
server=
check() {
  local name=$1 expected=$2
  if [[ -n "$server" ]]; then
    sed "s#$server#SERVER#g" "$work/$name/trace.txt" >"$work/$name/trace.cmp"
  else
    cp "$work/$name/trace.txt" "$work/$name/trace.cmp"
  fi
  if diff -u --label expected --label "$name" "$expected" "$work/$name/trace.cmp"; then
    echo "ok: $name"
  else
    echo "FAIL: $name"
    failures=$((failures + 1))
  fi
}

run odbc_sqlite "$programs/sql_table.tam" "Driver=SQLite3;Database=odbc.db"
check odbc_sqlite "$programs/sql_table.expected"

# A host that never answers (or a network that says so at once): the run goes
# on with the error box within the connection timeout.
started=$(date +%s)
run unreachable "$here/unreachable.tam"
elapsed=$(($(date +%s) - started))
if grep -q 'SQL Error -2147467259: ' "$work/unreachable/trace.txt" && grep -q 'went on' "$work/unreachable/trace.txt" &&
  [[ $elapsed -le 20 ]]; then
  echo "ok: unreachable server, $elapsed s"
else
  echo "FAIL: unreachable server ($elapsed s)"
  cat "$work/unreachable/trace.txt"
  failures=$((failures + 1))
fi

bindir=$(ls -d /usr/lib/postgresql/*/bin 2>/dev/null | sort -V | tail -1 || true)
if [[ -z "$bindir" || ! -x "$bindir/initdb" || ! -x "$bindir/pg_ctl" ]]; then
  echo "SKIP: no PostgreSQL server programs (Debian package postgresql); only the ODBC case ran"
  [[ $failures -eq 0 ]] && exit 77
  exit 1
fi

# The server lives in a short folder of its own under /tmp (a socket path
# has at most 107 bytes, and the server's user must reach it). It refuses to
# run as root: as root it runs as nobody.
server=$(mktemp -d /tmp/tamrix-pg.XXXXXX)
chmod 755 "$server"
socket=$server/socket
mkdir -p "$socket"
echo secret >"$server/password"
chmod 644 "$server/password"
as_server=()
if [[ $(id -u) -eq 0 ]]; then
  chown nobody "$server" "$socket"
  as_server=(runuser -u nobody --)
fi
stop_server() {
  "${as_server[@]}" "$bindir/pg_ctl" -D "$server/data" -m immediate stop >/dev/null 2>&1 || true
  cp "$server/log" "$work/server.log" 2>/dev/null || true
  rm -rf "$server"
}
trap stop_server EXIT
"${as_server[@]}" "$bindir/initdb" -D "$server/data" -U tamrix --pwfile="$server/password" \
  --auth-local=scram-sha-256 --auth-host=scram-sha-256 -E UTF8 --no-locale >"$work/initdb.log"
"${as_server[@]}" "$bindir/pg_ctl" -D "$server/data" -l "$server/log" -w -t 60 \
  -o "-k $socket -c listen_addresses= -p 5432" start >/dev/null

encoded_socket=${socket//\//%2F}
url="postgresql://tamrix:secret@$encoded_socket/postgres"

run postgresql "$programs/sql_table.tam" "$url"
check postgresql "$programs/sql_table.expected"

run odbc_postgresql "$programs/sql_table.tam" "Driver={PostgreSQL Unicode};Servername=$socket;Port=5432;Database=postgres;UID=tamrix;PWD=secret"
check odbc_postgresql "$programs/sql_table.expected"

run postgresql_failures "$here/postgresql_failures.tam" "$socket"
check postgresql_failures "$here/postgresql_failures.expected"

# Two programs add 1,000 rows each to one table at the same time.
run writers_setup "$here/rows_table.tam" "$url"
mkdir -p "$work/writer1" "$work/writer2"
run writer1 "$here/add_rows.tam" "$url" &
first=$!
run writer2 "$here/add_rows.tam" "$url" &
second=$!
wait $first $second
count=$(PGPASSWORD=secret "$bindir/psql" -h "$socket" -U tamrix -d postgres -tAc "SELECT count(*) FROM hits")
if [[ "$count" == 2000 ]] && grep -q 'added 1000' "$work/writer1/trace.txt" && grep -q 'added 1000' "$work/writer2/trace.txt"; then
  echo "ok: two writers, $count rows"
else
  echo "FAIL: two writers left $count rows"
  cat "$work/writer1/trace.txt" "$work/writer2/trace.txt"
  failures=$((failures + 1))
fi

[[ $failures -eq 0 ]]
