# Every option of the menu, chosen by a user who has the right to all of them.

# The option of a row, chosen by $2 (the user of the session if not told): opens, and is closed again.
abre_opcion() {
  IFS='|' read -r nombre _ _ modulo clase muestra <<<"$1"
  paso "Se abre la opción $nombre"
  elige "$nombre"
  exige_traza "SELECT * FROM spspermisomodulo('${2:-$usuario}','$modulo');"
  case $clase in
    hija) exige_traza "$muestra" ;;
    dialogo) espera_ventana "$muestra" ;;
  esac
  captura "opcion-$nombre" "$nombre"
  teclea alt+c
  [[ $clase != dialogo ]] || espera_cierre
  espera_ventana "$principal"
}

# The same when $2 has no right to it.
niega_opcion() {
  IFS='|' read -r nombre _ _ modulo _ <<<"$1"
  paso "Se niega a $2 la opción $nombre"
  espera_ventana "$principal"
  elige "$nombre"
  responde 'Acceso NO AUTORIZADO' Return "negada-a-$2-$nombre" sin-permiso
  exige_traza "SELECT * FROM spspermisomodulo('$2','$modulo');"
}

for opcion in "${opciones[@]}"; do
  abre_opcion "$opcion"
done

paso 'Motivos Baja se abre sin preguntar por un permiso'
elige motivos-baja
exige_traza 'terminando creacion frm motivobaja'
captura opcion-motivos-baja motivos-baja
teclea alt+c

paso 'Clasificacion de Creditos no hace nada'
elige clasificacion-de-creditos
captura opcion-clasificacion-de-creditos
espera_ventana "$principal"
