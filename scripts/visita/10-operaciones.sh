# The second program: each option of its menu, opened, worked with and refused, and a date as the forms ask for one. Whoever
# opens something here waits until it has the keyboard before he types on.

# A stand-in for the printer, first on the path of the client: keeps what it is called with and what it would print.
pon_impresora() {
  mkdir -p "$temporal/bin"
  cat >"$temporal/bin/lpr" <<'LPR'
#!/bin/sh
echo "$*" >"$HOME/impreso.orden"
cat "$2" >"$HOME/impreso.txt"
LPR
  chmod +x "$temporal/bin/lpr"
  PATH=$temporal/bin:$PATH
}

# Chooses the option with this name.
opera() {
  local panel lugar
  IFS='|' read -r panel lugar _ <<<"${operacion_en[$1]:?}"
  espera_ventana "$operaciones"
  menu Inicio
  salta_paneles "$panel"
  baja "$lugar"
  teclea Return
}
salta_paneles() { teclea $(printf 'Right %.0s' $(seq "$1")); }

# The same for one that opens a dialog with the title $2.
opera_dialogo() {
  opera "$1"
  espera_ventana "$2"
}
# Closes it.
cierra_dialogo() {
  teclea alt+c
  espera_ventana "$operaciones"
}

# Opens the search dialog by the key $1.
busca() {
  ventana=$(xdotool getactivewindow)
  teclea "$1"
  espera_sin_titulo
}

# In a search dialog: filters by $1, which the server is asked for by $2, and takes the last row; its picture is $3.
filtra_y_toma() {
  salta buscar lista
  escribe "$1"
  salta filtro
  teclea space # the lens
  exige_traza "SELECT * FROM $2('$1');"
  salta lupa buscar
  teclea End # the last row of the list
  captura "$3" "busqueda-$3"
  teclea alt+a
}

# The option of a row of `operaciones_de` when the user $1 has no right to it.
niega_operacion() {
  paso "Se niega a $1 la operación $2"
  opera "$2"
  responde 'Acceso NO AUTORIZADO' Return "operacion-negada-$2"
  exige_traza "SELECT * FROM spspermisomodulo('$1','${operacion_en[$2]##*|}');"
}

paso 'Se abre el segundo programa'
pon_impresora
abre_cliente tolvara-operaciones
entra "$usuario" "$(clave_de "$usuario")" bienvenida-a-operaciones
espera_ventana "$operaciones"
captura operaciones
menu Inicio
salta_paneles 4
captura operaciones-menu operaciones
teclea Escape

paso 'Un asesor se agrega y se borra'
opera asesores
exige_traza 'terminando creacion frm pais'
nuevo 97 'Ñico Lagos'
captura asesores asesores
confirma alt+a 'Asesor' asesor-registrar
exige_dato "SELECT nomasesor FROM asesor WHERE asesorid = 97" 'Ñico Lagos'
confirma alt+r 'Asesor' asesor-borrar
exige_dato "SELECT count(*) FROM asesor WHERE asesorid = 97" 0
teclea alt+c

paso 'Se ven las clasificaciones de créditos'
opera clasificaciones
exige_traza 'terminando creacion frm clasificacioncredito'
captura clasificaciones clasificacion-de-creditos
teclea alt+c

paso 'Un grupo se agrega y se borra'
opera grupos
exige_traza 'terminando creacion frm grupo'
nuevo '' 'Grupo de los Soñadores'
confirma alt+a 'Grupo' grupo-registrar
exige_dato "SELECT count(*) FROM grupo WHERE grupo = 'Grupo de los Soñadores'" 1
elige_ultimo
exige_campo 'Grupo de los Soñadores'
captura grupos grupos
confirma alt+r 'Grupo' grupo-borrar
exige_dato "SELECT count(*) FROM grupo WHERE grupo = 'Grupo de los Soñadores'" 0
teclea alt+c

