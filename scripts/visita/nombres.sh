# What the steps of the journey call by name: the options of the menu, the places that are clicked, and nothing else. To be
# sourced by lib.sh. A window that is laid out anew is told here and nowhere else.

# Every option that asks for a right. One row each: name, place in the pane, place in its cascade, module, and what opens: a
# child form with the line that it traces, or a dialog with its title.
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

# The place in the pane, and in its cascade, of each option: of these, and of the two that ask for no right.
declare -A opcion_en=([motivos-baja]='7 3' [clasificacion-de-creditos]='6 4')
for opcion in "${opciones[@]}"; do
  IFS='|' read -r nombre lugar cascada _ <<<"$opcion"
  opcion_en[$nombre]="$lugar $cascada"
done

# Every option of the second program: name, place of its pane behind "Inicio", place in the pane, module that it asks for
# first.
operaciones='Tolvara Operaciones V. 0.0.7a' # title of its main window
operaciones_en_orden=(
  'precierre|1|1|0910'
  'reporte-de-personas|1|2|0442'
  'activos|2|1|0909'
  'depreciaciones|2|2|0908'
  'clasificaciones|3|1|0903'
  'asesores|4|1|0904'
  'grupos|4|2|0449'
  'bienes|4|3|0907'
  'estados|5|1|0213'
  'ciudades|5|2|0214'
  'tipos-de-asentamiento|5|3|0906'
  'colonias|5|4|0906'
  'cuentas|6|1|0901'
  'listas|7|1|0911'
  'bitacora|7|2|0912'
  'permisos|7|3|0913'
  'tablero|7|4|0914'
)
declare -A operacion_en=()
for operacion in "${operaciones_en_orden[@]}"; do operacion_en[${operacion%%|*}]=${operacion#*|}; done

# Places of the screen, "x y": of a form at the place where it opens.
declare -A punto=(
  [tasas-nuevo]='158 520' [tasa-fecha-inicial]='265 215'
  [usuario-fila]='230 202' [usuario-borrar]='870 217'
)
# The same inside the active window.
declare -A punto_de_ventana=([usuario-login]='337 101' [usuario-buscar]='757 104')
