-- What every stored function does with its arguments. Each helper answers the value to store or raises an error in
-- plain Spanish that names the field ("campo", with its article: 'la descripción'); nothing is ever cut off silently.
SET LOCAL ROLE tolvara_propietario;
SET LOCAL search_path TO comun, pg_temp;

-- Those of texts and numbers are called for each argument of each save, and settings of their own would cost most of their
-- time: they run with those of the function that calls them, and depend on none. Nobody is granted them.

-- A text of at most `ancho` characters, trailing blanks apart; NULL becomes ''. Only what can be seen and told apart gets
-- in: Latin letters, figures and common signs, each of them one character. Control, combining and invisible characters,
-- other blanks than the blank and the letters of other scripts would make two names that look the same, or a name that
-- writes a line of its own into a report. A paragraph may have ends of line and tabs besides.
CREATE OR REPLACE FUNCTION texto_valido(valor text, ancho integer, campo text, en_parrafo boolean) RETURNS text
LANGUAGE plpgsql IMMUTABLE AS $$
DECLARE
  visible CONSTANT text := E'\\u0020-\\u007e\\u00a1-\\u00ac\\u00ae-\\u024f\\u02bc\\u1e00-\\u1eff\\u2010-\\u2027'
                           '\\u2030-\\u205e\\u20a0-\\u20c0\\u2122';
  extranio text;
BEGIN
  IF char_length(rtrim(valor)) > ancho THEN
    RAISE EXCEPTION 'No cabe %: tiene % caracteres y admite %', campo, char_length(rtrim(valor)), ancho
      USING ERRCODE = 'string_data_right_truncation';
  END IF;
  extranio := substring(rtrim(valor) FROM '[^' || visible || CASE WHEN en_parrafo THEN E'\\t\\n\\r' ELSE '' END || ']');
  IF extranio IS NOT NULL THEN
    RAISE EXCEPTION 'No se admite en % el carácter U+%: no se ve o se confunde con otro', campo,
      lpad(upper(to_hex(ascii(extranio))), 4, '0') USING ERRCODE = 'untranslatable_character';
  END IF;
  RETURN coalesce(valor, '');
END $$;

CREATE OR REPLACE FUNCTION exige_texto(valor text, campo text) RETURNS void
LANGUAGE plpgsql IMMUTABLE AS $$
BEGIN
  IF coalesce(btrim(valor, E' \t\r\n'), '') = '' THEN
    RAISE EXCEPTION 'Falta %', campo USING ERRCODE = 'not_null_violation';
  END IF;
END $$;

-- An optional text of one line, and one that must not be blank.
CREATE OR REPLACE FUNCTION texto(valor text, ancho integer, campo text) RETURNS text
LANGUAGE plpgsql IMMUTABLE AS $$
BEGIN
  RETURN comun.texto_valido(valor, ancho, campo, false);
END $$;

CREATE OR REPLACE FUNCTION obligatorio(valor text, ancho integer, campo text) RETURNS text
LANGUAGE plpgsql IMMUTABLE AS $$
BEGIN
  PERFORM comun.exige_texto(valor, campo);
  RETURN comun.texto_valido(valor, ancho, campo, false);
END $$;

-- An optional paragraph, and one that must not be blank.
CREATE OR REPLACE FUNCTION parrafo(valor text, ancho integer, campo text) RETURNS text
LANGUAGE plpgsql IMMUTABLE AS $$
BEGIN
  RETURN comun.texto_valido(valor, ancho, campo, true);
END $$;

CREATE OR REPLACE FUNCTION parrafo_obligatorio(valor text, ancho integer, campo text) RETURNS text
LANGUAGE plpgsql IMMUTABLE AS $$
BEGIN
  PERFORM comun.exige_texto(valor, campo);
  RETURN comun.texto_valido(valor, ancho, campo, true);
END $$;

-- A text that is NULL when blank, as references to another table are; otherwise as texto().
CREATE OR REPLACE FUNCTION opcional(valor text, ancho integer, campo text) RETURNS text
LANGUAGE plpgsql IMMUTABLE AS $$
BEGIN
  RETURN CASE WHEN btrim(valor) <> '' THEN comun.texto(valor, ancho, campo) END;
END $$;

-- A number between both bounds, inclusive; NaN sorts above any number. The column rounds to its own decimals.
CREATE OR REPLACE FUNCTION numero(valor numeric, minimo numeric, maximo numeric, campo text) RETURNS numeric
LANGUAGE plpgsql IMMUTABLE AS $$
BEGIN
  IF valor IS NULL THEN
    RAISE EXCEPTION 'Falta %', campo USING ERRCODE = 'not_null_violation';
  ELSIF valor NOT BETWEEN minimo AND maximo THEN
    RAISE EXCEPTION 'Está fuera de rango %: % no está entre % y %', campo, valor, minimo, maximo
      USING ERRCODE = 'numeric_value_out_of_range';
  END IF;
  RETURN valor;
END $$;

