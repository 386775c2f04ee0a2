-- The tests of every function that writes, `llamada` (module, function, arguments of a call that is right), and of
-- those that read, `lectura` (function, how many arguments): who may call it, and what it does with any input.
-- `correcto` is the pattern of the right answers, set by the including file.
CREATE FUNCTION pg_temp.llama(usuario text, funcion text, argumentos text[]) RETURNS text
LANGUAGE sql AS $$
  SELECT como(usuario, 'norte', format('SELECT * FROM %s(%s)', funcion, array_to_string(argumentos, ',', 'NULL')))
$$;

-- As llama(), and then undone.
CREATE FUNCTION pg_temp.prueba(usuario text, funcion text, argumentos text[]) RETURNS text
LANGUAGE plpgsql AS $$
BEGIN
  RAISE EXCEPTION '%', pg_temp.llama(usuario, funcion, argumentos);
EXCEPTION WHEN raise_exception THEN
  RETURN SQLERRM;
END $$;

-- The right is asked first of all, so that without it nothing else is told. subtipotasa only knows from its first
-- argument that it is asked to write.
SELECT is(pg_temp.prueba('camila', funcion, dados),
          format('No tiene permiso para la opción %s (módulo %s)', descrimodulo, modulo),
          format('%s(%s): sin permiso', funcion, array_to_string(dados, ',', 'NULL')))
  FROM llamada JOIN norte.modulo ON clavemodulo = modulo::bpchar,
       LATERAL (VALUES (argumentos), (array_fill(NULL::text, ARRAY[cardinality(argumentos)]))) AS d (dados)
 WHERE dados[1] IS NOT NULL OR funcion <> 'subtipotasa';

-- That right alone is enough.
CREATE FUNCTION pg_temp.con_solo(modulo text, funcion text, argumentos text[]) RETURNS text
LANGUAGE plpgsql AS $$
BEGIN
  UPDATE norte.permisomodulo SET permiso = CASE WHEN clavemodulo = modulo THEN 'S' ELSE 'N' END
   WHERE usuarioid = 'adriana' AND permiso <> CASE WHEN clavemodulo = modulo THEN 'S' ELSE 'N' END;
  RETURN pg_temp.prueba('adriana', funcion, argumentos);
END $$;
SELECT matches(pg_temp.con_solo(modulo, funcion, argumentos), :'correcto',
               format('%s(%s): con permiso', funcion, array_to_string(argumentos, ',', 'NULL')))
  FROM (SELECT * FROM llamada ORDER BY modulo) AS l;
UPDATE norte.permisomodulo SET permiso = 'S' WHERE usuarioid = 'adriana';

-- Each argument of each function with whatever may come: what the function says is its own, never the server's words.
CREATE TEMPORARY TABLE rareza (clase text, valor text);
INSERT INTO rareza VALUES
  ('text', NULL), ('text', ''''''), ('text', '''   '''), ('text', quote_literal(repeat('ñ', 5000))),
  ('text', quote_literal('It''s "100%" \; -- {} $$')), ('text', quote_literal(E'\t\n')), ('text', '''-1'''),
  ('text', quote_literal('x' || chr(8203))), ('text', quote_literal('x' || chr(7))), ('text', '''31/02/2026'''), ('text', '''99999999-99-99'''), ('text', '''infinity'''),
  ('integer', NULL), ('integer', '-1'), ('integer', '0'), ('integer', '2147483647'), ('integer', '-2147483648'),
  ('bigint', NULL), ('bigint', '-1'), ('bigint', '0'), ('bigint', '9223372036854775807'),
  ('numeric', NULL), ('numeric', '-1'), ('numeric', '0'), ('numeric', '1e30'), ('numeric', '-1e300'),
  ('numeric', '0.0000000000001'), ('numeric', '''NaN'''), ('numeric', '''Infinity'''), ('numeric', '''-Infinity''');

CREATE TEMPORARY TABLE intento AS
SELECT l.funcion, n AS argumento, r.valor,
       pg_temp.prueba('adriana', l.funcion, l.argumentos[:n - 1] || r.valor || l.argumentos[n + 1:]) AS respuesta
  FROM llamada AS l
  JOIN pg_proc AS p ON p.proname = l.funcion AND p.pronargs = cardinality(l.argumentos)
                   AND p.pronamespace = 'norte'::regnamespace,
       LATERAL unnest(p.proargtypes) WITH ORDINALITY AS a (tipo, n)
  JOIN rareza AS r ON r.clase = a.tipo::regtype::text
UNION ALL
SELECT l.funcion, 1, r.valor,
       pg_temp.prueba('adriana', l.funcion, array_fill(coalesce(r.valor, 'NULL'), ARRAY[l.argumentos]))
  FROM lectura AS l
  JOIN pg_proc AS p ON p.proname = l.funcion AND p.pronargs = l.argumentos AND p.pronamespace = 'norte'::regnamespace
  JOIN rareza AS r ON r.clase = p.proargtypes[0]::regtype::text;
SELECT bag_eq('SELECT DISTINCT funcion FROM intento',
              'SELECT DISTINCT funcion FROM llamada UNION SELECT funcion FROM lectura WHERE argumentos > 0',
              'se prueba toda función');
SELECT is_empty($$ SELECT funcion, argumento, left(valor, 30), respuesta FROM intento
                    WHERE respuesta ~ '(violates|invalid|exist(s|ing)?( |$)|too long|out of range|overflow|'
                                      'null value|denied|syntax|cannot|must|could not|value)' $$,
                'las negativas son siempre de la función');
SELECT is_empty($$ SELECT funcion, argumento, left(valor, 30), respuesta FROM intento
                    WHERE respuesta = '' AND funcion !~ '^sps'
                      AND (length(valor) > 5000 OR valor IN ('''NaN''', '1e30', '-1e300')) $$,
                'nada se corta ni se redondea a la medida');
SELECT is_empty($$ SELECT funcion, argumento, respuesta FROM intento
                    WHERE valor IN (quote_literal('x' || chr(8203)), quote_literal('x' || chr(7)))
                      AND respuesta ~ '^\d*$' AND funcion !~ '^(sps|generarfc|cletra)' $$,
                'nada de lo que no se ve se guarda');
