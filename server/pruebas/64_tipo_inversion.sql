-- Investment types.
BEGIN;
SELECT no_plan();

\ir apoyo/modelo.sql
INSERT INTO modelo (valor, numero)
SELECT * FROM unnest(ARRAY[
  $$'Q  '$$, $$'{1}'$$, $$'{2}'$$, '3', $$'{3}'$$, $$'{4}'$$, $$'{5}'$$, $$'{6}'$$, $$'Prueba'$$, '8.500000', '28',
  $$'S'$$, '1', '0', $$'PS'$$, $$'{7}'$$, '1', '75000.500000', '1500.250000', '364']) WITH ORDINALITY;

SELECT is(pg_temp.guarda('spitipoinversion', 0, ''), '', 'un tipo con sus siete cuentas');
SELECT is(pg_temp.leido('spstipoinversion(''Q'')'), comun.rellena(
            'Q|{1}|{2}|3|{3}|{4}|{5}|{6}|Prueba|8.500000|28|S|1|0|PS|{7}|1|75000.50|1500.25|364', valores),
          'las 20 columnas, cada una en su lugar') FROM cuentas;
SELECT is(pg_temp.guarda('spitipoinversion', 0, ''), 'El tipo de inversión Q ya existe', 'no se repite');

SELECT is(pg_temp.guarda('sputipoinversion', cambiado, nuevo), comun.rellena(esperado, valores),
          format('argumento %s: %s', cambiado, nuevo))
  FROM cuentas, (VALUES
    (1, '''''', 'Falta la clave'),
    (1, '''ABCD''', 'No cabe la clave: tiene 4 caracteres y admite 3'),
    (1, '''ZZ''', 'El tipo de inversión ZZ no existe'),
    (2, '''''', 'Falta la cuenta de riesgo crediticio'),
    (2, '''{C}''', 'No es afectable la cuenta de riesgo crediticio: {C} acumula a otras cuentas'),
    (3, '''''', 'Falta la cuenta de interés no cobrado'),
    (3, '''{C}''', 'No es afectable la cuenta de interés no cobrado: {C} acumula a otras cuentas'),
    (4, '0', 'Falta la fórmula de cálculo'),
    (4, '99', 'No existe la fórmula de cálculo: número 99'),
    (5, '''''', 'Falta la cuenta de pasivo'),
    (5, '''{C}''', 'No es afectable la cuenta de pasivo: {C} acumula a otras cuentas'),
    (5, '''7777''', 'No existe la cuenta de pasivo: 7777 no está en el catálogo de cuentas'),
    (6, '''''', 'Falta la cuenta de pasivo vencida'),
    (6, '''{C}''', 'No es afectable la cuenta de pasivo vencida: {C} acumula a otras cuentas'),
    (7, '''''', 'Falta la cuenta de interés de la inversión'),
    (7, '''{C}''', 'No es afectable la cuenta de interés de la inversión: {C} acumula a otras cuentas'),
    (8, '''''', 'Falta la cuenta de IVA de la inversión'),
    (8, '''{C}''', 'No es afectable la cuenta de IVA de la inversión: {C} acumula a otras cuentas'),
    (9, '''''', 'Falta la descripción'),
    (9, quote_literal(repeat('ñ', 32)), 'No cabe la descripción: tiene 32 caracteres y admite 31'),
    (10, '0.000000', 'Está fuera de rango la tasa: 0.000000 no está entre 0.000001 y 9999.999999'),
    (11, '0', 'Está fuera de rango el plazo mínimo: 0 no está entre 1 y 99999'),
    (12, '''X''', 'Debe ser S o N la marca de aplicar IVA'),
    (13, '2', 'Está fuera de rango la marca de aplicar ISR: 2 no está entre 0 y 1'),
    (14, '-1', 'Está fuera de rango la marca de reinvertir interés: -1 no está entre 0 y 1'),
    (15, '''ZZ''', 'No existe el tipo de movimiento: ZZ'),
    (15, '''ZZZ''', 'No cabe el tipo de movimiento: tiene 3 caracteres y admite 2'),
    (16, '''''', 'Falta la cuenta de provisión de ISR'),
    (16, '''{C}''', 'No es afectable la cuenta de provisión de ISR: {C} acumula a otras cuentas'),
    (17, '-1', 'Está fuera de rango la clasificación: -1 no está entre 0 y 1'),
    (18, '0', 'Está fuera de rango el monto máximo: 0 no está entre 0.01 y 999999999999.99'),
    (18, '1000.000000', 'El monto mínimo 1500.25 es mayor que el monto máximo 1000.00'),
    (19, '0', 'Está fuera de rango el monto mínimo: 0 no está entre 0.01 y 999999999999.99'),
    (20, '0', 'Está fuera de rango el plazo máximo: 0 no está entre 1 y 99999')
  ) AS caso (cambiado, nuevo, esperado);
SELECT is(pg_temp.leido('spstipoinversion(''Q'')'), comun.rellena(
            'Q|{1}|{2}|3|{3}|{4}|{5}|{6}|Prueba|8.500000|28|S|1|0|PS|{7}|1|75000.50|1500.25|364', valores),
          'lo rechazado no cambia nada') FROM cuentas;

SELECT is(pg_temp.guarda('sputipoinversion', 15, ''''''), '', 'sin tipo de movimiento');
SELECT is(como('adriana', 'norte', $$SELECT octet_length(tipomovimientoid) FROM spstipoinversion('Q')$$), '2',
          'que se lee en blanco');
SELECT is(pg_temp.guarda('sputipoinversion', 19, '75000.500000'), '', 'el monto mínimo puede ser el máximo');
SELECT is(pg_temp.guarda('sputipoinversion', 20, '1'), '', 'el plazo mínimo no se compara con el máximo');

SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT spitasa('','Q','','2026-03-01','',1,1) > 0$$, 'true'),
    ($$SELECT spdtipoinversion('Q')$$, 'No se puede borrar el tipo de inversión Q porque se usa en: 1 tasas'),
    ($$SELECT spdtasa(max(tasaid)) FROM tasa$$, ''),
    ($$SELECT spdtipoinversion('Q')$$, ''),
    ($$SELECT spdtipoinversion('Q')$$, 'El tipo de inversión Q no existe'),
    ($$SELECT string_agg(tipoinversionid, ' ') FROM spstipoinversion('  ')$$, 'CAP 182 028 364 091 CRE'),
    ($$SELECT count(*) FROM spstipoinversion('ZZ')$$, '0')
  ) AS paso (sentencia, esperado);

SELECT * FROM finish();
ROLLBACK;
