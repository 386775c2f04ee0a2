# Banks, series by month and by day, promotions, rates: a row of each is added, refused, found, changed and deleted.

paso 'Una cuenta de banco sin su cuenta contable se rechaza'
espera_ventana "$principal"
elige bancos
exige_traza 'terminando creacion frm banco'
nuevo QZ-001 'Banco del Ensueño' 15/03/2026
teclea alt+a
responde 'Error en Validación' Return banco-rechazado
exige_dato "SELECT count(*) FROM banco WHERE no_cuenta = 'QZ-001'" 0

paso 'Con ella se agrega, con la fecha del calendario'
nuevo QZ-001 'Banco del Ensueño' 15/03/2026
elige_dia banco-calendario
vuelve calendario
exige_campo 02/03/2026
salta fecha calendario
llena 1000 900.5 25.75
pon_cuentas 1
llena A 17
captura banco-nuevo
confirma alt+a 'Banco' banco-registrar
exige_dato "SELECT banco, fecha_inicio, saldo_inicial, saldo_actual, saldo_pen, rtrim(cuentaid), serie, nocheque
              FROM banco WHERE no_cuenta = 'QZ-001'" \
  'Banco del Ensueño|2026-03-02|1000.00|900.50|25.75|1101-01-00-00-0000|A|17'

paso 'Se busca y se modifica'
encuentra QZ-001
exige_campo 'Banco del Ensueño'
captura banco-encontrado bancos
llena 'Banco del Otoño' # leaves the date as it is
confirma alt+a 'Banco' banco-guardar
exige_dato "SELECT banco, fecha_inicio FROM banco WHERE no_cuenta = 'QZ-001'" 'Banco del Otoño|2026-03-02'

paso 'Y se borra'
confirma alt+r 'Banco' banco-borrar
exige_dato "SELECT count(*) FROM banco WHERE no_cuenta = 'QZ-001'" 0
teclea alt+c

# The series by month. One row each: name, title of its questions, column of the figure.
series=(
  'inpc|Inpc|inpc'
  'recargos|Recargos|porcentaje'
)

for serie in "${series[@]}"; do
  IFS='|' read -r nombre titulo columna <<<"$serie"
  del_mes="SELECT $columna FROM $nombre WHERE ano = 2031 AND mes = 5"

  paso "Una cifra negativa de $nombre se rechaza"
  elige "$nombre"
  exige_traza 'terminando creacion frm pais'
  nuevo 2031 5 -1
  teclea alt+a
  responde 'Error en Validación' Return "$nombre-negativo"
  exige_traza 'entrando a error'

  paso "El servidor rechaza un mes 13 de $nombre"
  nuevo 2031 13 1.25
  confirma alt+a "$titulo" "$nombre-mes-trece"
  responde 'Error en Validación' Return "$nombre-rechazado"
  exige_dato "SELECT count(*) FROM $nombre WHERE ano = 2031" 0

  paso "Un mes de $nombre se agrega"
  nuevo 2031 5 1.25
  captura "$nombre-nuevo" "$nombre"
  confirma alt+a "$titulo" "$nombre-registrar"
  exige_dato "$del_mes" 1.250000

  paso 'Se busca por el año y el mes, y se modifica'
  nuevo 2031 5
  teclea alt+b
  exige_campo 1.25
  llena 2.5
  confirma alt+a "$titulo" "$nombre-guardar"
  exige_dato "$del_mes" 2.500000

  paso 'Y se borra'
  confirma alt+r "$titulo" "$nombre-borrar"
  exige_dato "$del_mes" ''
  exige_dato "SELECT count(*) > 0 FROM $nombre" t
  teclea alt+c
done

paso 'El valor negativo de una UDI se rechaza'
elige udis
exige_traza 'terminando creacion frm pais'
nuevo 15/01/2031
salta calendario
llena -1
teclea alt+a
responde 'Error en Validación' Return udis-rechazado
exige_traza 'entrando a error'

paso 'El de un día que se elige en el calendario se agrega'
nuevo 15/01/2031
elige_dia udis-calendario
salta calendario
llena 9.125
captura udis-nuevo udis
confirma alt+a 'Udis' udis-registrar
exige_traza "select spiudis('2031-01-02',9.125000);"
exige_dato "SELECT fecha, valor FROM udis WHERE fecha > '2031-01-01'" '2031-01-02|9.125000'

