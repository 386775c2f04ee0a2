-- Every function of geography, persons, users, goods and assets, and the processes: who may call it, and what it does
-- with any input. One row each, a call that is right.
BEGIN;
SELECT no_plan();

CREATE TEMPORARY TABLE llamada (modulo text, funcion text, argumentos text[]);
INSERT INTO llamada VALUES
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
   $${(SELECT domicilioid FROM domicilio WHERE sujetoid = 1),1,1,"'x'","'y'","'z'","'w'",1,"'v'","'u'",1}$$),
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
  ('0442', 'spssujetoc', $${"'nadie'","'así'","'se'","'llama'"}$$);
UPDATE llamada SET argumentos = array_replace(argumentos, 'A', '''1101-01-00-00-0000''');

CREATE TEMPORARY TABLE lectura (funcion text, argumentos integer);
INSERT INTO lectura VALUES
  ('spsestadomex', 1), ('spsciudadmex', 1), ('spsciudadxedo', 1), ('spscolonia', 1), ('spscolonias', 1),
  ('spscoloniacp', 1), ('spssujeto', 1), ('spssujeto', 4), ('spssujetos', 1), ('spsdomicilio', 1),
  ('spsdomiciliosujeto', 1), ('spsbienes', 1), ('spssociocaja', 0), ('spssociocajaf', 1), ('spsusuario', 1),
  ('spsdepreciacion', 1), ('spsactivo', 1), ('spsgarantiap', 1), ('spsgarantias', 1), ('generarfc', 4), ('cletra', 1);

-- Rows that nothing uses, to be deleted.
INSERT INTO norte.estadosmex VALUES (33, 'QD', 'x');
INSERT INTO norte.ciudadesmex VALUES (9001, 1, 'QD', 'x');
INSERT INTO norte.colonias VALUES (9001, 1, 'x', 1, 9);
INSERT INTO norte.sujeto (sujetoid, paterno, nombre) VALUES (9001, 'x', 'x');
INSERT INTO norte.bienes
SELECT (jsonb_populate_record(b, '{"bienid": 1000009001}')).* FROM norte.bienes AS b LIMIT 1;
INSERT INTO norte.depreciacion
SELECT (jsonb_populate_record(d, '{"depreciacionid": 9001}')).* FROM norte.depreciacion AS d LIMIT 1;

\set correcto '^(|\\d+|.*REPORTE DE PERSONAS.*)$'
\ir apoyo/intentos.sql

SELECT is_empty(format($$ SELECT linea FROM plan('SELECT * FROM norte.%s(%s)') AS linea
                           WHERE linea ~ 'Function Scan' $$, funcion,
                       array_to_string(array_fill('NULL'::text, ARRAY[argumentos]), ',')),
                funcion || ': cuesta lo que la tabla')
  FROM lectura WHERE funcion ~ '^sps' AND funcion NOT IN ('spssujetos', 'spssociocajaf') AND argumentos < 4;

-- With the rights of every module but its own, a user is refused.
SELECT is(pg_temp.prueba('hilda', 'spiestadomex', ARRAY['''Q''', '''x''']), '34', 'hilda puede los estados');
UPDATE norte.permisomodulo SET permiso = 'N' WHERE usuarioid = 'hilda' AND clavemodulo = '0213';
SELECT is(pg_temp.prueba('hilda', 'spiestadomex', ARRAY['''Q''', '''x''']),
          'No tiene permiso para la opción Estados de la república (módulo 0213)', 'y ya no, en cuanto se le quita');

SELECT * FROM finish();
ROLLBACK;
