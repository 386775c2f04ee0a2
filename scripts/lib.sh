# What the scripts share: the root of the repository, the packages that they need, the build. To be sourced.
raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

paquetes_programa=(g++ cmake ninja-build pkg-config libfox-1.6-dev libpq-dev fonts-liberation) # the face "arial"
paquetes_servidor=(postgresql-15 postgresql-15-cron)
paquetes_cluster=("${paquetes_servidor[@]}" patroni etcd-server etcd-client)
paquetes_pantalla=(xvfb openbox xdotool xclip imagemagick x11-utils)
paquetes_pruebas=(libgtest-dev python3) # whose csv reads the exports back
paquetes_revision=(clang-format postgresql-15-pgtap libtap-parser-sourcehandler-pgtap-perl pgbackrest)

falla() {
  printf '%s: %s\n' "$(basename "$0")" "$*" >&2
  exit 1
}

instalado() { [[ $(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null) == installed ]]; }

# Installs the packages of the list that are missing. Without any, needs neither the network nor root.
asegura_paquetes() {
  local paquete faltan=() root=()
  for paquete; do instalado "$paquete" || faltan+=("$paquete"); done
  ((${#faltan[@]})) || return 0
  echo "Se instalan los paquetes que faltan: ${faltan[*]}"
  if ((EUID != 0)); then
    command -v sudo >/dev/null ||
      falla "hace falta ser root, o tener sudo, para instalar; como root corra: apt-get install ${faltan[*]}"
    root=(sudo)
  fi
  "${root[@]}" sh -s -- "${faltan[@]}" <<'SH' || falla "no se pudieron instalar: ${faltan[*]}"
set -e
# The server package would make and start a cluster of its own, those of the cluster start their services. Ours are
# private, see scripts/servidor and scripts/cluster.
ajuste=/etc/postgresql-common/createcluster.d/tolvara.conf
arranques=/usr/sbin/policy-rc.d
[ ! -e "$arranques" ] || arranques=
trap 'rm -f "$ajuste" $arranques' EXIT
mkdir -p "${ajuste%/*}"
echo 'create_main_cluster = false' >"$ajuste"
[ -z "$arranques" ] || { printf '#!/bin/sh\nexit 101\n' >"$arranques" && chmod +x "$arranques"; }
export DEBIAN_FRONTEND=noninteractive
apt-get -qq update </dev/null
apt-get -qq -o DPkg::Lock::Timeout=120 install -y --no-install-recommends "$@" </dev/null
case " $* " in *' etcd-server '* | *' patroni '*)
  [ ! -x "$(command -v systemctl)" ] || systemctl -q disable etcd patroni 2>/dev/null || true ;;
esac
SH
}

# Configures and builds a preset of CMakePresets.json in build/PRESET.
construye() {
  (
    cd "$raiz"
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1" --parallel "$(nproc)"
  )
}

# --- demonstration -------------------------------------------------------------------------------------------------

sucursal=norte   # the branch of the demonstration
usuario=adriana  # its administrator

servidor() { "$raiz/scripts/servidor" "$@"; }

# A line of the state of the server, which must be running: Datos, Puerto, Base.
del_servidor() { servidor status | sed -n "s/^$1: //p"; }

# Starts the server and, the first time, creates the branch with its users.
prepara_demostracion() {
  servidor start
  [[ $(servidor psql -XAtc "SELECT to_regnamespace('$sucursal')") ]] || servidor sucursal "$sucursal" --demostracion
}

# The password of a user of the demonstration, as it was generated.
clave_de() { sed -n "s/^$1 \([^ ]*\) $sucursal .*/\1/p" "$(del_servidor Datos)/demostracion.claves"; }

# Opens the client of preset $1, in place of this shell, with everything but the password filled in. Settings and files
# are kept in the folder $2 and nowhere else. What the user has set there stays, but for the port, which is the server's
# to choose. $3 is the program, if it is not the client itself.
abre_cliente_en() {
  local preset=$1 casa=$2 programa=${3:-corvena} puerto
  local ajustes=$casa/.foxrc/Tolvara/corvena
  puerto=$(del_servidor Puerto)
  if [[ -f $ajustes ]]; then
    sed -i "s/^puerto=.*/puerto=$puerto/" "$ajustes"
  else
    mkdir -p "${ajustes%/*}"
    cat >"$ajustes" <<AJUSTES
[SETTINGS]
user=$usuario
sucursal=$sucursal
servidor=127.0.0.1
puerto=$puerto
db=$(del_servidor Base)
userdb=$usuario
AJUSTES
  fi
  [[ -z ${DISPLAY:-} ]] || export XAUTHORITY=${XAUTHORITY:-$HOME/.Xauthority}
  cd "$casa"
  exec env HOME="$casa" LC_ALL="$(idioma)" "$raiz/build/$preset/$programa"
}

# A Spanish UTF-8 locale if the machine has one, otherwise the one that every Debian has.
idioma() {
  local disponibles
  disponibles=$(locale -a)
  grep -m1 -i '^es_MX\.utf-\?8$' <<<"$disponibles" || grep -m1 -i '^es_.*\.utf-\?8$' <<<"$disponibles" || echo C.UTF-8
}
