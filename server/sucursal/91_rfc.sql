-- The tax key (RFC) of a natural person by the published rules of the tax authority: four letters of the name, birth
-- date, two characters that tell namesakes apart, check digit. And the population key (CURP) as far as the same data
-- go.

-- Capitals without accents, in which Ñ is a letter of its own; signs fall away.
CREATE FUNCTION letras_rfc(valor text) RETURNS text
LANGUAGE sql IMMUTABLE
RETURN btrim(regexp_replace(regexp_replace(regexp_replace(regexp_replace(
         upper(translate(regexp_replace(normalize(coalesce(valor, ''), NFD), '[nN]\u0303', 'Ñ', 'g'),
                         'øØłŁđĐ', 'OOLLDD')),
         'ß', 'SS', 'g'), '[æÆ]', 'AE', 'g'), '[^A-ZÑ& ]', '', 'g'), ' +', ' ', 'g'));

-- The word of a name that counts: the first one that is no particle, and in given names (`de_pila`) the one behind it if
-- that is María or José. A hyphen parts words. '' when there is none.
CREATE FUNCTION palabra_rfc(valor text, de_pila boolean) RETURNS text
LANGUAGE sql IMMUTABLE
RETURN (
  SELECT coalesce(CASE WHEN de_pila AND cuentan[1] IN ('MARIA', 'MA', 'M', 'JOSE', 'J') THEN cuentan[2] END,
                  cuentan[1], todas[1], '')
    FROM (SELECT array_agg(palabra ORDER BY lugar) AS todas,
                 array_agg(palabra ORDER BY lugar)
                   FILTER (WHERE palabra NOT IN ('DA', 'DAS', 'DE', 'DEL', 'DER', 'DI', 'DIE', 'DD', 'EL', 'LA', 'LAS',
                                                 'LE', 'LES', 'LOS', 'MAC', 'MC', 'VAN', 'VON', 'Y')) AS cuentan
            FROM unnest(string_to_array(letras_rfc(replace(valor, '-', ' ')), ' '))
                 WITH ORDINALITY AS p (palabra, lugar)) AS palabras);

-- The two characters for namesakes, from surnames and given names together: each letter is a pair of figures; every
-- two neighbouring figures, read as a number, are multiplied by the second of them and summed; the last three figures
-- of the sum, divided by 34, give both places in the table.
CREATE FUNCTION homoclave_rfc(nombre_completo text) RETURNS text
LANGUAGE sql IMMUTABLE
RETURN (
  WITH cifras AS (
    SELECT '0' || string_agg(
             CASE WHEN letra = ' ' THEN '00' WHEN letra = '&' THEN '10' WHEN letra = 'Ñ' THEN '40'
                  WHEN letra <= 'I' THEN (ascii(letra) - 54)::text  -- A 11 ... I 19
                  WHEN letra <= 'R' THEN (ascii(letra) - 53)::text  -- J 21 ... R 29
                  ELSE (ascii(letra) - 51)::text END,               -- S 32 ... Z 39
             '' ORDER BY lugar) AS fila
      FROM regexp_split_to_table(nombre_completo, '') WITH ORDINALITY AS l (letra, lugar)),
  suma AS (
    SELECT sum(substr(fila, n, 2)::integer * substr(fila, n + 1, 1)::integer) % 1000 AS resto
      FROM cifras, generate_series(1, length(fila) - 1) AS n)
  SELECT substr(tabla, (resto / 34)::integer + 1, 1) || substr(tabla, (resto % 34)::integer + 1, 1)
    FROM suma, (VALUES ('123456789ABCDEFGHIJKLMNPQRSTUVWXYZ')) AS t (tabla));

-- The check digit of the first twelve characters.
CREATE FUNCTION digito_rfc(clave text) RETURNS text
LANGUAGE sql IMMUTABLE
RETURN (
  SELECT substr('0123456789A', ((11 - sum((strpos('0123456789ABCDEFGHIJKLMN&OPQRSTUVWXYZ Ñ', substr(clave, n, 1)) - 1)
                                          * (14 - n)) % 11) % 11)::integer + 1, 1)
    FROM generate_series(1, 12) AS n);

-- A key that is no person's, because its four letters are a rude word, is changed: RFC by its last letter, CURP by its
-- second.
CREATE FUNCTION rfc_de(apaterno text, amaterno text, nombres text, nacimiento date) RETURNS text
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT AS $$
DECLARE
  p text := palabra_rfc(apaterno, false);
  m text := palabra_rfc(amaterno, false);
  n text := palabra_rfc(nombres, true);
  raiz text;
  clave text;
