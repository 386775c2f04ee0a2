-- Every function that the client calls: who may call those that write, and what each does with any input. `llamada` has a
-- row per function that asks for a permission, a call that is right; the others only read, and are found in the contract.
BEGIN;
SELECT no_plan();
SET LOCAL track_functions TO 'all';
\ir ../apoyo/contrato.sql

CREATE TEMPORARY TABLE funcion AS
SELECT nombre, p.oid::regprocedure AS firma, ARRAY(SELECT unnest(p.proargtypes)::regtype) AS tipos, p.provolatile = 'v' AS escribe
  FROM contrato LEFT JOIN pg_proc AS p ON p.oid = to_regprocedure(format('norte.%I(%s)', nombre, argumentos));

CREATE TEMPORARY TABLE llamada (modulo text, funcion text, argumentos text[]);
INSERT INTO llamada VALUES
  ('0203', 'spimoneda', $${"'Q'","'x'",1}$$),
  ('0203', 'spumoneda', $${"'MX'","'x'",1}$$),
  ('0203', 'spdmoneda', $${"'QD'"}$$),
  ('0206', 'spiparametro', $${"'sinada'","'QQ'","'1101'","'x'","'y'",1,"'z'"}$$),
  ('0206', 'spuparametro', $${"'camila'","'QQ'","'1101'","'x'","'y'",1,"'z'"}$$),
  ('0206', 'spdparametro', $${"'camila'"}$$),
  ('0206', 'spipermisomodulo', $${"'QD'","'camila'","'S'"}$$),
  ('0206', 'spupermisomodulo', $${900001,"'0204'","'sinada'","'S'"}$$),
  ('0206', 'spdpermisosmodulos', $${900001}$$),
  ('0206', 'creausuario', $${"'sinada'","'tolvara_usuarios'"}$$),
  ('0209', 'spitipo_garantia', $${"'Q'","'x'"}$$),
  ('0209', 'sputipo_garantia', $${"'AVA'","'x'"}$$),
  ('0209', 'spdtipo_garantia', $${"'QD'"}$$),
  ('0210', 'spiestados_credito', $${"'Q'","'x'"}$$),
  ('0210', 'spuestados_credito', $${"'SOL'","'x'"}$$),
  ('0210', 'spdestados_credito', $${"'QD'"}$$),
  ('0211', 'spifinalidades', $${"'Q'","'x'"}$$),
  ('0211', 'spufinalidades', $${"'CON'","'x'"}$$),
  ('0211', 'spdfinalidades', $${"'QD'"}$$),
  ('0215', 'spimodulo', $${"'Q'","'x'"}$$),
  ('0215', 'spumodulo', $${"'0203'","'x'"}$$),
  ('0215', 'spdmodulo', $${"'QD'"}$$),
  ('0216', 'spitipousuario', $${"'Q'","'x'"}$$),
  ('0216', 'sputipousuario', $${"'CAJ'","'x'"}$$),
  ('0216', 'spdtipousuario', $${"'QD'"}$$),
  ('0217', 'spitiposocio', $${"'Q'","'x'","'y'"}$$),
  ('0217', 'sputiposocio', $${"'AC'","'x'","'y'"}$$),
  ('0217', 'spdtiposocio', $${"'QD'"}$$),
  ('0205', 'spitipomovibanco', $${"'Q'","'x'","'+'"}$$),
  ('0205', 'sputipomovibanco', $${"'CH'","'x'","'-'"}$$),
  ('0205', 'spdtipomovibanco', $${"'QD'"}$$),
  ('0904', 'spiasesor', $${99,"'x'"}$$),
  ('0904', 'spuasesor', $${1,"'x'"}$$),
  ('0904', 'spdasesor', $${98}$$),
  ('0902', 'spimotivobaja', $${"'x'"}$$),
  ('0902', 'spumotivobaja', $${1,"'x'"}$$),
  ('0902', 'spdmotivobaja', $${98}$$),
  ('0903', 'spiclasificacioncredito', $${"'x'"}$$),
  ('0903', 'spuclasificacioncredito', $${1,"'x'"}$$),
  ('0903', 'spdclasificacioncredito', $${98}$$),
  ('0449', 'spigrupo', $${"'x'"}$$),
  ('0449', 'spugrupo', $${1,"'x'"}$$),
  ('0449', 'spdgrupo', $${98}$$),
  ('0450', 'spiocupacion', $${"'x'"}$$),
  ('0450', 'spuocupacion', $${1,"'x'"}$$),
  ('0450', 'spdocupacion', $${98}$$),
  ('0452', 'spiconceptoscoring', $${"'x'"}$$),
  ('0452', 'spuconceptoscoring', $${"'1'","'x'"}$$),
  ('0452', 'spdconceptoscoring', $${98}$$),
  ('0905', 'spitipiacreditador', $${99,"'x'"}$$),
  ('0905', 'sputipoacreditador', $${1,"'x'"}$$),
  ('0905', 'spdtipoacreditador', $${98}$$),
  ('0906', 'spitipoasentamiento', $${99,"'x'"}$$),
  ('0906', 'sputipoasentamiento', $${9,"'x'"}$$),
  ('0906', 'spdtipoasentamiento', $${98}$$),
  ('0901', 'spicatalogo_ctas', $${"'9000'",NULL,"'1'","'x'","'A'","'A'","'2026-3-5'","'0-0-0'","'D'",0,0,0,0}$$),
  ('0901', 'spucatalogo_ctas',
   $${"'1201-00-00-00-0000'",NULL,"'1'","'x'","'A'","'A'","'2026-3-5'","'0-0-0'","'D'",0,0,0,0}$$),
  ('0901', 'spicatalogo_ctasc', $${"'9000'",NULL,"'1'","'x'","'A'","'A'","'05/03/2026'","' '","'D'",0,0,0,0}$$),
  ('0901', 'spdcatalogo_ctas', $${"'QD'"}$$),
  ('0218', 'spicalculo', $${"'x'","'y'"}$$),
  ('0218', 'spucalculo', $${1,"'x'","'y'"}$$),
  ('0218', 'spdcalculo', $${98}$$),
  ('0207', 'spitipomovimiento', $${"'Q'","'x'","'S'",A,A,A,A,A,A,"'D'","'S'","'N'",1,A,A,"'N'",A,1,1,1,A,A,1}$$),
  ('0207', 'sputipomovimiento', $${"'AH'","'x'","'S'",A,A,A,A,A,A,"'D'","'S'","'N'",1,A,A,"'N'",A,1,1,1,A,A,1}$$),
  ('0207', 'spdtipomovimiento', $${"'QD'"}$$),
  ('0212', 'spitipoinversion', $${"'Q'",A,A,1,A,A,A,A,"'x'",1,1,"'S'",1,1,"'AH'",A,0,2,1,1}$$),
  ('0212', 'sputipoinversion', $${"'028'",A,A,1,A,A,A,A,"'x'",1,1,"'S'",1,1,"'AH'",A,0,2,1,1}$$),
  ('0212', 'spdtipoinversion', $${"'QD'"}$$),
  ('0208', 'spitipoprestamo',
   $${"'Q'","'x'",1,1,1,"'AH'",A,A,A,A,A,A,A,A,A,A,A,"'S'",1,A,A,A,A,A,A,A,A,A,A,1,1,"'CON'"}$$),
  ('0208', 'sputipoprestamo',
   $${"'ORD'","'x'",1,1,1,"'AH'",A,A,A,A,A,A,A,A,A,A,A,"'S'",1,A,A,A,A,A,A,A,A,A,A,1,1,"'CON'"}$$),
  ('0208', 'spdtipoprestamo', $${"'QD'"}$$),
  ('0424', 'spitasa', $${"'ORD'","'028'","'AH'","'2026-03-05'","'2026-03-06'",1,1}$$),
  ('0424', 'sputasa', $${1,"'ORD'","'028'","'AH'","'2026-03-05'","'2026-03-06'",1,1}$$),
  ('0424', 'spdtasa', $${1}$$),
  ('0217', 'subtipotasa', $${"'b'","'Q'","'x'","'null'"}$$),
  ('0217', 'subtipotasa', $${"'c'","'QD'","'x'","'null'"}$$),
  ('0217', 'subtipotasa', $${"'d'","'Q'","'x'","'CCP'"}$$),
  ('0217', 'spitasavariable', $${"'CCP'","'2026-03-05'","'2026-03-06'",1,1}$$),
  ('0217', 'sputasavariable', $${1,"'CCP'","'2026-03-05'","'2026-03-06'",1,1}$$),
  ('0427', 'spiudis', $${"'2030-03-05'",1}$$),
  ('0427', 'spuudis', $${"'2025-03-05'",1}$$),
  ('0427', 'spdudis', $${"'2025-03-05'"}$$),
  ('0428', 'spiinpc', $${2030,1,1}$$),
  ('0428', 'spuinpc', $${2025,1,1}$$),
  ('0428', 'spdinpc', $${2025,1}$$),
  ('0429', 'spirecargos', $${2030,1,1}$$),
  ('0429', 'spurecargos', $${2025,1,1}$$),
  ('0429', 'spdrecargos', $${2025,1}$$),
  ('0204', 'spibanco', $${"'9'","'x'","'2026-03-05'",1,1,1,A,"'A'",1}$$),
  ('0204', 'spubanco', $${"'0110045871'","'x'","'2026-03-05'",1,1,1,A,"'A'",1}$$),
  ('0204', 'spdbanco', $${"'QD'"}$$),
  ('0420', 'spitipopromocion', $${"'AH'","'2026-03-05'","'2026-03-06'","'x'",0,"'y'"}$$),
  ('0420', 'sputipopromocion', $${1,"'AH'","'2026-03-05'","'2026-03-06'","'x'",0,"'y'"}$$),
  ('0420', 'sputipopromocion', $${1,"'AH'","'2026-03-05'","'x'",0,"'y'"}$$),
  ('0420', 'spdtipopromocion', $${1}$$),
  ('0213', 'spiestadomex', $${"'Q'","'x'"}$$),
  ('0213', 'spuestadomex', $${"'Q'","'x'",1}$$),
  ('0213', 'spdestadomex', $${33}$$),
  ('0214', 'spiciudadmex', $${1,"'Q'","'x'"}$$),
  ('0214', 'spuciudadmex', $${"'Q'","'x'",1,1}$$),
  ('0214', 'spdciudadmex', $${9001}$$),
  ('0906', 'spicolonia', $${1,"'x'",99999,9}$$),
  ('0906', 'spucolonia', $${1,1,"'x'",99999,9}$$),
  ('0906', 'spdcolonia', $${9001}$$),
  ('0206', 'spisujeto', $${"'x'","'y'","'z'","'r'","'c'",20,"'1990-03-05'","'w'"}$$),
  ('0206', 'spusujeto', $${1,"'x'","'y'","'z'","'r'","'c'",20,"'05/03/1990'","'w'"}$$),
  ('0206', 'spsujeto', $${9001}$$),
  ('0206', 'spidomicilio', $${1,9001,"'x'","'y'","'z'","'w'",1,"'v'","'u'",1}$$),
  ('0206', 'spudomicilio',
   $${8,1,1,"'x'","'y'","'z'","'w'",1,"'v'","'u'",1}$$),
  ('0206', 'spdomicilio', $${1}$$),
  ('0907', 'spibienes', $${1,"'x'","'y'","'z'","'w'",1,1,1,"'v'",1,"'S'","'2026-03-05'"}$$),
  ('0907', 'spubienes', $${1000009001,1,"'x'","'y'","'z'","'w'",1,1,1,"'v'",1,"'S'","'2026-03-05'"}$$),
  ('0907', 'spdbienes', $${1000009001}$$),
  ('0907', 'spigarantia', $${NULL,1,1000009001,"'x'","'y'","'2026-03-05'","'2026-03-06'","'z'"}$$),
  ('0907', 'spugarantia', $${1,NULL,1,1000009001,"'x'","'y'","'2026-03-05'","'2026-03-06'","'z'"}$$),
  ('0907', 'spdgarantia', $${1}$$),
  ('0206', 'spiusuario', $${"'nuevo'","'CAJ'","'adriana'","''","'x'","'y'","'z'",9001}$$),
  ('0206', 'spuusuario', $${"'camila'","'CAJ'","'adriana'","''","'x'","'y'","'z'",9001}$$),
  ('0206', 'spdusuario', $${"'camila'"}$$),
  ('0908', 'spidepreciacion', $${"'MX'",A,A,A,A,"'x'",1,1,1,1}$$),
  ('0908', 'spudepreciacion', $${"'MX'",A,A,A,A,"'x'",1,1,1,1,1}$$),
  ('0908', 'spddepreciacion', $${9001}$$),
  ('0909', 'spiactivo',
   $${1,"'x'","'y'",1,1,1,"'z'","'w'","'2026-03-05'",1,1,1,"'2026-03-05'","'S'",1,1,1,1,1,"'MX'",1}$$),
  ('0909', 'spuactivo',
   $${1,1,"'x'","'y'",1,1,1,"'z'","'w'","'2026-03-05'",1,1,1,"'2026-03-05'","'S'",1,1,1,1,1,"'MX'",1}$$),
  ('0909', 'spdactivo', $${1}$$),
  ('0910', 'precierre', $${"'05/03/2026'"}$$),
  ('0910', 'precorteconsolidado', $${2026,3}$$),
  ('0912', 'spsbitacora', $${"'05/03/2026'","'2026-03-06'","'x'","'y'","'z'","'w'",1}$$),
  ('0912', 'spsbitacoradetalle', $${0}$$),
  ('0913', 'spsmatrizpermisos', $${}$$),
  ('0914', 'spstablero', $${}$$),
  ('0442', 'spssujetoc', $${"'nadie'","'así'","'se'","'llama'"}$$);
