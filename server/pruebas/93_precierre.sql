-- The pre-close: its arithmetic against figures worked out by hand, its refusals, and both exports.
BEGIN;
SELECT no_plan();
UPDATE norte.empresa SET diasanualesprestamo = 360;

-- Loans of 12,000.00 at 18 % and 27 % late, granted on 1 January 2024, twelve amortisations of 1,000.00 every 30 days
-- (31 January, 1 March, 31 March...), interest on the balance: 180.00, 165.00, 150.00... ORD passes to overdue after 90
-- days, AGR after 30.
CREATE FUNCTION pg_temp.presta(referencia text, tipo text) RETURNS bigint
LANGUAGE sql AS $$
  INSERT INTO norte.prestamos (referenciaprestamo, socioid, tipoprestamoid, clavefinalidad, montoprestamo, tasanormal,
                               tasa_moratoria, fecha_otorga, fecha_vencimiento, numero_de_amor, condicionid)
  VALUES (referencia, 1, tipo, 'CON', 12000, 18, 27, '2024-01-01', '2024-12-26', 12, 0);
  INSERT INTO norte.amortizacion
  SELECT prestamoid, n, date '2024-01-01' + 30 * n, 1000, 195 - 15 * n
    FROM norte.prestamos, generate_series(1, 12) AS n WHERE referenciaprestamo = referencia;
  SELECT prestamoid FROM norte.prestamos WHERE referenciaprestamo = referencia
$$;
SELECT pg_temp.presta('AL CORRIENTE', 'ORD') AS corriente, pg_temp.presta('ATRASADO', 'ORD') AS atrasado,
       pg_temp.presta('VENCIDO', 'AGR') AS vencido, pg_temp.presta('PARCIAL', 'ORD') AS parcial,
       pg_temp.presta('LIQUIDADO EN MES', 'ORD') AS liquidado, pg_temp.presta('LIQUIDADO ANTES', 'ORD') AS antes,
       pg_temp.presta('FUTURO', 'ORD') AS futuro \gset
UPDATE norte.prestamos SET fecha_otorga = '2024-03-16' WHERE prestamoid = :futuro;
INSERT INTO norte.pago (prestamoid, fecha, capital, interes, moratorio, bonificacioninteres, bonificacionmoratorio)
VALUES
  (:corriente, '2024-01-31', 1000, 180, 0, 0, 0), (:corriente, '2024-03-01', 1000, 165, 0, 0, 0),
  (:corriente, '2024-03-16', 1000, 150, 0, 0, 0),  -- after the close: does not count
  (:parcial, '2024-02-10', 400, 100, 5, 20, 1),
  (:liquidado, '2024-03-10', 12000, 400, 0, 0, 0), (:antes, '2024-02-29', 12000, 354, 0, 0, 0);

SELECT is(como(usuario, 'norte', sentencia), esperado, usuario || ': ' || sentencia)
  FROM (VALUES
    ('camila', $$select * from precierre('15/03/2024');$$, 'No tiene permiso para la opción Precierre (módulo 0910)'),
    ('hilda', $$select * from precierre('');$$, 'Falta la fecha de cierre'),
    ('hilda', $$select * from precierre('31/02/2024');$$, 'La fecha "31/02/2024" no existe en el calendario'),
    ('hilda', $$select * from precierre('31/12/2999');$$, 'La fecha de cierre 31/12/2999 está en el futuro'),
    ('hilda', $$select * from precierre('31/12/1899');$$,
     'Está fuera de rango el ejercicio: 1899 no está entre 1901 y 2999'),
    ('hilda', $$select * from precierre('01/01/1900');$$, 'Falta la fecha de cierre'),
    ('hilda', $$select * from precierre('31/12/1900');$$,
     'Está fuera de rango el ejercicio: 1900 no está entre 1901 y 2999'),
    ('hilda', $$select * from precierre(NULL);$$, 'Falta la fecha de cierre'),
    ('hilda', $$select * from precierre('   ');$$, 'Falta la fecha de cierre'),
    ('hilda', $$select * from precierre('00/00/0000');$$, 'Falta la fecha de cierre'),
    ('hilda', $$select * from precierre('mañana');$$, 'La fecha "mañana" no tiene la forma dd/mm/aaaa ni aaaa-mm-dd'),
    ('hilda', $$select * from precierre('infinity');$$,
     'La fecha "infinity" no tiene la forma dd/mm/aaaa ni aaaa-mm-dd'),
    ('hilda', $$select * from precierre('15032024');$$,
     'La fecha "15032024" no tiene la forma dd/mm/aaaa ni aaaa-mm-dd'),
    ('hilda', $$select * from precierre('15/13/2024');$$, 'La fecha "15/13/2024" no existe en el calendario'),
    ('hilda', $$select count(*) from cierre$$, 'permission denied for table cierre'),
    ('hilda', $$select * from precierre('15/03/2024');$$, '1'),
    ('hilda', $$select * from precierre('31/03/2024');$$, 'El mes 03/2024 ya está cerrado'),
    ('hilda', $$select * from precierre('2024-03-15');$$, 'El mes 03/2024 ya está cerrado'),
    ('hilda', $$DELETE FROM precorte$$, 'permission denied for table precorte')
  ) AS paso (usuario, sentencia, esperado);