BEGIN
  raiz := CASE WHEN p = '' OR m = '' THEN left(p || m, 2) || left(n, 2)
               WHEN length(p) <= 2 THEN left(p, 1) || left(m, 1) || left(n, 2)
               ELSE left(p, 1) || coalesce(substring(substr(p, 2) FROM '[AEIOU]'), 'X') || left(m, 1) || left(n, 1) END;
  raiz := rpad(raiz, 4, 'X');
  IF raiz IN ('BUEI', 'BUEY', 'CACA', 'CACO', 'CAGA', 'CAGO', 'CAKA', 'CAKO', 'COGE', 'COJA', 'COJE', 'COJI', 'COJO',
              'CULO', 'FETO', 'GUEY', 'JOTO', 'KACA', 'KACO', 'KAGA', 'KAGO', 'KAKA', 'KOGE', 'KOJO', 'KULO', 'MAME',
              'MAMO', 'MEAR', 'MEAS', 'MEON', 'MION', 'MOCO', 'MULA', 'PEDA', 'PEDO', 'PENE', 'PUTA', 'PUTO', 'QULO',
              'RATA', 'RUIN') THEN
    raiz := left(raiz, 3) || 'X';
  END IF;
  clave := raiz || to_char(nacimiento, 'YYMMDD')
           || homoclave_rfc(letras_rfc(concat_ws(' ', apaterno, amaterno, nombres)));
  RETURN clave || digito_rfc(clave);
END $$;

-- What is not known of a CURP here (sex, state of birth, the two last characters that the registry gives) is "_".
CREATE FUNCTION curp_de(apaterno text, amaterno text, nombres text, nacimiento date) RETURNS text
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT AS $$
DECLARE
  p text := translate(palabra_rfc(apaterno, false), 'Ñ', 'X');
  m text := translate(palabra_rfc(amaterno, false), 'Ñ', 'X');
  n text := translate(palabra_rfc(nombres, true), 'Ñ', 'X');
  raiz text;
  consonantes text := '';
  palabra text;
BEGIN
  IF p = '' THEN
    p := m;
    m := '';
  END IF;
  raiz := left(p, 1) || coalesce(substring(substr(p, 2) FROM '[AEIOU]'), 'X') || coalesce(nullif(left(m, 1), ''), 'X')
          || left(n, 1);
  IF raiz IN ('BACA', 'BAKA', 'BUEI', 'BUEY', 'CACA', 'CACO', 'CAGA', 'CAGO', 'CAKA', 'CAKO', 'COGE', 'COGI', 'COJA',
              'COJE', 'COJI', 'COJO', 'COLA', 'CULO', 'FALO', 'FETO', 'GETA', 'GUEI', 'GUEY', 'JETA', 'JOTO', 'KACA',
              'KACO', 'KAGA', 'KAGO', 'KAKA', 'KAKO', 'KOGE', 'KOGI', 'KOJA', 'KOJE', 'KOJI', 'KOJO', 'KOLA', 'KULO',
              'LILO', 'LOCA', 'LOCO', 'LOKA', 'LOKO', 'MAME', 'MAMO', 'MEAR', 'MEAS', 'MEON', 'MIAR', 'MION', 'MOCO',
              'MOKO', 'MULA', 'MULO', 'NACA', 'NACO', 'PEDA', 'PEDO', 'PENE', 'PIPI', 'PITO', 'POPO', 'PUTA', 'PUTO',
              'QULO', 'RATA', 'ROBA', 'ROBE', 'ROBO', 'RUIN', 'SENO', 'TETA', 'VACA', 'VAGA', 'VAGO', 'VAKA', 'VUEI',
              'VUEY', 'WUEI', 'WUEY') THEN
    raiz := left(raiz, 1) || 'X' || substr(raiz, 3);
  END IF;
  FOREACH palabra IN ARRAY ARRAY[p, m, n] LOOP
    consonantes := consonantes || coalesce(substring(substr(palabra, 2) FROM '[B-DF-HJ-NP-TV-Z]'), 'X');
  END LOOP;
  RETURN raiz || to_char(nacimiento, 'YYMMDD') || '___' || consonantes || '__';
END $$;

CREATE FUNCTION generarfc(apaterno text, amaterno text, nombres text, nacimiento text)
RETURNS TABLE (rfc text, curp text)
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  dia date := fecha_obligatoria(nacimiento, 'la fecha de nacimiento');
BEGIN
  IF greatest(char_length(apaterno), char_length(amaterno), char_length(nombres)) > 254 THEN
    RAISE EXCEPTION 'No cabe el nombre: cada parte admite 254 caracteres' USING ERRCODE = 'string_data_right_truncation';
  ELSIF palabra_rfc(apaterno, false) || palabra_rfc(amaterno, false) = '' THEN
    RAISE EXCEPTION 'Falta el apellido paterno' USING ERRCODE = 'not_null_violation';
  ELSIF palabra_rfc(nombres, true) = '' THEN
    RAISE EXCEPTION 'Falta el nombre' USING ERRCODE = 'not_null_violation';
  END IF;
  RETURN QUERY SELECT rfc_de(apaterno, amaterno, nombres, dia), curp_de(apaterno, amaterno, nombres, dia);
END $$;

GRANT EXECUTE ON FUNCTION generarfc TO :"grupo";
