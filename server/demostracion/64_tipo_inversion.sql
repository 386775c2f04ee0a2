-- Investment types.
INSERT INTO tipoinversion (
  tipoinversionid, desctipoinversion, tasa_normal, plazo, plazomax, montomin, montomax, aplicaivainversion, aplicaisr,
  reinvierteinteres, tipomovimientoid, clasificacionid, calculoid,
  cuentapasivo, cuentapasivovencida, cuentaintinvernocob, cuentaintinver, cuentaivainver, cuentariesgocred,
  cuentaprovisionisr)
SELECT t.id, t.nombre, t.tasa, t.plazo, t.plazo_max, t.monto_min, t.monto_max, 'N', t.isr, t.reinvierte, 'AH', t.clase,
       (SELECT calculoid FROM calculo WHERE descripcioncalculo = 'Interés de inversión a plazo'),
       '2111' || t.cola, '2113' || t.cola, '2112' || t.cola, '5111' || t.cola, '2403-00-00-00-0000',
       '2402-01-00-00-0000', '2402-02-00-00-0000'
  FROM (SELECT tipo.*, format('-%s-00-00-0000', lpad(numero::text, 2, '0')) AS cola
          FROM (VALUES (1, '028', 'Inversión a 28 días', 5.5, 28, 60, 1000, 500000, 1, 1, 0),
                       (2, '091', 'Inversión a 91 días', 6.25, 91, 120, 1000, 500000, 1, 1, 0),
                       (3, '182', 'Inversión a 182 días', 7, 182, 240, 5000, 1000000, 1, 1, 0),
                       (4, '364', 'Inversión a 364 días', 7.75, 364, 720, 5000, 1000000, 1, 0, 0),
                       (5, 'CRE', 'Inversión creciente', 6.75, 30, 720, 500, 250000, 1, 1, 0),
                       (6, 'CAP', 'Certificado de aportación', 9, 360, 1800, 10000, 200000, 0, 0, 1))
               AS tipo (numero, id, nombre, tasa, plazo, plazo_max, monto_min, monto_max, isr, reinvierte, clase)) AS t;