SELECT is((SELECT string_agg(fechacierre::text, ' ') FROM norte.cierre), '2024-03-15', 'lo rechazado no escribe nada');
SELECT matches(como('hilda', 'norte', format('select * from precierre(%L);', to_char(comun.hoy() + 1, 'DD/MM/YYYY'))),
               'está en el futuro', 'ni el día de mañana se cierra');
SET LOCAL timezone = '<+99>-99';
SELECT ok(current_date > comun.hoy(), 'la sesión dice que ya es mañana');
SELECT matches(como('hilda', 'norte', format('select * from precierre(%L);', to_char(comun.hoy() + 1, 'DD/MM/YYYY'))),
               'está en el futuro', 'y no por eso se cierra');
RESET timezone;

-- By hand, at 15 March 2024, 74 days after the grant; a day of 12,000.00 at 18 % is 6.00.
--   AL CORRIENTE  14 days of 10,000.00 since the last payment: 70.00; reserve of 1 %
--   ATRASADO      two overdue, 44 and 14 days: interest 74 x 6.00 = 444.00; late (44 + 14) x 0.75 = 43.50; 30 %
--   VENCIDO       the same, parted at 30 days: the last 14 days' interest is 84.00, the rest 360.00;
--                 late 30 days of 0.75 = 22.50 before, 14 + 14 days of 0.75 = 21.00 after
--   PARCIAL       600.00 of the first pending; interest 40 x 6.00 + 34 x 5.80 = 437.20, less 120.00 paid or forgiven;
--                 late 44 x 0.45 + 14 x 0.75 = 30.30, less 6.00; 30 % of 11,600.00
--   LIQUIDADO     nothing is left; it is there because it was paid in the month
SELECT results_eq(
  $$ SELECT referenciaprestamo::text, diasvencidos, noamorvencidas, saldoprestamo, saldovencidomenoravencido,
            saldovencidomayoravencido, interesdevengadomenoravencido, interesdevengadomayoravencido, interesdevmormenor,
            interesdevmormayor, porcentajeaplicado, factoraplicado, reservacalculada
       FROM norte.precorte p JOIN norte.prestamos USING (prestamoid)
      WHERE ejercicio = 2024 AND periodo = 3 AND fecha_otorga = '2024-01-01' ORDER BY prestamoid $$,
  $$ VALUES ('AL CORRIENTE', 0, 0, 10000.00, 0.00, 0.00, 70.00, 0.00, 0.00, 0.00, 1.0000, 0.010000, 100.00),
            ('ATRASADO', 44, 2, 12000, 2000, 0, 444, 0, 43.5, 0, 30, 0.3, 3600),
            ('VENCIDO', 44, 2, 12000, 0, 2000, 360, 84, 22.5, 21, 30, 0.3, 3600),
            ('PARCIAL', 44, 2, 11600, 1600, 0, 317.2, 0, 24.3, 0, 30, 0.3, 3480),
            ('LIQUIDADO EN MES', 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0.01, 0) $$,
  'el precierre calcula lo que se calculó a mano');
