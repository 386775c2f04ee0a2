# The login, as the branch's administrator.
paso 'El cliente se abre y pide la contraseña'
abre_cliente
espera_ventana 'Login'
captura login

paso 'Una contraseña equivocada se rechaza'
escribe 'equivocada'
teclea Return
responde 'Error en Validación' Return contrasena-equivocada
exige_traza 'FATAL:'

paso 'La contraseña abre la sesión'
espera_ventana 'Login'
teclea ctrl+a
escribe "$(clave_de "$usuario")"
teclea Return
responde 'Validando usuario' Return bienvenida
exige_traza 'Formato Cuenta'
exige_dato "SELECT count(*) FROM pg_stat_activity WHERE usename = '$usuario'" 1
espera_ventana "$principal"
captura sesion-abierta
