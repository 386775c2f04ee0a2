# What the measurements share: a private server of their own, with the settings that an institution gets and the branch
# norte of the demonstration, and the verdict. To be sourced, with the arguments. With --exige a limit that is exceeded
# ends the measurement with 1; without, it only tells.
obra=$(mktemp -d)
export TOLVARA_DATOS=$obra/datos
. "$(dirname "${BASH_SOURCE[0]}")/../apoyo/pruebas.sh"
servidor=$servidor_sql/../scripts/servidor
trap '"$servidor" stop >/dev/null; rm -rf "$obra"' EXIT
chmod 711 "$obra"

case "$*" in
  '' | --exige) ;;
  *) sed -n '2,/^set /{/^#/s/^# \{0,1\}//p}' "$0" >&2; exit 2 ;;
esac
exige=${1:-}

carga() { cut -d' ' -f1 /proc/loadavg; }

prepara_servidor() {
  "$servidor" start >/dev/null
  "$servidor" sucursal norte --demostracion >/dev/null
  conecta "$TOLVARA_DATOS"
}

administra() { psql -XAtq -v ON_ERROR_STOP=1 "$@"; }

# copia_sucursal FROM DATABASE TO DATABASE: a branch with all its rows under another name, faster than it could be made.
copia_sucursal() {
  administra -d "$4" -v s="$3" >/dev/null <<<"SELECT 'CREATE ROLE sucursal_' || :'s' WHERE to_regrole('sucursal_' || :'s') IS NULL \gexec
    INSERT INTO comun.version (objeto, version, huella) SELECT :'s', version, huella FROM comun.version WHERE objeto = 'comun'"
  [[ -f $obra/$1.sql ]] || pg_dump -n "$1" -f "$obra/$1.sql" "$2"
  sed "s/\b$1\b/$3/g; s/\bsucursal_$1\b/sucursal_$3/g" "$obra/$1.sql" |
    PGOPTIONS='-c synchronous_commit=off -c client_min_messages=warning' administra -1 -d "$4" >/dev/null
  PGOPTIONS="-c client_min_messages=warning" administra -d "$4" -c "GRANT sucursal_$3 TO adriana"
}

# A password for adriana, for the sessions of pgbench; and one query of hers, in milliseconds: tarda DATABASE BRANCH QUERY
da_clave() {
  PGPASSWORD=$(head -c 512 /dev/urandom | LC_ALL=C tr -dc 'a-z0-9' | head -c 16)
  export PGPASSWORD
  administra -v clave="$PGPASSWORD" <<<"SET password_encryption = 'scram-sha-256'; ALTER ROLE adriana PASSWORD :'clave'"
}
tarda() {
  PGOPTIONS="-c search_path=public,$2" psql -XAtq -h 127.0.0.1 -U adriana -d "$1" -c '\timing on' -c "$3" |
    sed -n 's/^\(Duración\|Time\): \([0-9.,]*\) ms.*/\2/p' | tr , . | tail -n 1
}

# guarda DATABASE BRANCH WAIT: milliseconds of a save, of `cuantas` by `guion`
guarda() {
  PGOPTIONS="-c search_path=public,$2 -c synchronous_commit=$3" \
    pgbench -h 127.0.0.1 -U adriana -n -t "$cuantas" -f "$obra/guion" "$1" 2>&1 |
    sed -n 's/^latency average = \([0-9.]*\) ms.*/\1/p'
}

mediana() { sort -g | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

# cociente A B: A / B, with two decimals.
cociente() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f\n", (b > 0 ? a / b : 0) }'; }

# limite WHAT GOT MOST
limite() {
  if awk -v a="$2" -v b="$3" 'BEGIN { exit !(a <= b) }'; then
    echo "$1: $2 (hasta $3)"
  else
    echo "$1: $2, más de $3"
    [[ -z $exige ]] || malas=1
  fi
}
