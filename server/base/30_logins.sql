-- Making and retiring the server logins of persons. These run with the rights of tolvara_altas, the one role that may
-- create roles, and only tolvara_propietario may call them: the branch's functions ask the permission first.
SET LOCAL search_path TO comun, pg_temp;

-- Makes the login, without a password, or revives a retired one, and lets it into the branch. A login of the server that
-- is no user of the system (a superuser above all) is never touched, and one that the administrator has suspended
-- (NOLOGIN) stays so: it is told from a retired one by the date that baja_login() sets.
CREATE OR REPLACE FUNCTION alta_login(login text, sucursal text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT SET client_min_messages = warning AS $$
DECLARE
  papel pg_roles := (SELECT r FROM pg_roles r WHERE rolname = login);
BEGIN
  IF login !~ '^[A-Za-z][A-Za-z0-9_.-]{0,19}$' OR login IS NULL THEN
    RAISE EXCEPTION 'El login "%" no es válido: de 1 a 20 letras sin acento, números, "_", "." o "-", y al principio '
      'una letra', left(login, 30) USING ERRCODE = 'invalid_name';
  ELSIF login ~* '^(pg_|tolvara_|sucursal_)'
     OR papel.rolsuper OR papel.rolcreaterole OR papel.rolcreatedb
     OR papel.oid IS NOT NULL AND NOT EXISTS (SELECT FROM pg_auth_members m
                                               WHERE m.member = papel.oid AND m.roleid = 'tolvara_usuarios'::regrole)
  THEN
    RAISE EXCEPTION 'El login "%" está reservado en el servidor', login USING ERRCODE = 'reserved_name';
  ELSIF NOT papel.rolcanlogin AND papel.rolvaliduntil IS DISTINCT FROM '-infinity' THEN
    RAISE EXCEPTION 'El login "%" está suspendido por el administrador del servidor', login
      USING ERRCODE = 'insufficient_privilege';
  END IF;
  IF papel.oid IS NULL THEN
    EXECUTE format('CREATE ROLE %I LOGIN', login);
  ELSIF NOT papel.rolcanlogin THEN
    EXECUTE format('ALTER ROLE %I LOGIN PASSWORD NULL VALID UNTIL ''infinity''', login);
  END IF;
  EXECUTE format('GRANT tolvara_usuarios, %I TO %I', 'sucursal_' || sucursal, login);
END $$;

-- Takes the branch away from a login; one that is left without any branch loses its password and its sessions and can
-- no longer connect.
CREATE OR REPLACE FUNCTION baja_login(login text, sucursal text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT SET client_min_messages = warning AS $$
BEGIN
  IF NOT EXISTS (SELECT FROM pg_auth_members m
                  WHERE m.member::regrole = to_regrole(quote_ident(login))
                    AND m.roleid::regrole = to_regrole(quote_ident('sucursal_' || sucursal))) THEN
    RETURN;
  END IF;
  EXECUTE format('REVOKE %I FROM %I', 'sucursal_' || sucursal, login);
  IF NOT EXISTS (SELECT FROM pg_auth_members m JOIN pg_roles g ON g.oid = m.roleid
                  WHERE m.member::regrole = to_regrole(quote_ident(login)) AND g.rolname ~ '^sucursal_') THEN
    EXECUTE format('ALTER ROLE %I NOLOGIN PASSWORD NULL', login)
            || CASE WHEN (SELECT rolcanlogin FROM pg_roles WHERE rolname = login)
                    THEN ' VALID UNTIL ''-infinity''' ELSE '' END;
    PERFORM pg_terminate_backend(pid) FROM pg_stat_activity WHERE usename = login;
  END IF;
END $$;

-- How many sessions a login may have at once, so that nobody can take all places.
CREATE OR REPLACE FUNCTION limita_sesiones(login text, sesiones integer) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  IF EXISTS (SELECT FROM pg_roles r JOIN pg_auth_members m ON m.member = r.oid
              WHERE r.rolname = login AND m.roleid = 'tolvara_usuarios'::regrole AND NOT r.rolsuper
                AND r.rolconnlimit <> sesiones) THEN
    EXECUTE format('ALTER ROLE %I CONNECTION LIMIT %s', login, sesiones);
  END IF;
END $$;

ALTER FUNCTION alta_login(text, text) OWNER TO tolvara_altas;
ALTER FUNCTION baja_login(text, text) OWNER TO tolvara_altas;
ALTER FUNCTION limita_sesiones(text, integer) OWNER TO tolvara_altas;
REVOKE ALL ON FUNCTION alta_login, baja_login, limita_sesiones FROM PUBLIC;
GRANT EXECUTE ON FUNCTION alta_login, baja_login, limita_sesiones TO tolvara_propietario;
GRANT USAGE ON SCHEMA comun TO tolvara_altas;
