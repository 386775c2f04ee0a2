-- 300 loans granted over the last two years, with their schedules; of twenty borrowers fourteen pay on the day, two are
-- some weeks behind, and the others months or altogether.
INSERT INTO prestamos (referenciaprestamo, socioid, tipoprestamoid, clavefinalidad, montoprestamo, tasanormal,
                       tasa_moratoria, fecha_otorga, fecha_vencimiento, numero_de_amor, condicionid)
SELECT format('%s-%s-%s', rtrim(e.sucid), extract(year FROM c.otorga), lpad(n::text, 6, '0')), s.socioid,
       t.tipoprestamoid, t.clavefinalidad,
       t.montominimo + round((t.montomaximo - t.montominimo) * (n * 13 % 37) / 37, -2), t.tasa_normal, t.tasa_mora,
       c.otorga, c.otorga + t.periododiasdefault * c.amortizaciones, c.amortizaciones, c.condicion
  FROM generate_series(1, 300) AS n
  JOIN (SELECT *, row_number() OVER (ORDER BY tipoprestamoid) - 1 AS lugar FROM tipoprestamo) AS t ON t.lugar = n % 8
  JOIN (SELECT *, row_number() OVER (ORDER BY socioid) - 1 AS lugar FROM socio) AS s ON s.lugar = n * 7 % 260
 CROSS JOIN LATERAL (SELECT (ARRAY[0, 0, 0, 0, 0, 0, 0, 1, 2, 3])[1 + n * 3 % 10] AS condicion,
                            current_date - (5 + n * 37 % 715) AS otorga,
                            least(60, greatest(1, t.plazomaximo / t.periododiasdefault * (4 + n % 7) / 10)) AS partes)
       AS x
 CROSS JOIN LATERAL (SELECT x.condicion, x.otorga,
                            CASE x.condicion WHEN 2 THEN 1 ELSE x.partes END AS amortizaciones) AS c
 CROSS JOIN empresa e
 ORDER BY n;

-- Equal parts of capital, or all of it at the end; interest on the balance before each.
INSERT INTO amortizacion (prestamoid, numero, fecha_vencimiento, capital, interes)
SELECT a.prestamoid, a.numero, a.vence, a.capital,
       round((a.montoprestamo - sum(a.capital) OVER anteriores + a.capital) * a.tasanormal * a.dias / 36000, 2)
  FROM (SELECT p.*, k AS numero, p.fecha_otorga + x.dias * k AS vence, x.dias,
               CASE WHEN p.condicionid = 0 AND k < p.numero_de_amor THEN round(p.montoprestamo / p.numero_de_amor, 2)
                    WHEN p.condicionid = 0 THEN p.montoprestamo
                                                - round(p.montoprestamo / p.numero_de_amor, 2) * (p.numero_de_amor - 1)
                    WHEN k = p.numero_de_amor THEN p.montoprestamo ELSE 0 END AS capital
          FROM prestamos p
         CROSS JOIN LATERAL (SELECT (p.fecha_vencimiento - p.fecha_otorga) / p.numero_de_amor AS dias) AS x
         CROSS JOIN generate_series(1, p.numero_de_amor) AS k) AS a
WINDOW anteriores AS (PARTITION BY a.prestamoid ORDER BY a.numero);

-- What was paid: on the day, with the bonus for it, or some days later, with late interest and without.
INSERT INTO pago (prestamoid, fecha, capital, interes, moratorio, bonificacioninteres)
SELECT p.prestamoid, a.fecha_vencimiento + t.tarde, a.capital, a.interes - t.bono,
       round(a.capital * p.tasa_moratoria * t.tarde / 36000, 2), t.bono
  FROM prestamos p JOIN amortizacion a USING (prestamoid) CROSS JOIN empresa e
 CROSS JOIN LATERAL (SELECT CASE WHEN (p.prestamoid + a.numero) % 5 = 0 THEN 4 ELSE 0 END AS tarde) AS d
 CROSS JOIN LATERAL (SELECT d.tarde, CASE d.tarde WHEN 0 THEN round(a.interes * e.porcentajebonifica / 100, 2)
                                                  ELSE 0 END AS bono,
                            -- days since the last payment
                            (ARRAY[0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 12, 25, 55, 100, 200, 10000]
                             )[1 + p.prestamoid * 7 % 20] AS ausente) AS t
 WHERE a.fecha_vencimiento + t.tarde <= current_date - t.ausente
   AND a.capital + a.interes > 0
 ORDER BY a.fecha_vencimiento + t.tarde, p.prestamoid;

-- The deposit that guarantees a loan, made with it.
INSERT INTO movimiento (socioid, tipomovimientoid, prestamoid, fecha, importe)
SELECT p.socioid, t.tipomovimientoid, p.prestamoid, p.fecha_otorga, round(p.montoprestamo * t.reciprocidad / 100, 2)
  FROM prestamos p JOIN tipoprestamo t USING (tipoprestamoid)
 WHERE t.reciprocidad > 0
 ORDER BY p.prestamoid;
