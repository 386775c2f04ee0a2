-- Currencies. The model of a catalogue with a text key: see "How to add a catalogue" in ../README.md.
CREATE TABLE moneda (
  monedaid character(2) PRIMARY KEY,
  monedavalor numeric(18,6) NOT NULL CHECK (monedavalor BETWEEN 0 AND 999999999999),
  monedadescri varchar(30) NOT NULL
);
COMMENT ON TABLE moneda IS 'monedas: divisas con que opera la institución';
COMMENT ON COLUMN moneda.monedavalor IS 'pesos por unidad';

CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON moneda
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('monedaid');

CREATE FUNCTION spsmoneda(clave text)
RETURNS TABLE (monedaid character(2), monedavalor numeric, monedadescri varchar(30))
LANGUAGE sql STABLE
BEGIN ATOMIC
  SELECT m.monedaid, m.monedavalor, m.monedadescri
    FROM moneda m
   WHERE coalesce(btrim(clave), '') = '' OR m.monedaid = clave::bpchar
   ORDER BY m.monedadescri COLLATE "es-MX-x-icu", m.monedaid;
END;

CREATE FUNCTION spimoneda(clave text, descri text, valor numeric) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0203');
  INSERT INTO moneda (monedaid, monedadescri, monedavalor)
  VALUES (obligatorio(clave, 2, 'la clave'), obligatorio(descri, 30, 'la descripción'),
          numero(valor, 0, 999999999999, 'el valor'))
  ON CONFLICT DO NOTHING;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La moneda % ya existe', rtrim(clave) USING ERRCODE = 'unique_violation';
  END IF;
END $$;

CREATE FUNCTION spumoneda(clave text, descri text, valor numeric) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0203');
  UPDATE moneda
     SET monedadescri = obligatorio(descri, 30, 'la descripción'),
         monedavalor = numero(valor, 0, 999999999999, 'el valor')
   WHERE monedaid = obligatorio(clave, 2, 'la clave')::bpchar;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La moneda % no existe', rtrim(clave) USING ERRCODE = 'no_data_found';
  END IF;
END $$;

CREATE FUNCTION spdmoneda(clave text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0203');
  DELETE FROM moneda WHERE monedaid = obligatorio(clave, 2, 'la clave')::bpchar;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La moneda % no existe', rtrim(clave) USING ERRCODE = 'no_data_found';
  END IF;
EXCEPTION WHEN foreign_key_violation THEN
  PERFORM rechaza_uso('moneda', clave, 'la moneda ' || rtrim(clave));
END $$;

GRANT SELECT ON moneda TO :"grupo";
GRANT EXECUTE ON FUNCTION spsmoneda, spimoneda, spumoneda, spdmoneda TO :"grupo";