UPDATE llamada SET argumentos = array_replace(argumentos, 'A', '''1101-01-00-00-0000''');

-- Of those that only read, what makes them answer where nothing at all does not.
CREATE TEMPORARY TABLE lectura (funcion text, argumentos text[]);
INSERT INTO lectura VALUES
  ('generarfc', $${"'x'","'y'","'z'","'05/03/1990'"}$$),
  ('serverdate', $${"'05/03/2026'"}$$);

-- Rows that nothing uses, to be deleted; a user without parameters, and with one permission.
INSERT INTO norte.tipo_garantia VALUES ('QD', 'x');
INSERT INTO norte.estados_credito VALUES ('QD', 'x');
INSERT INTO norte.finalidades VALUES ('QD', 'x');
INSERT INTO norte.modulo VALUES ('QD', 'x');
INSERT INTO norte.tipousuario VALUES ('QD', 'x');
INSERT INTO norte.tiposocio VALUES ('QD', 'x', '');
INSERT INTO norte.tipomovibanco VALUES ('QD', 'x', '+');
INSERT INTO norte.asesor VALUES (98, 'x');
INSERT INTO norte.motivobaja VALUES (98, 'x');
INSERT INTO norte.clasificacioncredito VALUES (98, 'x');
INSERT INTO norte.grupo VALUES (98, 'x');
INSERT INTO norte.ocupacion VALUES (98, 'x');
INSERT INTO norte.conceptoscoring VALUES (98, 'x');
INSERT INTO norte.tipoacreditador VALUES (98, 'x');
INSERT INTO norte.tipoasentamiento VALUES (98, 'x');
INSERT INTO norte.calculo (calculoid, descripcioncalculo, formula) VALUES (98, 'x', 'y');
INSERT INTO norte.tipotasa VALUES ('QD', 'x');
INSERT INTO norte.catalogo_ctas
SELECT (jsonb_populate_record(t, '{"cuentaid": "QD"}')).* FROM norte.catalogo_ctas AS t
 WHERE cuentaid = '1101-01-00-00-0000';
