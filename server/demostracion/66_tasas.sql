-- History of rates: each type's present one since 2026, and what it was in the two years ahead of it.
INSERT INTO tasa (tipoprestamoid, tipoinversionid, tipomovimientoid, fechainicial, fechafinal, tasanormal,
                  tasamoratorio)
SELECT t.prestamo, t.inversion, t.movimiento, p.inicial, p.final, t.normal + p.puntos, t.mora + p.puntos
  FROM (SELECT tipoprestamoid AS prestamo, NULL AS inversion, NULL AS movimiento, tasa_normal AS normal,
               tasa_mora AS mora
          FROM tipoprestamo
        UNION ALL
        SELECT NULL, tipoinversionid, NULL, tasa_normal, 0 FROM tipoinversion
        UNION ALL
        SELECT NULL, NULL, tipomovimientoid, tasainteres, 0 FROM tipomovimiento WHERE tasainteres > 0) AS t,
       (VALUES (date '2024-01-01', date '2024-12-31', 1.5), ('2025-01-01', '2025-12-31', 0.75), ('2026-01-01', NULL, 0))
         AS p (inicial, final, puntos)
 ORDER BY t.prestamo, t.inversion, t.movimiento, p.inicial;

-- Series by month; the figures are made up.
INSERT INTO tipotasa (tipotasa, descripcion) VALUES
  ('CETES', 'Rendimiento de los certificados a 28 días: promedio del mes y cierre'),
  ('CCP', 'Costo de captación a plazo: promedio del mes y cierre'),
  ('TIIE', 'Tasa interbancaria de equilibrio a 28 días: promedio del mes y cierre');

INSERT INTO tasavariable (tipotasa, fechainicial, fechafinal, valor1, valor2)
SELECT s.tipotasa, mes::date, (mes + interval '1 month' - interval '1 day')::date,
       round((s.base - 0.11 * n + 0.05 * sin(n))::numeric, 4),
       round((s.base - 0.11 * n - 0.04 + 0.05 * sin(n))::numeric, 4)
  FROM (VALUES ('CETES', 11.06), ('CCP', 8.9), ('TIIE', 11.5)) AS s (tipotasa, base),
       generate_series(timestamp '2024-01-01', '2026-10-01', '1 month') WITH ORDINALITY AS m (mes, n)
 ORDER BY s.tipotasa, mes;