SELECT results_eq(
  $$ SELECT referenciaprestamo::text, fechacierre, pagocapitalenperiodo, pagointeresenperiodo, pagomoratorioenperiodo,
            bonificacionintenperiodo, bonificacionmorenperiodo, fechaultamorpagada, ultimoabono, ultimoabonointeres,
            p.tipoprestamoid::text, diastraspasoavencida, p.montoprestamo, p.fecha_vencimiento
       FROM norte.precorte p JOIN norte.prestamos USING (prestamoid)
      WHERE ejercicio = 2024 AND periodo = 3 AND fecha_otorga = '2024-01-01' ORDER BY prestamoid $$,
  $$ VALUES ('AL CORRIENTE', date '2024-03-15', 1000.00, 165.00, 0.00, 0.00, 0.00, date '2024-03-01', date '2024-03-01',
             date '2024-03-01', 'ORD', 90, 12000.00, date '2024-12-26'),
            ('ATRASADO', '2024-03-15', 0, 0, 0, 0, 0, NULL, NULL, NULL, 'ORD', 90, 12000, '2024-12-26'),
            ('VENCIDO', '2024-03-15', 0, 0, 0, 0, 0, NULL, NULL, NULL, 'AGR', 30, 12000, '2024-12-26'),
            ('PARCIAL', '2024-03-15', 0, 0, 0, 0, 0, NULL, '2024-02-10', '2024-02-10', 'ORD', 90, 12000, '2024-12-26'),
            ('LIQUIDADO EN MES', '2024-03-15', 12000, 400, 0, 0, 0, '2024-12-26', '2024-03-10', '2024-03-10', 'ORD', 90,
             12000, '2024-12-26') $$,
  'y los pagos del mes, hasta el día del cierre');
SELECT is_empty($$ SELECT FROM norte.precorte JOIN norte.prestamos USING (prestamoid)
                    WHERE ejercicio = 2024 AND referenciaprestamo IN ('LIQUIDADO ANTES', 'FUTURO') $$,
                'lo que no existe al cierre, o ya se había liquidado, no sale');
SELECT is((SELECT usuarioid FROM norte.cierre WHERE ejercicio = 2024), 'hilda'::name, 'queda quién cerró');

-- The payments of the month are those of that month; each month is computed anew.
SELECT is(como('hilda', 'norte', $$select * from precierre('29/02/2024');$$), '1', 'se cierra un mes anterior');
SELECT is((SELECT concat_ws('|', pagocapitalenperiodo, pagointeresenperiodo, pagomoratorioenperiodo,
                            bonificacionintenperiodo, bonificacionmorenperiodo, diasvencidos)
             FROM norte.precorte WHERE ejercicio = 2024 AND periodo = 2 AND prestamoid = :parcial),
          '400.00|100.00|5.00|20.00|1.00|29', 'los pagos de febrero salen en febrero');

-- What the calculation answers goes by position: each expression bears the name of the column that it fills.
SET LOCAL search_path TO norte, comun, tap, public;
SELECT format('CREATE TEMPORARY VIEW respuesta AS %s', regexp_replace(prosrc, '\mcorte\M', 'date ''2024-03-15''', 'g'))
  FROM pg_proc WHERE oid = 'norte.calcula_precorte'::regproc
\gexec
SET LOCAL search_path TO tap, public;
SELECT results_eq($$ SELECT attname FROM pg_attribute WHERE attrelid = 'pg_temp.respuesta'::regclass AND attnum > 0
                      ORDER BY attnum $$,
                  $$ SELECT attname FROM pg_attribute WHERE attrelid = 'norte.precorte'::regclass AND attnum > 0
                      ORDER BY attnum $$,
                  'cada expresión lleva el nombre de su columna, y en su orden');

-- Days of the year are the institution's.
UPDATE norte.empresa SET diasanualesprestamo = 365;
SELECT is((SELECT interesdevengadomenoravencido FROM norte.calcula_precorte('2024-03-15') WHERE prestamoid = :atrasado),
          round(12000 * 0.18 / 365 * 74, 2), 'con año de 365 días');
UPDATE norte.empresa SET diasanualesprestamo = 360;

-- The brackets, by days overdue of the only amortisation.
INSERT INTO norte.prestamos (referenciaprestamo, socioid, tipoprestamoid, clavefinalidad, montoprestamo, tasanormal,
                             tasa_moratoria, fecha_otorga, fecha_vencimiento, numero_de_amor, condicionid)
SELECT format('TRAMO %s', dias), 2, 'ORD', 'CON', 1000, 12, 18, '2022-01-01', date '2024-04-30' - dias, 1, 2
  FROM unnest('{0,1,7,8,30,31,60,61,90,91,120,121,180,181,500}'::integer[]) AS dias;
