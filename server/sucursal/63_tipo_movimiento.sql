-- Movement types of savings accounts. Columns stand in the order in which the client reads them.
CREATE TABLE tipomovimiento (
  tipomovimientoid character(2) PRIMARY KEY,
  cuentadeposito character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaretiro character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaintpagado character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaintcobrado character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaivamovimiento character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaisr character(24) NOT NULL REFERENCES catalogo_ctas,
  desctipomovimiento varchar(30) NOT NULL,
  aplicasaldo character(1) NOT NULL CHECK (aplicasaldo IN ('S', 'N')),
  tipopoliza character(1) NOT NULL CHECK (tipopoliza <> ''),
  aceptadeposito character(1) NOT NULL CHECK (aceptadeposito IN ('S', 'N')),
  aceptaretiro character(1) NOT NULL CHECK (aceptaretiro IN ('S', 'N')),
  tasainteres numeric(10,6) NOT NULL CHECK (tasainteres >= 0),
  cuentaordenacredor character(24) REFERENCES catalogo_ctas,
  cuentaordendeudor character(24) REFERENCES catalogo_ctas,
  cuentaorden character(1) NOT NULL CHECK (cuentaorden IN ('S', 'N')),
  cuentaprovisionisr character(24) NOT NULL REFERENCES catalogo_ctas,
  comision numeric(14,2) NOT NULL CHECK (comision >= 0),
  porcomision numeric(9,6) NOT NULL CHECK (porcomision BETWEEN 0 AND 100),
  porivacomision numeric(9,6) NOT NULL CHECK (porivacomision BETWEEN 0 AND 100),
  cuentacomision character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaivacomision character(24) NOT NULL REFERENCES catalogo_ctas,
  desglosaiva si_no NOT NULL
);
COMMENT ON TABLE tipomovimiento IS 'tipos de movimientos: cuentas de ahorro que ofrece la institución';
COMMENT ON COLUMN tipomovimiento.tipopoliza IS 'letra del tipo de póliza contable';
COMMENT ON COLUMN tipomovimiento.cuentaorden IS '"S" si maneja cuentas de orden';
COMMENT ON COLUMN tipomovimiento.comision IS 'cuota fija, en pesos';

CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON tipomovimiento
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('tipomovimientoid');

-- What the client hands over to insert and to update, in its order, and the names alone.
SELECT $$
  clave text, descri text, aplica_saldo text, deposito text, retiro text, int_pagado text, int_cobrado text, iva text,
  isr text, poliza text, acepta_deposito text, acepta_retiro text, tasa numeric, orden_acredor text,
  orden_deudor text, maneja_orden text, provision_isr text, cuota numeric, por_comision numeric,
  por_iva_comision numeric, cuenta_comision text, cuenta_iva_comision text, desglosa integer
$$ AS campos \gset
SELECT regexp_replace(:'campos', ' (text|integer|bigint|numeric)\M', '', 'g') AS dados \gset

-- The row's values as they will be stored, or a refusal; shared by insert and update.
CREATE FUNCTION tipomovimiento_valido(:campos) RETURNS tipomovimiento
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  fila tipomovimiento;
BEGIN
  fila.tipomovimientoid := obligatorio(clave, 2, 'la clave');
  fila.desctipomovimiento := obligatorio(descri, 30, 'la descripción');
  fila.aplicasaldo := letra_si_no(aplica_saldo, 'la marca de aplicar al saldo');
  fila.cuentadeposito := cuenta_requerida(deposito, 'la cuenta de depósito');
  fila.cuentaretiro := cuenta_requerida(retiro, 'la cuenta de retiro');
  fila.cuentaintpagado := cuenta_requerida(int_pagado, 'la cuenta de interés pagado');
  fila.cuentaintcobrado := cuenta_requerida(int_cobrado, 'la cuenta de interés cobrado');
  fila.cuentaivamovimiento := cuenta_requerida(iva, 'la cuenta de IVA');
  fila.cuentaisr := cuenta_requerida(isr, 'la cuenta de ISR');
  fila.tipopoliza := obligatorio(poliza, 1, 'el tipo de póliza');
  fila.aceptadeposito := letra_si_no(acepta_deposito, 'la marca de aceptar depósitos');
  fila.aceptaretiro := letra_si_no(acepta_retiro, 'la marca de aceptar retiros');
  fila.tasainteres := numero(tasa, 0, 9999.999999, 'la tasa de interés');
  fila.cuentaordenacredor := cuenta_afectable(orden_acredor, 'la cuenta de orden acreedora');
  fila.cuentaordendeudor := cuenta_afectable(orden_deudor, 'la cuenta de orden deudora');
  fila.cuentaorden := letra_si_no(maneja_orden, 'la marca de cuentas de orden');
  fila.cuentaprovisionisr := cuenta_requerida(provision_isr, 'la cuenta de provisión de ISR');
  fila.comision := numero(cuota, 0, 999999999999.99, 'la cuota de comisión');
  fila.porcomision := numero(por_comision, 0, 100, 'el porcentaje de comisión');
  fila.porivacomision := numero(por_iva_comision, 0, 100, 'el porcentaje de IVA de la comisión');
  fila.cuentacomision := cuenta_existente(obligatorio(cuenta_comision, 24, 'la cuenta de comisión'),
                                          'la cuenta de comisión');
  fila.cuentaivacomision := cuenta_existente(obligatorio(cuenta_iva_comision, 24, 'la cuenta de IVA de la comisión'),
                                             'la cuenta de IVA de la comisión');
  fila.desglosaiva := numero(desglosa, 0, 1, 'la marca de desglosar IVA');
  RETURN fila;
