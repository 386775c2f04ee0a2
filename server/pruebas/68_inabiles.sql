-- Non-working days, which the client keeps with statements of its own.
BEGIN;
SELECT no_plan();

SELECT is(como(usuario, 'norte', sentencia), esperado, usuario || ': ' || sentencia)
  FROM (VALUES
    ('adriana', $$insert into inabil values('2030-09-16');$$, ''),
    ('adriana', $$SELECT * FROM inabil where fecha='2030-09-16';$$, '2030-09-16'),
    ('adriana', $$insert into inabil values('2030-09-16');$$, 'El día 16/09/2030 ya es inhábil'),
    ('adriana', $$insert into inabil values(NULL);$$, 'Falta la fecha'),
    ('adriana', $$insert into inabil values('1900-01-01');$$, 'Falta la fecha'),
    ('adriana', $$insert into inabil values('infinity');$$,
     'Está fuera de rango la fecha: infinity no está entre 1901 y 2999'),
    ('adriana', $$insert into inabil values('3000-01-01');$$,
     'Está fuera de rango la fecha: 3000-01-01 no está entre 1901 y 2999'),
    ('adriana', $$insert into inabil values('2030-02-30');$$, 'date/time field value out of range: "2030-02-30"'),
    ('adriana', $$update inabil set fecha='2030-09-16' where fecha='2030-09-16;$$,
     'unterminated quoted string at or near "''2030-09-16;"'),
    ('adriana', $$update inabil set fecha='2030-09-17' where fecha='2030-09-16';$$, ''),
    ('adriana', $$SELECT count(*) FROM inabil where fecha='2030-09-16';$$, '0'),
    ('camila', $$SELECT count(*) FROM inabil where fecha='2030-09-17';$$, '1'),
    ('camila', $$insert into inabil values('2030-09-18');$$,
     'permission denied for table inabil'),
    ('camila', $$update inabil set fecha='2030-09-18' where fecha='2030-09-17';$$,
     'permission denied for table inabil'),
    ('camila', $$delete from inabil where fecha='2030-09-17';$$,
     'permission denied for table inabil'),
    ('camila', $$delete from inabil where fecha='2031-09-17';$$,
     'permission denied for table inabil'),
    ('adriana', $$truncate inabil$$, 'permission denied for table inabil'),
    ('adriana', $$delete from inabil where fecha='2030-09-17';$$, ''),
    ('adriana', $$SELECT count(*) FROM inabil where fecha='2030-09-17';$$, '0'),
    ('adriana', $$SELECT count(*) FROM inabil WHERE extract(year FROM fecha) = 2026$$, '11')
  ) AS paso (usuario, sentencia, esperado);

SELECT results_eq($$ SELECT operacion, usuario FROM norte.bitacora
                      WHERE tabla = 'inabil' AND clave IN ('2030-09-16', '2030-09-17') ORDER BY bitacoraid $$,
                  $$ VALUES ('INSERT', 'adriana'::name), ('UPDATE', 'adriana'), ('DELETE', 'adriana') $$,
                  'la bitácora guarda también lo directo');
SELECT is((SELECT count(*) FROM sur.inabil WHERE fecha > '2030-01-01'), 0::bigint, 'la otra sucursal no cambia');

SELECT * FROM finish();
ROLLBACK;
