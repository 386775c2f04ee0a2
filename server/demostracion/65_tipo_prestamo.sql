-- Loan types: their conditions, the accounts of the product by its number and the accounts that all share.
INSERT INTO tipoprestamo (
  tipoprestamoid, desctipoprestamo, tantos, tasa_normal, tasa_mora, plazomaximo, montominimo, montomaximo,
  avalesminimos, periododiasdefault, diastraspasoavencida, clavefinalidad, aplicaivaprestamo, prestamogrupal, comision,
  nivelautorizacion, reciprocidad, tipomovimientoid, ivacomision, estatus, clasificacioncontable, calculonormalid,
  calculomoraid,
  cuentaactivo, cuentaactivovencida, cuentaintnormalnocob, cuentaintnormalvencida, cuentaintmoranocobact,
  cuentariesgocred, cuentaintnormal, cuentaintmora, cuentaintmoravencida, cuentaintdevnocobres,
  cuentaintmoradevnocobres, cuentaintnormalresvencida, cuentaintnormalresvigente, cuentacomision, cuentariesgocredres,
  cuentaordenaval, cuentaordenavalacredor, cuentaordeninteres, ordeninteresacreedor, cuentagarantiadeudor,
  cuentagarantiaacredor, ordendeudornormalbonificado, ordenacredornormalbonificado,
  cuentaiva, cuentaprovisioniva, cuentaivacomision, cuentafondorecuperacion, cuentagtosadm)
SELECT t.id, t.nombre, t.tantos, t.tasa, t.mora, t.plazo, t.monto_min, t.monto_max, t.avales,
       t.periodo, t.vencida, t.finalidad, t.iva, t.grupal, t.comision,
       t.nivel, t.reciprocidad, 'GL', 16, 1, '1301' || t.cola, normal.calculoid, mora.calculoid,
       '1301' || t.cola, '1302' || t.cola, '1303' || t.cola, '1304' || t.cola, '1305' || t.cola,
       '1390' || t.cola, '4101' || t.cola, '4102' || t.cola, '4103' || t.cola, '4104' || t.cola,
       '4105' || t.cola, '4106' || t.cola, '4107' || t.cola, '4108' || t.cola, '5201' || t.cola,
       '6101' || t.cola, '6201' || t.cola, '6102' || t.cola, '6202' || t.cola, '6103' || t.cola,
       '6203' || t.cola, '6104' || t.cola, '6204' || t.cola,
       '2401-02-00-00-0000', '2401-03-00-00-0000', '2401-04-00-00-0000', '2304-00-00-00-0000', '4302-00-00-00-0000'
  FROM (SELECT tipo.*, format('-%s-00-00-0000', lpad(numero::text, 2, '0')) AS cola
          FROM (VALUES (1, 'ORD', 'Ordinario', 3, 18, 27, 1080, 1000, 100000, 1, 30, 90, 'CON', 'S', 0, 1.5, 1, 10),
                       (2, 'AUT', 'Automotriz', 5, 15, 22.5, 1440, 20000, 350000, 1, 30, 90, 'AUT', 'S', 0, 2, 2, 20),
                       (3, 'NOM', 'Nómina', 4, 16.5, 24.75, 720, 1000, 60000, 0, 15, 90, 'CON', 'S', 0, 1, 1, 0),
                       (4, 'AGR', 'Agropecuario', 4, 14, 21, 360, 5000, 200000, 1, 180, 30, 'AGR', 'N', 0, 1, 2, 15),
                       (5, 'VIV', 'Vivienda', 6, 11.75, 17.625, 5400, 50000, 900000, 2, 30, 90, 'VIV', 'N', 0, 2.5, 3,
                        10),
                       (6, 'EMP', 'Microempresa', 4, 20, 30, 720, 3000, 150000, 1, 30, 90, 'CTR', 'N', 0, 2, 2, 10),
                       (7, 'GRU', 'Grupal', 3, 24, 36, 180, 1000, 40000, 0, 7, 30, 'CTR', 'S', 1, 1, 1, 10),
                       (8, 'EME', 'Emergente', 1, 12, 18, 180, 500, 15000, 0, 30, 90, 'SAL', 'S', 0, 0, 1, 0))
               AS tipo (numero, id, nombre, tantos, tasa, mora, plazo, monto_min, monto_max, avales, periodo, vencida,
                        finalidad, iva, grupal, comision, nivel, reciprocidad)) AS t,
       calculo AS normal, calculo AS mora
 WHERE normal.descripcioncalculo = 'Interés normal sobre saldo insoluto'
   AND mora.descripcioncalculo = 'Interés moratorio sobre saldo insoluto';