paso 'Se busca por la fecha, y se modifica'
nuevo 02/01/2031
teclea alt+b
salta calendario
exige_campo 9.125
llena 9.25
confirma alt+a 'Udis' udis-guardar
exige_dato "SELECT valor FROM udis WHERE fecha = '2031-01-02'" 9.250000

paso 'Y se borra'
confirma alt+r 'Udis' udis-borrar
exige_dato "SELECT count(*) FROM udis WHERE fecha > '2031-01-01'" 0
teclea alt+c

paso 'Un día inhábil que ya está se rechaza'
elige dias-inabiles
exige_traza 'terminando creacion frm pais'
nuevo 16/09/2026
confirma alt+a 'Inabil' inabil-repetir
responde 'Error en Validación' Return inabil-repetido

paso 'Uno que se elige en el calendario se agrega'
nuevo 15/06/2031
elige_dia inabil-calendario
captura inabil-nuevo dias-inabiles
confirma alt+a 'Inabil' inabil-registrar
exige_dato "SELECT fecha FROM inabil WHERE fecha > '2031-01-01'" 2031-06-02

paso 'Se busca, y el servidor no deja que se modifique'
nuevo 02/06/2031
teclea alt+b
vuelve fecha
exige_traza "SELECT * FROM inabil where fecha='2031-06-02';"
exige_campo 02/06/2031
llena 03/06/2031
confirma alt+a 'Inabil' inabil-guardar
exige_traza "update inabil set fecha='2031-06-03' where fecha='2031-06-03;"
responde 'Error en Validación' Return inabil-no-se-modifica
exige_dato "SELECT fecha FROM inabil WHERE fecha > '2031-01-01'" 2031-06-02

paso 'Y se borra'
nuevo 02/06/2031
confirma alt+r 'Inabil' inabil-borrar
exige_dato "SELECT count(*) FROM inabil WHERE fecha > '2031-01-01'" 0
teclea alt+c

paso 'Una promoción sin condición se rechaza'
elige tipo-promocion
exige_traza 'terminando creacion frm tipopromocion'
nuevo ''
opta 1 # the first movement type
llena 'Otoño' 01/10/2031
teclea alt+a
responde 'Error en Validación' Return promocion-rechazada

paso 'Con ella, y la fecha final del calendario, se agrega'
nuevo ''
opta 1
llena 'Otoño' 01/10/2031
salta calendario
llena 15/11/2031
elige_dia promocion-calendario
salta calendario
llena 'Una sombrilla al señor que ahorre'
baja 1 # in force
captura promocion-nueva
confirma alt+a 'TipoPromocion' promocion-registrar
exige_dato "SELECT tipomovimientoid, fechainicial, fechafinal, condicion, estatus FROM tipopromocion
             WHERE descripcion = 'Otoño'" 'MN|2031-10-01|2031-11-02|Una sombrilla al señor que ahorre|0'

paso 'Se elige en la lista y se modifica'
elige_ultimo
salta movimiento
exige_campo 'Otoño'
captura promocion-elegida tipo-promocion
llena 'Otoño lluvioso'
confirma alt+a 'TipoPromocion' promocion-guardar
exige_dato "SELECT descripcion, fechafinal FROM tipopromocion WHERE fechainicial > '2031-01-01'" \
  'Otoño lluvioso|2031-11-02'

paso 'Y se borra'
confirma alt+r 'TipoPromocion' promocion-borrar
exige_dato "SELECT count(*) FROM tipopromocion WHERE fechainicial > '2031-01-01'" 0
teclea alt+c

paso 'Una serie de tasas sin observaciones no se agrega'
elige tipo-tasa-interes
espera_ventana 'Tipo Tasa Variables'
nuevo ZQ
teclea alt+a
responde 'Mensaje' Return serie-sin-observaciones
exige_dato "SELECT count(*) FROM tipotasa WHERE tipotasa = 'ZQ'" 0

paso 'Con ellas se agrega sin preguntar'
espera_ventana 'Tipo Tasa Variables'
nuevo ZQ 'Tasa del año'
captura serie-nueva tipo-tasa-interes
teclea alt+a
responde 'Mensaje' Return serie-agregada
exige_dato "SELECT descripcion FROM tipotasa WHERE tipotasa = 'ZQ'" 'Tasa del año'

