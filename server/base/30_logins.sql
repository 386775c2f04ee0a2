-- Making and retiring the server logins of persons. These run with the rights of tolvara_altas, the one role that may
-- create roles, and only tolvara_propietario may call them: the branch's functions ask the permission first.
SET LOCAL search_path TO comun, pg_temp;

-- Makes the login, without a password, or revives it, and lets it into the branch. A login of the server that is
-- no user of the system (a superuser above all) is never touched.
CREATE OR REPLACE FUNCTION alta_login(login text, sucursal text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT SET client_min_messages = warning AS $$
DECLARE
  existe boolean := EXISTS (SELECT FROM pg_roles WHERE rolname = login);
BEGIN
  IF login !~ '^[A-Za-z][A-Za-z0-9_.-]{0,19}$' OR login IS NULL THEN
    RAISE EXCEPTION 'El login "%" no es válido: de 1 a 20 letras sin acento, números, "_", "." o "-", y al principio '
      'una letra', left(login, 30) USING ERRCODE = 'invalid_name';
  ELSIF login ~* '^(pg_|tolvara_|sucursal_)'
     OR EXISTS (SELECT FROM pg_roles r
                 WHERE r.rolname = login
                   AND (r.rolsuper OR r.rolcreaterole OR r.rolcreatedb
                        OR NOT EXISTS (SELECT FROM pg_auth_members m
                                        WHERE m.member = r.oid AND m.roleid = 'tolvara_usuarios'::regrole))) THEN
    RAISE EXCEPTION 'El login "%" está reservado en el servidor', login USING ERRCODE = 'reserved_name';
  END IF;
  EXECUTE format(CASE WHEN existe THEN 'ALTER' ELSE 'CREATE' END || ' ROLE %I LOGIN', login);
  EXECUTE format('GRANT tolvara_usuarios, %I TO %I', 'sucursal_' || sucursal, login);
END $$;

-- Takes the branch away from a login; one that is left without any branch can no longer connect.
CREATE OR REPLACE FUNCTION baja_login(login text, sucursal text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  IF NOT EXISTS (SELECT FROM pg_auth_members m
                  WHERE m.member::regrole = to_regrole(quote_ident(login))
                    AND m.roleid::regrole = to_regrole(quote_ident('sucursal_' || sucursal))) THEN
    RETURN;
  END IF;
  EXECUTE format('REVOKE %I FROM %I', 'sucursal_' || sucursal, login);
  IF NOT EXISTS (SELECT FROM pg_auth_members m JOIN pg_roles g ON g.oid = m.roleid
                  WHERE m.member::regrole = to_regrole(quote_ident(login)) AND g.rolname ~ '^sucursal_') THEN
    EXECUTE format('ALTER ROLE %I NOLOGIN', login);
  END IF;
END $$;

ALTER FUNCTION alta_login(text, text) OWNER TO tolvara_altas;
ALTER FUNCTION baja_login(text, text) OWNER TO tolvara_altas;
REVOKE ALL ON FUNCTION alta_login, baja_login FROM PUBLIC;
GRANT EXECUTE ON FUNCTION alta_login, baja_login TO tolvara_propietario;
GRANT USAGE ON SCHEMA comun TO tolvara_altas;
