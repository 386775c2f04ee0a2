# What the tests that are scripts share: assertions, and programs of other times out of the history. To be sourced, with
# `obra`, a folder to work in, set by then.
version1=e01e802ecbd91f1b7df827ae8836c16615cc110f
servidor_sql=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
malas=0 pruebas=0

# es WHAT GOT PATTERN
es() {
  ((pruebas += 1))
  [[ $2 =~ $3 ]] || { printf 'falla: %s\n  se obtuvo: %s\n  se esperaba: %s\n' "$1" "$2" "$3" >&2; ((malas += 1)); }
}

# Tells how it went, and ends.
acaba() {
  echo "$1: $pruebas pruebas, $malas fallas"
  exit "$((malas != 0))"
}

hay_historia() {
  git -C "$servidor_sql" cat-file -e "$version1^{commit}" 2>/dev/null && return
  echo 'falta la historia del repositorio: no se prueba lo que viene de versiones viejas' >&2
  return 1
}

# The program as it was at a commit: `viejo`.
trae_version() {
  rm -rf "$obra/server"
  git -C "$servidor_sql/.." archive "$1" server | tar x -C "$obra"
  viejo=$obra/server/instala
}

# The administrator's connection to a private server, by its data folder.
conecta() {
  PGPORT=$(<"$1/puerto")
  export PGPORT PGHOST=$1 PGUSER=postgres PGDATABASE=tolvara
}