paso 'Un tipo de depreciación se agrega, se modifica y se borra'
opera_dialogo depreciaciones 'Depreciaciones'
nuevo '' 'Herramienta' 12.5 10 5000
opta 1
llena 90
pon_cuentas 4
captura depreciacion-nueva depreciaciones
confirma alt+a 'Tipo de Depreciacion' depreciacion-registrar
exige_dato "SELECT depretasacontable, depreporcentaje FROM depreciacion WHERE depredescripcion = 'Herramienta'" '12.5000|90.0000'
espera_ventana 'Depreciaciones'
elige_ultimo
exige_campo 'Herramienta'
llena 'Herramienta del taller'
confirma alt+a 'Tipo de Depreciacion' depreciacion-guardar
exige_dato "SELECT count(*) FROM depreciacion WHERE depredescripcion = 'Herramienta del taller'" 1
espera_ventana 'Depreciaciones'
confirma alt+r 'Tipo de Depreciacion' depreciacion-borrar
exige_dato "SELECT count(*) FROM depreciacion WHERE depredescripcion = 'Herramienta del taller'" 0
espera_ventana 'Depreciaciones'
cierra_dialogo

paso 'Un activo se agrega por sus tres páginas'
opera_dialogo activos 'Activo'
captura activos
nuevo '' # the server numbers it
llena 'QZ-1' 'Torno de prueba'
opta 1
llena 1000 50 900 'Bodega' 'S-77' 1200
opta 1
baja 1
captura activo-generales activo-generales
hojea
escribe '1x/2/2026' # the letter is refused
exige_campo '1/2/2026'
salta fecha
busca space
captura calendario calendario
pon_dia 2 calendario-otro-dia
espera_ventana 'Activo'
vuelve calendario
exige_campo '2/2/2026'
salta fecha calendario
llena 10 20
baja 1
captura activo-contable activo-contable
hojea
llena '3/2/2026'
salta calendario
teclea space
salta deduccion
llena 10 20
opta 1
escribe 500
captura activo-fiscal activo-fiscal
confirma alt+a 'Activo' activo-registrar
exige_dato "SELECT activodescripcion, feciniciodepconta, feciniciodepfiscal, actdeduccioninme FROM activo WHERE activoclave = 'QZ-1'" \
  'Torno de prueba|2026-02-02|2026-02-03|S'

paso 'Se modifica y se borra'
espera_ventana 'Activo'
hojea # round to the first one
elige_ultimo
exige_campo 'QZ-1'
llena 'QZ-2'
confirma alt+a 'Activo' activo-guardar
exige_dato "SELECT activoclave FROM activo WHERE activodescripcion = 'Torno de prueba'" 'QZ-2'
espera_ventana 'Activo'
confirma alt+r 'Activo' activo-borrar
exige_dato "SELECT count(*) FROM activo WHERE activodescripcion = 'Torno de prueba'" 0
espera_ventana 'Activo'
cierra_dialogo

paso 'Una ciudad se agrega y se borra'
opera_dialogo ciudades 'Ciudad'
nuevo '' QZ 'Zona de la Peña'
baja 1 # the first state
captura ciudad-nueva ciudades
confirma alt+a 'Ciudadades' ciudad-registrar
exige_dato "SELECT estadomexid FROM ciudadesmex WHERE nombreciudadmex = 'Zona de la Peña'" 1
espera_ventana 'Ciudad'
elige_ultimo # &Buscar takes two figures
salta clave
exige_campo 'Zona de la Peña'
confirma alt+r 'Ciudadades' ciudad-borrar
exige_dato "SELECT count(*) FROM ciudadesmex WHERE nombreciudadmex = 'Zona de la Peña'" 0
espera_ventana 'Ciudad'
cierra_dialogo

