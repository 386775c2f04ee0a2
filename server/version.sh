# The version of the template beside this file and its digest. To be sourced.
servidor_sql=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
version=$(sed -n '$s/ .*//p' "$servidor_sql/versiones")
huella=$(
  LC_ALL=C
  cd "$servidor_sql"
  cat base/[0-9]*.sql sucursal/[0-9]*.sql | sha256sum | cut -c1-64
)

# The digest that was given the present number.
huella_sellada() { sed -n '$s/.* //p' "$servidor_sql/versiones"; }
