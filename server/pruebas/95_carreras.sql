-- What two users do at the same moment. The first statement's transaction is still open when the second one starts, in
-- either order; what is left behind is removed at the end.
BEGIN;
SELECT no_plan();

SELECT is(carrera(una, otra, usuario), esperado, format('%s y a la vez %s', una, otra))
  FROM (VALUES
    ('hilda', $$SELECT precierre('15/03/1999')$$, $$SELECT precierre('15/03/1999')$$,
     '1 / El mes 03/1999 ya está cerrado'),
    ('hilda', $$SELECT precierre('15/04/1999')$$, $$SELECT precierre('15/05/1999')$$, '1 / 1')
  ) AS paso (usuario, una, otra, esperado);
SELECT abre('una', 'hilda', 'norte'), di('una', 'BEGIN'), di('una', $$SELECT precierre('15/06/1999')$$);
SELECT abre('otra', 'hilda', 'norte'), empieza('otra', $$SELECT precierre('30/06/1999')$$);
SELECT di('una', 'ROLLBACK');
SELECT is(acaba('otra'), '1', 'si el primer precierre se arrepiente, el segundo cierra');
SELECT dblink_disconnect('una'), dblink_disconnect('otra');
SELECT is((SELECT string_agg(to_char(fechacierre, 'MM-DD'), ' ' ORDER BY periodo) FROM norte.cierre
            WHERE ejercicio = 1999), '03-15 04-15 05-15 06-30', 'cada mes se cierra una vez');
SELECT * FROM finish();
COMMIT;

DELETE FROM norte.cierre WHERE ejercicio = 1999;