paso 'Un estado se agrega y se borra'
opera_dialogo estados 'Estados'
nuevo '' QZ 'Tierra de la Peña'
confirma alt+a 'EstadoMex' estado-registrar
exige_dato "SELECT nombreestadomex FROM estadosmex WHERE claveestadomex = 'QZ'" 'Tierra de la Peña'
espera_ventana 'Estados'
elige_ultimo
salta clave
exige_campo 'Tierra de la Peña'
captura estado-elegido estados
confirma alt+r 'EstadoMex' estado-borrar
exige_dato "SELECT count(*) FROM estadosmex WHERE claveestadomex = 'QZ'" 0
espera_ventana 'Estados'
cierra_dialogo

paso 'Un tipo de asentamiento se agrega y se borra'
opera_dialogo tipos-de-asentamiento 'Tipos de asentamiento'
nuevo 77 'Ranchería Ñandú'
captura tipo-de-asentamiento tipos-de-asentamiento
confirma alt+a 'Tipo de asentamiento' tipo-de-asentamiento-registrar
exige_dato "SELECT rtrim(asentamiento) FROM tipoasentamiento WHERE tipoasentamientoid = 77" 'Ranchería Ñandú'
espera_ventana 'Tipos de asentamiento'
confirma alt+r 'Tipo de asentamiento' tipo-de-asentamiento-borrar
exige_dato "SELECT count(*) FROM tipoasentamiento WHERE tipoasentamientoid = 77" 0
espera_ventana 'Tipos de asentamiento'
cierra_dialogo

paso 'Las colonias se buscan por código postal, y una se agrega y se borra'
codigo=$(servidor psql "$sucursal" -XAtc 'SELECT cp FROM colonias ORDER BY coloniaid LIMIT 1')
opera_dialogo colonias 'Colonias'
vuelve mostrar codigo
escribe "$codigo"
teclea alt+m
exige_traza "SELECT * FROM spscoloniacp($codigo);"
captura colonias colonias
nuevo '' 'Peña Alta' "$codigo"
opta 2
baja 1
captura colonia-nueva
confirma alt+a 'Colonia' colonia-registrar
exige_dato "SELECT cp FROM colonias WHERE nombrecolonia = 'Peña Alta'" "$codigo"
espera_ventana 'Colonias'
confirma alt+r 'Colonia' colonia-borrar
exige_dato "SELECT count(*) FROM colonias WHERE nombrecolonia = 'Peña Alta'" 0
espera_ventana 'Colonias'
cierra_dialogo

paso 'Una cuenta se busca en el árbol del catálogo'
opera_dialogo cuentas 'Catálogo de cuentas'
captura cuentas
vuelve cuenta arbol
escribe 'caja chica'
exige_campo 'caja chica'
captura cuenta-hallada catalogo-de-cuentas
salta busca arbol
exige_campo "$(servidor psql "$sucursal" -XAtc "SELECT rtrim(cuentaid) FROM catalogo_ctas WHERE cuentanombre ILIKE '%caja chica%'
                                                ORDER BY cuentaid LIMIT 1")"

paso 'Una cuenta se agrega debajo de otra, que se busca, y se borra'
nuevo '9999-77' 'Cuenta de la Peña'
salta acumula
busca space
escribe '1301x' # no account continues so: the letter is taken back
exige_campo '1301'
captura busqueda-de-cuentas busqueda
salta buscar lista
escribe 'Bancos'
salta filtro
teclea space
salta lupa buscar
teclea Home
captura busqueda-de-cuentas-filtradas
teclea alt+a
espera_ventana 'Catálogo de cuentas'
salta acumula lupa
opta 2
opta 1
opta 2
captura cuenta-nueva
confirma alt+a 'Cuenta' cuenta-registrar
exige_dato "SELECT cuentanombre, identificacion, tipo_cta, naturaleza FROM catalogo_ctas WHERE cuentaid = '9999-77'" \
  'Cuenta de la Peña|1|A|D'
