-- Investment types. Columns stand in the order in which the client reads and writes them.
CREATE TABLE tipoinversion (
  tipoinversionid character(3) PRIMARY KEY,
  cuentariesgocred character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaintinvernocob character(24) NOT NULL REFERENCES catalogo_ctas,
  calculoid bigint NOT NULL REFERENCES calculo,
  cuentapasivo character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentapasivovencida character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaintinver character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaivainver character(24) NOT NULL REFERENCES catalogo_ctas,
  desctipoinversion varchar(31) NOT NULL,
  tasa_normal numeric(10,6) NOT NULL CHECK (tasa_normal > 0),
  plazo integer NOT NULL CHECK (plazo > 0),
  aplicaivainversion character(1) NOT NULL CHECK (aplicaivainversion IN ('S', 'N')),
  aplicaisr si_no NOT NULL,
  reinvierteinteres si_no NOT NULL,
  tipomovimientoid character(2) REFERENCES tipomovimiento,
  cuentaprovisionisr character(24) NOT NULL REFERENCES catalogo_ctas,
  clasificacionid integer NOT NULL CHECK (clasificacionid IN (0, 1)),
  montomax numeric(14,2) NOT NULL,
  montomin numeric(14,2) NOT NULL CHECK (montomin > 0 AND montomin <= montomax),
  plazomax integer NOT NULL CHECK (plazomax > 0)
);
COMMENT ON TABLE tipoinversion IS 'tipos de inversión: depósitos a plazo que ofrece la institución';
COMMENT ON COLUMN tipoinversion.plazo IS 'plazo menor, en días';
COMMENT ON COLUMN tipoinversion.plazomax IS 'plazo mayor, en días';
COMMENT ON COLUMN tipoinversion.clasificacionid IS '0 inversión normal, 1 certificado de aportación';

CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON tipoinversion
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('tipoinversionid');

-- What the client hands over to insert and to update, in its order, and the names alone.
SELECT $$
  clave text, riesgo text, interes_no_cobrado text, formula bigint, pasivo text, pasivo_vencida text, interes text,
  iva text, descri text, tasa numeric, plazo_min integer, aplica_iva text, aplica_isr integer, reinvierte integer,
  movimiento text, provision_isr text, clasificacion integer, monto_max numeric, monto_min numeric,
  plazo_max integer
$$ AS campos \gset
SELECT regexp_replace(:'campos', ' (text|integer|bigint|numeric)\M', '', 'g') AS dados \gset

-- The row's values as they will be stored, or a refusal; shared by insert and update.
CREATE FUNCTION tipoinversion_valido(:campos) RETURNS tipoinversion
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  fila tipoinversion;
BEGIN
  fila.tipoinversionid := obligatorio(clave, 3, 'la clave');
  fila.desctipoinversion := obligatorio(descri, 31, 'la descripción');
  fila.tasa_normal := numero(tasa, 0.000001, 9999.999999, 'la tasa');
  fila.plazo := numero(plazo_min, 1, 99999, 'el plazo mínimo');
  fila.cuentapasivo := cuenta_requerida(pasivo, 'la cuenta de pasivo');
  fila.cuentapasivovencida := cuenta_requerida(pasivo_vencida, 'la cuenta de pasivo vencida');
  fila.cuentaintinver := cuenta_requerida(interes, 'la cuenta de interés de la inversión');
  fila.cuentaprovisionisr := cuenta_requerida(provision_isr, 'la cuenta de provisión de ISR');
  fila.cuentaintinvernocob := cuenta_requerida(interes_no_cobrado, 'la cuenta de interés no cobrado');
  fila.cuentaivainver := cuenta_requerida(iva, 'la cuenta de IVA de la inversión');
  fila.cuentariesgocred := cuenta_requerida(riesgo, 'la cuenta de riesgo crediticio');
  fila.aplicaivainversion := letra_si_no(aplica_iva, 'la marca de aplicar IVA');
  fila.aplicaisr := numero(aplica_isr, 0, 1, 'la marca de aplicar ISR');
  fila.reinvierteinteres := numero(reinvierte, 0, 1, 'la marca de reinvertir interés');
  fila.calculoid := formula_existente(formula, 'la fórmula de cálculo');
  fila.tipomovimientoid := referencia(opcional(movimiento, 2, 'el tipo de movimiento'), 'tipomovimiento',
                                      'tipomovimientoid', 'el tipo de movimiento');
  fila.clasificacionid := numero(clasificacion, 0, 1, 'la clasificación');
  fila.montomax := numero(monto_max, 0.01, 999999999999.99, 'el monto máximo');
  fila.montomin := numero(monto_min, 0.01, 999999999999.99, 'el monto mínimo');
  fila.plazomax := numero(plazo_max, 1, 99999, 'el plazo máximo');
  IF fila.montomin > fila.montomax THEN
    RAISE EXCEPTION 'El monto mínimo % es mayor que el monto máximo %', fila.montomin, fila.montomax
      USING ERRCODE = 'check_violation';
  END IF;
  RETURN fila;
