-- The watch on sessions, to be called once a minute by the server's administrator or a scheduled job. It ends those of
-- users that keep others waiting or sit in a transaction, which no setting of theirs can prevent, and those of logins
-- that may no longer connect; it answers what it ended, and the server's log file keeps it. Each interval is a limit:
--   bloquea      for keeping others waiting while doing nothing
--   trabaja      for keeping others waiting with work; and for waiting oneself for another server, which ends by itself
--                unless that one went silent in the middle of its answer
--   ociosa       for doing nothing within a transaction
--   transaccion  for a transaction
CREATE OR REPLACE FUNCTION comun.vigila(bloquea interval DEFAULT '1 minute', trabaja interval DEFAULT '10 minutes',
                                        ociosa interval DEFAULT '10 minutes', transaccion interval DEFAULT '1 hour')
RETURNS SETOF text
LANGUAGE plpgsql SET search_path TO comun, pg_temp AS $$
DECLARE
  ahora CONSTANT timestamptz := clock_timestamp();
  sesion record;
  sucursal name;
BEGIN
  PERFORM pg_stat_clear_snapshot();
  FOR sesion IN
    WITH espera AS (
      SELECT quien AS pid, max(ahora - l.waitstart) AS tiempo
        FROM pg_locks l, unnest(pg_blocking_pids(l.pid)) AS quien
       WHERE NOT l.granted
       GROUP BY quien),
    candidata AS (
      SELECT a.pid, a.usename,
             CASE WHEN NOT r.rolcanlogin THEN 'su login ya no puede entrar'
                  WHEN e.tiempo > CASE WHEN a.state = 'active' THEN trabaja ELSE bloquea END
                    THEN format('hace esperar a otros desde hace %s', date_trunc('second', e.tiempo))
                  WHEN a.wait_event IN ('AppendReady', 'Extension') AND ahora - a.query_start > trabaja
                    THEN format('espera a otro servidor desde hace %s', date_trunc('second', ahora - a.query_start))
                  WHEN a.state LIKE 'idle in transaction%' AND ahora - a.state_change > ociosa
                    THEN format('no hace nada en su transacción desde hace %s',
                                date_trunc('second', ahora - a.state_change))
                  WHEN ahora - a.xact_start > transaccion
                    THEN format('su transacción dura ya %s', date_trunc('second', ahora - a.xact_start)) END AS motivo
        FROM pg_stat_activity a
        JOIN pg_roles r ON r.oid = a.usesysid
        LEFT JOIN espera e USING (pid)
       WHERE a.backend_type = 'client backend' AND NOT r.rolsuper AND a.pid <> pg_backend_pid()
         AND a.wait_event_type IS DISTINCT FROM 'Lock')
    SELECT * FROM candidata WHERE motivo IS NOT NULL
  LOOP
    IF pg_terminate_backend(sesion.pid) THEN
      RAISE LOG 'vigila: termina la sesión % de %: %', sesion.pid, sesion.usename, sesion.motivo;
      RETURN NEXT format('%s: %s', sesion.usename, sesion.motivo);
    END IF;
  END LOOP;
  FOR sucursal IN SELECT s FROM sucursales() AS s WHERE to_regprocedure(format('%I.prepara_bitacora()', s)) IS NOT NULL LOOP
    EXECUTE format('SELECT %I.prepara_bitacora()', sucursal);
  END LOOP;
END $$;
REVOKE ALL ON FUNCTION comun.vigila FROM PUBLIC;
