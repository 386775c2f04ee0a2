# The second program: its forms, its reports, and how both are reached.
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

operaciones='Tolvara Operaciones V. 0.0.7a' # title of its main window

# Chooses the entry at place $2 of the pane at place $1 behind "Inicio".
opcion() {
  espera_ventana "$operaciones"
  menu Inicio
  teclea $(printf 'Right %.0s' $(seq "$1"))
  baja "$2"
  teclea Return
}

paso 'Se abre el segundo programa'
pon_impresora
abre_cliente tolvara-operaciones
entra "$usuario" "$(clave_de "$usuario")" bienvenida-a-operaciones
espera_ventana "$operaciones"
captura operaciones

paso 'Un asesor se agrega y se borra'
opcion 4 1
exige_traza 'terminando creacion frm pais'
nuevo 97 'Ñico Lagos'
captura asesores
confirma alt+a 'Asesor' asesor-registrar
exige_dato "SELECT nomasesor FROM asesor WHERE asesorid = 97" 'Ñico Lagos'
confirma alt+r 'Asesor' asesor-borrar
exige_dato "SELECT count(*) FROM asesor WHERE asesorid = 97" 0
teclea alt+c

paso 'Se ven las clasificaciones de créditos'
opcion 3 1
exige_traza 'terminando creacion frm clasificacioncredito'
captura clasificaciones
teclea alt+c

paso 'Un grupo se agrega y se borra'
opcion 4 2
exige_traza 'terminando creacion frm grupo'
nuevo '' 'Grupo de los Soñadores'
confirma alt+a 'Grupo' grupo-registrar
exige_dato "SELECT count(*) FROM grupo WHERE grupo = 'Grupo de los Soñadores'" 1
elige_ultimo
exige_campo 'Grupo de los Soñadores'
captura grupos
confirma alt+r 'Grupo' grupo-borrar
exige_dato "SELECT count(*) FROM grupo WHERE grupo = 'Grupo de los Soñadores'" 0
teclea alt+c

paso 'Un tipo de depreciación se agrega, se modifica y se borra'
opcion 2 2
espera_ventana 'Depreciaciones'
nuevo '' 'Herramienta' 12.5 10 5000
teclea Down Tab Tab
llena 90
pon_cuentas 4
captura depreciacion-nueva
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
teclea alt+c

paso 'Un activo se agrega por sus tres páginas'
opcion 2 1
espera_ventana 'Activo'
captura activos
pulsa 500 274 # the code
llena 'QZ-1' 'Torno de prueba'
teclea Down Tab Tab
llena 1000 50 900 'Bodega' 'S-77' 1200
teclea Down Tab Tab Down
captura activo-generales
pulsa 479 250 # the second page, and its first field
pulsa 560 274
llena '1/2/2026'
teclea space
espera_sin_titulo
teclea Tab Tab space # the second day
teclea alt+a
espera_ventana 'Activo'
teclea Tab
llena 10 20
teclea Down
captura activo-contable
pulsa 605 250 # the third
pulsa 560 274
llena '3/2/2026'
teclea Tab space Tab
llena 10 20
teclea Down Tab Tab
escribe 500
captura activo-fiscal
confirma alt+a 'Activo' activo-registrar
exige_dato "SELECT activodescripcion, feciniciodepconta, actdeduccioninme FROM activo WHERE activoclave = 'QZ-1'" \
  'Torno de prueba|2026-02-02|S'

paso 'Se modifica y se borra'
espera_ventana 'Activo'
pulsa 376 250 # the first page
elige_ultimo
pulsa 500 274
exige_campo 'QZ-1'
llena 'QZ-2'
confirma alt+a 'Activo' activo-guardar
exige_dato "SELECT activoclave FROM activo WHERE activodescripcion = 'Torno de prueba'" 'QZ-2'
espera_ventana 'Activo'
confirma alt+r 'Activo' activo-borrar
exige_dato "SELECT count(*) FROM activo WHERE activodescripcion = 'Torno de prueba'" 0
espera_ventana 'Activo'
teclea alt+c

paso 'Una ciudad se agrega y se borra'
opcion 5 2
espera_ventana 'Ciudad'
nuevo '' QZ 'Zona de la Peña'
teclea Down # the first state
captura ciudad-nueva
confirma alt+a 'Ciudadades' ciudad-registrar
exige_dato "SELECT estadomexid FROM ciudadesmex WHERE nombreciudadmex = 'Zona de la Peña'" 1
espera_ventana 'Ciudad'
elige_ultimo # &Buscar takes two figures
teclea Tab
exige_campo 'Zona de la Peña'
confirma alt+r 'Ciudadades' ciudad-borrar
exige_dato "SELECT count(*) FROM ciudadesmex WHERE nombreciudadmex = 'Zona de la Peña'" 0
espera_ventana 'Ciudad'
teclea alt+c

