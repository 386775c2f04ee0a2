-- Twenty-one loans at one close, worked out by hand. Every date is told as days before the close (negative: after it).
-- Unless its line says otherwise a loan bears 18 % a year and 36 % late, over 360 days: each 1,000.00 of balance earns
-- 0.50 a day, and each 1,000.00 overdue 1.00 more. ORD passes to the overdue portfolio after 90 days, AGR after 30.
BEGIN;
SELECT no_plan();
UPDATE norte.empresa SET diasanualesprestamo = 360;
DELETE FROM norte.pago;
DELETE FROM norte.precorte;
\set cierre '2025-06-30'

CREATE TEMPORARY TABLE prestamo (
  numero integer, caso text, tipo text, monto numeric, otorgado integer,
  amortizaciones numeric[],  -- days before the close, capital, interest
  pagos numeric[],           -- days before the close, capital, interest, late interest, both forgiven
  tasa numeric DEFAULT 18, mora numeric DEFAULT 36);
INSERT INTO prestamo VALUES
  (1, 'otorgado el día del cierre', 'ORD', 12000, 0, '{{-30,12000,180}}', '{}'),
  (2, 'paga a tiempo', 'ORD', 12000, 50, '{{20,6000,180},{-10,6000,90}}', '{{20,6000,180,0,0,0}}'),
  (3, 'vence el día del cierre', 'ORD', 6000, 30, '{{0,6000,90}}', '{}'),
  (4, 'venció ayer', 'ORD', 6000, 31, '{{1,6000,90}}', '{}'),
  (5, 'siete días', 'ORD', 6000, 37, '{{7,6000,90}}', '{}'),
  (6, 'ocho días', 'ORD', 6000, 38, '{{8,6000,90}}', '{}'),
  (7, 'justo antes del traspaso a 30 días', 'AGR', 6000, 60, '{{30,6000,90}}', '{}'),
  (8, 'justo después del traspaso a 30 días', 'AGR', 6000, 61, '{{31,6000,90}}', '{}'),
  (9, 'justo antes del traspaso a 90 días', 'ORD', 6000, 120, '{{90,6000,90}}', '{}'),
  (10, 'justo después del traspaso a 90 días', 'ORD', 6000, 121, '{{91,6000,90}}', '{}'),
  (11, 'medio año vencido', 'ORD', 6000, 200, '{{181,6000,57}}', '{}'),
  (12, 'tres vencidas', 'ORD', 9000, 100, '{{70,3000,135},{40,3000,90},{10,3000,45}}', '{}'),
  (13, 'tres vencidas y traspasado', 'AGR', 9000, 100, '{{70,3000,135},{40,3000,90},{10,3000,45}}', '{}'),
  (14, 'pagó una y parte de otra', 'ORD', 9000, 100, '{{70,3000,135},{40,3000,90},{10,3000,45}}',
   '{{70,3000,135,0,0,0},{40,1000,90,0,0,0}}'),
  (15, 'pagó el capital y no el interés', 'ORD', 6000, 60, '{{30,3000,90},{-1,3000,45}}', '{{30,3000,0,0,0,0}}'),
  (16, 'se le perdonó parte del interés', 'ORD', 6000, 60, '{{30,3000,90},{-1,3000,45}}', '{{30,3000,60,0,30,0}}'),
  (17, 'liquidado en el mes', 'ORD', 6000, 60, '{{30,6000,90}}', '{{5,6000,165,150,0,0}}'),
  (18, 'paga después del cierre', 'ORD', 6000, 45, '{{15,6000,90}}', '{{-2,6000,136,92,0,0}}'),
  (19, 'abonó a los intereses', 'AGR', 6000, 80, '{{50,3000,90},{-40,3000,135}}', '{{20,0,100,70,0,10}}'),
  (20, 'con centavos', 'ORD', 7777.77, 73, '{{43,2592.59,86.42},{13,2592.59,57.61},{-17,2592.59,28.81}}',
   '{{40,2592.59,86.42,4.43,0,0}}'),
  (21, 'abonó capital después del traspaso', 'AGR', 9000, 100, '{{70,3000,135},{40,3000,90},{10,3000,45}}',
   '{{20,2000,0,0,0,0}}');
