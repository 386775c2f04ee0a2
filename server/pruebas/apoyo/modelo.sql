-- For the tests of records with many columns: a call that is right, kept argument by argument in `modelo`, and then
-- made again with one of them changed. {1}, {2}... stand for accounts that take postings, {C} for one that does not.
CREATE TEMPORARY TABLE cuentas AS
SELECT jsonb_object_agg(n, rtrim(cuentaid)) || jsonb_build_object('C', '1000-00-00-00-0000') AS valores
  FROM (SELECT cuentaid, row_number() OVER (ORDER BY cuentaid) AS n FROM norte.catalogo_ctas WHERE tipo_cta = 'A') AS c
 WHERE n <= 28;

CREATE TEMPORARY TABLE modelo (numero bigint PRIMARY KEY, valor text);

-- Calls the function with the model, argument number `cambiado` changed (none if 0).
CREATE FUNCTION pg_temp.guarda(funcion text, cambiado integer, nuevo text) RETURNS text
LANGUAGE sql AS $$
  SELECT como('adriana', 'norte', comun.rellena(format('select %s(%s);', funcion, string_agg(
                CASE WHEN numero = cambiado THEN nuevo ELSE valor END, ',' ORDER BY numero)),
              min(valores::text)::jsonb))
    FROM modelo, cuentas
$$;

-- The columns of the one row of a reading function, in their order.
CREATE FUNCTION pg_temp.leido(llamada text) RETURNS text
LANGUAGE sql AS $$
  SELECT como('adriana', 'norte', format('SELECT string_agg(rtrim(valor), ''|'' ORDER BY orden)
    FROM %s AS t, json_each_text(row_to_json(t)) WITH ORDINALITY AS c (columna, valor, orden)', llamada))
$$;
