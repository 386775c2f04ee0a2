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
teclea shift+Tab ctrl+a
escribe camila
teclea Tab
escribe "$(clave_de camila)"
captura login-de-otro-usuario
teclea Return
responde 'Validando usuario' Return bienvenida-de-otro-usuario
exige_dato "SELECT count(*) FROM pg_stat_activity WHERE usename = 'camila'" 1

paso 'Se le niega una opción'
espera_ventana "$principal"
menu Catalogos
teclea alt+m
responde 'Acceso NO AUTORIZADO' Return acceso-negado
exige_traza "SELECT * FROM spspermisomodulo('camila','0203');"
