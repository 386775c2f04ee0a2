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
