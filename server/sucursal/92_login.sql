-- 1 when the login is a user of this branch and the password is his, otherwise 0.
CREATE FUNCTION login(nombre text, clave text) RETURNS integer
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  RETURN (clave_correcta(rtrim(nombre), clave)
          AND EXISTS (SELECT FROM usuario WHERE usuarioid = rtrim(nombre)))::integer;
END $$;

GRANT EXECUTE ON FUNCTION login TO :"grupo";
