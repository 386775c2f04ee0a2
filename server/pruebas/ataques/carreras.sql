-- What two users do at the same moment. The first statement's transaction is still open when the second one starts, in
-- either order; what is left behind is removed at the end.
BEGIN;
SELECT no_plan();
INSERT INTO norte.catalogo_ctas (cuentaid, identificacion, cuentanombre, tipo_cta, naturaleza)
SELECT '999' || n, '0', 'De carrera', CASE WHEN n < 5 THEN 'C' ELSE 'A' END, 'D' FROM generate_series(1, 7) AS n;
CREATE TEMPORARY TABLE tasas ON COMMIT PRESERVE ROWS AS SELECT * FROM norte.tasa WHERE tipoprestamoid = 'EME';
COMMIT;
BEGIN;

SELECT is(regexp_replace(carrera(una, otra, usuario), 'número \d+', 'número N'), esperado, format('%s y a la vez %s', una, otra))
  FROM (VALUES
    ('hilda', $$SELECT precierre('15/03/1999')$$, $$SELECT precierre('15/03/1999')$$,
     '1 / El mes 03/1999 ya está cerrado'),
    ('hilda', $$SELECT precierre('15/04/1999')$$, $$SELECT precierre('15/05/1999')$$, '1 / 1'),
    -- rates: overlapping, and two that stay open
    ('adriana', $$SELECT spitasa('EME','','','1990-01-01','1990-06-30',1,1) > 0$$,
     $$SELECT spitasa('EME','','','1990-06-30','1990-12-31',1,1)$$,
     'true / El periodo se encima con el de la tasa número N, que empieza el 01/01/1990'),
    ('adriana', $$SELECT spitasa('EME','','','2027-01-01','',1,1) > 0$$,
     $$SELECT spitasa('EME','','','2027-01-01','',2,2)$$,
     'true / El periodo se encima con el de la tasa número N, que empieza el 01/01/2027'),
    ('adriana', $$SELECT spitasa('EME','','','2028-01-01','',1,1) > 0$$,
     $$SELECT spitasa('EME','','','2029-01-01','',2,2) > 0$$, 'true / true'),
    -- accounts: a cycle, a level that takes postings, a product's account that stops taking them, in either order
    ('adriana', $$SELECT spucatalogo_ctas('9991','9992','0','X','C','A','','','D',0,0,0,0)$$,
     $$SELECT spucatalogo_ctas('9992','9991','0','Y','C','A','','','D',0,0,0,0)$$,
     ' / La cuenta 9992 no puede acumular en sí misma'),
    ('adriana', $$SELECT spucatalogo_ctas('9993','','0','X','A','A','','','D',0,0,0,0)$$,
     $$SELECT spicatalogo_ctas('9993-1','9993','0','Y','A','A','','','D',0,0,0,0)$$,
     ' / La cuenta 9993 es afectable: ninguna puede acumular en ella'),
    ('adriana', $$SELECT spicatalogo_ctas('9994-1','9994','0','Y','A','A','','','D',0,0,0,0)$$,
     $$SELECT spucatalogo_ctas('9994','','0','X','A','A','','','D',0,0,0,0)$$,
     ' / La cuenta 9994 no puede ser afectable: otras acumulan en ella'),
    ('adriana', $$SELECT spibanco('999','B','','1','1','1','9995','A',1)$$,
     $$SELECT spucatalogo_ctas('9995','','0','X','C','A','','','D',0,0,0,0)$$,
     ' / La cuenta 9995 no puede dejar de ser afectable porque se usa en: 1 cuentas bancarias'),
    ('adriana', $$SELECT spucatalogo_ctas('9996','','0','X','C','A','','','D',0,0,0,0)$$,
     $$SELECT spibanco('998','B','','1','1','1','9996','A',1)$$,
     ' / No es afectable la cuenta contable: 9996 acumula a otras cuentas'),
    ('adriana', $$SELECT spdcatalogo_ctas('9996')$$, $$SELECT spibanco('998','B','','1','1','1','9996','A',1)$$,
     ' / No existe la cuenta contable: 9996 no está en el catálogo de cuentas'),
    ('adriana', $$SELECT spibanco('998','B','','1','1','1','9997','A',1)$$, $$SELECT spdcatalogo_ctas('9997')$$,
     ' / No se puede borrar la cuenta 9997 porque se usa en: 1 cuentas bancarias'),
    -- what is unique, and what has just gone
    ('adriana', $$SELECT spimoneda('Q1','X',1)$$, $$SELECT spimoneda('Q1','Y',1)$$, ' / La moneda Q1 ya existe'),
    ('adriana', $$SELECT spitasavariable('TIIE','2031-01-01','',1,1) > 0$$,
     $$SELECT count(*) FROM subtipotasa('d','TIIE','X','TIIE')$$, 'true / 3'),
    ('adriana', $$SELECT count(*) FROM subtipotasa('b','QQ','X','null')$$, $$SELECT spitasavariable('QQ','2031-01-01','',1,1)$$,
     '4 / No existe el tipo de tasa: QQ'),
    ('adriana', $$SELECT count(*) FROM subtipotasa('c','QQ','X','null')$$, $$SELECT spitasavariable('QQ','2031-01-01','',1,1)$$,
     '3 / No existe el tipo de tasa: QQ'),
    ('adriana', $$SELECT spuparametro('camila','Q9','','','',0,'')$$, $$SELECT spuparametro('braulio','Q9','','','',0,'')$$,
     ' / La serie Q9 ya es de otro usuario'),
    ('adriana', $$SELECT spiactivo(1,'CARRERA','y',1,1,1,'z','w','2026-03-05',1,1,1,'2026-03-05','S',1,1,1,1,1,'MX',1) > 0$$,
     $$SELECT spiactivo(1,'CARRERA','y',1,1,1,'z','w','2026-03-05',1,1,1,'2026-03-05','S',1,1,1,1,1,'MX',1)$$,
     'true / La clave de activo CARRERA ya existe'),
    ('adriana', $$SELECT spdmoneda('Q1')$$,
     $$SELECT spidepreciacion('Q1','1101-01-00-00-0000','1101-01-00-00-0000','1101-01-00-00-0000','1101-01-00-00-0000','x',1,1,1,1)$$,
     ' / No existe la moneda: Q1')
  ) AS paso (usuario, una, otra, esperado);
