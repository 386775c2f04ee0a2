# A search for a login that nobody has ends the program, in good order and with its text on standard output.
paso 'Otra sesión se abre'
abre_cliente
espera_ventana 'Login'
escribe "$(clave_de "$usuario")"
teclea Return
responde 'Validando usuario' Return bienvenida-a-los-usuarios
exige_traza '38      '

paso 'Se abren los usuarios'
espera_ventana "$principal"
captura sesion-antes-de-los-usuarios
elige usuarios
exige_traza "SELECT * FROM spspermisomodulo('$usuario','0206');"
exige_traza 'terminando creacion frm usuario'
captura usuarios

paso 'Buscar un login que nadie tiene termina el programa'
# By mouse: the remarks keep the keyboard on its way to the login, and &Borrar has the key of &Buscar.
pulsa_en_ventana usuario-login
escribe 'nadie'
exige_campo 'nadie'
captura usuario-desconocido
pulsa_en_ventana usuario-buscar
exige_traza 'Entrando a Find '
exige_traza 'El usuario no se encontro en la BD'
espera_fin