espera_ventana 'Catálogo de cuentas'
captura cuenta-agregada
confirma alt+r 'Cuenta' cuenta-borrar
exige_dato "SELECT count(*) FROM catalogo_ctas WHERE cuentaid = '9999-77'" 0
espera_ventana 'Catálogo de cuentas'
cierra_dialogo

paso 'Un bien se agrega con su persona'
opera_dialogo bienes 'Bienes de una persona'
busca alt+p
filtra_y_toma 'Mar' spssujetos personas
espera_ventana 'Bienes de una persona'
teclea alt+n
espera_ventana 'Bien'
llena 'Adriana Supuesto' 'Terreno de la Peña' 'Baldo' 'Libro 3' 'Ninguna' 90000 80000 70000 50
captura bien bien
teclea alt+a
espera_ventana 'Bienes de una persona'
captura bienes bienes
confirma alt+a 'Bienes' bienes-guardar
exige_dato "SELECT valorfiscal, adjudicado FROM bienes WHERE describien = 'Terreno de la Peña'" '80000.00|N'
espera_ventana 'Bienes de una persona'

paso 'Los de un socio se buscan por su clave o su nombre'
busca alt+s
filtra_y_toma 'Quimera' spssociocajaf socios
espera_ventana 'Bienes de una persona'
captura bienes-del-socio
cierra_dialogo

cierra_reporte() {
  teclea Escape
  espera_ventana "$1"
}

paso 'Se corre el pre-cierre del mes pasado y se exporta'
dia=$(date -d "$(date +%Y-%m-01) -1 day" +%d/%m/%Y)
opera_dialogo precierre 'Pre-Cierre'
escribe "$dia"
captura precierre precierre
teclea alt+p
espera_ventana 'Pre-Corte'
captura precierre-pregunta
teclea alt+s
espera 'no aparece el resultado' es_otra 'Pre-Corte' "$ventana"
exige_traza "select * from precierre('$dia');"
responde 'Pre-Corte' Return precierre-resultado
espera_ventana 'Pre-Cierre'
salta ejecutar
teclea space # &Consulta, whose key is that of &Cerrar too
espera_ventana 'Reporte'
exige_traza 'Termina generacion correctamente'
captura precierre-exportado
exige_dato "SELECT count(*) FROM precorte" "$(($(wc -l <"$HOME/reporte.csv") - 2))"
cierra_reporte 'Pre-Cierre'
teclea Escape

paso 'Se pide el reporte de personas, de la sucursal y consolidado, y se imprime'
opera_dialogo reporte-de-personas 'Busqueda Sujeto'
escribe 'Mar'
captura reporte-personas reporte-personas
salta paterno materno nombre otros consolidado imprimir
teclea space # &Consulta
espera_ventana 'Reporte'
exige_traza "SELECT * FROM spssujeto('Mar','','','');"
captura reporte-personas-visto reporte
cierra_reporte 'Busqueda Sujeto'
vuelve consulta imprimir
teclea space # CONSOLIDADO
salta consolidado imprimir
teclea space # &Consulta
espera_ventana 'Reporte'
exige_traza "SELECT * FROM spssujetoc('Mar','','','');"
captura reporte-personas-consolidado
cierra_reporte 'Busqueda Sujeto'
teclea alt+i
espera 'no se imprime el reporte' cmp "$HOME/reporte.txt" "$HOME/impreso.txt"
espera 'no se imprime con su orden' grep -qx -- '-l reporte.txt' "$HOME/impreso.orden"
teclea Escape
espera_ventana "$operaciones"
teclea ctrl+q
espera_fin

paso 'Entra al segundo programa un usuario sin derechos'
abre_cliente tolvara-operaciones
entra camila "$(clave_de camila)" bienvenida-a-operaciones-sin-derechos
for operacion in "${operaciones_en_orden[@]}"; do
  niega_operacion camila "${operacion%%|*}"
done
espera_ventana "$operaciones"
teclea ctrl+q
espera_fin
