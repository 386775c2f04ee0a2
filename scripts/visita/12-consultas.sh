# What the second program looks things up with: the lists, the log, the rights and the board; each on the screen, in a
# spreadsheet and on paper or as a picture.

# Writes what is shown as CSV into the file that is offered, $1; the picture of the box that tells is $2.
escribe_csv() {
  teclea alt+v
  espera_ventana 'Escribir CSV'
  teclea Return
  responde 'CSV' Return "$2"
  espera_ventana "$operaciones"
  [[ -s $HOME/$1 ]] || no_paso "no se escribió $1"
}
# Its rows, without the headings.
filas_de_csv() {
  python3 -c 'import csv, sys; print(len(list(csv.reader(open(sys.argv[1], encoding="utf-8-sig", newline="")))) - 1)' "$HOME/$1"
}
exige_filas() { [[ $(filas_de_csv "$1") == "$2" ]] || no_paso "$1 tiene $(filas_de_csv "$1") renglones y no $2"; }

# Does the clipboard have cells between tabs, $1 in one of them?
copiado() {
  respuesta=$(timeout 2 xclip -selection clipboard -out -target UTF8_STRING)
  [[ $respuesta == *$'\t'*"$1"* ]]
}

# Shows the catalogue whose name begins so, in the window of the lists just opened.
lista_de() {
  escribe "$1"
  teclea Return
}

paso 'Se corrige una tasa, para saber después quién fue'
abre_cliente tolvara-operaciones
entra "$usuario" "$(clave_de "$usuario")" bienvenida-a-las-consultas
opera_dialogo depreciaciones 'Depreciaciones'
encuentra 1
salta descripcion
llena 12.75
confirma alt+a 'Tipo de Depreciacion' tasa-corregida
exige_dato 'SELECT depretasacontable FROM depreciacion WHERE depreciacionid = 1' 12.7500
espera_ventana 'Depreciaciones'
cierra_dialogo

paso 'Una lista se filtra, se ve como reporte y se imprime'
opera listas
exige_traza "SELECT * FROM spspermisomodulo('$usuario','0911');"
captura listas
lista_de 'Cuentas'
baja 1 # behind those of the banks
captura lista-de-cuentas
salta catalogos
escribe 'bancos'
captura lista-filtrada listas
teclea alt+e
espera_ventana 'Reporte'
captura lista-reporte
teclea Escape
espera_ventana "$operaciones"
rm -f "$HOME/impreso.txt"
teclea alt+m
espera 'no se imprime la lista' cmp "$HOME/reporte.txt" "$HOME/impreso.txt"
grep -q 'REPORTE  : Cuentas contables' "$HOME/impreso.txt" || no_paso 'el reporte no lleva su título'

paso 'Los renglones que se muestran se escriben como CSV'
escribe_csv cuentas_contables.csv lista-csv
exige_filas cuentas_contables.csv "$(servidor psql "$sucursal" -XAtc \
  "SELECT count(*) FROM catalogo_ctas AS c WHERE c::text ILIKE '%bancos%'")"

paso 'Lo elegido se copia'
salta filtro
teclea End ctrl+c
espera 'no se copia el renglón' copiado bancos

paso 'Un renglón abre su forma'
vuelve lista filtro
lista_de 'Asesores'
captura lista-de-asesores
salta catalogos filtro
teclea Home Return
exige_traza "SELECT * FROM spspermisomodulo('$usuario','0904');"
exige_traza 'terminando creacion frm pais'
captura lista-forma
exige_campo "$(servidor psql "$sucursal" -XAtc 'SELECT asesorid FROM asesor ORDER BY asesorid LIMIT 1')"
teclea alt+c
espera_ventana "$operaciones"
teclea alt+c
captura listas-cerradas

paso 'La bitácora dice quién cambió la tasa'
opera bitacora
exige_traza "SELECT * FROM spspermisomodulo('$usuario','0912');"
captura bitacora
salta desde calendario usuario
escribe 1
salta clave hasta calendario
escribe depreciacion
teclea alt+b
exige_traza "SELECT * FROM spsbitacora('','','','depreciacion','1','',0);"
exige_traza 'SELECT * FROM spsbitacoradetalle('
captura bitacora-de-la-tasa bitacora
escribe_csv bitacora.csv bitacora-csv
linea=$(sed -n 2p "$HOME/bitacora.csv")
[[ $linea == *",$usuario,Cambio,depreciacion,"*,1,* ]] || no_paso "la primera línea es: $linea"
teclea alt+c

paso 'Todos los usuarios contra todas las opciones'
opera permisos
exige_traza 'SELECT * FROM spsmatrizpermisos();'
captura permisos permisos
escribe_csv permisos.csv permisos-csv
exige_filas permisos.csv "$(servidor psql "$sucursal" -XAtc 'SELECT count(*) FROM usuario')"
teclea alt+c

paso 'El tablero suma los meses cerrados'
for mes in 1 2 3 4 5; do # ahead of the one that was closed with the program
  servidor psql "$sucursal" -XqAt -c "SET SESSION AUTHORIZATION $usuario" \
    -c "SELECT precierre('$(date -d "$(date +%Y-%m-01) -$mes month -1 day" +%Y-%m-%d)')" >/dev/null
done
opera tablero
exige_traza "SELECT * FROM spspermisomodulo('$usuario','0914');"
exige_traza 'SELECT * FROM spstablero();'
captura tablero tablero
teclea Down
captura tablero-de-un-tipo
teclea Home
escribe_csv tablero.csv tablero-csv
exige_filas tablero.csv "$(servidor psql "$sucursal" -XAtc 'SELECT count(*) FROM cierre')"
teclea alt+d
espera_ventana 'Guardar PNG'
teclea Return
responde 'PNG' Return tablero-png
espera_ventana "$operaciones"
[[ $(identify -format '%m' "$HOME/tablero.png") == PNG ]] || no_paso 'no se escribió la gráfica'
teclea alt+c
espera_ventana "$operaciones"
teclea ctrl+q
espera_fin
