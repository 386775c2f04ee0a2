-- Through the door. A login has its places and no more; whoever sits on a table or in a transaction is ended.
BEGIN;
SELECT no_plan();
SET password_encryption = 'scram-sha-256';
ALTER ROLE hilda PASSWORD 'Clave de hilda' VALID UNTIL 'infinity';
ALTER ROLE camila PASSWORD 'Clave de camila' VALID UNTIL 'infinity';
COMMIT;
BEGIN;
SELECT is((SELECT count(*) FROM (SELECT entra('c' || n, 'camila', 'norte') AS fallo FROM generate_series(1, 20) AS n) AS e
            WHERE fallo = ''), 7::bigint, 'un login ocupa siete lugares y no más');
SELECT is(entra('h', 'hilda', 'norte'), '', 'los demás entran');
SELECT is(di('c1', $$select count(usename) from pg_stat_activity where usename='camila'$$), '7',
          'y el cliente puede contarlos');
SELECT dblink_disconnect('c' || n) FROM generate_series(2, 7) AS n;

SELECT di('h', 'SET lock_timeout = 0'), di('h', 'SET idle_in_transaction_session_timeout = 0'), di('h', 'BEGIN');
SELECT is(di('h', 'LOCK TABLE inabil IN ACCESS EXCLUSIVE MODE'), '', 'quien tiene el módulo puede bloquear');
SELECT empieza('c1', 'SELECT count(*) FROM inabil'), pg_sleep(0.3);
SELECT is_empty($$ SELECT comun.vigila() $$, 'antes de tiempo no se echa a nadie');
SELECT matches((SELECT string_agg(v, ' ') FROM comun.vigila(bloquea => '0.1 s') AS v),
               '^hilda: hace esperar a otros desde hace [0-9:]+$', 'pasado el tiempo, al que bloquea y solo a él');
SELECT matches(acaba('c1'), '^\d+$', 'y el otro sigue');
SELECT dblink_disconnect('h'), entra('h', 'hilda', 'norte'), di('h', 'BEGIN'), di('h', 'SELECT 1');
SELECT matches((SELECT string_agg(v, ' ') FROM comun.vigila(ociosa => '0 s') AS v), '^hilda: no hace nada en su transacción',
               'ni en una transacción se queda nadie');
SELECT dblink_disconnect('h'), entra('h', 'hilda', 'norte'), di('h', 'BEGIN');
SELECT matches((SELECT string_agg(v, ' ') FROM comun.vigila(transaccion => '0 s') AS v), '^hilda: su transacción dura ya',
               'ni sin fin');
SELECT is(como('camila', 'norte', 'SELECT comun.vigila()'), 'permission denied for schema comun', 'vigilar es de pocos');
SELECT dblink_disconnect('h'), dblink_disconnect('c1');

-- A deleted user is out at once, and his password does not come back with his name.
SELECT abre('a', 'adriana', 'norte');
SELECT is(di('a', $$select spisujeto('Prueba','','Lucía','','',30,'1996-05-04','') > 0$$)
          || di('a', $$select spiusuario('lucia','CAJ','adriana','','','','',(SELECT max(sujetoid) FROM sujeto))$$)
          || di('a', $$select creausuario('lucia','tolvara_usuarios')$$), 'true1', 'lucia llega');
COMMIT;
ALTER ROLE lucia PASSWORD 'Clave de lucia' VALID UNTIL 'infinity';
BEGIN;
SELECT is(entra('l', 'lucia', 'norte'), '', 'entra');
SELECT is(di('l', 'SELECT count(*) > 0 FROM moneda'), 'true', 'trabaja');
SELECT is(di('a', $$select spdusuario('lucia')$$), '', 'se la borra');
SELECT matches(di('l', 'SELECT count(*) FROM moneda'), 'terminat|termin|closed|no connection|conexión', 'su sesión termina');
SELECT matches(entra('m', 'lucia', 'norte'), 'lucia', 'no vuelve a entrar');
SELECT is(di('a', $$select spisujeto('Otra','','Lucía','','',30,'1996-05-04','') > 0$$)
          || di('a', $$select spiusuario('lucia','CAJ','adriana','','','','',(SELECT max(sujetoid) FROM sujeto))$$)
          || di('a', $$select creausuario('lucia','tolvara_usuarios')$$), 'true1', 'llega otra lucia');
SELECT matches(entra('m', 'lucia', 'norte'), 'lucia', 'la contraseña de la primera no le sirve a nadie');
SELECT is(di('a', $$select spdusuario('lucia')$$), '', 'y se va también');
SELECT dblink_disconnect('l'), dblink_disconnect('a');

SELECT abre('n', 'camila', 'norte');
SELECT is(di('n', $$select spimoneda('Q', 'x', 1)$$), 'No tiene permiso para la opción Monedas (módulo 0203)', 'se niega');
SELECT dblink_disconnect('n');

-- The server's own log has every refusal and every failed entry, and no password.
SELECT CASE WHEN esta THEN matches(registro, patron, que) ELSE doesnt_match(registro, patron, que) END
  FROM pg_read_file(pg_current_logfile()) AS registro,
       (VALUES (true, 'camila@tolvara 127\.0\.0\.1', 'el registro dice quién y desde dónde'),
               (true, 'FATAL: .*lucia', 'y quién no pudo entrar'),
               (true, 'vigila: termina la sesión \d+ de hilda', 'y a quién se echó'),
               (true, 'No tiene permiso para la opción', 'también lo negado'),
               (false, 'clave 1[0-9]|De Efra|De Dar|Clave de|Contraseña [123]', 'y ninguna contraseña'))
         AS p (esta, patron, que);
SELECT * FROM finish();
COMMIT;
DROP ROLE lucia;
ALTER ROLE hilda PASSWORD NULL;
ALTER ROLE camila PASSWORD NULL;
