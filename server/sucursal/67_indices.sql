-- Indices: value of the inflation-indexed unit by day, consumer price index and surcharge by month.
CREATE TABLE udis (
  fecha date PRIMARY KEY,
  valor numeric(18,6) NOT NULL CHECK (valor >= 0)
);
COMMENT ON TABLE udis IS 'UDIS: pesos por unidad de inversión, por día';

CREATE TABLE inpc (
  ano integer NOT NULL CHECK (ano BETWEEN 1901 AND 2999),
  mes integer NOT NULL CHECK (mes BETWEEN 1 AND 12),
  inpc numeric(18,6) NOT NULL CHECK (inpc >= 0),
  PRIMARY KEY (ano, mes)
);
COMMENT ON TABLE inpc IS 'INPC: índice nacional de precios al consumidor, por mes';

CREATE TABLE recargos (
  ano integer NOT NULL CHECK (ano BETWEEN 1901 AND 2999),
  mes integer NOT NULL CHECK (mes BETWEEN 1 AND 12),
  porcentaje numeric(18,6) NOT NULL CHECK (porcentaje >= 0),
  PRIMARY KEY (ano, mes)
);
COMMENT ON TABLE recargos IS 'recargos: porcentaje por mes';

CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON udis
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('fecha');
CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON inpc
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('ano', 'mes');
CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON recargos
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('ano', 'mes');

-- The first day of 1900, which the client writes for no date, asks for all of them.
CREATE FUNCTION spsudis(dia text) RETURNS TABLE (fecha date, valor numeric)
LANGUAGE sql STABLE
BEGIN ATOMIC
  SELECT u.fecha, u.valor
    FROM udis u
   WHERE fecha_opcional(dia) IS NULL OR u.fecha = fecha_opcional(dia)
   ORDER BY u.fecha;
END;

CREATE FUNCTION spiudis(dia text, pesos numeric) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0427');
  INSERT INTO udis (fecha, valor) VALUES (fecha_dada(dia, 'la fecha'), numero(pesos, 0, 999999999999, 'el valor'))
  ON CONFLICT DO NOTHING;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La UDI del % ya existe', to_char(fecha(dia), 'DD/MM/YYYY') USING ERRCODE = 'unique_violation';
  END IF;
END $$;

CREATE FUNCTION spuudis(dia text, pesos numeric) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0427');
  UPDATE udis SET valor = numero(pesos, 0, 999999999999, 'el valor') WHERE fecha = fecha_dada(dia, 'la fecha');
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La UDI del % no existe', to_char(fecha(dia), 'DD/MM/YYYY') USING ERRCODE = 'no_data_found';
  END IF;
END $$;

CREATE FUNCTION spdudis(dia text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0427');
  DELETE FROM udis WHERE fecha = fecha_dada(dia, 'la fecha');
  IF NOT FOUND THEN
    RAISE EXCEPTION 'La UDI del % no existe', to_char(fecha(dia), 'DD/MM/YYYY') USING ERRCODE = 'no_data_found';
  END IF;
END $$;

-- Both series by month have the same functions, made from one template.
SELECT rellena($molde$
CREATE FUNCTION sps{tabla}(anio integer, numero_mes integer) RETURNS TABLE (ano integer, mes integer, {columna} numeric)
LANGUAGE sql STABLE
BEGIN ATOMIC
  SELECT t.ano, t.mes, t.{columna}
    FROM {tabla} t
   WHERE (coalesce(anio, 0) = 0 OR t.ano = anio) AND (coalesce(numero_mes, 0) = 0 OR t.mes = numero_mes)
   ORDER BY t.ano, t.mes;
END $molde$, to_jsonb(s)),
rellena($molde$
CREATE FUNCTION spi{tabla}(anio integer, numero_mes integer, cifra numeric) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('{modulo}');
  INSERT INTO {tabla} (ano, mes, {columna})
  VALUES (numero(anio, 1901, 2999, 'el año'), numero(numero_mes, 1, 12, 'el mes'),
          numero(cifra, 0, {maximo}, '{campo}'))
  ON CONFLICT DO NOTHING;
  IF NOT FOUND THEN
    RAISE EXCEPTION '{quien} de %/% ya existe', numero_mes, anio USING ERRCODE = 'unique_violation';
  END IF;
END $$ $molde$, to_jsonb(s)),
rellena($molde$
CREATE FUNCTION spu{tabla}(anio integer, numero_mes integer, cifra numeric) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('{modulo}');
  UPDATE {tabla} SET {columna} = numero(cifra, 0, {maximo}, '{campo}') WHERE ano = anio AND mes = numero_mes;
  IF NOT FOUND THEN
    RAISE EXCEPTION '{quien} de %/% no existe', numero_mes, anio USING ERRCODE = 'no_data_found';
  END IF;
END $$ $molde$, to_jsonb(s)),
rellena($molde$
CREATE FUNCTION spd{tabla}(anio integer, numero_mes integer) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('{modulo}');
  DELETE FROM {tabla} WHERE ano = anio AND mes = numero_mes;
  IF NOT FOUND THEN
    RAISE EXCEPTION '{quien} de %/% no existe', numero_mes, anio USING ERRCODE = 'no_data_found';
  END IF;
END $$ $molde$, to_jsonb(s)),
rellena('GRANT EXECUTE ON FUNCTION sps{tabla}, spi{tabla}, spu{tabla}, spd{tabla} TO {grupo}', to_jsonb(s))
  FROM (VALUES ('inpc', 'inpc', '0428', 'El INPC', 'el INPC', 999999999999, :'grupo'),
               ('recargos', 'porcentaje', '0429', 'El recargo', 'el porcentaje', 100, :'grupo'))
       AS s (tabla, columna, modulo, quien, campo, maximo, grupo)
\gexec

GRANT SELECT ON udis, inpc, recargos TO :"grupo";
GRANT EXECUTE ON FUNCTION spsudis, spiudis, spuudis, spdudis TO :"grupo";
