# The program ends, and its session with it.
paso 'Ctrl+Q termina el programa'
espera_ventana "$principal"
teclea ctrl+q
espera_fin
exige_dato "SELECT count(*) FROM pg_stat_activity WHERE usename IN ('$usuario', 'camila')" 0
