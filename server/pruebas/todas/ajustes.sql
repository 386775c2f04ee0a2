-- What a session may be set to changes no answer and nothing that is stored. Answers are compared as JSON, in which a date
-- does not depend on DateStyle: how a client wants to see one is its own affair.
BEGIN;
SELECT no_plan();
CREATE FUNCTION pg_temp.fue_con(ajuste text, valor text, usuario text, llamada text, tabla text) RETURNS text
LANGUAGE plpgsql AS $$
DECLARE
  respuesta jsonb;
  estado jsonb;
  -- the server gives these, and another one each time
  numeros CONSTANT text[] := '{tasaid,sujetoid,bienid,activoid,tipopromocionid}';
BEGIN
  PERFORM set_config('search_path', 'public, norte', true), set_config('session_authorization', usuario, true);
  PERFORM set_config(ajuste, valor, true);
  EXECUTE format('SELECT coalesce(jsonb_agg(to_jsonb(t)), ''[]'') FROM %s AS t', llamada) INTO respuesta;
  PERFORM set_config('session_authorization', 'postgres', true);
  IF tabla <> '' THEN
    EXECUTE format('SELECT jsonb_agg(j ORDER BY j::text COLLATE "C")
                      FROM norte.%I AS t, LATERAL (SELECT to_jsonb(t) - $1) AS f (j)', tabla)
       INTO estado USING numeros;
    respuesta := '[]';
  END IF;
  RAISE EXCEPTION SQLSTATE 'TV001' USING MESSAGE = concat_ws(' ', md5(respuesta::text), md5(estado::text));
EXCEPTION WHEN OTHERS THEN
  RETURN SQLERRM;
END $$;

CREATE TEMPORARY TABLE llamada (usuario text, llamada text, tabla text);
INSERT INTO llamada
SELECT 'adriana', format('%I(%s)', p.proname, coalesce(string_agg(CASE tipo WHEN 'text'::regtype THEN '''''' ELSE '0' END, ',' ORDER BY n)
                                   FILTER (WHERE n IS NOT NULL), '')), ''
  FROM pg_proc p LEFT JOIN LATERAL unnest(p.proargtypes) WITH ORDINALITY AS a (tipo, n) ON true
 WHERE p.pronamespace = 'norte'::regnamespace AND has_function_privilege('sucursal_norte', p.oid, 'EXECUTE')
   AND p.proname ~ '^sps' AND p.proname <> 'spsujeto'
 GROUP BY p.oid;
INSERT INTO llamada VALUES
  ('adriana', $$spiudis('03/02/2031', 8.25)$$, 'udis'), ('adriana', $$spiudis('2031-02-03', 8.25)$$, 'udis'),
  ('adriana', $$spiudis('2031-02-0x', 8.25)$$, 'udis'), ('adriana', $$spiudis('d/d/dddd', 8.25)$$, 'udis'),
  ('adriana', $$spitasa('EME','','','01/02/2031','03/04/2031',1.5,2.5)$$, 'tasa'),
  ('adriana', $$spitasa('EME','','','01/02/2031','03/01/2031',1.5,2.5)$$, 'tasa'),
  ('adriana', $$spitasa('EME','','','01/02/2025','03/03/2025',1.5,2.5)$$, 'tasa'),
  ('adriana', $$spisujeto('x','y','z','r','c',20,'05/03/1990','w')$$, 'sujeto'),
  ('adriana', $$spibienes(1,'x','y','z','w',1,1,1,'v',1,'S','2026-03-05')$$, 'bienes'),
  ('adriana', $$spiactivo(1,'x','y',1,1,1,'z','w','05/03/2026',1,1,1,'2026-03-05','S',1,1,1,1,1,'MX',1)$$, 'activo'),
  ('adriana', $$spitipopromocion('GL','05/03/2026','06/04/2026','x',1,'y')$$, 'tipopromocion'),
  ('adriana', $$spimoneda('Q9','O''Farrill 1.5',0.000001)$$, 'moneda'),
  ('adriana', $$cletra(1234.5)$$, ''), ('adriana', $$fechacobroiva()$$, ''),
  ('adriana', $$generarfc('Ñuñez','De la Peña','José María','05/03/1990')$$, ''),
  ('adriana', format($$serverdate(%L)$$, to_char(comun.hoy(), 'DD/MM/YYYY')), ''),
  ('adriana', format($$serverdate(%L)$$, to_char(comun.hoy() + 1, 'YYYY-MM-DD')), ''),
  ('adriana', format($$spsbitacora(%L,%1$L,'','','','',0)$$, to_char(comun.hoy(), 'DD/MM/YYYY')), ''),
  ('adriana', $$spstablero()$$, ''),
  ('adriana', $$spssujetos('a_b%')$$, ''), ('adriana', $$spssujetos('quimera l')$$, ''),
  ('hilda', $$precierre('31/10/2026')$$, 'precorte'), ('hilda', $$precierre('2026-10-31')$$, 'precorte_detalle'),
  ('hilda', format($$precierre(%L)$$, to_char(comun.hoy() + 1, 'DD/MM/YYYY')), 'cierre'),
  ('adriana', $$saldodemovr(1, 'GL', '31/10/2026', 1)$$, ''),
  ('adriana', $$login('braulio', 'x')$$, '');
SET LOCAL password_encryption = 'scram-sha-256';
ALTER ROLE braulio PASSWORD 'x' VALID UNTIL 'infinity';

CREATE TEMPORARY TABLE cuadro AS
SELECT a.ajuste, a.valor, l.llamada, pg_temp.fue_con(a.ajuste, a.valor, l.usuario, l.llamada, l.tabla) AS respuesta
  FROM llamada AS l,
       (VALUES (0, 'timezone', 'UTC'), (1, 'timezone', 'Pacific/Kiritimati'), (1, 'timezone', 'America/Los_Angeles'),
               (1, 'timezone', '<+99>-99'), (1, 'datestyle', 'German, DMY'), (1, 'datestyle', 'SQL, MDY'),
               (1, 'datestyle', 'Postgres, YMD'), (1, 'standard_conforming_strings', 'off'),
               (1, 'bytea_output', 'escape'), (1, 'extra_float_digits', '-15'), (1, 'lc_numeric', 'C.UTF-8'),
               (1, 'intervalstyle', 'sql_standard'), (1, 'transform_null_equals', 'on'),
               (1, 'quote_all_identifiers', 'on'), (1, 'array_nulls', 'off'), (1, 'backslash_quote', 'on'))
         AS a (orden, ajuste, valor)
 ORDER BY a.orden;
SELECT is_empty($$ SELECT c.ajuste, c.valor, c.llamada, b.respuesta, c.respuesta
                     FROM cuadro AS c JOIN cuadro AS b ON b.llamada = c.llamada AND b.valor = 'UTC'
                    WHERE c.respuesta <> b.respuesta $$, 'ningún ajuste cambia nada');
SELECT is_empty($$ SELECT llamada, respuesta FROM cuadro WHERE valor = 'UTC' AND respuesta !~ '^[0-9a-f]{32}( |$)' AND llamada !~ '(2031-02-0x|dddd|03/01/2031|2025)'
                      AND NOT (llamada ~ 'precierre' AND respuesta ~ 'está en el futuro') $$, 'y todo responde');

SELECT * FROM finish();
ROLLBACK;
SELECT setval('comun.intentos_braulio', 1);
