-- Movement types.
BEGIN;
SELECT no_plan();

\ir apoyo/modelo.sql
INSERT INTO modelo (valor, numero)
SELECT * FROM unnest(ARRAY[
  $$'Q '$$, $$'Prueba'$$, $$'S'$$, $$'{1}'$$, $$'{2}'$$, $$'{3}'$$, $$'{4}'$$, $$'{5}'$$, $$'{6}'$$, $$'D'$$, $$'S'$$,
  $$'N'$$, '3.250000', $$'{7}'$$, $$'{8}'$$, $$'N'$$, $$'{9}'$$, '5.500000', '1.250000', '16.000000', $$'{10}'$$,
  $$'{11}'$$, '1']) WITH ORDINALITY;

SELECT is(pg_temp.guarda('spitipomovimiento', 0, ''), '', 'un tipo con sus once cuentas');
SELECT is(pg_temp.leido('spstipomovimiento(''Q'')'), comun.rellena(
            'Q|{1}|{2}|{3}|{4}|{5}|{6}|Prueba|S|D|S|N|3.250000|{7}|{8}|N|{9}|5.50|1.250000|16.000000|{10}|{11}|1',
            valores),
          'las 23 columnas, cada una en su lugar') FROM cuentas;
SELECT is(pg_temp.guarda('spitipomovimiento', 0, ''), 'El tipo de movimiento Q ya existe', 'no se repite');

SELECT is(pg_temp.guarda('sputipomovimiento', cambiado, nuevo), comun.rellena(esperado, valores),
          format('argumento %s: %s', cambiado, nuevo))
  FROM cuentas, (VALUES
    (1, '''''', 'Falta la clave'),
    (1, '''ABC''', 'No cabe la clave: tiene 3 caracteres y admite 2'),
    (1, '''ZZ''', 'El tipo de movimiento ZZ no existe'),
    (2, '''''', 'Falta la descripción'),
    (2, quote_literal(repeat('ñ', 31)), 'No cabe la descripción: tiene 31 caracteres y admite 30'),
    (3, '''X''', 'Debe ser S o N la marca de aplicar al saldo'),
    (3, '''''', 'Falta la marca de aplicar al saldo'),
    (4, '''''', 'Falta la cuenta de depósito'),
    (4, '''{C}''', 'No es afectable la cuenta de depósito: {C} acumula a otras cuentas'),
    (4, '''7777''', 'No existe la cuenta de depósito: 7777 no está en el catálogo de cuentas'),
    (5, '''{C}''', 'No es afectable la cuenta de retiro: {C} acumula a otras cuentas'),
    (5, '''''', 'Falta la cuenta de retiro'),
    (6, '''{C}''', 'No es afectable la cuenta de interés pagado: {C} acumula a otras cuentas'),
    (6, '''''', 'Falta la cuenta de interés pagado'),
    (7, '''{C}''', 'No es afectable la cuenta de interés cobrado: {C} acumula a otras cuentas'),
    (7, '''''', 'Falta la cuenta de interés cobrado'),
    (8, '''{C}''', 'No es afectable la cuenta de IVA: {C} acumula a otras cuentas'),
    (8, '''''', 'Falta la cuenta de IVA'),
    (9, '''{C}''', 'No es afectable la cuenta de ISR: {C} acumula a otras cuentas'),
    (9, '''''', 'Falta la cuenta de ISR'),
    (10, '''''', 'Falta el tipo de póliza'),
    (10, '''DD''', 'No cabe el tipo de póliza: tiene 2 caracteres y admite 1'),
    (11, '''X''', 'Debe ser S o N la marca de aceptar depósitos'),
    (12, '''X''', 'Debe ser S o N la marca de aceptar retiros'),
    (13, '-0.000001', 'Está fuera de rango la tasa de interés: -0.000001 no está entre 0 y 9999.999999'),
    (13, '1e10', 'Está fuera de rango la tasa de interés: 10000000000 no está entre 0 y 9999.999999'),
    (14, '''{C}''', 'No es afectable la cuenta de orden acreedora: {C} acumula a otras cuentas'),
    (15, '''{C}''', 'No es afectable la cuenta de orden deudora: {C} acumula a otras cuentas'),
    (16, '''X''', 'Debe ser S o N la marca de cuentas de orden'),
    (17, '''{C}''', 'No es afectable la cuenta de provisión de ISR: {C} acumula a otras cuentas'),
    (17, '''''', 'Falta la cuenta de provisión de ISR'),
    (18, '-1', 'Está fuera de rango la cuota de comisión: -1 no está entre 0 y 999999999999.99'),
    (19, '100.5', 'Está fuera de rango el porcentaje de comisión: 100.5 no está entre 0 y 100'),
    (20, '-1', 'Está fuera de rango el porcentaje de IVA de la comisión: -1 no está entre 0 y 100'),
    (21, '''''', 'Falta la cuenta de comisión'),
    (21, '''7777''', 'No existe la cuenta de comisión: 7777 no está en el catálogo de cuentas'),
    (22, '''''', 'Falta la cuenta de IVA de la comisión'),
    (23, '2', 'Está fuera de rango la marca de desglosar IVA: 2 no está entre 0 y 1')
  ) AS caso (cambiado, nuevo, esperado);
SELECT is(pg_temp.leido('spstipomovimiento(''Q'')'), comun.rellena(
            'Q|{1}|{2}|{3}|{4}|{5}|{6}|Prueba|S|D|S|N|3.250000|{7}|{8}|N|{9}|5.50|1.250000|16.000000|{10}|{11}|1',
            valores),
          'lo rechazado no cambia nada') FROM cuentas;

-- What is let through: memorandum accounts may be missing, the commission's accounts may be any of the chart.
UPDATE modelo SET valor = CASE WHEN numero < 20 THEN '''''' ELSE '''{C}''' END WHERE numero IN (14, 15, 21, 22);
SELECT is(pg_temp.guarda('sputipomovimiento', 2, '''It''''s 100%'''), '', 'sin cuentas de orden');
SELECT is(pg_temp.leido('spstipomovimiento(''Q'')'), comun.rellena(
            'Q|{1}|{2}|{3}|{4}|{5}|{6}|It''s 100%|S|D|S|N|3.250000|||N|{9}|5.50|1.250000|16.000000|{C}|{C}|1', valores),
          'una cuenta que falta se lee en blanco') FROM cuentas;

SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT octet_length(cuentaordendeudor) FROM spstipomovimiento('Q')$$, '24'),
    ($$SELECT spitipopromocion('Q','2026-03-01','','x',0,'y') > 0$$, 'true'),
    ($$SELECT spdtipomovimiento('Q')$$,
     'No se puede borrar el tipo de movimiento Q porque se usa en: 1 tipos de promoción'),
    ($$SELECT spdtipopromocion(max(tipopromocionid)) FROM tipopromocion$$, ''),
    ($$SELECT spdtipomovimiento('Q')$$, ''),
    ($$SELECT spdtipomovimiento('Q')$$, 'El tipo de movimiento Q no existe'),
    ($$SELECT count(*) FROM spstipomovimiento('Q')$$, '0'),
    ($$SELECT string_agg(tipomovimientoid, ' ') FROM spstipomovimiento('  ')$$, 'MN ES NV AH VC VI GL PS'),
    ($$SELECT count(*) FROM spstipomovimiento(NULL)$$, '8')
  ) AS paso (sentencia, esperado);

SELECT * FROM finish();
ROLLBACK;
