-- What was refused leaves no row; auditors read it out of the server's own log, and nothing else of it.
BEGIN;
SELECT no_plan();
SET password_encryption = 'scram-sha-256';
ALTER ROLE camila PASSWORD 'Clave de camila' VALID UNTIL 'infinity';
ALTER ROLE hilda PASSWORD 'Otra cosa' VALID UNTIL 'infinity';
CREATE ROLE eva LOGIN IN ROLE tolvara_auditores;
COMMIT;
BEGIN;
SELECT is(entra('c', 'camila', 'norte'), '', 'camila entra');
SELECT matches(di('c', $$SELECT spimoneda('QQ', 'x', 1)$$), 'No tiene permiso', 'pide lo que no es suyo');
SELECT matches(di('c', 'SELECT count(*) FROM bitacora'), 'permission denied|permiso denegado', 'y lee lo que no es suyo');
SELECT is(di('c', 'SELECT 1/1'), '1', 'lo demás no se cuenta');
SELECT matches(entra('h', 'hilda', 'norte'), 'hilda', 'alguien prueba una contraseña de hilda');
SELECT count(entra('c' || n, 'camila', 'norte')) FROM generate_series(1, 7) AS n;
SELECT pg_sleep(0.5);
-- what was refused since the transaction began
CREATE FUNCTION pg_temp.cuenta(condicion text) RETURNS text LANGUAGE sql AS $$
  SELECT como('eva', 'norte', format('SELECT count(*) FROM comun.rechazos(%L) WHERE %s', now(), condicion))
$$;
SELECT is(pg_temp.cuenta(condicion), esperado, condicion)
  FROM (VALUES ($$clase = 'permiso' AND usuario = 'camila' AND direccion = '127.0.0.1' AND mensaje ~ 'Monedas \(módulo 0203\)'$$, '1'),
               ($$clase = 'permiso' AND usuario = 'camila' AND mensaje ~ 'bitacora'$$, '1'),
               ($$clase = 'permiso' AND usuario = 'camila'$$, '2'),
               ($$clase = 'entrada' AND usuario = 'hilda'$$, '1'),
               ($$clase = 'sesiones' AND usuario = 'camila'$$, '1'),
               ($$momento NOT BETWEEN now() - interval '1 minute' AND clock_timestamp()$$, '0'),
               ($$mensaje ~ 'SELECT|Clave de|Otra cosa'$$, '0')) AS p (condicion, esperado);
SELECT is(como('eva', 'norte', $$SELECT count(*) FROM comun.rechazos('2000-01-01', '2001-01-01')$$), '0', 'ni antes ni después');
SELECT is(como('eva', 'norte', 'SELECT count(*) FROM comun.rechazos(NULL, NULL)'), '0', 'ni sin momentos');
SELECT matches(como(usuario, 'norte', sentencia), 'permission denied', usuario || ': ' || sentencia)
  FROM (VALUES ('eva', $$SELECT pg_read_file('postgresql.conf')$$), ('eva', 'SELECT pg_ls_logdir()'),
               ('eva', $$SELECT comun.texto_del_registro('x')$$), ('eva', 'SELECT * FROM comun.version'),
               ('camila', 'SELECT * FROM comun.rechazos()'), ('adriana', 'SELECT * FROM comun.rechazos()'))
         AS p (usuario, sentencia);
SELECT matches(como('tolvara_registro', 'norte', sentencia), 'permission denied|must be|outside|not allowed', 'su dueño tampoco: ' || sentencia)
  FROM unnest(ARRAY[$$SELECT pg_read_binary_file('/etc/passwd', 0, 9, true)$$, 'SELECT count(*) FROM norte.moneda']) AS sentencia;
SELECT is(convert_from(convert_to(comun.texto_del_registro('\x61ff'), 'UTF8'), 'UTF8'), 'aÿ', 'lo que no es texto no estorba');
SELECT * FROM finish();
COMMIT;
SELECT dblink_disconnect(c) FROM unnest(dblink_get_connections()) AS c;
ALTER ROLE camila PASSWORD NULL;
ALTER ROLE hilda PASSWORD NULL;
DROP ROLE eva;
