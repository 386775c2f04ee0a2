# The products: one of each is added, refused, changed and deleted.

paso 'Una fórmula sin texto se rechaza'
elige formulas
espera_ventana 'Formulas de Calculos'
nuevo '' 'Tasa del año'
teclea alt+a
responde 'Error en Validación' Return formula-rechazada
espera_ventana 'Formulas de Calculos'

paso 'Con él se agrega, se modifica y se borra'
nuevo '' 'Tasa del año' 'saldo * tasa / 100'
confirma alt+a 'Calculo' formula-registrar
exige_dato "SELECT formula FROM calculo WHERE descripcioncalculo = 'Tasa del año'" 'saldo * tasa / 100'
espera_ventana 'Formulas de Calculos'
elige_ultimo
exige_campo 'Tasa del año'
captura formula-elegida formulas
llena 'Tasa corregida'
confirma alt+a 'Calculo' formula-guardar
exige_dato "SELECT formula FROM calculo WHERE descripcioncalculo = 'Tasa corregida'" 'saldo * tasa / 100'
espera_ventana 'Formulas de Calculos'
confirma alt+r 'Calculo' formula-borrar
exige_dato "SELECT count(*) FROM calculo WHERE descripcioncalculo = 'Tasa corregida'" 0
espera_ventana 'Formulas de Calculos'
teclea alt+c

paso 'Un tipo de movimiento sin cuentas se rechaza'
espera_ventana "$principal"
elige tipo-de-movimientos
exige_traza 'terminando creacion frm tipomovimiento'
nuevo QZ 'Ahorro de prueba'
teclea alt+a
responde 'Error en Validación' Return movimiento-sin-cuentas

paso 'Con sus once cuentas se agrega'
nuevo QZ 'Ahorro de prueba'
salta aplica-saldo depositos retiros iva
pon_cuentas 7
llena D 3.5
salta cuentas-de-orden
pon_cuentas 2
llena 1 2 16
pon_cuentas 2
captura tipo-de-movimiento-nuevo tipo-de-movimientos
confirma alt+a 'Tipo de Movimiento' tipo-de-movimiento-registrar
exige_dato "SELECT desctipomovimiento, tasainteres, rtrim(cuentaivacomision) FROM tipomovimiento
             WHERE tipomovimientoid = 'QZ'" 'Ahorro de prueba|3.500000|1101-01-00-00-0000'

paso 'Se modifica y se borra'
encuentra QZ
exige_campo 'Ahorro de prueba'
llena 'Ahorro corregido'
confirma alt+a 'Tipo de Movimiento' tipo-de-movimiento-guardar
exige_dato "SELECT desctipomovimiento FROM tipomovimiento WHERE tipomovimientoid = 'QZ'" 'Ahorro corregido'
confirma alt+r 'Tipo de Movimiento' tipo-de-movimiento-borrar
exige_dato "SELECT count(*) FROM tipomovimiento WHERE tipomovimientoid = 'QZ'" 0
teclea alt+c

paso 'Un tipo de inversión sin clasificación se rechaza'
elige tipo-de-inversion
exige_traza 'terminando creacion frm tipoinversion'
nuevo QZ 'Plazo de otoño' 5 100 1000 30 60
pon_cuentas 7
opta 1 # the formula
salta iva
opta 1 # the movement
salta isr
teclea alt+a
responde 'Error en Validación' Return inversion-rechazada

paso 'Con ella se agrega'
nuevo QZ 'Plazo de otoño' 5 100 1000 30 60
pon_cuentas 7
opta 1
salta iva
opta 1
salta isr
baja 1 # the classification
captura tipo-de-inversion-nuevo tipo-de-inversion
confirma alt+a 'Tipo de Inversión' tipo-de-inversion-registrar
exige_dato "SELECT desctipoinversion, rtrim(cuentapasivo) FROM tipoinversion WHERE tipoinversionid = 'QZ'" \
  'Plazo de otoño|1101-01-00-00-0000'

paso 'Se modifica y se borra'
encuentra QZ
exige_campo 'Plazo de otoño'
llena 'Plazo corregido'
confirma alt+a 'Tipo de Inversión' tipo-de-inversion-guardar
exige_dato "SELECT desctipoinversion FROM tipoinversion WHERE tipoinversionid = 'QZ'" 'Plazo corregido'
confirma alt+r 'Tipo de Inversión' tipo-de-inversion-borrar
exige_dato "SELECT count(*) FROM tipoinversion WHERE tipoinversionid = 'QZ'" 0
teclea alt+c

paso 'Un tipo de préstamo con solo la clave se rechaza'
elige tipo-de-prestamos
exige_traza 'terminando creacion frm tipoprestamo'
escribe QZ
teclea alt+a
responde 'Error en Validación' Return prestamo-rechazado

# The accounts of the page that is up, $1 of them, with the keyboard left in the page.
llena_cuentas() {
  pon_cuentas $(($1 - 1))
  opta 4
  captura "prestamo-nuevo-$2"
}

paso 'Por sus seis páginas se agrega, y se borra'
nuevo QZ 'Crédito de otoño' 3 18 36
opta 1 # the movement, the two formulas, the purpose
opta 1
opta 1
baja 1
captura prestamo-nuevo-generales
hojea
llena 90 50000 36 1000 2 30
salta estatus grupal
llena 1 16 10 130106
escribe 1
captura prestamo-nuevo-parametros
hojea
llena_cuentas 5 activo
hojea
llena_cuentas 9 pasivo
hojea
llena_cuentas 7 resultados
hojea
llena_cuentas 7 orden
confirma alt+a 'Tipo de Prestamo' prestamo-registrar
exige_dato "SELECT desctipoprestamo, rtrim(cuentaactivo) FROM tipoprestamo WHERE tipoprestamoid = 'QZ'" \
  'Crédito de otoño|1101-01-00-00-0000'
confirma alt+r 'Tipo de Prestamo' prestamo-borrar
exige_dato "SELECT count(*) FROM tipoprestamo WHERE tipoprestamoid = 'QZ'" 0

paso 'Se ven las páginas de uno, y se modifica'
teclea alt+n
hojea # from the last page to the first
escribe ORD
teclea alt+b
exige_campo ORD
captura prestamo-generales prestamo-generales
for pagina in parametros activo pasivo resultados orden generales; do
  hojea
  captura "prestamo-$pagina" "prestamo-$pagina"
done
salta clave
llena 'Ordinario de otoño'
confirma alt+a 'Tipo de Prestamo' prestamo-guardar
exige_dato "SELECT desctipoprestamo FROM tipoprestamo WHERE tipoprestamoid = 'ORD'" 'Ordinario de otoño'
teclea alt+c