UPDATE prestamo SET tasa = 13.3333, mora = 20.5 WHERE numero = 20;

-- The figures, by hand, and how they come about:
--    2  30 days of 6.00 and 20 of 3.00, less the 180.00 paid
--    4  31 days of 3.00; one day late of 6.00;  5 to 11 in the same way
--    8  of 61 days and of 31 late ones, the last after the 30th of arrears; 10 the same after the 90th
--   11  of 200 days of 3.00 and of 181 late ones of 6.00, the last 91 after the 90th of arrears
--   12  100 days of 4.50; late 70, 40 and 10 days of 3.00
--   13  the last 40 days are after the 30th of arrears: 40 x 4.50; late 40, 40 and 10 days of 3.00, and 30 before
--   14  30 days of 4.50, 30 of 3.00, 40 of 2.50, less 225.00; late 40 days of 2.00 and 10 of 3.00
--   15  30 days of 3.00 and 30 of 1.50; the first is overdue for its interest, and no capital is
--   16  the same less the 60.00 paid and the 30.00 forgiven
--   19  80 days of 3.00, the last 20 after the transfer, less 100.00 off the older; late 50 days of 3.00, the last 20
--       after the transfer, less 80.00 off the older
--   20  33 days of 7,777.77 x 13.3333 / 36000 = 2.880648 and 40 of 1.920432, 171.8787 in all, less 86.42; late 13 days of
--       2,592.59 x 20.5 / 36000 = 1.476336; what was paid late ahead of these arrears is settled
--   21  80 days of 4.50 and 20 of 3.50; after the transfer 20 of 4.50 and 20 of 3.50; late 70 days of 1.00, of which 30
--       before the transfer, 40 of 3.00 and 10 of 3.00
CREATE TEMPORARY TABLE esperado (
  numero integer, dias integer, vencidas bigint, saldo numeric, vencido_menor numeric, vencido_mayor numeric,
  interes_menor numeric, interes_mayor numeric, mora_menor numeric, mora_mayor numeric, porcentaje numeric,
  reserva numeric);
INSERT INTO esperado VALUES
  ( 1,   0, 0, 12000.00,       0,    0,   0.00,   0.00,    0.00,   0.00,   1,  120.00),
  ( 2,   0, 0,  6000.00,       0,    0,  60.00,   0.00,    0.00,   0.00,   1,   60.00),
  ( 3,   0, 0,  6000.00,       0,    0,  90.00,   0.00,    0.00,   0.00,   1,   60.00),
  ( 4,   1, 1,  6000.00,    6000,    0,  93.00,   0.00,    6.00,   0.00,   4,  240.00),
  ( 5,   7, 1,  6000.00,    6000,    0, 111.00,   0.00,   42.00,   0.00,   4,  240.00),
  ( 6,   8, 1,  6000.00,    6000,    0, 114.00,   0.00,   48.00,   0.00,  15,  900.00),
  ( 7,  30, 1,  6000.00,    6000,    0, 180.00,   0.00,  180.00,   0.00,  15,  900.00),
  ( 8,  31, 1,  6000.00,       0, 6000, 180.00,   3.00,  180.00,   6.00,  30, 1800.00),
  ( 9,  90, 1,  6000.00,    6000,    0, 360.00,   0.00,  540.00,   0.00,  50, 3000.00),
  (10,  91, 1,  6000.00,       0, 6000, 360.00,   3.00,  540.00,   6.00,  75, 4500.00),
  (11, 181, 1,  6000.00,       0, 6000, 327.00, 273.00,  540.00, 546.00, 100, 6000.00),
  (12,  70, 3,  9000.00,    9000,    0, 450.00,   0.00,  360.00,   0.00,  50, 4500.00),
  (13,  70, 3,  9000.00,       0, 9000, 270.00, 180.00,   90.00, 270.00,  50, 4500.00),
  (14,  40, 2,  5000.00,    5000,    0, 100.00,   0.00,  110.00,   0.00,  30, 1500.00),
  (15,  30, 1,  3000.00,       0,    0, 135.00,   0.00,    0.00,   0.00,  15,  450.00),
  (16,   0, 0,  3000.00,       0,    0,  45.00,   0.00,    0.00,   0.00,   1,   30.00),
  (17,   0, 0,     0.00,       0,    0,   0.00,   0.00,    0.00,   0.00,   1,    0.00),
  (18,  15, 1,  6000.00,    6000,    0, 135.00,   0.00,   90.00,   0.00,  15,  900.00),
  (19,  50, 1,  6000.00,       0, 3000,  80.00,  60.00,   10.00,  60.00,  30, 1800.00),
  (20,  13, 1,  5185.18, 2592.59,    0,  85.46,   0.00,   19.19,   0.00,  15,  777.78),
  (21,  70, 3,  7000.00,       0, 7000, 270.00, 160.00,   30.00, 190.00,  50, 3500.00);