# The last row; without &Nuevo, after which &Aceptar would insert.
paso 'Se elige en la lista y se modifica'
espera_ventana 'Tipo Tasa Variables'
vuelve nombre
teclea End
salta lista
exige_campo ZQ
llena ZQS 'Tasa del otoño'
confirma alt+a 'Modifica tasa' serie-guardar
exige_dato "SELECT tipotasa, descripcion FROM tipotasa WHERE tipotasa LIKE 'ZQ%'" 'ZQS|Tasa del otoño'

paso 'Y se borra'
espera_ventana 'Tipo Tasa Variables'
teclea alt+n
vuelve nombre
teclea End
confirma alt+r 'Elimina tasa' serie-borrar
exige_dato "SELECT string_agg(tipotasa, ' ' ORDER BY tipotasa) FROM tipotasa" 'CCP CETES TIIE'
espera_ventana 'Tipo Tasa Variables'
teclea alt+c

paso 'El servidor rechaza un periodo que termina antes de empezar'
espera_ventana "$principal"
elige tasa-interes
espera_ventana 'Tasas Variables'
nuevo TIIE 01/10/2031
salta calendario
llena 30/09/2031
salta calendario
llena 5.5 5.25
confirma alt+a 'tasasinteres' periodo-al-reves
responde 'Error en Validación' Return periodo-rechazado
exige_dato "SELECT count(*) FROM tasavariable WHERE fechainicial > '2031-01-01'" 0

paso 'Uno con la fecha del calendario se agrega, y sus valores se pierden'
espera_ventana 'Tasas Variables'
nuevo TIIE 01/10/2031
salta calendario
llena 15/11/2031
elige_dia periodo-calendario
salta calendario
llena 5.5 5.25
captura periodo-nuevo
confirma alt+a 'tasasinteres' periodo-registrar
exige_dato "SELECT tipotasa, fechainicial, fechafinal, valor1 = 5.5, valor2 = 5.25 FROM tasavariable
             WHERE fechainicial > '2031-01-01'" 'TIIE|2031-10-01|2031-11-02|f|f'

paso 'Se elige en la lista y se modifica: así se guardan'
espera_ventana 'Tasas Variables'
elige_ultimo
exige_campo 01/10/2031
captura periodo-elegido tasa-interes
salta fecha-inicio calendario fecha-final calendario
llena 5.5 5.25
confirma alt+a 'tasasinteres' periodo-guardar
exige_dato "SELECT valor1, valor2 FROM tasavariable WHERE fechainicial > '2031-01-01'" '5.500000|5.250000'

paso 'Y se borra'
espera_ventana 'Tasas Variables'
confirma alt+r 'tasasinteres' periodo-borrar
exige_dato "SELECT count(*) FROM tasavariable WHERE fechainicial > '2031-01-01'" 0
espera_ventana 'Tasas Variables'
teclea alt+c

# Is no child form open? The area behind them has one colour.
area_vacia() { [[ $(import -silent -window root png:- | convert - -crop 780x500+120+130 -format '%k' info:) == 1 ]]; }

# The first date of the other entry form, which is at the same place as that of the one that has been told to close.
muestra_la_otra() {
  pulsa tasa-fecha-inicial
  muestra 02/10/2031
}

paso 'La historia de tasas abre dos capturas a la vez'
espera_ventana "$principal"
elige tasas
exige_traza 'terminando creacion y fijando foco del dialogo WTASA'
captura tasas
tasas=$(servidor psql "$sucursal" -XAtc 'SELECT count(*) FROM tasa')
teclea alt+n
llena 15/10/2031 # the first date; the calendar's button follows
elige_dia tasa-calendario
salta calendario
llena 31/12/2031
salta calendario
llena 9 18
captura tasa-nueva tasa-nueva
teclea alt+a # asks nothing
pulsa tasas-nuevo
escribe 05/10/2031
exige_campo 05/10/2031
captura dos-tasas-nuevas
teclea alt+c
espera 'no queda la otra captura' muestra_la_otra

paso 'Se cierran y no guardaron nada'
teclea alt+c alt+c # and the history
espera 'queda abierta una forma' area_vacia
exige_dato 'SELECT count(*) FROM tasa' "$tasas"