INSERT INTO norte.amortizacion
SELECT prestamoid, 1, fecha_vencimiento, 1000, 0 FROM norte.prestamos WHERE referenciaprestamo LIKE 'TRAMO %';
SELECT results_eq(
  $$ SELECT diasvencidos, porcentajeaplicado::integer, reservacalculada FROM norte.calcula_precorte('2024-04-30')
       JOIN norte.prestamos USING (prestamoid) WHERE referenciaprestamo LIKE 'TRAMO %' ORDER BY prestamoid $$,
  $$ VALUES (0, 1, 10.00), (1, 4, 40), (7, 4, 40), (8, 15, 150), (30, 15, 150), (31, 30, 300), (60, 30, 300),
            (61, 50, 500), (90, 50, 500), (91, 75, 750), (120, 75, 750), (121, 90, 900), (180, 90, 900),
            (181, 100, 1000), (500, 100, 1000) $$, 'la reserva va por tramos de días vencidos');

-- A month without loans closes too.
SELECT is(como('hilda', 'norte', $$select * from precierre('31/01/1950');$$), '1', 'un mes sin préstamos se cierra');
SELECT is(como('hilda', 'norte', $$select count(*) from precorteconsolidado(1950,1);$$), '0', 'y sale vacío');

-- The exports. The client's statement is its own text, as an ordinary user runs it; deposits are of the closing day.
SELECT $$
select s.clavesocioint,pr.referenciaprestamo,p.ejercicio,p.periodo, p.fechacierre,p.diasvencidos,p.porcentajeaplicado,
p.factoraplicado,p.saldoprestamo,p.reservacalculada, p.interesdevengadomenoravencido,
p.interesdevengadomayoravencido,p.pagocapitalenperiodo, p.pagointeresenperiodo,p.pagomoratorioenperiodo,
p.bonificacionintenperiodo,p.bonificacionmorenperiodo, p.noamorvencidas,p.saldovencidomenoravencido,
p.saldovencidomayoravencido,p.fechaultamorpagada, p.tipoprestamoid,p.montoprestamo,pr.fecha_vencimiento, t.tantos,
saldodemovr(pr.socioid,t.tipomovimientoid,'15/03/2024',pr.prestamoid) as depositogarantia,
pr.tasanormal,pr.tasa_moratoria, su.nombre||' '||su.paterno||' '|| su.materno AS nombresocio,
d.calle,d.numero_ext,d.colonia,d.comunidad,d.codpostal, c.nombreciudadmex,p.ultimoabono,p.diastraspasoavencida,
p.ultimoabonointeres,pr.numero_de_amor,pr.fecha_otorga, f.descripcionfinalidad,
(case when p.fecha_vencimiento>p.fechacierre and p.saldoprestamo>0 then p.fecha_vencimiento-p.fechacierre else 0 end)
as diasrestantes, round((pr.fecha_vencimiento-pr.fecha_otorga)/(pr.numero_de_amor*0.1/0.1)),
interesdevmormenor,interesdevmormayor,
(case when pr.condicionid=0 then 'Pago periodico de capital e interes'
when pr.condicionid=1 then 'Pago unico de capital al vencimiento e interes periodico'
when pr.condicionid=2 then 'Pago unico de capital e intereses al vencimiento'
when pr.condicionid=3 then 'Revolvente' end)
from precorte p,prestamos pr,socio s,tipoprestamo t, sujeto su, domicilio d, ciudadesmex c, finalidades f
where p.ejercicio=2024 and p.periodo=3 and pr.prestamoid=p.prestamoid and s.socioid=pr.socioid
and t.tipoprestamoid = pr.tipoprestamoid and su.sujetoid=s.sujetoid and d.sujetoid=s.sujetoid
and c.ciudadmexid = d.ciudadmexid and f.clavefinalidad=p.clavefinalidad
order by p.diasvencidos,s.clavesocioint $$ AS exporta \gset
UPDATE norte.prestamos SET condicionid = prestamoid % 4 WHERE fecha_otorga = '2024-01-01';
INSERT INTO norte.movimiento (socioid, tipomovimientoid, prestamoid, fecha, importe)
VALUES (1, 'GL', :atrasado, '2024-03-15', 500), (1, 'GL', :atrasado, '2024-03-16', 70);
SELECT is(como('hilda', 'norte', format('SELECT count(*) FROM (%s) AS e', :'exporta')), '5',
          'el estado de cuenta lo lee quien cierra');
SELECT is(como('camila', 'norte', format('SELECT count(*) FROM (%s) AS e', :'exporta')),
          'No tiene permiso para leer estos datos (módulo 0910)', 'y nadie más');
