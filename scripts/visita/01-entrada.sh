# The login, as the branch's administrator.
paso 'El cliente se abre mientras otro programa tiene el teclado, y lo tiene para la contraseña'
display -title 'Otro programa' -geometry +0+0 -size 200x100 xc:white &
otro=$!
procesos+=("$otro")
espera_ventana 'Otro programa'
abre_cliente
espera_ventana 'Login'
kill "$otro"
captura login login

paso 'Una contraseña equivocada se rechaza'
escribe 'equivocada'
teclea Return
responde 'Error en Validación' Return contrasena-equivocada
exige_traza 'FATAL:'

paso 'La contraseña abre la sesión'
espera_ventana 'Login'
escribe "$(clave_de "$usuario")" # over the refused one, which is selected
teclea Return
responde 'Validando usuario' Return bienvenida
exige_traza 'Formato Cuenta'
exige_dato "SELECT count(*) FROM pg_stat_activity WHERE usename = '$usuario'" 1
espera_ventana "$principal"
captura sesion-abierta
