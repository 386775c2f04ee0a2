-- Bank accounts.
BEGIN;
SELECT no_plan();

\ir apoyo/modelo.sql
INSERT INTO modelo (valor, numero)
SELECT * FROM unnest(ARRAY[
  $$'123            '$$, $$'Banco'$$, $$'2026-03-05'$$, '1.100000', '-2.200000', '3.300000', $$'{1}'$$, $$'A'$$,
  '4000000000']) WITH ORDINALITY;

SELECT is(pg_temp.guarda('spibanco', 0, ''), '', 'una cuenta');
SELECT is(pg_temp.leido('spsbanco(''123'')'),
          comun.rellena('123|{1}|Banco|2026-03-05|1.10|-2.20|3.30|A|4000000000', valores),
          'las 9 columnas, cada una en su lugar') FROM cuentas;
SELECT is(pg_temp.guarda('spibanco', 0, ''), 'La cuenta bancaria 123 ya existe', 'no se repite');
SELECT is(pg_temp.guarda('spubanco', cambiado, nuevo), comun.rellena(esperado, valores),
          format('argumento %s: %s', cambiado, nuevo))
  FROM cuentas, (VALUES
    (1, '''''', 'Falta la cuenta'),
    (1, quote_literal(repeat('9', 16)), 'No cabe la cuenta: tiene 16 caracteres y admite 15'),
    (1, '''99''', 'La cuenta bancaria 99 no existe'),
    (2, '''''', 'Falta el banco'),
    (2, quote_literal(repeat('ñ', 28)), 'No cabe el banco: tiene 28 caracteres y admite 27'),
    (3, '''31/02/2026''', 'La fecha "31/02/2026" no existe en el calendario'),
    (3, '''ayer''', 'La fecha "ayer" no tiene la forma dd/mm/aaaa ni aaaa-mm-dd'),
    (4, '1e12', 'Está fuera de rango el saldo inicial: 1000000000000 no está entre -999999999999.99 y 999999999999.99'),
    (5, '''NaN''', 'Está fuera de rango el saldo actual: NaN no está entre -999999999999.99 y 999999999999.99'),
    (6, 'NULL', 'Falta el saldo pendiente'),
    (7, '''''', 'Falta la cuenta contable'),
    (7, '''{C}''', 'No es afectable la cuenta contable: {C} acumula a otras cuentas'),
    (7, '''7777''', 'No existe la cuenta contable: 7777 no está en el catálogo de cuentas'),
    (8, '''''', 'Falta la serie'),
    (8, '''ABC''', 'No cabe la serie: tiene 3 caracteres y admite 2'),
    (9, '-1', 'Está fuera de rango el número de cheque: -1 no está entre 0 y 9223372036854775807')
  ) AS caso (cambiado, nuevo, esperado);
SELECT is(pg_temp.leido('spsbanco(''123'')'),
          comun.rellena('123|{1}|Banco|2026-03-05|1.10|-2.20|3.30|A|4000000000', valores),
          'lo rechazado no cambia nada') FROM cuentas;

SELECT is(pg_temp.guarda('spubanco', 3, fecha), '', 'fecha ' || fecha)
  FROM unnest(ARRAY['''05/03/2026''', '''0000-00-00''', '''1900-01-01''', '''''']) AS fecha;
SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT fecha_inicio IS NULL FROM spsbanco('123')$$, 'true'),
    ($$SELECT octet_length(no_cuenta) || ' ' || octet_length(cuentaid) FROM spsbanco('123')$$, '15 24'),
    ($$SELECT spdbanco('123')$$, ''),
    ($$SELECT spdbanco('123')$$, 'La cuenta bancaria 123 no existe'),
    ($$SELECT array_agg(no_cuenta) = array_agg(no_cuenta ORDER BY banco COLLATE "es-MX-x-icu", no_cuenta) AND count(*) = 5 FROM spsbanco('  ')$$,
     'true'),
    ($$SELECT count(*) FROM spsbanco('99')$$, '0')
  ) AS paso (sentencia, esperado);
SELECT is((SELECT count(*) FROM sur.banco), 3::bigint, 'cada sucursal tiene las suyas');

SELECT * FROM finish();
ROLLBACK;