INSERT INTO norte.tipomovimiento
SELECT (jsonb_populate_record(t, '{"tipomovimientoid": "QD"}')).* FROM norte.tipomovimiento AS t
 WHERE tipomovimientoid = 'AH';
INSERT INTO norte.tipoinversion
SELECT (jsonb_populate_record(t, '{"tipoinversionid": "QD"}')).* FROM norte.tipoinversion AS t
 WHERE tipoinversionid = '028';
INSERT INTO norte.banco
SELECT (jsonb_populate_record(t, '{"no_cuenta": "QD"}')).* FROM norte.banco AS t WHERE no_cuenta = '0110045871';
SET LOCAL ROLE tolvara_propietario;
INSERT INTO norte.tipoprestamo
SELECT (jsonb_populate_record(t, '{"tipoprestamoid": "QD"}')).* FROM norte.tipoprestamo AS t
 WHERE tipoprestamoid = 'ORD';
RESET ROLE;
INSERT INTO norte.estadosmex VALUES (33, 'QD', 'x');
INSERT INTO norte.ciudadesmex VALUES (9001, 1, 'QD', 'x');
INSERT INTO norte.colonias VALUES (9001, 1, 'x', 1, 9);
INSERT INTO norte.sujeto (sujetoid, paterno, nombre) VALUES (9001, 'x', 'x');
INSERT INTO norte.bienes
SELECT (jsonb_populate_record(b, '{"bienid": 1000009001}')).* FROM norte.bienes AS b LIMIT 1;
INSERT INTO norte.depreciacion
SELECT (jsonb_populate_record(d, '{"depreciacionid": 9001}')).* FROM norte.depreciacion AS d LIMIT 1;
INSERT INTO norte.moneda VALUES ('QD', 1, 'x');
INSERT INTO norte.usuario (usuarioid, tipousuarioid) VALUES ('sinada', 'CON');
INSERT INTO norte.permisomodulo VALUES (900001, '0203', 'sinada', 'N');