paso 'Un estado se agrega y se borra'
opcion 5 1
espera_ventana 'Estados'
nuevo '' QZ 'Tierra de la Peña'
confirma alt+a 'EstadoMex' estado-registrar
exige_dato "SELECT nombreestadomex FROM estadosmex WHERE claveestadomex = 'QZ'" 'Tierra de la Peña'
espera_ventana 'Estados'
elige_ultimo
teclea Tab
exige_campo 'Tierra de la Peña'
captura estado-elegido
confirma alt+r 'EstadoMex' estado-borrar
exige_dato "SELECT count(*) FROM estadosmex WHERE claveestadomex = 'QZ'" 0
espera_ventana 'Estados'
teclea alt+c

paso 'Un tipo de asentamiento se agrega y se borra'
opcion 5 3
espera_ventana 'Tipos de asentamiento'
nuevo 77 'Ranchería Ñandú'
captura tipo-de-asentamiento
confirma alt+a 'Tipo de asentamiento' tipo-de-asentamiento-registrar
exige_dato "SELECT rtrim(asentamiento) FROM tipoasentamiento WHERE tipoasentamientoid = 77" 'Ranchería Ñandú'
espera_ventana 'Tipos de asentamiento'
confirma alt+r 'Tipo de asentamiento' tipo-de-asentamiento-borrar
exige_dato "SELECT count(*) FROM tipoasentamiento WHERE tipoasentamientoid = 77" 0
espera_ventana 'Tipos de asentamiento'
teclea alt+c

paso 'Las colonias se buscan por código postal'
opcion 5 4
espera_ventana 'Colonias'
codigo=$(servidor psql "$sucursal" -XAtc 'SELECT cp FROM colonias ORDER BY coloniaid LIMIT 1')
teclea shift+Tab shift+Tab # from the key back to the postal code
escribe "$codigo"
teclea alt+m
exige_traza "SELECT * FROM spscoloniacp($codigo);"
captura colonias
teclea alt+c

paso 'Una cuenta se busca en el árbol del catálogo'
opcion 6 1
espera_ventana 'Catálogo de cuentas'
captura cuentas
teclea alt+c

paso 'Un bien se agrega con su persona'
opcion 4 3
espera_ventana 'Bienes de una persona'
teclea alt+p
espera_sin_titulo
teclea Tab Tab
escribe 'Mar'
teclea Tab space # the lens
exige_traza "SELECT * FROM spssujetos('Mar');"
teclea Tab Tab End # the last row of the list
captura personas
teclea alt+a
espera_ventana 'Bienes de una persona'
teclea alt+n
espera_ventana 'Bien'
llena 'Adriana Supuesto' 'Terreno de la Peña' 'Baldo' 'Libro 3' 'Ninguna' 90000 80000 70000 50
captura bien
teclea alt+a
espera_ventana 'Bienes de una persona'
captura bienes
confirma alt+a 'Bienes' bienes-guardar
exige_dato "SELECT valorfiscal, adjudicado FROM bienes WHERE describien = 'Terreno de la Peña'" '80000.00|N'
espera_ventana 'Bienes de una persona'
teclea alt+c

cierra_reporte() {
  teclea Escape
  espera_ventana "$1"
}

paso 'Se corre el pre-cierre del mes pasado y se exporta'
dia=$(date -d "$(date +%Y-%m-01) -1 day" +%d/%m/%Y)
opcion 1 1
espera_ventana 'Pre-Cierre'
escribe "$dia"
captura precierre
teclea alt+p
espera_ventana 'Pre-Corte'
captura precierre-pregunta
teclea alt+s
espera 'no aparece el resultado' es_otra 'Pre-Corte' "$ventana"
exige_traza "select * from precierre('$dia');"
responde 'Pre-Corte' Return precierre-resultado
espera_ventana 'Pre-Cierre'
teclea Tab space # &Consulta, whose key is that of &Cerrar too
espera_ventana 'Reporte'
exige_traza 'Termina generacion correctamente'
captura precierre-exportado
exige_dato "SELECT count(*) FROM precorte" "$(($(wc -l <"$HOME/reporte.csv") - 2))"
cierra_reporte 'Pre-Cierre'
teclea Escape

paso 'Se pide el reporte de personas, de la sucursal y consolidado, y se imprime'
opcion 1 2
espera_ventana 'Busqueda Sujeto'
escribe 'Mar'
captura reporte-personas
teclea Tab Tab Tab Tab Tab Tab space # &Consulta
espera_ventana 'Reporte'
exige_traza "SELECT * FROM spssujeto('Mar','','','');"
captura reporte-personas-visto
cierra_reporte 'Busqueda Sujeto'
teclea shift+Tab shift+Tab space Tab Tab space # CONSOLIDADO, &Consulta
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
