-- Amounts in words, as cheques and promissory notes want them.

-- 1 to 999 in capitals, in the short form that stands before a noun ("VEINTIÚN PESOS"); '' for 0.
CREATE FUNCTION centenas_letra(n integer) RETURNS text
LANGUAGE sql IMMUTABLE
RETURN concat_ws(' ',
  CASE WHEN n = 100 THEN 'CIEN'
       ELSE (ARRAY['CIENTO', 'DOSCIENTOS', 'TRESCIENTOS', 'CUATROCIENTOS', 'QUINIENTOS', 'SEISCIENTOS', 'SETECIENTOS',
                   'OCHOCIENTOS', 'NOVECIENTOS'])[n / 100] END,
  CASE WHEN n % 100 < 30
       THEN (ARRAY['UN', 'DOS', 'TRES', 'CUATRO', 'CINCO', 'SEIS', 'SIETE', 'OCHO', 'NUEVE', 'DIEZ', 'ONCE', 'DOCE',
                   'TRECE', 'CATORCE', 'QUINCE', 'DIECISÉIS', 'DIECISIETE', 'DIECIOCHO', 'DIECINUEVE', 'VEINTE',
                   'VEINTIÚN', 'VEINTIDÓS', 'VEINTITRÉS', 'VEINTICUATRO', 'VEINTICINCO', 'VEINTISÉIS', 'VEINTISIETE',
                   'VEINTIOCHO', 'VEINTINUEVE'])[n % 100]
       ELSE concat_ws(' Y ',
              (ARRAY['TREINTA', 'CUARENTA', 'CINCUENTA', 'SESENTA', 'SETENTA', 'OCHENTA', 'NOVENTA'])[n % 100 / 10 - 2],
              (ARRAY['UN', 'DOS', 'TRES', 'CUATRO', 'CINCO', 'SEIS', 'SIETE', 'OCHO', 'NUEVE'])[n % 10]) END);

-- 1 to 999,999, as centenas_letra(); '' for 0.
CREATE FUNCTION miles_letra(n integer) RETURNS text
LANGUAGE sql IMMUTABLE
RETURN concat_ws(' ',
  CASE WHEN n >= 2000 THEN centenas_letra(n / 1000) END,
  CASE WHEN n >= 1000 THEN 'MIL' END,
  nullif(centenas_letra(n % 1000), ''));

-- 'UN MILLÓN DOSCIENTOS PESOS 50/100 M.N.', to the cent. The client has no way to be told that there is no answer: what is
-- below zero says so, and from a million millions on the words would not fit into its variable and figures stand for them.
CREATE FUNCTION cletra(importe numeric) RETURNS text
LANGUAGE plpgsql IMMUTABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  redondo numeric := round(importe, 2);
  monto numeric := abs(redondo);
  pesos bigint;
  millones integer;
BEGIN
  IF importe IS NULL THEN
    RAISE EXCEPTION 'Falta el importe' USING ERRCODE = 'not_null_violation';
  ELSIF importe IN ('NaN', 'Infinity', '-Infinity') THEN
    RAISE EXCEPTION 'El importe % no es un número', importe USING ERRCODE = 'numeric_value_out_of_range';
  ELSIF monto >= 1000000000000 THEN
    RETURN redondo || ' PESOS M.N.';
  END IF;
  pesos := trunc(monto);
  millones := pesos / 1000000;
  RETURN concat_ws(' ',
    CASE WHEN redondo < 0 THEN 'MENOS' END,
    CASE WHEN pesos = 0 THEN 'CERO' END,
    nullif(miles_letra(millones), ''),
    CASE WHEN millones = 1 THEN 'MILLÓN' WHEN millones > 1 THEN 'MILLONES' END,
    nullif(miles_letra((pesos % 1000000)::integer), ''),
    CASE WHEN pesos > 0 AND pesos % 1000000 = 0 THEN 'DE' END,
    CASE WHEN pesos = 1 THEN 'PESO' ELSE 'PESOS' END,
    to_char((monto - pesos) * 100, 'FM00') || '/100 M.N.');
END $$;

GRANT EXECUTE ON FUNCTION cletra TO :"grupo";
