# Banks, indices, non-working days, promotions and rates: one of each is added, refused, changed and deleted.

# The calendar of the date field with the keyboard on: opens it, picks the second day of the month shown.
elige_en_calendario() {
  teclea Tab space
  espera_sin_titulo
  captura "$1"
  teclea Tab Tab space alt+a
  espera_cierre
}
# Waits for a dialog without a title.
espera_sin_titulo() { espera 'no aparece el diálogo' es_otra '' "${ventana:-}"; }

paso 'Un banco sin cuenta contable se rechaza'
espera_ventana "$principal"
elige 2
exige_traza 'terminando creacion frm banco'
