-- The chart of accounts. Accounts of type "A" take postings; those of type "C" only add up what is below them. Numbers
-- are ordered byte by byte, so that an account comes right ahead of those below it in every locale.
CREATE TABLE catalogo_ctas (
  cuentaid character(24) COLLATE "C" PRIMARY KEY,
  cuentaacumula character(24) REFERENCES catalogo_ctas CHECK (cuentaacumula <> cuentaid),
  identificacion character(1) NOT NULL CHECK (identificacion BETWEEN '0' AND '6'),
  cuentanombre varchar(100) NOT NULL,
  tipo_cta character(1) NOT NULL CHECK (tipo_cta IN ('A', 'C')),
  estado_cta varchar(2) NOT NULL DEFAULT 'A',
  fecha_estado date,
  fecha_ult_mov date,
  naturaleza character(1) NOT NULL CHECK (naturaleza IN ('A', 'D')),
  digito_agrupador numeric(6,2) NOT NULL DEFAULT 0,
  saldo_inic_ejer numeric(18,2) NOT NULL DEFAULT 0,
  cargos_acum_ejer numeric(18,2) NOT NULL DEFAULT 0,
  abonos_acum_ejer numeric(18,2) NOT NULL DEFAULT 0
);
COMMENT ON TABLE catalogo_ctas IS 'cuentas contables: catálogo de cuentas de la institución';
COMMENT ON COLUMN catalogo_ctas.cuentaacumula IS 'cuenta en la que acumula; ninguna en el primer nivel';
COMMENT ON COLUMN catalogo_ctas.identificacion IS
  'rubro: 1 activo, 2 pasivo, 3 capital, 4 ingresos, 5 egresos, 6 cuentas de orden, 0 sin rubro';
COMMENT ON COLUMN catalogo_ctas.tipo_cta IS '"A" afectable, "C" acumulativa';
COMMENT ON COLUMN catalogo_ctas.estado_cta IS '"A" activa, "B" de baja';
COMMENT ON COLUMN catalogo_ctas.naturaleza IS '"A" acreedora, "D" deudora';
CREATE INDEX ON catalogo_ctas (cuentaacumula);

CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON catalogo_ctas
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('cuentaid');

-- What other catalogues do with an account that they are given, `campo` being its name with the article. Blank is none
-- (NULL), unless it is required. The account is held as it is until the end of the transaction: an afectable one cannot
-- stop being so, nor any be deleted, by somebody else in between.
CREATE FUNCTION cuenta_existente(cuenta text, campo text) RETURNS text
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  IF btrim(cuenta) <> ''
     AND NOT EXISTS (SELECT FROM catalogo_ctas WHERE cuentaid = texto(cuenta, 24, campo)::bpchar FOR KEY SHARE) THEN
    RAISE EXCEPTION 'No existe %: % no está en el catálogo de cuentas', campo, rtrim(cuenta)
      USING ERRCODE = 'foreign_key_violation';
  END IF;
  RETURN nullif(rtrim(cuenta), '');
END $$;

CREATE FUNCTION cuenta_afectable(cuenta text, campo text) RETURNS text
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  hallada text := cuenta_existente(cuenta, campo);
  tipo text;
BEGIN
  SELECT tipo_cta INTO tipo FROM catalogo_ctas WHERE cuentaid = hallada::bpchar FOR SHARE;
  IF tipo <> 'A' THEN
    RAISE EXCEPTION 'No es afectable %: % acumula a otras cuentas', campo, rtrim(cuenta)
      USING ERRCODE = 'check_violation';
  END IF;
  RETURN nullif(rtrim(cuenta), '');
END $$;

CREATE FUNCTION cuenta_requerida(cuenta text, campo text) RETURNS text
LANGUAGE sql SET search_path FROM CURRENT
RETURN cuenta_afectable(obligatorio(cuenta, 24, campo), campo);

-- What the client hands over to insert and to update, in its order, and the names alone.
SELECT $$
  cuenta text, acumula text, rubro text, nombre text, tipo text, estado text, fecha_del_estado text,
  ultimo_movimiento text, naturaleza text, digito numeric, saldo numeric, cargos numeric, abonos numeric
$$ AS campos \gset
SELECT regexp_replace(:'campos', ' (text|integer|bigint|numeric)\M', '', 'g') AS dados \gset

-- The row's values as they will be stored, or a refusal; shared by insert and update.
CREATE FUNCTION cuenta_valida(:campos) RETURNS catalogo_ctas
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  fila catalogo_ctas;
  maximo CONSTANT numeric := 9999999999999999.99;
