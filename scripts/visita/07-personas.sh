# What an administrator does for somebody new, and what that gives: a user with her address, her password and two options;
# she works beside him in a client of her own, and he takes one of them away.
nueva=ximena

# Saves the user of the form, with the pictures $1.
guarda_usuario() {
  confirma alt+a 'Usuario' "usuario-$1"
  responde 'Usuario' Return "usuario-$1-bien"
  espera_ventana "$principal"
}
# From the list into the grid of the rights, which is up, to the row of Monedas. The blank turns a right around.
va_a_los_accesos() {
  salta lista login tipo jefe email impresora observaciones
  teclea ctrl+Home
  baja 1 # behind Desconectarse
}

permisos_de_nueva() {
  exige_dato "SELECT string_agg(rtrim(clavemodulo), ',' ORDER BY clavemodulo) FROM permisomodulo
               WHERE usuarioid = '$nueva' AND permiso <> 'N'" "$1"
}

# Goes on in the window of the client with this number, of the two that are open.
pasa_a() {
  xdotool windowactivate "$1"
  espera 'no pasa al otro programa' esta_activa "$1"
}
esta_activa() { [[ $(xdotool getactivewindow) == "$1" ]]; }

paso 'Un usuario sin nada escrito se rechaza'
elige usuarios
exige_traza 'terminando creacion frm usuario'
captura usuarios
teclea alt+a
responde 'Error en Validación' Return usuario-rechazado

paso 'Se escribe una usuaria nueva, y la fecha de nacimiento trae su RFC'
nuevo "$nueva"
opta 3 # Consulta, whose users begin with no right at all
salta jefe
llena "$nueva@ensueno.example" caja 'De prueba'
llena 'Peña' 'Acuña' 'Ximena'
escribe '4/3/1990'
salta fecha
teclea space
espera 'no aparece el calendario' es_otra '' "$ventana"
captura usuario-nacimiento
pon_dia 5
espera_ventana "$principal"
exige_traza "Query==select * from generarfc('Peña','Acuña','Ximena','05/03/1990');"
captura usuario-rfc usuario-generales

paso 'Un código postal que no existe se rechaza'
hojea
llena 99999
teclea space
responde 'Error en Validación' Return codigo-postal-rechazado

paso 'El que existe trae el estado, el municipio y las colonias'
vuelve codigo
llena 44720
teclea space
exige_traza 'EstadoMexID 14'
salta estado municipio colonia
baja 1 # the first neighbourhood
salta colonia
llena 'Calle del Sol' 12 B 'La Peña'
escribe '33 1234 5678'
captura usuario-domicilio usuario-domicilio

paso 'Con su serie y su cuenta se agrega'
hojea
hojea
escribe XI
salta serie
baja 4 # an account that takes postings
captura usuario-parametros usuario-parametros
guarda_usuario registrar
exige_traza "select * from creausuario('$nueva','tolvara_usuarios');"
exige_dato "SELECT s.nombre, s.paterno, s.fechanacimiento, s.rfc = generarfc.rfc, d.codpostal, c.nombrecolonia
              FROM usuario u JOIN sujeto s USING (sujetoid) JOIN domicilio d USING (sujetoid) JOIN colonias c USING (coloniaid),
                   generarfc('Peña', 'Acuña', 'Ximena', '05/03/1990')
             WHERE u.usuarioid = '$nueva'" 'Ximena|Peña|1990-03-05|t|44720|Centro'
permisos_de_nueva ''

paso 'En la rejilla se le dan dos opciones'
pulsa usuario-fila
exige_traza 'Termian permisos'
teclea ctrl+Prior # to the rights, from the page behind them
va_a_los_accesos
teclea space
baja 2 # Movimientos Bancarios
teclea space
captura usuario-accesos usuario-accesos
guarda_usuario permisos
permisos_de_nueva '0203,0205'

paso 'Sin contraseña no entra; el administrador del servidor le da una'
administrador=$cliente
ventana_administrador=$(xdotool getactivewindow)
clave_nueva=$(servidor clave "$nueva" <<<'' | sed -n 's/^Contraseña .*: //p')
mkdir "$temporal/casa-de-$nueva"
HOME=$temporal/casa-de-$nueva abre_cliente
entra "$nueva" "$clave_nueva" bienvenida-a-la-nueva
espera_ventana "$principal"
ventana_nueva=$(xdotool getactivewindow)
exige_dato "SELECT count(*) FROM pg_stat_activity WHERE usename IN ('$usuario', '$nueva')" 2

for opcion in "${opciones[@]}"; do
  case $opcion in
    *'|0203|'* | *'|0205|'*) abre_opcion "$opcion" "$nueva" ;;
    *) niega_opcion "$opcion" "$nueva" ;;
  esac
