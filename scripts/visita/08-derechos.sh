# The session is closed, and another user, who has no right to anything, opens one in the same program.
paso 'La sesión se desconecta'
menu Inicio
captura menu-inicio
teclea alt+d
exige_dato "SELECT count(*) FROM pg_stat_activity WHERE usename = '$usuario'" 0
captura desconectado

paso 'Entra un usuario sin derechos'
menu Inicio
teclea alt+c
espera_ventana 'Login'
vuelve clave
teclea ctrl+a
escribe camila
salta login
escribe "$(clave_de camila)"
captura login-de-otro-usuario
teclea Return
responde 'Validando usuario' Return bienvenida-de-otro-usuario
exige_dato "SELECT count(*) FROM pg_stat_activity WHERE usename = 'camila'" 1

for opcion in "${opciones[@]}"; do
  niega_opcion "$opcion" camila
done

paso 'Motivos Baja se le abre también'
espera_ventana "$principal"
elige motivos-baja
exige_traza 'terminando creacion frm motivobaja'
captura motivos-baja-sin-derechos
teclea alt+c