BEGIN
  fila.cuentaid := obligatorio(cuenta, 24, 'la cuenta');
  fila.cuentaacumula := cuenta_existente(acumula, 'la cuenta en que acumula');
  fila.identificacion := obligatorio(rubro, 1, 'el rubro');
  fila.cuentanombre := obligatorio(nombre, 100, 'el nombre de la cuenta');
  fila.tipo_cta := obligatorio(tipo, 1, 'el tipo de cuenta');
  fila.estado_cta := texto(estado, 2, 'el estado de la cuenta');
  fila.fecha_estado := fecha_opcional(fecha_del_estado);
  fila.fecha_ult_mov := fecha_opcional(ultimo_movimiento);
  fila.naturaleza := obligatorio(naturaleza, 1, 'la naturaleza');
  fila.digito_agrupador := numero(digito, 0, 9999.99, 'el dígito agrupador');
  fila.saldo_inic_ejer := numero(saldo, -maximo, maximo, 'el saldo inicial');
  fila.cargos_acum_ejer := numero(cargos, -maximo, maximo, 'el total de cargos');
  fila.abonos_acum_ejer := numero(abonos, -maximo, maximo, 'el total de abonos');

  IF fila.identificacion NOT BETWEEN '0' AND '6' THEN
    RAISE EXCEPTION 'El rubro debe ser un número del 0 al 6' USING ERRCODE = 'check_violation';
  ELSIF fila.tipo_cta NOT IN ('A', 'C') THEN
    RAISE EXCEPTION 'El tipo de cuenta debe ser A (afectable) o C (acumulativa)' USING ERRCODE = 'check_violation';
  ELSIF fila.naturaleza NOT IN ('A', 'D') THEN
    RAISE EXCEPTION 'La naturaleza debe ser A (acreedora) o D (deudora)' USING ERRCODE = 'check_violation';
  ELSIF (SELECT c.tipo_cta FROM catalogo_ctas c WHERE c.cuentaid = fila.cuentaacumula) = 'A' THEN
    RAISE EXCEPTION 'La cuenta % es afectable: ninguna puede acumular en ella', rtrim(fila.cuentaacumula)
      USING ERRCODE = 'check_violation';
  END IF;
  PERFORM exige_sin_ciclo(fila.cuentaid, fila.cuentaacumula);
  RETURN fila;
END $$;

-- Refuses an account that would accumulate, through those above it, in itself.
CREATE FUNCTION exige_sin_ciclo(cuenta character, acumula character) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  IF EXISTS (WITH RECURSIVE arriba AS (
               SELECT acumula AS id
               UNION
               SELECT c.cuentaacumula FROM catalogo_ctas c JOIN arriba ON c.cuentaid = arriba.id)
             SELECT FROM arriba WHERE id = cuenta) THEN
    RAISE EXCEPTION 'La cuenta % no puede acumular en sí misma', rtrim(cuenta) USING ERRCODE = 'check_violation';
  END IF;
END $$;

CREATE FUNCTION spscatalogo_ctas(clave text)
RETURNS TABLE (cuentaid character(24), cuentaacumula character(24), identificacion character(1),
               cuentanombre varchar(100), tipo_cta character(1), estado_cta varchar(2), fecha_estado date,
               fecha_ult_mov date, naturaleza character(1), digito_agrupador numeric, saldo_inic_ejer numeric,
               cargos_acum_ejer numeric, abonos_acum_ejer numeric)
LANGUAGE sql STABLE
BEGIN ATOMIC
  SELECT c.cuentaid, c.cuentaacumula, c.identificacion, c.cuentanombre, c.tipo_cta, c.estado_cta, c.fecha_estado,
         c.fecha_ult_mov, c.naturaleza, c.digito_agrupador, c.saldo_inic_ejer, c.cargos_acum_ejer, c.abonos_acum_ejer
    FROM catalogo_ctas c
   WHERE coalesce(btrim(clave), '') = '' OR c.cuentaid = clave::bpchar
   ORDER BY c.cuentaid;
END;

CREATE FUNCTION inserta_cuenta(fila catalogo_ctas) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  INSERT INTO catalogo_ctas SELECT fila.* ON CONFLICT DO NOTHING;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La cuenta % ya existe', rtrim(fila.cuentaid) USING ERRCODE = 'unique_violation';
  END IF;
END $$;

CREATE FUNCTION spicatalogo_ctas(:campos) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT exige_permiso('0901');
  SELECT por_turno('catalogo_ctas');
  SELECT inserta_cuenta(cuenta_valida(:dados));