END $$;

CREATE FUNCTION spstipoinversion(clave text)
RETURNS TABLE (tipoinversionid character(3), cuentariesgocred character(24), cuentaintinvernocob character(24),
               calculoid bigint, cuentapasivo character(24), cuentapasivovencida character(24),
               cuentaintinver character(24), cuentaivainver character(24), desctipoinversion varchar(31),
               tasa_normal numeric, plazo integer, aplicaivainversion character(1), aplicaisr integer,
               reinvierteinteres integer, tipomovimientoid character(2), cuentaprovisionisr character(24),
               clasificacionid integer, montomax numeric, montomin numeric, plazomax integer)
LANGUAGE sql STABLE
BEGIN ATOMIC
  SELECT t.tipoinversionid, t.cuentariesgocred, t.cuentaintinvernocob, t.calculoid, t.cuentapasivo,
         t.cuentapasivovencida, t.cuentaintinver, t.cuentaivainver, t.desctipoinversion, t.tasa_normal, t.plazo,
         t.aplicaivainversion, t.aplicaisr::integer, t.reinvierteinteres::integer,
         coalesce(t.tipomovimientoid, ''::character(2)), t.cuentaprovisionisr, t.clasificacionid, t.montomax,
         t.montomin, t.plazomax
    FROM tipoinversion t
   WHERE coalesce(btrim(clave), '') = '' OR t.tipoinversionid = clave::bpchar
   ORDER BY t.desctipoinversion COLLATE "es-MX-x-icu", t.tipoinversionid;
END;

CREATE FUNCTION inserta_tipoinversion(fila tipoinversion) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  INSERT INTO tipoinversion SELECT fila.* ON CONFLICT DO NOTHING;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El tipo de inversión % ya existe', rtrim(fila.tipoinversionid) USING ERRCODE = 'unique_violation';
  END IF;
END $$;

CREATE FUNCTION spitipoinversion(:campos) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT exige_permiso('0212');
  SELECT inserta_tipoinversion(tipoinversion_valido(:dados));
END;

CREATE FUNCTION cambia_tipoinversion(fila tipoinversion) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  UPDATE tipoinversion
     SET (tipoinversionid, cuentariesgocred, cuentaintinvernocob, calculoid, cuentapasivo, cuentapasivovencida,
          cuentaintinver, cuentaivainver, desctipoinversion, tasa_normal, plazo, aplicaivainversion, aplicaisr,
          reinvierteinteres, tipomovimientoid, cuentaprovisionisr, clasificacionid, montomax, montomin, plazomax) =
         (SELECT fila.*)
   WHERE tipoinversionid = fila.tipoinversionid;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El tipo de inversión % no existe', rtrim(fila.tipoinversionid) USING ERRCODE = 'no_data_found';
  END IF;
END $$;

CREATE FUNCTION sputipoinversion(:campos) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT exige_permiso('0212');
  SELECT cambia_tipoinversion(tipoinversion_valido(:dados));
END;

CREATE FUNCTION spdtipoinversion(clave text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0212');
  DELETE FROM tipoinversion WHERE tipoinversionid = obligatorio(clave, 3, 'la clave')::bpchar;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El tipo de inversión % no existe', rtrim(clave) USING ERRCODE = 'no_data_found';
  END IF;
EXCEPTION WHEN foreign_key_violation THEN
  PERFORM rechaza_uso('tipoinversion', clave, 'el tipo de inversión ' || rtrim(clave));
END $$;

GRANT SELECT ON tipoinversion TO :"grupo";
GRANT EXECUTE ON FUNCTION spstipoinversion, spitipoinversion, sputipoinversion, spdtipoinversion TO :"grupo";
