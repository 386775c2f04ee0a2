# A load that cannot be begun in the form of the names of the series, which catches nothing: the program says so on its
# standard output and ends in good order.
paso 'Se pierde la conexión con las series abiertas'
abre_cliente
entra "$usuario" "$(clave_de "$usuario")" bienvenida-antes-del-fin
espera_ventana "$principal"
captura sesion-antes-del-fin # until nothing moves: a menu that is posted for the first time misses quick keys
elige tipo-tasa-interes
espera_ventana 'Tipo Tasa Variables'
captura series
exige_dato "SELECT count(pg_terminate_backend(pid)) > 0 FROM pg_stat_activity WHERE usename = '$usuario'" t

paso 'Borrar una lo dice y termina el programa'
teclea alt+r
espera_ventana 'Elimina tasa'
captura serie-que-no-se-borra
teclea alt+s
espera_fin
exige_traza 'Error al cargar catalogo de tipo tasas.'
[[ $(tail -n 1 "$salida/traza.txt") == 'Error al cargar catalogo de tipo tasas.' ]] ||
  no_paso 'la traza sigue después del texto'