SELECT abre('una', 'hilda', 'norte'), di('una', 'BEGIN'), di('una', $$SELECT precierre('15/06/1999')$$);
SELECT abre('otra', 'hilda', 'norte'), empieza('otra', $$SELECT precierre('30/06/1999')$$);
SELECT di('una', 'ROLLBACK');
SELECT is(acaba('otra'), '1', 'si el primer precierre se arrepiente, el segundo cierra');
SELECT dblink_disconnect('una'), dblink_disconnect('otra');
SELECT is((SELECT string_agg(to_char(fechacierre, 'MM-DD'), ' ' ORDER BY periodo) FROM norte.cierre
            WHERE ejercicio = 1999), '03-15 04-15 05-15 06-30', 'cada mes se cierra una vez');

-- Days are written directly; the second one is refused in the words of the first.
SELECT abre('una', 'adriana', 'norte'), di('una', 'BEGIN'), di('una', $$INSERT INTO inabil VALUES ('2031-02-05')$$);
SELECT abre('otra', 'adriana', 'norte'), dblink_send_query('otra', $$INSERT INTO inabil VALUES ('2031-02-05')$$);
SELECT pg_sleep(0.2), di('una', 'COMMIT');
SELECT is(acaba('otra'), 'El día 05/02/2031 ya es inhábil', 'el mismo día a la vez');
SELECT dblink_disconnect('una'), dblink_disconnect('otra');

SELECT throws_ok($$INSERT INTO norte.tasa (tipoprestamoid, fechainicial, tasanormal, tasamoratorio)
                   VALUES ('EME', '2040-01-01', 1, 1)$$, '23P01', NULL, 'ni el dueño puede encimar dos tasas');
SELECT * FROM finish();
COMMIT;

SET ROLE tolvara_propietario;
DELETE FROM norte.cierre WHERE ejercicio = 1999;
DELETE FROM norte.inabil WHERE fecha = '2031-02-05';
DELETE FROM norte.tasa WHERE tipoprestamoid = 'EME';
RESET ROLE;
INSERT INTO norte.tasa SELECT * FROM tasas;
SET ROLE tolvara_propietario;
DELETE FROM norte.banco WHERE no_cuenta IN ('999', '998');
UPDATE norte.catalogo_ctas SET cuentaacumula = NULL WHERE cuentaid LIKE '999%';
DELETE FROM norte.catalogo_ctas WHERE cuentaid LIKE '999%-1%';
DELETE FROM norte.catalogo_ctas WHERE cuentaid LIKE '999%';
DELETE FROM norte.tasavariable WHERE fechainicial = '2031-01-01';
UPDATE norte.tipotasa SET descripcion = 'Tasa interbancaria de equilibrio a 28 días: promedio del mes y cierre'
 WHERE tipotasa = 'TIIE';
UPDATE norte.parametro SET serieuser = 'C' WHERE usuarioid = 'camila';
DELETE FROM norte.activo WHERE activoclave = 'CARRERA';
