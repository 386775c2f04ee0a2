# Every option of the menu, chosen by a user who has the right to all of them.
#
# One row each: name, place in the pane, place in its cascade, module, and what opens: a child form with the line that
# it traces, or a dialog with its title.
opciones=(
  'monedas|1||0203|hija|terminando creacion frm pais'
  'bancos|2||0204|hija|terminando creacion frm banco'
  'movimientos-bancarios|3||0205|hija|terminando creacion frm tipomovibanco'
  'tipo-de-movimientos|4||0207|hija|terminando creacion frm tipomovimiento'
  'tipo-de-inversion|5||0212|hija|terminando creacion frm tipoinversion'
  'tipo-de-prestamos|6|1|0208|hija|terminando creacion frm tipoprestamo'
  'estados-del-credito|6|2|0210|dialogo|Estados del Credito'
  'finalidades|6|3|0211|dialogo|Finalidades'
  'tipo-de-garantias|6|5|0209|dialogo|Tipo de Garantia'
  'tipo-tasa-interes|6|6|0217|dialogo|Tipo Tasa Variables'
  'tasa-interes|6|7|0217|dialogo|Tasas Variables'
  'tipo-de-socios|7|1|0217|dialogo|Socios'
  'ocupaciones|7|2|0450|hija|terminando creacion frm ocupacion'
  'usuarios|8|1|0206|hija|terminando creacion frm usuario'
  'tipo-de-usuarios|8|2|0216|dialogo|Tipo de Usuarios'
  'modulos|8|3|0215|dialogo|Modulo'
  'inpc|9|1|0428|hija|terminando creacion frm pais'
  'udis|9|2|0427|hija|terminando creacion frm pais'
  'recargos|9|3|0429|hija|terminando creacion frm pais'
  'formulas|10|1|0218|dialogo|Formulas de Calculos'
  'tipo-promocion|10|2|0420|hija|terminando creacion frm tipopromocion'
  'tasas|10|3|0424|hija|terminando creacion y fijando foco del dialogo WTASA'
  'dias-inabiles|10|4|0448|hija|terminando creacion frm pais'
  'conceptos-scoring|10|5|0452|dialogo|Concepto Scoring'
)

# The option of a row, chosen by $2 (the user of the session if not told): opens, and is closed again.
abre_opcion() {
  IFS='|' read -r nombre lugar cascada modulo clase muestra <<<"$1"
  paso "Se abre la opción $nombre"
  elige "$lugar" "$cascada"
  exige_traza "SELECT * FROM spspermisomodulo('${2:-$usuario}','$modulo');"
  case $clase in
    hija) exige_traza "$muestra" ;;
    dialogo) espera_ventana "$muestra" ;;
  esac
  captura "opcion-$nombre"
  teclea alt+c
  [[ $clase != dialogo ]] || espera_cierre
  espera_ventana "$principal"
}

# The same when $2 has no right to it.
niega_opcion() {
  IFS='|' read -r nombre lugar cascada modulo _ <<<"$1"
  paso "Se niega a $2 la opción $nombre"
  espera_ventana "$principal"
  elige "$lugar" "$cascada"
  responde 'Acceso NO AUTORIZADO' Return "negada-a-$2-$nombre"
  exige_traza "SELECT * FROM spspermisomodulo('$2','$modulo');"
}

for opcion in "${opciones[@]}"; do
  abre_opcion "$opcion"
done

paso 'Motivos Baja se abre sin preguntar por un permiso'
elige 7 3
exige_traza 'terminando creacion frm motivobaja'
captura opcion-motivos-baja
teclea alt+c

paso 'Clasificacion de Creditos no hace nada'
elige 6 4
captura opcion-clasificacion-de-creditos
espera_ventana "$principal"
