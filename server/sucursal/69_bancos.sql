-- Bank accounts of the institution.
CREATE TABLE banco (
  no_cuenta character(15) PRIMARY KEY,
  cuentaid character(24) NOT NULL REFERENCES catalogo_ctas,
  banco varchar(27) NOT NULL,
  fecha_inicio date,
  saldo_inicial numeric(14,2) NOT NULL,
  saldo_actual numeric(14,2) NOT NULL,
  saldo_pen numeric(14,2) NOT NULL,
  serie varchar(2) NOT NULL,
  nocheque bigint NOT NULL CHECK (nocheque >= 0)
);
COMMENT ON TABLE banco IS 'cuentas bancarias: las que la institución tiene en bancos';
COMMENT ON COLUMN banco.saldo_pen IS 'saldo pendiente de conciliar';
COMMENT ON COLUMN banco.nocheque IS 'último cheque expedido de la serie';

CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON banco
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('no_cuenta');

-- What the client hands over to insert and to update, in its order, and the names alone.
SELECT $$
  cuenta text, nombre text, inicio text, inicial numeric, actual numeric, pendiente numeric, contable text,
  serie_cheques text, cheque bigint
$$ AS campos \gset
SELECT regexp_replace(:'campos', ' (text|integer|bigint|numeric)\M', '', 'g') AS dados \gset

-- The row's values as they will be stored, or a refusal; shared by insert and update.
CREATE FUNCTION banco_valido(:campos) RETURNS banco
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  fila banco;
  maximo CONSTANT numeric := 999999999999.99;
BEGIN
  fila.no_cuenta := obligatorio(cuenta, 15, 'la cuenta');
  fila.banco := obligatorio(nombre, 27, 'el banco');
  fila.cuentaid := cuenta_requerida(contable, 'la cuenta contable');
  fila.serie := obligatorio(serie_cheques, 2, 'la serie');
  fila.nocheque := numero(cheque, 0, 9223372036854775807, 'el número de cheque');
  fila.fecha_inicio := fecha_opcional(inicio);
  fila.saldo_inicial := numero(inicial, -maximo, maximo, 'el saldo inicial');
  fila.saldo_actual := numero(actual, -maximo, maximo, 'el saldo actual');
  fila.saldo_pen := numero(pendiente, -maximo, maximo, 'el saldo pendiente');
  RETURN fila;
END $$;

CREATE FUNCTION spsbanco(clave text)
RETURNS TABLE (no_cuenta character(15), cuentaid character(24), banco varchar(27), fecha_inicio date,
               saldo_inicial numeric, saldo_actual numeric, saldo_pen numeric, serie varchar(2), nocheque bigint)
LANGUAGE sql STABLE
BEGIN ATOMIC
  SELECT b.no_cuenta, b.cuentaid, b.banco, b.fecha_inicio, b.saldo_inicial, b.saldo_actual, b.saldo_pen, b.serie,
         b.nocheque
    FROM banco b
   WHERE coalesce(btrim(clave), '') = '' OR b.no_cuenta = clave::bpchar
   ORDER BY b.banco COLLATE "es-MX-x-icu", b.no_cuenta;
END;

CREATE FUNCTION inserta_banco(fila banco) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  INSERT INTO banco SELECT fila.* ON CONFLICT DO NOTHING;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La cuenta bancaria % ya existe', rtrim(fila.no_cuenta) USING ERRCODE = 'unique_violation';
  END IF;
END $$;

CREATE FUNCTION spibanco(:campos) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT exige_permiso('0204');
  SELECT inserta_banco(banco_valido(:dados));
END;

CREATE FUNCTION cambia_banco(fila banco) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  UPDATE banco
     SET (no_cuenta, cuentaid, banco, fecha_inicio, saldo_inicial, saldo_actual, saldo_pen, serie, nocheque) =
         (SELECT fila.*)
   WHERE no_cuenta = fila.no_cuenta;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La cuenta bancaria % no existe', rtrim(fila.no_cuenta) USING ERRCODE = 'no_data_found';
  END IF;
END $$;

CREATE FUNCTION spubanco(:campos) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT exige_permiso('0204');
  SELECT cambia_banco(banco_valido(:dados));
END;

CREATE FUNCTION spdbanco(clave text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0204');
  DELETE FROM banco WHERE no_cuenta = obligatorio(clave, 15, 'la cuenta')::bpchar;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La cuenta bancaria % no existe', rtrim(clave) USING ERRCODE = 'no_data_found';
  END IF;
EXCEPTION WHEN foreign_key_violation THEN
  PERFORM rechaza_uso('banco', clave, 'la cuenta bancaria ' || rtrim(clave));
END $$;

GRANT SELECT ON banco TO :"grupo";
GRANT EXECUTE ON FUNCTION spsbanco, spibanco, spubanco, spdbanco TO :"grupo";
