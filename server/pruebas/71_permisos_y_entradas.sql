-- Every function of the simple and the financial catalogues that writes: who may call it, and what it does with any
-- input. One row each, a call that is right.
BEGIN;
SELECT no_plan();

CREATE TEMPORARY TABLE llamada (modulo text, funcion text, argumentos text[]);
INSERT INTO llamada VALUES
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
  ('0420', 'spdtipopromocion', $${1}$$);
UPDATE llamada SET argumentos = array_replace(argumentos, 'A', '''1101-01-00-00-0000''');

-- Rows that nothing uses, to be deleted.
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

CREATE TEMPORARY TABLE lectura AS
SELECT proname AS funcion, pronargs::integer AS argumentos
  FROM pg_proc
 WHERE pronamespace = 'norte'::regnamespace AND proname ~ '^sps'
   AND (substr(proname, 4) IN (SELECT substr(funcion, 4) FROM llamada) OR proname = 'spsasentamiento');
SELECT cmp_ok(count(*), '=', 28::bigint, 'se lee todo catálogo') FROM lectura;

\set correcto '^(|\\d+|CCP|CETES)$'
\ir apoyo/intentos.sql
SELECT cmp_ok(count(*), '>', 3000::bigint, 'se prueba todo argumento') FROM intento;

SELECT is_empty(format($$ SELECT linea FROM plan('SELECT * FROM norte.%s(%s)') AS linea
                           WHERE linea ~ 'Function Scan' $$, funcion,
                       array_to_string(array_fill('NULL'::text, ARRAY[argumentos]), ',')),
                funcion || ': cuesta lo que la tabla')
  FROM lectura;

SELECT * FROM finish();
ROLLBACK;
