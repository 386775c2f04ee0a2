-- Members, who are only read.
BEGIN;
SELECT no_plan();

SELECT is(como('camila', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT count(*) FROM spssociocaja();$$, '260'),
    ($$SELECT socioid || '|' || clavesocioint || '|' || estatus FROM spssociocaja();$$, '1|0001-000001|Activo'),
    ($$SELECT count(*) FROM spssociocajaf('');$$, '260'),
    ($$SELECT string_agg(clavesocioint, ',') FROM spssociocajaf('0001-000021');$$, '0001-000021'),
    ($$SELECT count(*) FROM spssociocajaf('nadie así');$$, '0'),
    ($$SELECT trunc(extract(epoch from max(fechaalta))) > 0 from socio;$$, 'true'),
    ($$INSERT INTO socio (clavesocioint, sujetoid) VALUES ('X', 1)$$, 'permission denied for table socio')
  ) AS paso (sentencia, esperado);

SELECT * FROM finish();
ROLLBACK;