-- Each call names the types of its arguments, so that it reaches the function that is meant of those with one name.
CREATE FUNCTION pg_temp.llama(usuario text, pedida regprocedure, argumentos text[]) RETURNS text
LANGUAGE sql AS $$
  SELECT como(usuario, 'norte', format('SELECT * FROM %I(%s)', f.nombre,
                (SELECT string_agg(format('CAST(%s AS %s)', coalesce(a, 'NULL'), t), ',' ORDER BY n)
                   FROM unnest(argumentos, f.tipos) WITH ORDINALITY AS d (a, t, n))))
    FROM funcion AS f WHERE f.firma = pedida
$$;

-- As llama(), and then undone.
CREATE FUNCTION pg_temp.prueba(usuario text, pedida regprocedure, argumentos text[]) RETURNS text
LANGUAGE plpgsql AS $$
BEGIN
  RAISE EXCEPTION '%', pg_temp.llama(usuario, pedida, argumentos);
EXCEPTION WHEN raise_exception THEN
  RETURN SQLERRM;
END $$;

-- As prueba(), by one who has that permission and no other.
CREATE FUNCTION pg_temp.con_solo(modulo text, pedida regprocedure, argumentos text[]) RETURNS text
LANGUAGE plpgsql AS $$
BEGIN
  UPDATE norte.permisomodulo SET permiso = CASE WHEN clavemodulo = modulo THEN 'S' ELSE 'N' END
   WHERE usuarioid = 'adriana' AND permiso <> CASE WHEN clavemodulo = modulo THEN 'S' ELSE 'N' END;
  RETURN pg_temp.prueba('adriana', pedida, argumentos);