-- A date from 'dd/mm/yyyy' or 'yyyy-mm-dd', whatever the session's DateStyle; '', NULL and the zero date mean none.
CREATE OR REPLACE FUNCTION fecha(valor text) RETURNS date
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT SET standard_conforming_strings TO on AS $$
DECLARE
  limpio text := coalesce(btrim(left(valor, 100)), '');
  parte text[];
BEGIN
  IF limpio IN ('', '0000-00-00', '00/00/0000') THEN
    RETURN NULL;
  ELSIF limpio ~ '^\d{1,2}/\d{1,2}/\d{4}$' THEN
    parte := string_to_array(limpio, '/');
    RETURN make_date(parte[3]::integer, parte[2]::integer, parte[1]::integer);
  ELSIF limpio ~ '^\d{4}-\d{1,2}-\d{1,2}$' THEN
    parte := string_to_array(limpio, '-');
    RETURN make_date(parte[1]::integer, parte[2]::integer, parte[3]::integer);
  END IF;
  RAISE EXCEPTION 'La fecha "%" no tiene la forma dd/mm/aaaa ni aaaa-mm-dd', left(limpio, 30)
    USING ERRCODE = 'invalid_datetime_format';
EXCEPTION WHEN datetime_field_overflow THEN
  RAISE EXCEPTION 'La fecha "%" no existe en el calendario', limpio USING ERRCODE = 'datetime_field_overflow';
END $$;

-- A date that must be given, otherwise as fecha().
CREATE OR REPLACE FUNCTION fecha_obligatoria(valor text, campo text) RETURNS date
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT AS $$
BEGIN
  IF fecha(valor) IS NULL THEN
    RAISE EXCEPTION 'Falta %', campo USING ERRCODE = 'not_null_violation';
  END IF;
  RETURN fecha(valor);
END $$;

-- How many rows of which other table point at a row of `tabla`: '2 cuentas, 1 tipos de préstamo', or ''. Only
-- single-column references exist. A table is named by its comment up to the colon ('tipos de promoción: ...').
CREATE OR REPLACE FUNCTION usos(tabla regclass, clave text) RETURNS text
LANGUAGE plpgsql STABLE SET search_path FROM CURRENT AS $$
DECLARE
  ajena record;
  filas bigint;
  hallados text[] := '{}';
BEGIN
  FOR ajena IN
    SELECT c.conrelid::regclass AS tabla, string_agg(format('rtrim(%I::text)', a.attname), ', ') AS columnas,
           split_part(coalesce(obj_description(c.conrelid, 'pg_class'), c.conrelid::regclass::text), ':', 1) AS nombre
      FROM pg_constraint c JOIN pg_attribute a ON a.attrelid = c.conrelid AND a.attnum = c.conkey[1]
     WHERE c.contype = 'f' AND c.confrelid = usos.tabla AND c.confdeltype IN ('a', 'r')
     GROUP BY c.conrelid
     ORDER BY nombre
  LOOP
    EXECUTE format('SELECT count(*) FROM %s WHERE rtrim($1) IN (%s)', ajena.tabla, ajena.columnas)
       INTO filas USING clave;
    IF filas > 0 THEN
      hallados := hallados || format('%s %s', filas, ajena.nombre);
    END IF;
  END LOOP;
  RETURN array_to_string(hallados, ', ');
END $$;

-- Refuses a deletion because of the rows that point at `fila` ("la moneda MX") of `tabla`. To be called by the handler of
-- foreign_key_violation, which is where the deletion has already been undone.
CREATE OR REPLACE FUNCTION rechaza_uso(tabla regclass, clave text, fila text) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  RAISE EXCEPTION 'No se puede borrar % porque se usa en: %', fila,
    coalesce(nullif(usos(tabla, clave), ''), 'algo que otro usuario acaba de guardar')
    USING ERRCODE = 'foreign_key_violation';
END $$;

-- The institution's day and hour, in the time zone of the server as it was when this ran last, whatever zone a session
-- may claim to be in.
CREATE OR REPLACE FUNCTION hoy() RETURNS date
LANGUAGE sql STABLE SET search_path FROM CURRENT SET timezone FROM CURRENT AS $$ SELECT current_date $$;

CREATE OR REPLACE FUNCTION hora_local(momento timestamptz) RETURNS timestamp
LANGUAGE sql STABLE SET search_path FROM CURRENT SET timezone FROM CURRENT AS $$ SELECT momento::timestamp $$;

-- That zone, for who converts many moments at once.
CREATE OR REPLACE FUNCTION zona() RETURNS text
LANGUAGE sql STABLE SET search_path FROM CURRENT SET timezone FROM CURRENT AS $$ SELECT current_setting('timezone') $$;

-- The moment at which a day of the institution begins.
CREATE OR REPLACE FUNCTION comienzo(dia date) RETURNS timestamptz
LANGUAGE sql STABLE SET search_path FROM CURRENT SET timezone FROM CURRENT AS $$ SELECT dia::timestamptz $$;

RESET ROLE;
