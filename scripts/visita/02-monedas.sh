# The catalogue of currencies: one is added, refused, found, changed and deleted.
paso 'El menú abre el catálogo de monedas'
menu Catalogos
captura menu-catalogos menu
teclea alt+m
exige_traza "SELECT * FROM spspermisomodulo('$usuario','0203');"
exige_traza 'terminando creacion frm pais'
captura monedas

paso 'Se rechaza una moneda sin descripción'
nuevo QZ
teclea alt+a
responde 'Error en Validación' Return moneda-rechazada
exige_traza 'entrando a error'
exige_dato "SELECT count(*) FROM moneda WHERE monedaid = 'QZ'" 0

paso 'Se agrega una moneda'
nuevo QZ 'Corona del Ensueño' 12.5
captura moneda-nueva
teclea alt+a
responde 'Moneda' alt+s registrar
exige_dato "SELECT monedadescri, monedavalor FROM moneda WHERE monedaid = 'QZ'" 'Corona del Ensueño|12.500000'
captura moneda-agregada

paso 'Se busca por su clave'
encuentra QZ
salta descripcion
exige_campo 12.5
vuelve valor
exige_campo 'Corona del Ensueño'
captura moneda-encontrada moneda

paso 'Se modifica'
llena 'Corona modificada' 13.75
teclea alt+a
responde 'Moneda' alt+s guardar-cambios
exige_traza "select spumoneda('QZ','Corona modificada',13.750000);"
exige_dato "SELECT monedadescri, monedavalor FROM moneda WHERE monedaid = 'QZ'" 'Corona modificada|13.750000'
captura moneda-modificada

paso 'Una clave repetida la rechaza el servidor'
nuevo QZ 'Otra corona' 1
teclea alt+a
responde 'Moneda' alt+s registrar-repetida
responde 'Error en Validación' Return clave-repetida
exige_dato "SELECT monedadescri FROM moneda WHERE monedaid = 'QZ'" 'Corona modificada'

paso 'Se borra'
teclea alt+r
responde 'Moneda' alt+s borrar
exige_dato "SELECT count(*) FROM moneda WHERE monedaid = 'QZ'" 0
captura moneda-borrada

paso 'La bitácora del servidor dice quién hizo los cambios'
exige_dato "SELECT string_agg(usuario || ' ' || operacion, ', ' ORDER BY bitacoraid) FROM bitacora
             WHERE tabla = 'moneda' AND clave = 'QZ'" "$usuario INSERT, $usuario UPDATE, $usuario DELETE"

paso 'El catálogo se cierra'
teclea alt+c
captura catalogo-cerrado
