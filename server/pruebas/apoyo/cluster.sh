# What the trials of the cluster share: one of their own, sessions that write meanwhile, and the account of what these were
# told. To be sourced, with `obra`, a folder to work in.
apoyo=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cluster=$apoyo/../../../scripts/cluster
export TOLVARA_CLUSTER=$obra/cluster
escritores=()

hay_cluster() { command -v patroni >/dev/null && command -v etcd >/dev/null && command -v etcdctl >/dev/null; }

escritor() { /usr/bin/python3 "$apoyo/escritor.py" "$@"; }
ahora() { date +%s.%N; }
conexion() { "$cluster" conexion | sed -n "s/^$1: //p"; }

# A cluster with a branch of the demonstration.
prepara_cluster() {
  chmod 711 "$obra"
  "$cluster" start >/dev/null
  "$cluster" sucursal norte --demostracion >/dev/null
  anfitriones=$(conexion Anfitriones)
}

# escriben [SESSIONS [HOST [--cree]]]: sessions that write from now on, wherever one can, or to that host and no other.
escriben() {
  local destino=${2:-"$anfitriones target_session_attrs=read-write"} corrida
  corrida=$(date +%s%N)
  /usr/bin/python3 "$apoyo/escritor.py" escribe "$obra/cuenta.$corrida" "host=$destino port=$(conexion Puerto) dbname=tolvara" \
    "$TOLVARA_CLUSTER/demostracion.claves" "${1:-8}" "$corrida" "${@:3}" &
  escritores+=("$!")
  cuenta=$obra/cuenta.$corrida
  : >>"$cuenta"
}

# The leader dies: which one, and when it was dead.
muere() { muerto=$("$cluster" mata lider) && muerte=$(ahora); }

callan() {
  ((${#escritores[@]})) || return 0
  kill "${escritores[@]}" 2>/dev/null || true
  wait "${escritores[@]}" 2>/dev/null || true
  escritores=()
}

# vuelven SINCE SECONDS [ACCOUNT]: waits until a save has been answered since that moment, and some more were.
vuelven() {
  local limite=$((SECONDS + $2))
  until awk -v d="$1" '$2 == "guardado" && $1 > d + 1 { n++ } END { exit n < 20 }' "${3:-$cuenta}"; do
    ((SECONDS < limite)) || return 1
    sleep 0.5
  done
}

# What is in the database, against what the sessions were told.
cuenta() {
  "$cluster" psql norte -XAtc 'SELECT descripcioncalculo, count(*) FROM calculo GROUP BY 1' | escritor cuenta "${1:-$cuenta}"
}

corte() { escritor corte "${2:-$cuenta}" "$1"; }

# What sessions were refused with, without what tells one session from another.
rechazos() { grep -hoP '^\S+ rechazo \K.*' "${1:-$cuenta}" | sort | uniq -c | sort -rn || true; }

# Leaves no process and no file.
recoge() {
  callan
  "$cluster" stop >/dev/null 2>&1 || true
  rm -rf "$obra"
}