END $$;

-- The right is asked first of all, so that without it nothing else is told; and it alone is enough. subtipotasa only knows
-- from its first argument that it is asked to write.
CREATE TEMPORARY TABLE permiso AS
SELECT l.modulo, firma, l.argumentos, pg_temp.prueba('camila', firma, l.argumentos) AS sin_el,
       CASE WHEN l.funcion <> 'subtipotasa'
            THEN pg_temp.prueba('camila', firma, array_fill(NULL::text, ARRAY[cardinality(tipos)])) END AS sin_nada,
       pg_temp.con_solo(l.modulo, firma, l.argumentos) AS con_el
  FROM (SELECT * FROM llamada ORDER BY modulo) AS l
  JOIN funcion ON nombre = l.funcion AND cardinality(tipos) = cardinality(l.argumentos);
UPDATE norte.permisomodulo SET permiso = 'S' WHERE usuarioid = 'adriana';

SELECT is(respuesta, format('No tiene permiso para la opción %s (módulo %s)', descrimodulo, modulo),
          format('%s con %s: sin permiso', firma, dados))
  FROM permiso JOIN norte.modulo ON clavemodulo = modulo::bpchar,
       LATERAL (VALUES (sin_el, argumentos::text), (sin_nada, 'NULL')) AS r (respuesta, dados)
 WHERE respuesta IS NOT NULL;
