-- The brake on guessing is a login's own, whatever branches he is a user of.
CREATE FUNCTION prepara_intentos_de() RETURNS trigger
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM prepara_intentos(NEW.usuarioid);
  RETURN NULL;
END $$;

CREATE TRIGGER intentos AFTER INSERT ON usuario FOR EACH ROW EXECUTE FUNCTION prepara_intentos_de();

-- 1 when the login is a user of this branch and the password is his, otherwise 0.
CREATE FUNCTION login(nombre text, clave text) RETURNS integer
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  quien text := (SELECT usuarioid FROM usuario WHERE usuarioid = rtrim(left(nombre, 20)));
BEGIN
  IF quien IS NULL THEN
    PERFORM pg_sleep(1);
    RETURN 0;
  END IF;
  -- A standby can count nothing. There one asks for oneself only, who has already come in with that password.
  IF pg_is_in_recovery() THEN
    IF quien <> session_user THEN
      RAISE EXCEPTION 'Este servidor sólo es para leer: a él se entra con el usuario de la conexión'
        USING ERRCODE = 'read_only_sql_transaction';
    END IF;
    RETURN clave_correcta(quien, clave)::integer;
  END IF;
  PERFORM cuenta_intento(quien);
  IF NOT clave_correcta(quien, clave) THEN
    RETURN 0;
  END IF;
  PERFORM devuelve_intento(quien);
  RETURN 1;
END $$;

GRANT EXECUTE ON FUNCTION login TO :"grupo";