INSERT INTO norte.prestamos (referenciaprestamo, socioid, tipoprestamoid, clavefinalidad, montoprestamo, tasanormal,
                             tasa_moratoria, fecha_otorga, fecha_vencimiento, numero_de_amor, condicionid)
SELECT 'MANO ' || numero, 1, tipo, 'CON', monto, tasa, mora, date :'cierre' - otorgado,
       date :'cierre' - amortizaciones[cuantas][1]::integer, cuantas, 0
  FROM prestamo, LATERAL array_length(amortizaciones, 1) AS cuantas ORDER BY numero;
INSERT INTO norte.amortizacion
SELECT r.prestamoid, n, date :'cierre' - amortizaciones[n][1]::integer, amortizaciones[n][2], amortizaciones[n][3]
  FROM prestamo JOIN norte.prestamos AS r ON referenciaprestamo = 'MANO ' || numero,
       generate_subscripts(amortizaciones, 1) AS n;
INSERT INTO norte.pago (prestamoid, fecha, capital, interes, moratorio, bonificacioninteres, bonificacionmoratorio)
SELECT r.prestamoid, date :'cierre' - pagos[n][1]::integer, pagos[n][2], pagos[n][3], pagos[n][4], pagos[n][5],
       pagos[n][6]
  FROM prestamo JOIN norte.prestamos AS r ON referenciaprestamo = 'MANO ' || numero,
       generate_subscripts(pagos, 1) AS n;

SELECT is(como('hilda', 'norte', $$select * from precierre('30/06/2025');$$), '1', 'se cierra junio');
CREATE TEMPORARY VIEW calculado AS
SELECT substr(referenciaprestamo, 6)::integer AS numero, diasvencidos, noamorvencidas, saldoprestamo,
       saldovencidomenoravencido, saldovencidomayoravencido, interesdevengadomenoravencido,
       interesdevengadomayoravencido, interesdevmormenor, interesdevmormayor, porcentajeaplicado, reservacalculada
  FROM norte.precorte JOIN norte.prestamos USING (prestamoid)
 WHERE ejercicio = 2025 AND periodo = 6 AND referenciaprestamo LIKE 'MANO %';
SELECT is((SELECT concat_ws(' ', diasvencidos, noamorvencidas, saldoprestamo, saldovencidomenoravencido::numeric(14,2),
                            saldovencidomayoravencido::numeric(14,2), interesdevengadomenoravencido,
                            interesdevengadomayoravencido, interesdevmormenor, interesdevmormayor,
                            porcentajeaplicado::integer, reservacalculada)
             FROM calculado AS c WHERE c.numero = e.numero),
          concat_ws(' ', dias, vencidas, saldo, vencido_menor::numeric(14,2), vencido_mayor::numeric(14,2),
                    interes_menor, interes_mayor, mora_menor, mora_mayor, porcentaje, reserva),
          format('%s: %s', e.numero, caso))
  FROM esperado AS e JOIN prestamo USING (numero) ORDER BY numero;

SELECT * FROM finish();
ROLLBACK;