SELECT matches(con_el, '^(|\d+|CCP|CETES|adriana|.*REPORTE DE PERSONAS.*)$', format('%s con %s: con permiso', firma, argumentos))
  FROM permiso;

-- Each argument of each function with whatever may come: what the function says is its own, never the server's words.
CREATE TEMPORARY TABLE rareza (clase regtype, valor text);
INSERT INTO rareza VALUES
  ('text', NULL), ('text', ''''''), ('text', '''   '''), ('text', quote_literal(repeat('ñ', 5000))),
  ('text', quote_literal('It''s "100%" \; -- {} $$')), ('text', quote_literal(E'\t\n')), ('text', '''-1'''),
  ('text', quote_literal('x' || chr(8203))), ('text', quote_literal('x' || chr(7))), ('text', '''31/02/2026'''),
  ('text', '''99999999-99-99'''), ('text', '''infinity'''),
  ('integer', NULL), ('integer', '-1'), ('integer', '0'), ('integer', '2147483647'), ('integer', '-2147483648'),
  ('bigint', NULL), ('bigint', '-1'), ('bigint', '0'), ('bigint', '9223372036854775807'),
  ('numeric', NULL), ('numeric', '-1'), ('numeric', '0'), ('numeric', '1e30'), ('numeric', '-1e300'),
  ('numeric', '0.0000000000001'), ('numeric', '''NaN'''), ('numeric', '''Infinity'''), ('numeric', '''-Infinity''');

-- Those that only read, or take nothing, are called without it (-1), with it in each place, and with it in every place at once (0). `login`
-- takes a second each time and is spared the single places.
CREATE TEMPORARY TABLE intento AS
SELECT firma, nombre, n AS argumento, valor,
       pg_temp.prueba('adriana', firma, argumentos[:n - 1] || valor || argumentos[n + 1:]) AS respuesta
  FROM permiso JOIN funcion USING (firma), generate_subscripts(argumentos, 1) AS n JOIN rareza ON true
 WHERE clase = tipos[n]
