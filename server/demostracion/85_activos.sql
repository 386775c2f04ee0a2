-- Classes of fixed assets, and ten assets of each.
INSERT INTO depreciacion (depremoneda, depre_activo, depre_ctadepre, depre_ctagasto, depre_ctabaja, depredescripcion,
                          depretasacontable, depretasafiscal, maximodeducible, depreporcentaje)
SELECT 'MX', format('160%s-00-00-00-0000', rubro), format('1690-0%s-00-00-0000', rubro),
       format('530%s-00-00-00-0000', rubro), '4303-00-00-00-0000', nombre, contable, fiscal, tope, parte
  FROM (VALUES (2, 'Edificios', 5, 5, 0, 90), (3, 'Mobiliario y equipo de oficina', 10, 10, 0, 100),
               (4, 'Equipo de cómputo', 33.33, 30, 0, 100), (5, 'Equipo de transporte', 25, 25, 175000, 85))
       AS clase (rubro, nombre, contable, fiscal, tope, parte);

INSERT INTO activo (depreciacionid, activoclave, activodescripcion, activo_valor, porcenvidautil, valormercado,
                    localizacion, activonoserie, feciniciodepconta, activotasaconta, actdepreacumconta,
                    actmetododepreconta, feciniciodepfiscal, actdeduccioninme, activotasafiscal, actdepreacumfiscal,
                    actmetododeprefiscal, actmonmaxdedufiscal, montooriginal, monedaid, departamento)
SELECT d.depreciacionid, format('%s-%s', left(upper(a.descri), 4), lpad(a.n::text, 4, '0')),
       format('%s %s', a.descri, a.n), a.monto, round(100 - a.consumido, 4), round(a.monto * 0.7, -2),
       (ARRAY['Matriz, planta baja', 'Matriz, primer piso', 'Bodega', 'Ventanilla'])[1 + a.n % 4],
       format('FIC%s%s', d.depreciacionid, lpad((a.n * 7919 % 100000)::text, 5, '0')), a.inicio, d.depretasacontable,
       round(a.monto * a.consumido / 100, 2), a.n % 3, a.inicio, CASE WHEN a.n % 5 = 0 THEN 'S' ELSE 'N' END,
       d.depretasafiscal, round(a.monto * least(100, a.consumido * d.depretasafiscal / d.depretasacontable) / 100, 2),
       0, d.maximodeducible, a.monto, d.depremoneda, a.n % 3
  FROM depreciacion d
 CROSS JOIN LATERAL (
   SELECT n, i.inicio, i.descri, i.monto,
          least(100, (current_date - i.inicio) / 365.0 * d.depretasacontable) AS consumido
     FROM generate_series(1, 10) AS n
    CROSS JOIN LATERAL (
      SELECT current_date - n * 190 AS inicio,
             CASE d.depredescripcion WHEN 'Edificios' THEN 'Local de sucursal'
                                     WHEN 'Equipo de cómputo' THEN 'Computadora'
                                     WHEN 'Equipo de transporte' THEN 'Camioneta' ELSE 'Escritorio' END AS descri,
             CASE d.depredescripcion WHEN 'Edificios' THEN 650000
                                     WHEN 'Equipo de cómputo' THEN 14500
                                     WHEN 'Equipo de transporte' THEN 285000 ELSE 4200 END + n * 350 AS monto) AS i
       ) AS a
 ORDER BY d.depreciacionid, a.n;
