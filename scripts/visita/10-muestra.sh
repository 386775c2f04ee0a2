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

# Chooses the window with this name in the pane "Muestra".
muestra_ventana() {
  espera_ventana "$principal"
  teclea alt+m
  baja "${muestra_en[$1]:?}"
  teclea Return
}

paso 'Un asesor se agrega y se borra'
muestra_ventana asesor
exige_traza 'terminando creacion frm pais'
nuevo 97 'Ñico Lagos'
captura asesores asesores
confirma alt+a 'Asesor' asesor-registrar
exige_dato "SELECT nomasesor FROM asesor WHERE asesorid = 97" 'Ñico Lagos'
confirma alt+r 'Asesor' asesor-borrar
exige_dato "SELECT count(*) FROM asesor WHERE asesorid = 97" 0
teclea alt+c

paso 'Se ven las clasificaciones de créditos'
muestra_ventana clasificacion
exige_traza 'terminando creacion frm clasificacioncredito'
captura clasificaciones clasificacion-de-creditos
teclea alt+c

paso 'Un grupo se agrega y se borra'
muestra_ventana grupo
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

paso 'Se busca una cuenta'
muestra_ventana cuenta
espera_sin_titulo
escribe '1301x' # no account continues so: the letter is taken back
exige_campo '1301'
captura cuentas busqueda
salta buscar lista
escribe 'Bancos'
salta filtro
teclea space
salta lupa buscar
teclea End
captura cuentas-filtradas
teclea alt+a
espera_cierre

paso 'Se busca una persona'
muestra_ventana persona
espera_sin_titulo
salta buscar lista
escribe 'Mar'
salta filtro
teclea space # the lens
exige_traza "SELECT * FROM spssujetos('Mar');"
salta lupa buscar
teclea End # the last row of the list
captura personas busqueda-personas
teclea alt+a
espera_cierre

paso 'Se busca un socio'
muestra_ventana socio
espera_sin_titulo
salta buscar lista
escribe 'Quimera'
salta filtro
teclea space
exige_traza "SELECT * FROM spssociocajaf('Quimera');"
salta lupa buscar
teclea End
captura socios busqueda-socios
teclea alt+a
espera_cierre

paso 'Una fecha se escribe y se cambia en el calendario'
muestra_ventana fecha
espera_ventana 'Fecha'
salta cerrar
escribe '31x/1/2026' # the letter is refused
exige_campo '31/1/2026'
salta fecha
teclea space
espera_sin_titulo
captura calendario calendario
pon_dia 2 calendario-otro-dia
espera_ventana 'Fecha'
vuelve calendario
exige_campo '02/01/2026'
captura fecha-elegida
teclea alt+c

paso 'Un tipo de depreciación se agrega, se modifica y se borra'
muestra_ventana depreciacion
espera_ventana 'Depreciaciones'
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
teclea alt+c

paso 'Un activo se agrega por sus tres páginas'
muestra_ventana activo
espera_ventana 'Activo'
captura activos
salta identificacion
llena 'QZ-1' 'Torno de prueba'
opta 1
llena 1000 50 900 'Bodega' 'S-77' 1200
opta 1
baja 1
captura activo-generales activo-generales
hojea
llena '1/2/2026'
teclea space
espera_sin_titulo
pon_dia 2
espera_ventana 'Activo'
salta calendario
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
exige_dato "SELECT activodescripcion, feciniciodepconta, actdeduccioninme FROM activo WHERE activoclave = 'QZ-1'" \
  'Torno de prueba|2026-02-02|S'

paso 'Se modifica y se borra'
espera_ventana 'Activo'
hojea
elige_ultimo
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
muestra_ventana ciudad
espera_ventana 'Ciudad'
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
teclea alt+c

paso 'Un estado se agrega y se borra'
muestra_ventana estado
espera_ventana 'Estados'
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
teclea alt+c

paso 'Un bien se agrega con su persona'
muestra_ventana bien
espera_ventana 'Bien'
llena 'Adriana Supuesto' 'Terreno de la Peña' 'Baldo' 'Libro 3' 'Ninguna' 90000 80000 70000 50
captura bien bien
teclea alt+a
exige_dato "SELECT valorfiscal, adjudicado FROM bienes WHERE describien = 'Terreno de la Peña'" '80000.00|N'

cierra_reporte() {
  teclea Escape
  espera_ventana "$1"
}

paso 'Se corre el pre-cierre del mes pasado y se exporta'
dia=$(date -d "$(date +%Y-%m-01) -1 day" +%d/%m/%Y)
muestra_ventana precierre
espera_ventana 'Pre-Cierre'
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
muestra_ventana reporte-de-personas
espera_ventana 'Busqueda Sujeto'
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
espera_ventana "$principal"
teclea ctrl+q
espera_fin
