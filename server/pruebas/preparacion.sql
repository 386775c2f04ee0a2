-- pgTAP and the helpers of these tests, in a schema that exists only here.
CREATE SCHEMA tap;
CREATE EXTENSION pgtap SCHEMA tap;
CREATE EXTENSION dblink SCHEMA tap;

-- Runs a statement as a user connected to a branch, the way the client does, and answers the first column of its first
-- row ('' for none), or the error's text; a refused statement leaves nothing behind.
CREATE FUNCTION tap.como(usuario text, sucursal text, sentencia text) RETURNS text
LANGUAGE plpgsql AS $$
DECLARE
  ruta text := current_setting('search_path');
  respuesta text;
BEGIN
  PERFORM set_config('search_path', 'public, ' || sucursal, true), set_config('session_authorization', usuario, true);
  IF sentencia ~* '^(select|.* returning )' THEN
    EXECUTE sentencia INTO respuesta;
  ELSE
    EXECUTE sentencia;
  END IF;
  PERFORM set_config('session_authorization', 'postgres', true), set_config('search_path', ruta, true);
  RETURN coalesce(respuesta, '');
EXCEPTION WHEN OTHERS THEN
  RETURN SQLERRM;
END $$;

-- The plan of a query, line by line.
CREATE FUNCTION tap.plan(consulta text) RETURNS SETOF text
LANGUAGE plpgsql AS $$
BEGIN
  RETURN QUERY EXECUTE 'EXPLAIN ' || consulta;
END $$;

-- Further sessions, for what takes two: each has a name, and is a user of a branch as in como(). What they do is not
-- undone at the end of a test.
CREATE FUNCTION tap.abre(sesion text, usuario text, sucursal text) RETURNS void
LANGUAGE plpgsql AS $$
BEGIN
  PERFORM dblink_connect(sesion, format('host=%s port=%s dbname=%s user=postgres options=-clc_messages=C',
                                        split_part(current_setting('unix_socket_directories'), ',', 1),
                                        current_setting('port'), current_database()));
  PERFORM dblink_exec(sesion, format('SET search_path TO public, %s', sucursal));
  PERFORM dblink_exec(sesion, format('SET SESSION AUTHORIZATION %I', usuario));
END $$;

-- Runs a statement in a session and answers as como() does.
CREATE FUNCTION tap.di(sesion text, sentencia text) RETURNS text
LANGUAGE plpgsql AS $$
DECLARE
  respuesta text;
BEGIN
  IF sentencia ~* '^select ' THEN
    SELECT valor INTO respuesta
      FROM dblink(sesion, format('SELECT r::text FROM (%s) AS c (r)', sentencia)) AS f (valor text);
  ELSE
    PERFORM dblink_exec(sesion, sentencia);
  END IF;
  RETURN coalesce(respuesta, '');
EXCEPTION WHEN OTHERS OR query_canceled THEN
  RETURN SQLERRM;
END $$;

-- Starts a SELECT, and comes back when it is done or waits for another session.
CREATE FUNCTION tap.empieza(sesion text, sentencia text) RETURNS void
LANGUAGE plpgsql AS $$
DECLARE
  quien integer;
BEGIN
  SELECT pid INTO quien FROM dblink(sesion, 'SELECT pg_backend_pid()') AS f (pid integer);
  PERFORM dblink_send_query(sesion, format('SELECT r::text FROM (%s) AS c (r)', sentencia));
  FOR vez IN 1 .. 500 LOOP
    EXIT WHEN dblink_is_busy(sesion) = 0 OR cardinality(pg_blocking_pids(quien)) > 0;
    PERFORM pg_sleep(0.01);
  END LOOP;
END $$;

-- What that statement answered.
CREATE FUNCTION tap.acaba(sesion text) RETURNS text
LANGUAGE plpgsql AS $$
DECLARE
  respuesta text := '';
BEGIN
  SELECT coalesce(valor, '') INTO respuesta FROM dblink_get_result(sesion) AS f (valor text);
  PERFORM * FROM dblink_get_result(sesion) AS f (valor text);
  RETURN coalesce(respuesta, '');
EXCEPTION WHEN OTHERS OR query_canceled THEN
  respuesta := SQLERRM;
  PERFORM * FROM dblink_get_result(sesion, false) AS f (valor text);
  RETURN respuesta;
END $$;

-- Two statements that meet: `segunda` starts while the transaction of `primera` is still open. Answers both answers.
CREATE FUNCTION tap.carrera(primera text, segunda text, usuario text DEFAULT 'adriana') RETURNS text
LANGUAGE plpgsql AS $$
DECLARE
  una text;
  otra text;
BEGIN
  PERFORM abre('una', usuario, 'norte'), abre('otra', usuario, 'norte');
  PERFORM di('una', 'BEGIN');
  una := di('una', primera);
  PERFORM empieza('otra', segunda);
  PERFORM di('una', 'COMMIT');
  otra := acaba('otra');
  PERFORM dblink_disconnect('una'), dblink_disconnect('otra');
  RETURN format('%s / %s', una, otra);
END $$;

-- A session as abre(), but through the door, with the login's own password: 'Clave de ' and its name. Answers '' or why
-- not.
CREATE FUNCTION tap.entra(sesion text, login text, sucursal text) RETURNS text
LANGUAGE plpgsql AS $$
DECLARE
  motivo text;
BEGIN
  PERFORM dblink_connect(sesion, format('host=127.0.0.1 port=%s dbname=%s user=%s password=''Clave de %s''',
                                        current_setting('port'), current_database(), login, login));
  PERFORM dblink_exec(sesion, format('SET search_path TO public, %s', sucursal));
  RETURN '';
EXCEPTION WHEN sqlclient_unable_to_establish_sqlconnection THEN
  GET STACKED DIAGNOSTICS motivo = PG_EXCEPTION_DETAIL;
  RETURN motivo;
END $$;