SET LOCAL search_path TO tap, public, norte;
SELECT bag_eq(:'exporta', 'SELECT * FROM norte.precorte_detalle WHERE ejercicio = 2024 AND periodo = 3',
              'el consolidado dice de la sucursal lo mismo que la consulta del cliente');
SET LOCAL search_path TO tap, public;
SELECT is((SELECT depositogarantia FROM norte.precorte_detalle
            WHERE ejercicio = 2024 AND periodo = 3 AND referenciaprestamo = 'ATRASADO'), 500.00,
          'el depósito en garantía es el del día del cierre');
SELECT is((SELECT count(*) FROM pg_attribute WHERE attrelid = 'norte.precorte_detalle'::regclass AND attnum > 0),
          46::bigint, 'son 46 columnas');

INSERT INTO sur.prestamos (referenciaprestamo, socioid, tipoprestamoid, clavefinalidad, montoprestamo, tasanormal,
                           tasa_moratoria, fecha_otorga, fecha_vencimiento, numero_de_amor, condicionid)
VALUES ('DEL SUR', 1, 'ORD', 'CON', 100, 12, 18, '2024-01-01', '2024-12-26', 1, 2);
SELECT is(como(usuario, sucursal, sentencia), esperado, usuario || ': ' || sentencia)
  FROM (VALUES
    ('beatriz', 'sur', $$select * from precierre('15/03/2024');$$, '1'),
    ('hilda', 'norte', $$select count(*) from precorteconsolidado(2024,3);$$, '6'),
    ('beatriz', 'sur', $$select count(*) from precorteconsolidado(2024,3);$$, '6'),
    ('hilda', 'norte', $$select referenciaprestamo from precorteconsolidado(2024,3) where clavesocioint like '0002%';$$,
     'DEL SUR'),
    ('hilda', 'norte', $$select string_agg(diasvencidos::text, ',') from precorteconsolidado(2024,3);$$,
     '0,0,0,44,44,44'),
    ('camila', 'norte', $$select count(*) from precorteconsolidado(2024,3);$$,
     'No tiene permiso para la opción Precierre (módulo 0910)'),
    ('hilda', 'norte', $$select count(*) from sur.precorte$$, 'permission denied for schema sur'),
    ('hilda', 'norte', $$select count(*) from norte.precorte_detalle$$, 'permission denied for view precorte_detalle'),
    ('hilda', 'norte', $$select count(*) from calcula_precorte('2024-03-15')$$,
     'permission denied for function calcula_precorte')
  ) AS paso (usuario, sucursal, sentencia, esperado);

-- Opening a closed month again.
SELECT is(como(usuario, 'norte', sentencia), esperado, usuario || ': ' || sentencia)
  FROM (VALUES
    ('adriana', $$SELECT reabre_mes(2024, 3, 'Faltaba un pago')$$, 'permission denied for function reabre_mes'),
    ('postgres', $$SELECT norte.reabre_mes(2024, 2, 'Faltaba un pago')$$,
     'Solo se reabre el último mes cerrado, que es el 03/2024'),
    ('postgres', $$SELECT norte.reabre_mes(NULL, NULL, 'Faltaba un pago')$$,
     'Solo se reabre el último mes cerrado, que es el 03/2024'),
    ('postgres', $$SELECT norte.reabre_mes(2024, 3, ' ')$$, 'Falta el motivo'),
    ('postgres', $$SELECT norte.reabre_mes(2024, 3, 'Faltaba un pago')$$, '5'),
    ('hilda', $$select * from precierre('31/03/2024');$$, '1'),
    ('postgres', $$SELECT norte.reabre_mes(2024, 3, 'Faltaba otro') > 0$$, 'true'),
    ('postgres', $$SELECT norte.reabre_mes(2024, 3, 'Faltaba otro')$$,
     'Solo se reabre el último mes cerrado, que es el 02/2024')
  ) AS paso (usuario, sentencia, esperado);
SELECT results_eq(
  $$ SELECT clave, nuevo ->> 'motivo' FROM norte.bitacora WHERE operacion = 'REAPERTURA' ORDER BY bitacoraid $$,
  $$ VALUES ('2024/3', 'Faltaba un pago'), ('2024/3', 'Faltaba otro') $$, 'la bitácora guarda por qué');
SELECT ok(count(*) >= 10, 'y lo que había') FROM norte.bitacora WHERE tabla = 'precorte' AND operacion = 'DELETE';

SELECT * FROM finish();
ROLLBACK;
