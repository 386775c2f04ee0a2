# What the scripts of the servers of this machine share (scripts/servidor, scripts/cluster): who runs the programs, what is
# asked of the database as its administrator, the branches. To be sourced, with `raiz`, the root of the repository, and
# `datos`, the data folder, set by the time that a function is called, and falla, administra and exige_en_marcha the
# script's own.
base=tolvara

if ((EUID == 0)); then
  duenio=postgres
  datos_de_fabrica=/var/lib/tolvara
else
  duenio=$(id -un)
  datos_de_fabrica=${XDG_DATA_HOME:-$HOME/.local/share}/tolvara
fi

# Server programs run as their owner, from a folder that he can enter, and without the lock of the script.
como_duenio() (
  cd "$datos"
  exec 9>&-
  if ((EUID == 0)); then exec runuser -u postgres -- "$@"; else exec "$@"; fi
)

busca_programas() {
  local carpeta
  for carpeta in "$(pg_config --bindir 2>/dev/null || true)" /usr/lib/postgresql/*/bin; do
    [[ -x $carpeta/initdb ]] && bin=$carpeta && return
  done
  falla 'falta el servidor PostgreSQL; instale el paquete postgresql-15'
}

# Takes the folder for its owner, and the lock: one order at a time. $1 is the variable that another folder is told with.
toma_carpeta() {
  ((${#datos} <= 90)) || falla "la ruta $datos es muy larga para un socket; escoja otra con $1"
  if [[ -d $datos ]]; then
    creado || [[ -e $datos/.candado || -z $(ls -A "$datos") ]] || falla "la carpeta $datos tiene otras cosas dentro"
  else
    mkdir -p "$datos"
  fi
  if ((EUID == 0)); then
    id postgres >/dev/null 2>&1 || falla 'falta el usuario postgres; instale el paquete postgresql-15'
    chown postgres: "$datos"
  fi
  chmod 700 "$datos"
  if ! como_duenio test -w "$datos" 2>/dev/null; then
    rmdir "$datos" 2>/dev/null || true
    falla "el usuario $duenio no puede entrar a $datos; escoja otra carpeta con $1"
  fi
  exec 9>"$datos/.candado"
  flock 9
}

# The port of the running server, or the one it had last.
puerto() { cat "$datos/puerto" 2>/dev/null || true; }

puerto_ocupado() { (exec 3<>"/dev/tcp/${2:-127.0.0.1}/$1") 2>/dev/null; }

# Is the scheduler that runs the watch installed?
hay_cron() { [[ -e $("$bin/pg_config" --pkglibdir 2>/dev/null || echo "${bin%/bin}/lib")/pg_cron.so ]]; }

# Its settings, for a server that has it.
ajustes_de_cron() {
  cat <<CONF
shared_preload_libraries = 'pg_cron'
cron.database_name = '$base'
cron.use_background_workers = on
cron.log_run = off
cron.log_statement = off
CONF
}

# The server's own messages in Spanish, if the system can compile that language: into the data folder, since nobody may
# have installed it. Prints its name; a server finds the folder through LOCPATH.
prepara_idioma() {
  local idioma=es_MX.UTF-8
  [[ -d $datos/idioma/$idioma ]] || como_duenio sh -c "mkdir -p idioma && localedef -i es_MX -f UTF-8 ./idioma/$idioma" \
    >/dev/null 2>&1 || return 0
  echo "$idioma"
}

# A session gets as much memory as this and no more, in megabytes: more than any option takes, and little enough that the
# sessions of one login together do not make the system kill the server.
memoria_por_sesion=1280

consulta() { administra psql -XAtq -v ON_ERROR_STOP=1 "${@:2}" <<<"$1"; }

sucursales() { consulta "SELECT string_agg(s, ', ') FROM comun.sucursales() AS s;"; }

prepara_base() {
  administra psql -Xq -v ON_ERROR_STOP=1 -d postgres <<SQL
SELECT 'CREATE DATABASE $base' WHERE NOT EXISTS (SELECT FROM pg_database WHERE datname = '$base')
\\gexec
SQL
  administra "$raiz/server/instala" base
  if hay_cron; then
    PGOPTIONS='-c client_min_messages=warning' consulta "
      CREATE EXTENSION IF NOT EXISTS pg_cron;
      SELECT cron.schedule('vigila', '* * * * *', 'SELECT comun.vigila()');" >/dev/null
  else
    echo 'Nadie vigila las sesiones: instale el paquete postgresql-15-cron y arranque otra vez.' >&2
  fi
}

orden_psql() {
  exige_en_marcha
  local ruta=public
  if [[ -n ${1:-} && $1 != -* ]]; then
    ruta+=",$1"
    shift
  fi
  PGOPTIONS="-c search_path=$ruta" administra psql "$@"
}

orden_sucursal() {
  exige_en_marcha
  [[ -z ${2:-} || $2 == --demostracion ]] || uso
  administra "$raiz/server/instala" sucursal "$1"
  echo "Sucursal $1 creada."
  [[ ${2:-} ]] || return 0
  administra "$raiz/server/instala" demostracion "$1"
  anota_claves "$1"
}

# Generates the password of each demonstration user who has none yet; a line is login, password, branch, type.
anota_claves() {
  local login tipo anterior linea claves=$datos/demostracion.claves
  (umask 077 && touch "$claves")
  while IFS='|' read -r login tipo; do
    if anterior=$(grep -m1 "^$login " "$claves"); then
      linea=$anterior
    else
      linea=$(administra "$raiz/server/instala" clave "$login" <<<'')
      linea="$login ${linea##*: }"
    fi
    cut -d' ' -f1,2 <<<"$linea" | sed "s/\$/ $1 $tipo/" >>"$claves"
  done < <(consulta "SELECT usuarioid, rtrim(tipousuarioid) FROM $1.usuario ORDER BY 1;")
  echo "Usuarios y contraseñas de la demostración: $claves"
}
