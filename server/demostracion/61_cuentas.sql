-- The chart of accounts of a savings institution, in the form 9999-99-99-99-9999: the accounts of the list, and one for
-- each product below each account of the families. An account accumulates in the one with its last part at zero.
WITH RECURSIVE cuenta_propia (numero, nombre) AS (VALUES
  ('1000', 'Activo'),
  ('1100', 'Disponibilidades'),
  ('1101', 'Caja'), ('1101-01', 'Caja general'), ('1101-02', 'Caja chica'), ('1101-03', 'Bóveda'),
  ('1102', 'Bancos'), ('1102-01', 'Banco del Valle'), ('1102-02', 'Banco Mercantil de Ensueño'),
  ('1102-03', 'Banco de la Sierra'), ('1102-04', 'Banco Costa Azul'), ('1102-05', 'Banco de la Frontera'),
  ('1200', 'Inversiones en valores'), ('1201', 'Valores gubernamentales'), ('1202', 'Pagarés bancarios'),
  ('1300', 'Cartera de crédito'), ('1301', 'Cartera vigente'), ('1302', 'Cartera vencida'),
  ('1303', 'Interés devengado vigente'), ('1304', 'Interés devengado vencido'), ('1305', 'Moratorio por cobrar'),
  ('1390', 'Estimación preventiva'),
  ('1400', 'Otras cuentas por cobrar'), ('1401', 'Deudores diversos'), ('1401-01', 'Préstamos al personal'),
  ('1401-02', 'Gastos por comprobar'), ('1402', 'IVA acreditable'), ('1403', 'Impuestos a favor'),
  ('1600', 'Inmuebles, mobiliario y equipo'), ('1601', 'Terrenos'), ('1602', 'Edificios'), ('1603', 'Mobiliario'),
  ('1604', 'Equipo de cómputo'), ('1605', 'Equipo de transporte'), ('1690', 'Depreciación acumulada'),
  ('1690-02', 'Depreciación de edificios'), ('1690-03', 'Depreciación de mobiliario'),
  ('1690-04', 'Depreciación de cómputo'), ('1690-05', 'Depreciación de transporte'),
  ('1900', 'Otros activos'), ('1901', 'Pagos anticipados'), ('1902', 'Depósitos en garantía'),
  ('2000', 'Pasivo'),
  ('2100', 'Captación'), ('2101', 'Depósitos de ahorro'), ('2111', 'Depósitos a plazo'),
  ('2112', 'Interés por pagar de plazo'), ('2113', 'Depósitos a plazo vencidos'),
  ('2300', 'Otras cuentas por pagar'), ('2301', 'Proveedores'), ('2302', 'Acreedores diversos'),
  ('2303', 'Fondo de previsión social'), ('2304', 'Fondo de recuperación de cartera'),
  ('2400', 'Impuestos por pagar'), ('2401', 'IVA'), ('2401-01', 'IVA trasladado cobrado'),
  ('2401-02', 'IVA de intereses'), ('2401-03', 'Provisión de IVA'), ('2401-04', 'IVA de comisiones'),
  ('2402', 'ISR'), ('2402-01', 'ISR retenido a socios'), ('2402-02', 'Provisión de ISR a socios'),
  ('2402-03', 'ISR retenido al personal'), ('2403', 'Impuesto a los depósitos'), ('2404', 'Cuotas de seguridad social'),
  ('3000', 'Capital contable'),
  ('3100', 'Capital social'), ('3101', 'Partes sociales'), ('3102', 'Certificados excedentes'),
  ('3200', 'Reservas'), ('3201', 'Fondo de reserva'), ('3202', 'Fondo de obra social'),
  ('3300', 'Resultados'), ('3301', 'Resultados de ejercicios anteriores'), ('3302', 'Resultado del ejercicio'),
  ('4000', 'Ingresos'),
  ('4100', 'Ingresos por cartera'), ('4101', 'Interés normal cobrado'), ('4102', 'Interés moratorio cobrado'),
  ('4103', 'Moratorio de vencida'), ('4104', 'Interés normal devengado'), ('4105', 'Interés moratorio devengado'),
  ('4106', 'Interés normal de vencida'), ('4107', 'Interés normal de vigente'), ('4108', 'Comisión por apertura'),
  ('4200', 'Ingresos por ahorro'), ('4201', 'Comisión de manejo'), ('4202', 'Interés cobrado'),
  ('4300', 'Otros ingresos'), ('4301', 'Intereses de bancos'), ('4302', 'Recuperación de gastos de administración'),
  ('4303', 'Venta de activos'),
  ('5000', 'Egresos'),
  ('5100', 'Intereses pagados'), ('5101', 'Interés de ahorro'), ('5111', 'Interés de plazo'),
  ('5200', 'Estimaciones'), ('5201', 'Estimación del ejercicio'),
  ('5300', 'Depreciaciones'), ('5302', 'Depreciación de edificios'), ('5303', 'Depreciación de mobiliario'),
  ('5304', 'Depreciación de cómputo'), ('5305', 'Depreciación de transporte'),
  ('5400', 'Gastos de administración'), ('5401', 'Sueldos y prestaciones'), ('5402', 'Honorarios'),
  ('5403', 'Rentas'), ('5404', 'Luz, agua y teléfono'), ('5405', 'Papelería'), ('5406', 'Vigilancia'),
  ('5407', 'Comisiones de bancos'), ('5408', 'Asamblea y educación cooperativa'),
  ('6000', 'Cuentas de orden'),
  ('6100', 'Cuentas de orden deudoras'), ('6101', 'Avales recibidos'), ('6102', 'Interés vencido'),
  ('6103', 'Garantías recibidas'), ('6104', 'Interés bonificado'), ('6105', 'Valores en custodia'),
  ('6200', 'Cuentas de orden acreedoras'), ('6201', 'Avales por contra'), ('6202', 'Interés vencido por contra'),
  ('6203', 'Garantías por contra'), ('6204', 'Bonificado por contra'), ('6205', 'Custodia por contra')),