done

# The statements of standard input as the new user says them to the server himself, past the client.
dice_al_servidor() {
  PGPASSWORD=$clave_nueva PGOPTIONS="-c search_path=$sucursal" psql -XAtq -h 127.0.0.1 -p "$(del_servidor Puerto)" \
    -U "$nueva" "$(del_servidor Base)" 2>&1 || true
}

paso 'Tampoco a mano escribe en otra cosa: cada función que pide otro permiso la rechaza'
sentencias=$(servidor psql "$sucursal" -XAtc "
  SELECT format('SELECT %I(%s);', proname,
                (SELECT string_agg('NULL::' || format_type(tipo, NULL), ', ') FROM unnest(proargtypes) AS tipo))
    FROM pg_proc
   WHERE pronamespace = '$sucursal'::regnamespace AND prosrc LIKE '%exige_permiso(''%'
     AND prosrc !~ 'exige_permiso\(''(0203|0205)''' AND has_function_privilege('$nueva', oid, 'EXECUTE')")
((cuantas = $(wc -l <<<"$sentencias"), cuantas > 80)) || no_paso "solo se hallaron $cuantas funciones"
respuesta=$(dice_al_servidor <<<"$sentencias")
rechazos=$(grep -c 'No tiene permiso para la opción' <<<"$respuesta" || true)
[[ $rechazos == "$cuantas" ]] || no_paso "de $cuantas funciones rechazó $rechazos"
for sentencia in "UPDATE permisomodulo SET permiso = 'S' WHERE usuarioid = '$nueva'" \
  'DELETE FROM banco' 'DELETE FROM bitacora'; do
  respuesta=$(dice_al_servidor <<<"$sentencia;")
  [[ $respuesta == *denie* || $respuesta == *denegad* ]] || no_paso "el servidor aceptó: $sentencia"
done
permisos_de_nueva '0203,0205'

paso 'La nueva agrega una moneda'
elige monedas
exige_traza 'terminando creacion frm pais'
nuevo QZ 'Corona prestada' 2
confirma alt+a 'Moneda' moneda-de-la-nueva
exige_dato "SELECT count(*) FROM moneda WHERE monedaid = 'QZ'" 1

paso 'El administrador le quita las monedas mientras las tiene abiertas'
pasa_a "$ventana_administrador"
pulsa usuario-fila
exige_traza 'Termian permisos'
va_a_los_accesos
teclea space
captura usuario-sin-monedas
guarda_usuario sin-monedas
permisos_de_nueva 0205

paso 'Lo siguiente que ella guarda lo rechaza el servidor'
pasa_a "$ventana_nueva"
encuentra QZ
llena 'Corona tomada' 3
confirma alt+a 'Moneda' moneda-sin-permiso
responde 'Error en Validación' Return moneda-negada
exige_dato "SELECT monedavalor FROM moneda WHERE monedaid = 'QZ'" 2.000000
[[ $(dice_al_servidor <<<"SELECT spdmoneda('QZ');") == *'No tiene permiso para la opción Monedas (módulo 0203)'* ]] ||
  no_paso 'a mano no se rechazó'
teclea alt+c
niega_opcion "${opciones[0]}" "$nueva"

paso 'La nueva sale, y el administrador la da de baja'
espera_ventana "$principal"
teclea ctrl+q
espera_fin
cliente=$administrador
pasa_a "$ventana_administrador"
pulsa usuario-fila
exige_traza 'Termian permisos'
pulsa usuario-borrar
responde 'Usuario' alt+s usuario-borrar
exige_dato "SELECT count(*) FROM usuario WHERE usuarioid = '$nueva'" 0
exige_dato "SELECT count(*) FROM pg_roles WHERE rolname = '$nueva' AND rolcanlogin" 0
teclea alt+c
captura usuarios-cerrado

paso 'La bitácora lo cuenta todo'
exige_dato "SELECT string_agg(format('%s %s %s %s', usuario, operacion, tabla, nuevo ->> 'permiso'), ', ' ORDER BY bitacoraid)
              FROM bitacora
             WHERE clave = '$nueva' AND operacion IN ('INSERT', 'ALTA', 'CLAVE', 'DELETE', 'BAJA') AND tabla = 'usuario'
                OR clave LIKE '$nueva/%' AND operacion = 'UPDATE'
                OR tabla = 'moneda' AND clave = 'QZ' AND usuario = '$nueva'" \
  "$usuario INSERT usuario , $usuario ALTA usuario , $usuario UPDATE permisomodulo S, $usuario UPDATE permisomodulo S, \
postgres CLAVE usuario , $nueva INSERT moneda , $usuario UPDATE permisomodulo N, $usuario DELETE usuario , \
$usuario BAJA usuario "
