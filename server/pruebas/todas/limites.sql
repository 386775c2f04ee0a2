-- No call keeps the server busy, whatever it is given: every function that users may call, with texts of 300,000
-- characters in every place that takes a text.
BEGIN;
SELECT no_plan();

CREATE FUNCTION pg_temp.tarda(llamada text) RETURNS numeric
LANGUAGE plpgsql AS $$
DECLARE
  desde timestamptz := clock_timestamp();
BEGIN
  PERFORM como('adriana', 'norte', llamada);
  RETURN extract(epoch FROM clock_timestamp() - desde) * 1000;
END $$;

-- What the call takes longer than making its arguments does: the shortest of a few tries, since the machine may be busy
-- with other things.
CREATE FUNCTION pg_temp.tarda_al_menos(llamada text, argumentos text, limite numeric) RETURNS numeric
LANGUAGE plpgsql AS $$
DECLARE
  menor numeric := 'infinity';
BEGIN
  FOR vez IN 1 .. 10 LOOP
    menor := least(menor, pg_temp.tarda(llamada) - pg_temp.tarda(format('SELECT num_nulls(%s)', argumentos)));
    EXIT WHEN menor < limite;
  END LOOP;
  RETURN round(menor, 1);
END $$;

-- `login` takes its second on purpose.
SELECT cmp_ok(pg_temp.tarda_al_menos(format('SELECT * FROM %I(%s)', p.proname, argumentos), argumentos, limite), '<',
              limite, format('%s(%s...) con %s', p.proname, left(argumentos, 30), que))
  FROM pg_proc p,
       (VALUES ('letras', $$repeat('x',300000)$$), ('palabras', $$repeat('x ',150000)$$),
               ('acentos', $$repeat('ñ',300000)$$), ('comodines', $$repeat('%_',150000)$$)) AS t (que, texto),
       LATERAL (SELECT string_agg(CASE WHEN tipo = 'text'::regtype THEN texto
                                       ELSE format('1::%s', tipo::regtype) END, ', ' ORDER BY n) AS argumentos
                  FROM unnest(p.proargtypes) WITH ORDINALITY AS a (tipo, n)) AS c,
       LATERAL (SELECT CASE p.proname WHEN 'login' THEN 1100.0 ELSE 100.0 END) AS l (limite)
 WHERE p.pronamespace = 'norte'::regnamespace AND has_function_privilege('sucursal_norte', p.oid, 'EXECUTE')
   AND p.proargtypes::oid[] @> ARRAY['text'::regtype::oid]
 ORDER BY p.proname;

-- The one that loops most, with a date that lets it.
SELECT cmp_ok(pg_temp.tarda_al_menos(format('SELECT * FROM generarfc(%s)', argumentos), argumentos, 100), '<', 100.0,
              'generarfc con ' || left(argumentos, 25))
  FROM (VALUES ($$repeat('x',300000),'Y','Z','01/01/1990'$$), ($$'X',repeat('y ',150000),'Z','01/01/1990'$$),
               ($$'X','Y',repeat('ñ ',150000),'01/01/1990'$$)) AS a (argumentos);

SELECT * FROM finish();
ROLLBACK;
SELECT setval('comun.intentos_adriana', 1);