producto (clase, parte, nombre) AS (VALUES
  ('préstamo', '-01', 'Ordinario'), ('préstamo', '-02', 'Automotriz'), ('préstamo', '-03', 'Nómina'),
  ('préstamo', '-04', 'Agropecuario'), ('préstamo', '-05', 'Vivienda'), ('préstamo', '-06', 'Microempresa'),
  ('préstamo', '-07', 'Grupal'), ('préstamo', '-08', 'Emergente'),
  ('ahorro', '-01', 'Ordinario'), ('ahorro', '-02', 'Menores'), ('ahorro', '-03', 'Parte social'),
  ('ahorro', '-04', 'Navideño'), ('ahorro', '-05', 'Vacacional'), ('ahorro', '-06', 'Escolar'),
  ('ahorro', '-07', 'Garantía'), ('ahorro', '-08', 'A la vista'),
  ('inversión', '-01', '28 días'), ('inversión', '-02', '91 días'), ('inversión', '-03', '182 días'),
  ('inversión', '-04', '364 días'), ('inversión', '-05', 'Creciente'), ('inversión', '-06', 'Certificado')),
familia (clase, numeros) AS (VALUES
  ('préstamo', '{1301,1302,1303,1304,1305,1390,4101,4102,4103,4104,4105,4106,4107,4108,5201,6101,6102,6103,6104,6201,
                 6202,6203,6204}'::text[]),
  ('ahorro', '{2101,4201,5101}'),
  ('inversión', '{2111,2112,2113,5111}')),
cuenta (numero, nombre) AS (
  SELECT numero, nombre FROM cuenta_propia
  UNION ALL
  SELECT c.numero || p.parte, c.nombre || ': ' || p.nombre
    FROM familia f CROSS JOIN LATERAL unnest(f.numeros) AS n (numero)
    JOIN cuenta_propia c USING (numero) JOIN producto p USING (clase)),
completa AS (
  SELECT numero || substr('0000-00-00-00-0000', length(numero) + 1) AS id, nombre,
         CASE WHEN numero LIKE '%-%' THEN left(numero, 4)
              WHEN numero NOT LIKE '%00' THEN left(numero, 2) || '00'
              WHEN numero NOT LIKE '%000' THEN left(numero, 1) || '000'
         END || '-00-00-00-0000' AS acumula,
         -- debit: assets but for the two accounts that lessen them, expenses, and half of the memorandum accounts
         CASE WHEN numero !~ '^1[36]90' AND numero ~ '^(1|5|6[01])' THEN 'D' ELSE 'A' END AS naturaleza
    FROM cuenta),
-- Balances are made up from the number; those above are the sums of those below, less what is of the other nature.
afectable AS (
  SELECT id, acumula, naturaleza, ('x' || substr(md5(id || :'juego'), 1, 7))::bit(28)::integer AS cifra
    FROM completa WHERE id NOT IN (SELECT acumula FROM completa WHERE acumula IS NOT NULL)),
aporte (id, acumula, naturaleza, saldo, cargos, abonos) AS (
  SELECT id, acumula, naturaleza, cifra % 90000000 / 100.0, cifra % 7000000 / 100.0, cifra % 6000000 / 100.0
    FROM afectable
  UNION ALL
  SELECT c.id, c.acumula, a.naturaleza, a.saldo, a.cargos, a.abonos FROM aporte a JOIN completa c ON c.id = a.acumula)
INSERT INTO catalogo_ctas (cuentaid, cuentaacumula, identificacion, cuentanombre, tipo_cta, estado_cta, fecha_estado,
                           fecha_ult_mov, naturaleza, digito_agrupador, saldo_inic_ejer, cargos_acum_ejer,
                           abonos_acum_ejer)
SELECT c.id, c.acumula, left(c.id, 1), c.nombre, CASE WHEN f.id IS NULL THEN 'C' ELSE 'A' END, 'A', '2024-01-01',
       '2026-10-30', c.naturaleza, left(c.id, 1)::integer,
       sum(CASE WHEN a.naturaleza = c.naturaleza THEN a.saldo ELSE -a.saldo END), sum(a.cargos), sum(a.abonos)
  FROM completa c JOIN aporte a USING (id) LEFT JOIN afectable f USING (id)
 GROUP BY c.id, c.acumula, c.nombre, c.naturaleza, f.id
 ORDER BY c.id;

-- Whoever works at a till works on the general cash account.
UPDATE parametro SET cuentacaja = '1101-01-00-00-0000' WHERE cuentacaja IS NULL;
