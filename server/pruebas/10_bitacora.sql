-- The log: what it tells, who reads it, and that nobody changes it.
BEGIN;
SELECT no_plan();
CREATE ROLE eva LOGIN IN ROLE tolvara_auditores;

SELECT set_config('application_name', 'caja de prueba', true);
SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT spimoneda('Q9', 'Primera', 1)$$, ''),
    ($$SELECT spumoneda('Q9', 'Segunda', 2)$$, ''),
    ($$SELECT count(*) FROM subtipotasa('b', 'UNA', 'x', 'null')$$, '4'),
    ($$SELECT count(*) FROM subtipotasa('d', 'OTRA', 'x', 'UNA')$$, '4'),
    ($$SELECT spupermisomodulo((SELECT permisomoduloid FROM spspermisomodulo('camila','0203')),'0203','camila','S')$$, '')
  ) AS paso (sentencia, esperado);
SELECT results_eq(
  $$ SELECT usuario, direccion, aplicacion, operacion, anterior ->> 'monedadescri', nuevo ->> 'monedadescri'
       FROM norte.bitacora WHERE tabla = 'moneda' AND clave = 'Q9' ORDER BY bitacoraid $$,
  $$ VALUES ('adriana'::name, inet_client_addr(), 'caja de prueba', 'INSERT', NULL, 'Primera'),
            ('adriana', inet_client_addr(), 'caja de prueba', 'UPDATE', 'Primera', 'Segunda') $$,
  'quién, desde dónde, con qué y qué: lo que uno pisa de otro se ve');
SELECT results_eq(
  $$ SELECT operacion, clave, clave_anterior FROM norte.bitacora
      WHERE tabla = 'tipotasa' AND ('UNA' IN (clave, clave_anterior)) ORDER BY bitacoraid $$,
  $$ VALUES ('INSERT', 'UNA', NULL), ('UPDATE', 'OTRA', 'UNA') $$, 'un renglón se halla por su clave de antes');
SELECT results_eq(
  $$ SELECT operacion FROM norte.bitacora WHERE tabla = 'tipotasa' AND ('OTRA' IN (clave, clave_anterior)) $$,
  $$ VALUES ('UPDATE') $$, 'y por la de ahora');

-- Auditors read it and nothing else.
SELECT matches(como('eva', 'norte', sentencia), esperado, 'eva: ' || sentencia)
  FROM (VALUES
    ('SELECT count(*) > 100 FROM bitacora', '^true$'),
    ('SELECT count(*) > 100 FROM sur.bitacora', '^true$'),
    ('SELECT count(*) FROM moneda', 'permission denied'),
    ($$SELECT spimoneda('Q8', 'x', 1)$$, 'permission denied'),
    ($$SELECT login('adriana', 'x')$$, 'permission denied'),
    ('DELETE FROM bitacora', 'permission denied'),
    ('UPDATE bitacora_resto SET usuario = ''x''', 'permission denied'),
    ('CREATE TABLE norte.t (a integer)', 'permission denied'),
    ('CREATE TEMPORARY TABLE t (a integer)', 'permission denied'),
    ($$SELECT anota_suceso('ALTA', 'x', 'y')$$, 'permission denied'),
    ('SELECT reabre_mes(2024, 1, ''x'')', 'permission denied')) AS paso (sentencia, esperado);
SELECT is(como('camila', 'norte', 'SELECT count(*) FROM bitacora'), 'permission denied for table bitacora',
          'los demás no la leen');

-- A month is a partition, there are some ahead, and none can be changed by whoever owns it.
SELECT is((SELECT count(*) FROM pg_inherits WHERE inhparent = 'norte.bitacora'::regclass), 5::bigint,
          'este mes, los tres que siguen y el resto');
SELECT is((SELECT count(*) FROM norte.bitacora_resto), 0::bigint, 'nada cae en el resto');
SELECT is(norte.prepara_bitacora()::text || (SELECT count(*) FROM pg_inherits WHERE inhparent = 'norte.bitacora'::regclass),
          '5', 'prepararla otra vez no hace nada');
SELECT is(como('postgres', 'norte', format(orden, parte)), 'La bitácora no se puede alterar', format(orden, parte))
  FROM unnest(ARRAY['bitacora', 'bitacora_resto', to_char(now() AT TIME ZONE 'UTC', '"bitacora_"YYYY"_"MM')]) AS parte,
       unnest(ARRAY['DELETE FROM %I', 'UPDATE %I SET usuario = ''x''', 'TRUNCATE %I']) AS orden;

-- It is searched by index.
SET LOCAL enable_seqscan = off;
SELECT isnt_empty($$ SELECT linea FROM plan('SELECT * FROM norte.bitacora WHERE tabla = ''moneda'' AND clave = ''MX''') AS linea
                      WHERE linea ~ 'Index' $$, 'por tabla y clave');
SELECT isnt_empty($$ SELECT linea FROM plan('SELECT * FROM norte.bitacora WHERE momento > now() - interval ''1 day''') AS linea
                      WHERE linea ~ 'Index' $$, 'por momento');
SELECT is_empty($$ SELECT linea FROM plan('SELECT * FROM norte.bitacora WHERE momento > ''2900-01-01''') AS linea
                    WHERE linea ~ 'bitacora_2' $$, 'y solo donde puede estar');

SELECT * FROM finish();
ROLLBACK;
