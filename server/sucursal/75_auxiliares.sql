-- Small helpers of the files that follow; none is for users.

-- Refuses a reference to a row that is not there, which `fila` names ('La ciudad 7').
CREATE FUNCTION exige_existe(existe boolean, fila text) RETURNS void
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT AS $$
BEGIN
  IF existe IS NOT TRUE THEN
    RAISE EXCEPTION '% no existe', fila USING ERRCODE = 'foreign_key_violation';
  END IF;
END $$;

-- A text as people search for it: small letters without accents, in any locale.
CREATE FUNCTION sin_acentos(valor text) RETURNS text
LANGUAGE sql IMMUTABLE
RETURN lower(translate(valor, 'áéíóúüñÁÉÍÓÚÜÑ', 'aeiouunAEIOUUN'));

-- The words of a filter as LIKE patterns, to be met all and in any order; '%' and '_' stand for themselves.
CREATE FUNCTION patrones(filtro text) RETURNS text[]
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT SET standard_conforming_strings TO on AS $$
BEGIN
  IF char_length(filtro) > 254 THEN
    RAISE EXCEPTION 'No cabe lo que se busca: tiene % caracteres y admite 254', char_length(filtro)
      USING ERRCODE = 'string_data_right_truncation';
  END IF;
  RETURN (SELECT array_agg('%' || regexp_replace(palabra, '([\\%_])', '\\\1', 'g') || '%')
            FROM regexp_split_to_table(sin_acentos(coalesce(btrim(filtro), '')), '\s+') AS palabra);
END $$;