END;

CREATE FUNCTION cambia_cuenta(fila catalogo_ctas) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  cuenta CONSTANT text := rtrim(fila.cuentaid);
  tipo_anterior text;
BEGIN
  SELECT tipo_cta INTO tipo_anterior FROM catalogo_ctas WHERE cuentaid = fila.cuentaid FOR NO KEY UPDATE;
  IF tipo_anterior = 'A' AND fila.tipo_cta = 'C' AND usos('catalogo_ctas', cuenta) <> '' THEN
    RAISE EXCEPTION 'La cuenta % no puede dejar de ser afectable porque se usa en: %', cuenta,
      usos('catalogo_ctas', cuenta) USING ERRCODE = 'check_violation';
  ELSIF fila.tipo_cta = 'A' AND EXISTS (SELECT FROM catalogo_ctas WHERE cuentaacumula = fila.cuentaid) THEN
    RAISE EXCEPTION 'La cuenta % no puede ser afectable: otras acumulan en ella', cuenta
      USING ERRCODE = 'check_violation';
  END IF;
  UPDATE catalogo_ctas
     SET (cuentaid, cuentaacumula, identificacion, cuentanombre, tipo_cta, estado_cta, fecha_estado, fecha_ult_mov,
          naturaleza, digito_agrupador, saldo_inic_ejer, cargos_acum_ejer, abonos_acum_ejer) = (SELECT fila.*)
   WHERE cuentaid = fila.cuentaid;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La cuenta % no existe', cuenta USING ERRCODE = 'no_data_found';
  END IF;
END $$;

CREATE FUNCTION spucatalogo_ctas(:campos) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT exige_permiso('0901');
  SELECT por_turno('catalogo_ctas');
  SELECT cambia_cuenta(cuenta_valida(:dados));
END;

-- Adds an account to every branch that does not have it yet. Each asks for the permission by itself: without it in one
-- of them none gets the account. All or none cannot be promised over two servers, so that nothing is written then.
CREATE FUNCTION spicatalogo_ctasc(:campos) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  sucursal name;
  existe boolean;
  agregadas integer := 0;
  lejos CONSTANT text := (SELECT string_agg(format('%s (%s)', r.nombre, r.lugar), '; ') FROM sucursales_remotas() AS r);
BEGIN
  PERFORM exige_permiso('0901');
  IF lejos <> '' THEN
    RAISE EXCEPTION 'Una cuenta no se da de alta a la vez en varios servidores, y hay sucursales en otro: %. Dela de alta en '
      'cada sucursal; el administrador ve las que faltan con: servidor faltan-cuentas', lejos
      USING ERRCODE = 'feature_not_supported';
  END IF;
  FOR sucursal IN SELECT sucursales_iguales(current_schema()) LOOP
    EXECUTE format('SELECT EXISTS (SELECT FROM %I.catalogo_ctas WHERE cuentaid = $1::bpchar)', sucursal)
       INTO existe USING cuenta;
    IF NOT existe THEN
      EXECUTE format('SELECT %I.spicatalogo_ctas($1, $2, $3, $4, $5, $6, $7, $8, $9, $10, $11, $12, $13)', sucursal)
        USING cuenta, acumula, rubro, nombre, tipo, estado, fecha_del_estado, ultimo_movimiento, naturaleza, digito,
              saldo, cargos, abonos;
      agregadas := agregadas + 1;
    END IF;
  END LOOP;
  IF agregadas = 0 THEN
    RAISE EXCEPTION 'La cuenta % ya existe en todas las sucursales', rtrim(cuenta) USING ERRCODE = 'unique_violation';
  END IF;
END $$;

CREATE FUNCTION spdcatalogo_ctas(clave text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0901');
  DELETE FROM catalogo_ctas WHERE cuentaid = obligatorio(clave, 24, 'la cuenta')::bpchar;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La cuenta % no existe', rtrim(clave) USING ERRCODE = 'no_data_found';
  END IF;
EXCEPTION WHEN foreign_key_violation THEN
  PERFORM rechaza_uso('catalogo_ctas', clave, 'la cuenta ' || rtrim(clave));
END $$;

GRANT SELECT ON catalogo_ctas TO :"grupo";
GRANT EXECUTE ON FUNCTION spscatalogo_ctas, spicatalogo_ctas, spucatalogo_ctas, spicatalogo_ctasc, spdcatalogo_ctas
  TO :"grupo";
