-- Users through the client: a login with its person. Passwords are the business of the server's roles; the column that
-- the client carries for one is always blank.

-- Whoever gets an account without being told as a person (an administrator makes the first ones) is one all the same,
-- by the name of his login, until somebody fills in who he is: the client cannot edit a user without a person.
CREATE FUNCTION usuario_con_persona() RETURNS trigger
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  INSERT INTO sujeto (paterno, nombre) VALUES (NEW.usuarioid, NEW.usuarioid) RETURNING sujetoid INTO NEW.sujetoid;
  RETURN NEW;
END $$;

CREATE TRIGGER persona BEFORE INSERT ON usuario
  FOR EACH ROW WHEN (NEW.sujetoid IS NULL) EXECUTE FUNCTION usuario_con_persona();
ALTER TABLE usuario
  ALTER sujetoid SET NOT NULL,
  ADD UNIQUE (sujetoid),
  ADD FOREIGN KEY (sujetoid) REFERENCES sujeto;

-- The values as they will be stored, or a refusal; shared by insert and update.
CREATE FUNCTION usuario_valido(login text, tipo text, jefe text, clave text, correo text, cola text, notas text,
                               persona bigint) RETURNS usuario
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  fila usuario;
BEGIN
  fila.usuarioid := rtrim(obligatorio(login, 20, 'el usuario'));
  fila.tipousuarioid := referencia(obligatorio(tipo, 3, 'el tipo de usuario'), 'tipousuario', 'tipousuarioid',
                                   'el tipo de usuario');
  fila.usu_usuarioid := referencia(rtrim(opcional(jefe, 20, 'el jefe')), 'usuario', 'usuarioid', 'el jefe');
  fila.email := rtrim(texto(correo, 30, 'el correo'));
  fila.dicola := rtrim(texto(cola, 10, 'la impresora'));
  fila.obsusuario := rtrim(parrafo(notas, 257, 'las observaciones'));
  fila.sujetoid := persona;
  IF btrim(clave) <> '' THEN
    RAISE EXCEPTION 'La contraseña no se guarda en el catálogo de usuarios: la cambia el administrador del servidor'
      USING ERRCODE = 'feature_not_supported';
  ELSIF fila.usu_usuarioid = fila.usuarioid THEN
    RAISE EXCEPTION 'El usuario % no puede ser su propio jefe', fila.usuarioid USING ERRCODE = 'check_violation';
  END IF;
  PERFORM exige_existe(EXISTS (SELECT FROM sujeto s WHERE s.sujetoid = persona FOR KEY SHARE), format('La persona %s', persona));
  IF EXISTS (SELECT FROM usuario u WHERE u.sujetoid = persona AND u.usuarioid <> fila.usuarioid) THEN
    RAISE EXCEPTION 'La persona % ya es otro usuario', persona USING ERRCODE = 'unique_violation';
  END IF;
  RETURN fila;
END $$;

CREATE FUNCTION spsusuario(login text)
RETURNS TABLE (usuarioid varchar(20), tipousuarioid character(3), usu_usuarioid varchar(20), contrasenia varchar(13),
               email varchar(30), dicola varchar(10), obsusuario varchar(257), sujetoid bigint)
LANGUAGE sql STABLE
BEGIN ATOMIC
  SELECT u.usuarioid, u.tipousuarioid, u.usu_usuarioid, ''::varchar(13), u.email, u.dicola, u.obsusuario, u.sujetoid
    FROM usuario u
   WHERE coalesce(btrim(login), '') = '' OR u.usuarioid = rtrim(login)
   ORDER BY u.usuarioid;
END;

-- The new user gets the rights of his type; the login itself is made by creausuario(), whose rule for names holds here
-- already, so that no user stays behind whom the server then refuses.
CREATE FUNCTION spiusuario(login text, tipo text, jefe text, clave text, correo text, cola text, notas text,
                           persona bigint) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  fila usuario;
BEGIN
  PERFORM exige_permiso('0206');
  PERFORM por_turno('usuario');
  fila := usuario_valido(login, tipo, jefe, clave, correo, cola, notas, persona);
  IF fila.usuarioid !~ '^[A-Za-z][A-Za-z0-9_.-]*$' THEN
    RAISE EXCEPTION 'El login "%" no es válido: letras sin acento, números, "_", "." o "-", y al principio una letra',
      fila.usuarioid USING ERRCODE = 'invalid_name';
  END IF;
  INSERT INTO usuario (usuarioid, tipousuarioid, usu_usuarioid, email, dicola, obsusuario, sujetoid)
  VALUES (fila.usuarioid, fila.tipousuarioid, fila.usu_usuarioid, fila.email, fila.dicola, fila.obsusuario,
          fila.sujetoid)
  ON CONFLICT (usuarioid) DO NOTHING;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El usuario % ya existe', fila.usuarioid USING ERRCODE = 'unique_violation';
  END IF;
  PERFORM otorga_permisos_de_tipo(fila.usuarioid);
END $$;

-- A change of type leaves the permissions as they are: they are edited one by one.
CREATE FUNCTION spuusuario(login text, tipo text, jefe text, clave text, correo text, cola text, notas text,
                           persona bigint) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  fila usuario;
BEGIN
  PERFORM exige_permiso('0206');
  PERFORM por_turno('usuario');
  fila := usuario_valido(login, tipo, jefe, clave, correo, cola, notas, persona);
  UPDATE usuario
     SET tipousuarioid = fila.tipousuarioid, usu_usuarioid = fila.usu_usuarioid, email = fila.email,
         dicola = fila.dicola, obsusuario = fila.obsusuario, sujetoid = fila.sujetoid
   WHERE usuarioid = fila.usuarioid;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El usuario % no existe', fila.usuarioid USING ERRCODE = 'no_data_found';
  END IF;
END $$;

-- Takes along permissions, parameters, the login's way into this branch, and the person with address and goods unless
-- the institution still needs him as a member or his goods as guarantees.
CREATE FUNCTION spdusuario(login text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  nombre text;
  persona bigint;
BEGIN
  PERFORM exige_permiso('0206');
  nombre := rtrim(obligatorio(login, 20, 'el usuario'));
  IF nombre = session_user THEN
    RAISE EXCEPTION 'No se puede borrar el usuario % con el que está conectado', nombre
      USING ERRCODE = 'object_in_use';
  END IF;
  BEGIN
    DELETE FROM usuario WHERE usuarioid = nombre RETURNING sujetoid INTO persona;
  EXCEPTION WHEN foreign_key_violation THEN
    PERFORM rechaza_uso('usuario', nombre, 'el usuario ' || nombre);
  END;
  IF persona IS NULL THEN
    RAISE EXCEPTION 'El usuario % no existe', nombre USING ERRCODE = 'no_data_found';
  END IF;
  BEGIN
    DELETE FROM bienes WHERE sujetoid = persona;
    DELETE FROM sujeto WHERE sujetoid = persona;
  EXCEPTION WHEN foreign_key_violation THEN
    NULL;  -- the person stays, with everything that is his
  END;
  PERFORM baja_login(nombre, current_schema());
  PERFORM anota_suceso('BAJA', 'usuario', nombre);
END $$;

GRANT EXECUTE ON FUNCTION spsusuario, spiusuario, spuusuario, spdusuario TO :"grupo";
