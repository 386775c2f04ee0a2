# The products: one of each is added, refused, changed and deleted.

# Picks the fourth account of the chart, which takes postings, in $1 account fields from the one with the keyboard on.
pon_cuentas() {
  local i
  for ((i = 0; i < $1; i++)); do teclea Down Down Down Down Tab Tab Tab; done
}

paso 'Una fórmula sin texto se rechaza'
elige 10 1
espera_ventana 'Formulas de Calculos'
nuevo 3 '' 'Interés de prueba'
teclea alt+a
responde 'Error en Validación' Return formula-rechazada
espera_ventana 'Formulas de Calculos'

paso 'Con él se agrega, se modifica y se borra'
nuevo 3 '' 'Interés de prueba' 'saldo * tasa / 100'
confirma alt+a 'Calculo' formula-registrar
exige_dato "SELECT formula FROM calculo WHERE descripcioncalculo = 'Interés de prueba'" 'saldo * tasa / 100'
espera_ventana 'Formulas de Calculos'
elige_ultimo 3
exige_campo 'Interés de prueba'
captura formula-elegida
llena 'Interés corregido'
confirma alt+a 'Calculo' formula-guardar
exige_dato "SELECT formula FROM calculo WHERE descripcioncalculo = 'Interés corregido'" 'saldo * tasa / 100'
espera_ventana 'Formulas de Calculos'
confirma alt+b 'Calculo' formula-borrar
exige_dato "SELECT count(*) FROM calculo WHERE descripcioncalculo = 'Interés corregido'" 0
espera_ventana 'Formulas de Calculos'
teclea alt+c

paso 'Un tipo de movimiento sin cuentas se rechaza'
espera_ventana "$principal"
elige 4
exige_traza 'terminando creacion frm tipomovimiento'
nuevo 34 QZ 'Ahorro de prueba'
teclea alt+a
responde 'Error en Validación' Return movimiento-sin-cuentas

paso 'Con sus once cuentas se agrega'
nuevo 34 QZ 'Ahorro de prueba'
adelante 4
pon_cuentas 7
llena D 3.5
adelante 1
pon_cuentas 2
llena 1 2 16
pon_cuentas 2
captura tipo-de-movimiento-nuevo
confirma alt+a 'Tipo de Movimiento' tipo-de-movimiento-registrar
exige_dato "SELECT desctipomovimiento, tasainteres, rtrim(cuentaivacomision) FROM tipomovimiento
             WHERE tipomovimientoid = 'QZ'" 'Ahorro de prueba|3.500000|1101-01-00-00-0000'

paso 'Se modifica y se borra'
atras 37 # from &Aceptar to the description
exige_campo 'Ahorro de prueba'
llena 'Ahorro corregido'
confirma alt+a 'Tipo de Movimiento' tipo-de-movimiento-guardar
exige_dato "SELECT desctipomovimiento FROM tipomovimiento WHERE tipomovimientoid = 'QZ'" 'Ahorro corregido'
confirma alt+b 'Tipo de Movimiento' tipo-de-movimiento-borrar
exige_dato "SELECT count(*) FROM tipomovimiento WHERE tipomovimientoid = 'QZ'" 0
teclea alt+c
