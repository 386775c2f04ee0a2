# A catalogue of each family: a row is added, changed and deleted.
paso 'Un diálogo con clave de letras: un tipo de garantía se agrega'
elige tipo-de-garantias
espera_ventana 'Tipo de Garantia'
nuevo QZ 'Fianza del año'
confirma alt+a 'Tipo de Garantía' garantia-registrar
exige_dato "SELECT descripciongarantia FROM tipo_garantia WHERE clavegarantia = 'QZ'" 'Fianza del año'
captura garantia-agregada

paso 'Se busca y se modifica'
espera_ventana 'Tipo de Garantia'
encuentra QZ
exige_campo 'Fianza del año'
llena 'Fianza pequeña'
confirma alt+a 'Tipo de Garantía' garantia-guardar
exige_dato "SELECT descripciongarantia FROM tipo_garantia WHERE clavegarantia = 'QZ'" 'Fianza pequeña'

paso 'Y se borra'
espera_ventana 'Tipo de Garantia'
confirma alt+r 'Tipo de Garantía' garantia-borrar
exige_dato "SELECT count(*) FROM tipo_garantia WHERE clavegarantia = 'QZ'" 0
espera_ventana 'Tipo de Garantia'
teclea alt+c

paso 'Una forma con una casilla: un movimiento bancario sin operación se rechaza'
espera_ventana "$principal"
elige movimientos-bancarios
exige_traza 'terminando creacion frm tipomovibanco'
nuevo QZ 'Ajuste de prueba'
teclea alt+a
responde 'Error en Validación' Return movimiento-rechazado

paso 'Con la operación se agrega'
nuevo QZ 'Ajuste de prueba'
teclea space # Incrementar Saldo
confirma alt+a 'Tipo de Movimientos Bancarios' movimiento-registrar
exige_dato "SELECT operacionsumaresta FROM tipomovibanco WHERE tipomovibancoid = 'QZ'" '+'
captura movimiento-agregado

paso 'Se busca y se modifica'
encuentra QZ
exige_campo 'Ajuste de prueba'
llena 'Ajuste dañado'
teclea space
confirma alt+a 'Tipo de Movimientos Bancarios' movimiento-guardar
exige_dato "SELECT descritipomovibanco, operacionsumaresta FROM tipomovibanco WHERE tipomovibancoid = 'QZ'" \
  'Ajuste dañado|-'

paso 'Y se borra'
confirma alt+r 'Tipo de Movimientos Bancarios' movimiento-borrar
exige_dato "SELECT count(*) FROM tipomovibanco WHERE tipomovibancoid = 'QZ'" 0
teclea alt+c

paso 'Una forma corta: una ocupación se agrega, y el servidor le da su número'
elige ocupaciones
exige_traza 'terminando creacion frm ocupacion'
nuevo '' 'Leñador'
confirma alt+a 'Ocupacion' ocupacion-registrar
exige_dato "SELECT count(*) FROM ocupacion WHERE ocupacion = 'Leñador'" 1
captura ocupacion-agregada

paso 'Se elige en la lista y se modifica'
elige_ultimo
exige_campo 'Leñador'
llena 'Leñador nocturno'
confirma alt+a 'Ocupacion' ocupacion-guardar
exige_dato "SELECT ocupacion FROM ocupacion ORDER BY ocupacionid DESC LIMIT 1" 'Leñador nocturno'

paso 'Y se borra'
elige_ultimo
confirma alt+r 'Ocupacion' ocupacion-borrar
exige_dato "SELECT count(*) FROM ocupacion WHERE ocupacion = 'Leñador nocturno'" 0
teclea alt+c

paso 'Un diálogo con número: un concepto se agrega'
espera_ventana "$principal"
elige conceptos-scoring
espera_ventana 'Concepto Scoring'
nuevo '' 'Puntualidad'
confirma alt+a 'Concepto Scoring' concepto-registrar
exige_dato "SELECT count(*) FROM conceptoscoring WHERE conceptoscoring = 'Puntualidad'" 1

paso 'Se elige en la lista y se modifica'
espera_ventana 'Concepto Scoring'
elige_ultimo
exige_campo 'Puntualidad'
captura concepto-elegido
llena 'Puntualidad de pago'
confirma alt+a 'Concepto Scoring' concepto-guardar
exige_dato "SELECT count(*) FROM conceptoscoring WHERE conceptoscoring = 'Puntualidad de pago'" 1

paso 'Y se borra'
espera_ventana 'Concepto Scoring'
confirma alt+r 'Concepto Scoring' concepto-borrar
exige_dato "SELECT count(*) FROM conceptoscoring WHERE conceptoscoring = 'Puntualidad de pago'" 0
espera_ventana 'Concepto Scoring'
teclea alt+c
espera_ventana "$principal"
