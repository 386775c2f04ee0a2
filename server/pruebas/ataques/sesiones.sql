-- The attacks that take sessions of their own. What they leave behind is removed at the end.
BEGIN;
SELECT no_plan();
SELECT abre('braulio', 'braulio', 'norte'), abre('hilda', 'hilda', 'norte'), abre('adriana', 'adriana', 'norte');

-- A right that is taken away counts at the next statement, in a transaction of any kind.
SELECT di('hilda', 'BEGIN');
SELECT is(di('hilda', $$DELETE FROM inabil WHERE fecha = '2031-01-01'$$), '', 'hilda puede');
SELECT is(di('hilda', $$SELECT spumoneda('MX', 'Peso', 1)$$), '', 'hilda puede también con la función');
UPDATE norte.permisomodulo SET permiso = 'N' WHERE usuarioid = 'hilda' AND clavemodulo IN ('0203', '0448');
COMMIT;
BEGIN;
SELECT matches(di('hilda', 'SAVEPOINT s') || di('hilda', $$SELECT spumoneda('MX', 'Peso', 1)$$), 'No tiene permiso',
               'en la misma transacción ya no puede');
SELECT di('hilda', 'ROLLBACK TO s');
SELECT matches(di('hilda', $$DELETE FROM inabil WHERE fecha = '2031-01-01'$$), 'No tiene permiso|permission denied',
               'ni directamente');
SELECT di('hilda', 'ROLLBACK');
SELECT matches(di('hilda', 'BEGIN ISOLATION LEVEL ' || nivel) || di('hilda', 'SELECT count(*) FROM moneda')
               || di('hilda', $$SELECT spudis('x', 1)$$) || di('hilda', 'ROLLBACK') || di('hilda', 'BEGIN ISOLATION LEVEL ' || nivel)
               || di('hilda', $$SELECT spiudis('01/01/2031', 1)$$) || di('hilda', 'ROLLBACK'),
               'No se puede trabajar en una transacción', nivel)
  FROM unnest(ARRAY['REPEATABLE READ', 'SERIALIZABLE']) AS nivel;
SELECT matches(di('hilda', 'BEGIN ISOLATION LEVEL REPEATABLE READ') || di('hilda', $$DELETE FROM tasavariable WHERE tasavariableid = 0$$)
               || di('hilda', 'ROLLBACK'), 'No se puede trabajar en una transacción', 'ni directamente');
UPDATE norte.permisomodulo SET permiso = 'S' WHERE usuarioid = 'hilda';

-- Guessing: five answers in a minute, all sessions and however each is ended.
SET LOCAL password_encryption = 'scram-sha-256';
ALTER ROLE dario PASSWORD 'De Darío 1' VALID UNTIL 'infinity';
ALTER ROLE efrain PASSWORD 'De Efraín 1' VALID UNTIL 'infinity';
COMMIT;
BEGIN;
SELECT dblink_disconnect('hilda'), dblink_disconnect('braulio'), dblink_disconnect('adriana');
SELECT abre('a', 'dario', 'sur'), abre('b', 'beatriz', 'sur');
CREATE TEMPORARY TABLE intento AS SELECT ''::text AS respuesta LIMIT 0;
SELECT di('a', 'SET statement_timeout = 25');
INSERT INTO intento SELECT di('a', format('SELECT login(''efrain'', ''clave %s'')', n)) FROM generate_series(1, 100) AS n;
SELECT is((SELECT last_value % 8 FROM comun.intentos_efrain), 5::bigint, 'cinco llegan a calcularse');
SELECT cmp_ok((SELECT count(*) FROM intento WHERE respuesta ~ 'Demasiados intentos'), '>', 80::bigint, 'las demás ni eso');
SELECT is((SELECT count(*) FROM intento WHERE respuesta !~ 'Demasiados intentos|canceling'), 0::bigint,
          'y ninguna se contesta');
SELECT matches(di('b', $$SELECT login('efrain', 'De Efraín 1')$$), 'Demasiados intentos', 'el freno es de todas las sesiones');
SELECT di('b', 'BEGIN');
SELECT is(di('b', $$SELECT login('dario', 'No')$$), '0', 'otro login no se entera');
SELECT di('b', 'ROLLBACK');
SELECT is((SELECT last_value % 8 FROM comun.intentos_dario), 1::bigint, 'el rollback no borra el intento');
SELECT is(di('b', $$SELECT login('dario', 'De Darío 1')$$), '1', 'la contraseña buena entra');
SELECT is((SELECT last_value % 8 FROM comun.intentos_dario), 1::bigint, 'y no gasta ningún intento');
SELECT setval('comun.intentos_efrain', last_value - 61 * 8) FROM comun.intentos_efrain;
SELECT is(di('b', $$SELECT login('efrain', 'De Efraín 1')$$), '1', 'pasado un minuto se puede otra vez');
SELECT pg_advisory_lock(hashtextextended('comun.intentos_efrain', 0));  -- as one who is just counting
SELECT empieza('b', $$SELECT login('efrain', 'De Efraín 1')$$);
SELECT is((SELECT count(*) FROM pg_locks WHERE locktype = 'advisory' AND NOT granted), 1::bigint,
          'dos que llegan a la vez no se cuentan por uno');
SELECT pg_advisory_unlock(hashtextextended('comun.intentos_efrain', 0));
SELECT is(acaba('b'), '1', 'y el segundo tiene su respuesta');
SELECT * FROM finish();
COMMIT;

SELECT setval('comun.intentos_dario', 1), setval('comun.intentos_efrain', 1);
SELECT dblink_disconnect('a'), dblink_disconnect('b');
ALTER ROLE dario PASSWORD NULL;
ALTER ROLE efrain PASSWORD NULL;
