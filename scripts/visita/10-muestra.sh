# The windows that no option opens yet, and a date as the forms ask for one.
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

paso 'Se abre el muestrario'
pon_impresora
abre_cliente muestrario
entra "$usuario" "$(clave_de "$usuario")" bienvenida-al-muestrario

# Chooses the entry of the pane "Muestra" at place $1.
muestra_ventana() {
  espera_ventana "$principal"
  teclea alt+m
  baja "$1"
  teclea Return
}
# Waits for a dialog without a title.
espera_sin_titulo() { espera 'no aparece el diálogo' es_otra '' "$ventana"; }

paso 'Un asesor se agrega y se borra'
muestra_ventana 1
exige_traza 'terminando creacion frm pais'
nuevo 97 'Ñico Lagos'
captura asesores
confirma alt+a 'Asesor' asesor-registrar
exige_dato "SELECT nomasesor FROM asesor WHERE asesorid = 97" 'Ñico Lagos'
confirma alt+r 'Asesor' asesor-borrar
exige_dato "SELECT count(*) FROM asesor WHERE asesorid = 97" 0
teclea alt+c

paso 'Se ven las clasificaciones de créditos'
muestra_ventana 2
exige_traza 'terminando creacion frm clasificacioncredito'
captura clasificaciones
teclea alt+c

paso 'Un grupo se agrega y se borra'
muestra_ventana 6
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

paso 'Se busca una cuenta'
muestra_ventana 7
espera_sin_titulo
escribe '1301x' # no account continues so: the letter is taken back
exige_campo '1301'
captura cuentas
teclea Tab Tab
escribe 'Bancos'
teclea Tab space Tab Tab End
captura cuentas-filtradas
teclea alt+a
espera_cierre

paso 'Se busca una persona'
muestra_ventana 3
espera_sin_titulo
teclea Tab Tab
escribe 'Mar'
teclea Tab space # the lens
exige_traza "SELECT * FROM spssujetos('Mar');"
teclea Tab Tab End # the last row of the list
captura personas
teclea alt+a
espera_cierre

paso 'Se busca un socio'
muestra_ventana 4
espera_sin_titulo
teclea Tab Tab
escribe 'Quimera'
teclea Tab space
exige_traza "SELECT * FROM spssociocajaf('Quimera');"
teclea Tab Tab End
captura socios
teclea alt+a
espera_cierre

paso 'Una fecha se escribe y se cambia en el calendario'
muestra_ventana 5
espera_ventana 'Fecha'
teclea Tab
escribe '31x/1/2026' # the letter is refused
exige_campo '31/1/2026'
teclea Tab space
espera_sin_titulo
captura calendario
teclea Tab Tab space # the second day
captura calendario-otro-dia
teclea alt+a
espera_ventana 'Fecha'
teclea shift+Tab
exige_campo '02/01/2026'
captura fecha-elegida
teclea alt+c

cierra_reporte() {
  teclea Escape
  espera_ventana "$1"
}

paso 'Se corre el pre-cierre del mes pasado y se exporta'
dia=$(date -d "$(date +%Y-%m-01) -1 day" +%d/%m/%Y)
muestra_ventana 10
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
teclea Tab Tab Tab Tab space # &Consulta: &Cerrar has the same key
espera_ventana 'Reporte'
exige_traza 'Termina generacion correctamente'
captura precierre-exportado
exige_dato "SELECT count(*) FROM precorte" "$(($(wc -l <"$HOME/reporte.csv") - 2))"
cierra_reporte 'Pre-Cierre'
teclea Escape

paso 'Se pide el reporte de personas, de la sucursal y consolidado, y se imprime'
muestra_ventana 11
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
espera_ventana "$principal"
teclea ctrl+q
espera_fin
