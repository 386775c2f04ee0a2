-- pgTAP and the helpers of these tests, in a schema that exists only here.
CREATE SCHEMA tap;
CREATE EXTENSION pgtap SCHEMA tap;

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