UNION ALL
SELECT firma, nombre, n, valor,
       pg_temp.prueba('adriana', firma, ARRAY(SELECT CASE WHEN t = clase AND n IN (0, lugar) THEN valor
                                                          ELSE argumentos[lugar] END
                                                FROM unnest(tipos) WITH ORDINALITY AS a (t, lugar) ORDER BY lugar))
  FROM (SELECT *, generate_series(-1, CASE nombre WHEN 'login' THEN 0 ELSE cardinality(tipos) END) AS n
          FROM funcion WHERE firma NOT IN (SELECT firma FROM permiso WHERE argumentos <> '{}')) AS f
  LEFT JOIN lectura ON funcion = nombre
  LEFT JOIN rareza ON n >= 0 AND clase = ANY (CASE n WHEN 0 THEN tipos ELSE tipos[n:n] END);
SELECT cmp_ok(count(*), '>', 4000::bigint, 'se prueba todo argumento') FROM intento;
SELECT is_empty($$ SELECT firma, argumento, left(valor, 30), respuesta FROM intento
                    WHERE respuesta ~ '(violates|invalid|exist(s|ing)?( |$)|too long|out of range|overflow|'
                                      'null value|denied|syntax|cannot|must|could not|value)' $$,
                'las negativas son siempre de la función');
SELECT is_empty($$ SELECT firma, argumento, left(valor, 30), respuesta FROM intento JOIN funcion USING (firma)
                    WHERE respuesta = '' AND escribe AND (length(valor) > 5000 OR valor IN ('''NaN''', '1e30', '-1e300')) $$,
                'nada se corta ni se redondea a la medida');
SELECT is_empty($$ SELECT firma, argumento, respuesta FROM intento JOIN funcion USING (firma)
                    WHERE valor IN (quote_literal('x' || chr(8203)), quote_literal('x' || chr(7)))
                      AND respuesta ~ '^\d*$' AND escribe AND intento.nombre <> 'login' $$,
                'nada de lo que no se ve se guarda');

-- No function of the contract is forgotten. Whatever may change a row asks for a permission, but for `login`, and the
-- server keeps the others from it; what the planner does not dissolve has been counted when it came back with an answer.
SELECT bag_eq('SELECT firma FROM funcion', 'SELECT DISTINCT firma FROM intento', 'se prueba toda función');
SELECT set_eq('SELECT nombre FROM funcion WHERE escribe AND firma NOT IN (SELECT firma FROM permiso)', ARRAY['login'],
              'toda la que escribe pide permiso');
SELECT is_empty($$ SELECT firma FROM funcion JOIN pg_proc AS p ON p.oid = firma
                    WHERE (prosecdef OR proconfig IS NOT NULL)
                      AND NOT EXISTS (SELECT FROM pg_stat_xact_user_functions WHERE funcid = p.oid AND calls > 0) $$,
                'y se llamó de veras');

SELECT is_empty(format($$ SELECT linea FROM plan('SELECT * FROM norte.%I(%s)') AS linea
                           WHERE linea ~ 'Function Scan' $$, nombre,
                       (SELECT string_agg(format('NULL::%s', t), ',') FROM unnest(tipos) AS t)),
                firma || ': cuesta lo que la tabla')
  FROM funcion
 WHERE nombre ~ '^sps' AND firma NOT IN (SELECT firma FROM permiso)
   AND nombre NOT IN ('spssujetos', 'spssociocaja', 'spssociocajaf') AND cardinality(tipos) < 4;

-- With the rights of every module but its own, a user is refused.
SELECT is(pg_temp.prueba('hilda', 'norte.spiestadomex(text,text)', ARRAY['''Q''', '''x''']), '34', 'hilda puede los estados');
UPDATE norte.permisomodulo SET permiso = 'N' WHERE usuarioid = 'hilda' AND clavemodulo = '0213';
SELECT is(pg_temp.prueba('hilda', 'norte.spiestadomex(text,text)', ARRAY['''Q''', '''x''']),
          'No tiene permiso para la opción Estados de la república (módulo 0213)', 'y ya no, en cuanto se le quita');

SELECT * FROM finish();
ROLLBACK;