END $$;

CREATE FUNCTION spstipomovimiento(clave text)
RETURNS TABLE (tipomovimientoid character(2), cuentadeposito character(24), cuentaretiro character(24),
               cuentaintpagado character(24), cuentaintcobrado character(24), cuentaivamovimiento character(24),
               cuentaisr character(24), desctipomovimiento varchar(30), aplicasaldo character(1),
               tipopoliza character(1), aceptadeposito character(1), aceptaretiro character(1), tasainteres numeric,
               cuentaordenacredor character(24), cuentaordendeudor character(24), cuentaorden character(1),
               cuentaprovisionisr character(24), comision numeric, porcomision numeric, porivacomision numeric,
               cuentacomision character(24), cuentaivacomision character(24), desglosaiva integer)
LANGUAGE sql STABLE
BEGIN ATOMIC
  SELECT t.tipomovimientoid, t.cuentadeposito, t.cuentaretiro, t.cuentaintpagado, t.cuentaintcobrado,
         t.cuentaivamovimiento, t.cuentaisr, t.desctipomovimiento, t.aplicasaldo, t.tipopoliza, t.aceptadeposito,
         t.aceptaretiro, t.tasainteres, coalesce(t.cuentaordenacredor, ''::character(24)),
         coalesce(t.cuentaordendeudor, ''::character(24)), t.cuentaorden, t.cuentaprovisionisr, t.comision,
         t.porcomision, t.porivacomision, t.cuentacomision, t.cuentaivacomision, t.desglosaiva::integer
    FROM tipomovimiento t
   WHERE coalesce(btrim(clave), '') = '' OR t.tipomovimientoid = clave::bpchar
   ORDER BY t.desctipomovimiento COLLATE "es-MX-x-icu", t.tipomovimientoid;
END;

CREATE FUNCTION inserta_tipomovimiento(fila tipomovimiento) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  INSERT INTO tipomovimiento SELECT fila.* ON CONFLICT DO NOTHING;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El tipo de movimiento % ya existe', rtrim(fila.tipomovimientoid) USING ERRCODE = 'unique_violation';
  END IF;
END $$;

CREATE FUNCTION spitipomovimiento(:campos) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT exige_permiso('0207');
  SELECT inserta_tipomovimiento(tipomovimiento_valido(:dados));
END;

CREATE FUNCTION cambia_tipomovimiento(fila tipomovimiento) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  UPDATE tipomovimiento
     SET (tipomovimientoid, cuentadeposito, cuentaretiro, cuentaintpagado, cuentaintcobrado, cuentaivamovimiento,
          cuentaisr, desctipomovimiento, aplicasaldo, tipopoliza, aceptadeposito, aceptaretiro, tasainteres,
          cuentaordenacredor, cuentaordendeudor, cuentaorden, cuentaprovisionisr, comision, porcomision,
          porivacomision, cuentacomision, cuentaivacomision, desglosaiva) = (SELECT fila.*)
   WHERE tipomovimientoid = fila.tipomovimientoid;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El tipo de movimiento % no existe', rtrim(fila.tipomovimientoid) USING ERRCODE = 'no_data_found';
  END IF;
END $$;

CREATE FUNCTION sputipomovimiento(:campos) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT exige_permiso('0207');
  SELECT cambia_tipomovimiento(tipomovimiento_valido(:dados));
END;

CREATE FUNCTION spdtipomovimiento(clave text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0207');
  DELETE FROM tipomovimiento WHERE tipomovimientoid = obligatorio(clave, 2, 'la clave')::bpchar;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El tipo de movimiento % no existe', rtrim(clave) USING ERRCODE = 'no_data_found';
  END IF;
EXCEPTION WHEN foreign_key_violation THEN
  PERFORM rechaza_uso('tipomovimiento', clave, 'el tipo de movimiento ' || rtrim(clave));
END $$;

GRANT SELECT ON tipomovimiento TO :"grupo";
GRANT EXECUTE ON FUNCTION spstipomovimiento, spitipomovimiento, sputipomovimiento, spdtipomovimiento TO :"grupo";
