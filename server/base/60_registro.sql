-- The server's own log for auditors: what was refused, and so left no row anywhere. The role that owns this may read the
-- files of the log and does nothing else.
GRANT pg_read_all_settings TO tolvara_registro;
GRANT EXECUTE ON FUNCTION pg_ls_logdir(), pg_read_binary_file(text, bigint, bigint, boolean) TO tolvara_registro;
GRANT USAGE ON SCHEMA comun TO tolvara_registro, tolvara_auditores;
SET LOCAL search_path TO comun, pg_temp;

-- A line of the log. A name that is asked for at the door may have any bytes in it, and they stand there as they came.
CREATE OR REPLACE FUNCTION texto_del_registro(bytes bytea) RETURNS text
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT AS $$
BEGIN
  RETURN convert_from(bytes, 'UTF8');
EXCEPTION WHEN character_not_in_repertoire THEN
  RETURN convert_from(bytes, 'LATIN1');
END $$;

-- Refusals of permission, log-ins that failed, sessions beyond the limit of a login or of the server, and those that the
-- watch ended. Read in pieces, since whoever wants to hide something may fill the log.
CREATE OR REPLACE FUNCTION rechazos(desde timestamptz DEFAULT now() - interval '1 day', hasta timestamptz DEFAULT 'infinity')
RETURNS TABLE (momento timestamptz, usuario text, base text, direccion text, aplicacion text, clase text, mensaje text)
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  pieza CONSTANT bigint := 16 * 1024 * 1024;
  archivo text;
  lugar bigint;
  bytes bytea;
  fin bigint;
  linea text;
  j jsonb;
BEGIN
  IF current_setting('log_destination') !~ 'jsonlog' THEN
    RAISE EXCEPTION 'El servidor no escribe su registro como jsonlog' USING ERRCODE = 'object_not_in_prerequisite_state';
  END IF;
  FOR archivo IN
    SELECT current_setting('log_directory') || '/' || l.name FROM pg_ls_logdir() AS l
     WHERE l.name ~ '\.json$' AND l.modification > desde - interval '1 second'  -- told in whole seconds
     ORDER BY l.modification
  LOOP
    lugar := 0;
    LOOP
      bytes := pg_read_binary_file(archivo, lugar, pieza, true);
      fin := length(bytes);
      WHILE fin > 0 AND get_byte(bytes, fin::integer - 1) <> 10 LOOP  -- up to the last end of line
        fin := fin - 1;
      END LOOP;
      EXIT WHEN coalesce(fin, 0) = 0;
      FOR linea IN
        SELECT texto_del_registro(convert_to(l, 'LATIN1'))
          FROM string_to_table(convert_from(substr(bytes, 1, fin::integer), 'LATIN1'), E'\n') AS l
         WHERE l ~ '"state_code":"(28|42501|53300)' OR l ~ '"message":"vigila: '
      LOOP
        BEGIN
          j := linea::jsonb;
          momento := (j ->> 'timestamp')::timestamptz;
          CONTINUE WHEN momento NOT BETWEEN desde AND hasta;
          clase := CASE WHEN j ->> 'state_code' = '42501' THEN 'permiso' WHEN j ->> 'state_code' = '53300' THEN 'sesiones'
                        WHEN j ->> 'state_code' LIKE '28%' THEN 'entrada' ELSE 'vigilancia' END;
          usuario := j ->> 'user';
          base := j ->> 'dbname';
          direccion := j ->> 'remote_host';
          aplicacion := j ->> 'application_name';
          mensaje := j ->> 'message';
        EXCEPTION WHEN data_exception THEN  -- shown all the same, as it stands
          momento := NULL;
          clase := 'ilegible';
          mensaje := linea;
        END;
        RETURN NEXT;
      END LOOP;
      lugar := lugar + fin;
    END LOOP;
  END LOOP;
END $$;

ALTER FUNCTION texto_del_registro(bytea) OWNER TO tolvara_registro;
ALTER FUNCTION rechazos(timestamptz, timestamptz) OWNER TO tolvara_registro;
REVOKE ALL ON FUNCTION texto_del_registro, rechazos FROM PUBLIC;
GRANT EXECUTE ON FUNCTION rechazos TO tolvara_auditores;
