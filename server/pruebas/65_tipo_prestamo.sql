-- Loan types: the stored functions, the direct update that completes them, and who may write what.
BEGIN;
SELECT no_plan();

\ir apoyo/modelo.sql
INSERT INTO modelo (valor, numero)
SELECT * FROM unnest(ARRAY[
  $$'Q  '$$, $$'Prueba'$$, '7', '24.250000', '1234.560059', $$'GL'$$, $$'{1}'$$, $$'{2}'$$, $$'{3}'$$, $$'{4}'$$,
  $$'{5}'$$, $$'{6}'$$, $$'{7}'$$, $$'{8}'$$, $$'{9}'$$, $$'{10}'$$, $$'{11}'$$, $$'S'$$, '91', $$'{12}'$$,
  $$'{13}'$$, $$'{14}'$$, $$'{15}'$$, $$'{16}'$$, $$'{17}'$$, $$'{18}'$$, $$'{19}'$$, $$'{20}'$$, $$'{21}'$$, '3',
  '4', $$'MEJ'$$]) WITH ORDINALITY;

-- The client's second statement, with one of its assignments changed.
CREATE FUNCTION pg_temp.directo(usuario text, columna text, nuevo text, otra text DEFAULT 'Q  ') RETURNS text
LANGUAGE sql AS $$
  SELECT como(usuario, 'norte', comun.rellena(format('update tipoprestamo set %s where tipoprestamoid=%L;',
                string_agg(format('%I=%s', c, CASE WHEN c = columna THEN nuevo ELSE v END), ','), otra),
              min(valores::text)::jsonb))
    FROM cuentas, (VALUES
      ('cuentaintnormalresvigente', '''{22}'''), ('cuentaordenavalacredor', '''{23}'''),
      ('cuentagarantiadeudor', '''{24}'''), ('cuentagarantiaacredor', '''{25}'''), ('cuentaprovisioniva', '''{26}'''),
      ('montomaximo', '90000.500000'), ('plazomaximo', '720'), ('montominimo', '1500.250000'), ('avalesminimos', '2'),
      ('periododiasdefault', '30'), ('estatus', '1'), ('comision', '1.500000'), ('ivacomision', '16.000000'),
      ('cuentacomision', '''{27}'''), ('cuentaivacomision', '''{28}'''), ('nivelautorizacion', '3'),
      ('reciprocidad', '12.500000'), ('prestamogrupal', '0'), ('clasificacioncontable', '''1301-Q''')) AS a (c, v)
$$;

SELECT is(pg_temp.guarda('spitipoprestamo', 0, ''), '', 'la primera parte de un tipo');
SELECT is(pg_temp.directo('adriana', '', ''), '', 'la segunda');
SELECT is(pg_temp.leido('spstipoprestamo(''Q  '')'), comun.rellena(
            'Q|{1}|{2}|{3}|{4}|{5}|{6}|{7}|{8}|{9}|{11}|{10}|GL|Prueba|7|24.250000|1234.560059|S|91|{12}|{13}|{14}|{15}'
            '|{16}|{17}|{18}|{19}|{20}|{21}|3|4|MEJ|{22}|{23}|{24}|{25}|{26}|90000.50|720|1500.25|2|30|1|1.500000'
            '|16.000000|{27}|{28}|3|12.500000|0|1301-Q', valores),
          'las 51 columnas, cada una en su lugar') FROM cuentas;
SELECT is(pg_temp.guarda('spitipoprestamo', 0, ''), 'El tipo de préstamo Q ya existe', 'no se repite');
SELECT is(pg_temp.guarda('sputipoprestamo', 2, '''Prueba 2'''), '', 'se cambia');
SELECT is(como('adriana', 'norte', 'SELECT desctipoprestamo || montomaximo FROM spstipoprestamo(''Q'')'),
          'Prueba 290000.50', 'y conserva lo que la otra parte escribió');

-- What the stored functions refuse: the accounts first.
SELECT is(pg_temp.guarda('sputipoprestamo', numero, nuevo), comun.rellena(esperado, valores),
          format('argumento %s: %s', numero, nuevo))
  FROM cuentas, (VALUES
    (7, 'la cuenta de activo'), (8, 'la cuenta de activo vencida'), (9, 'la cuenta de interés normal'),
    (10, 'la cuenta de interés normal vencido'), (11, 'la cuenta de interés normal no cobrado'),
    (12, 'la cuenta de interés moratorio'), (13, 'la cuenta de interés moratorio vencido'), (14, 'la cuenta de IVA'),
    (16, 'la cuenta de orden de aval'), (17, 'la cuenta de orden de interés'),
    (20, 'la cuenta de interés normal devengado de resultados'),
    (22, 'la cuenta de interés moratorio no cobrado de activo'),
    (23, 'la cuenta de interés moratorio devengado de resultados')) AS c (numero, campo),
  LATERAL (VALUES ('''''', 'Falta ' || campo),
                  ('''{C}''', format('No es afectable %s: {C} acumula a otras cuentas', campo)),
                  ('''7777''', format('No existe %s: 7777 no está en el catálogo de cuentas', campo)))
    AS r (nuevo, esperado);
SELECT is(pg_temp.guarda('sputipoprestamo', numero, '''{C}'''), comun.rellena(
            format('No es afectable %s: {C} acumula a otras cuentas', campo), valores), campo || ', si se da')
  FROM cuentas, (VALUES
    (24, 'la cuenta de orden deudora de interés bonificado'),
    (25, 'la cuenta de orden acreedora de interés bonificado'),
    (26, 'la cuenta de fondo de recuperación'), (27, 'la cuenta de gastos de administración'),
    (28, 'la cuenta de interés normal de resultados vencida'), (29, 'la cuenta de orden de interés acreedora'))
    AS c (numero, campo);
SELECT is(pg_temp.guarda('sputipoprestamo', numero, ''''''), '', format('el argumento %s puede faltar', numero))
  FROM unnest(ARRAY[6, 21, 24, 25, 26, 27, 28, 29]) AS numero;
SELECT is(pg_temp.guarda('sputipoprestamo', numero, '''{C}'''), '',
          format('el argumento %s puede ser cualquier cuenta', numero))
  FROM unnest(ARRAY[15, 21]) AS numero;
SELECT is(pg_temp.guarda('sputipoprestamo', cambiado, nuevo), esperado, format('argumento %s: %s', cambiado, nuevo))
  FROM (VALUES
    (1, '''''', 'Falta la clave'),
    (1, '''ABCD''', 'No cabe la clave: tiene 4 caracteres y admite 3'),
    (1, '''ZZ''', 'El tipo de préstamo ZZ no existe'),
    (2, '''''', 'Falta la descripción'),
    (2, quote_literal(repeat('ñ', 32)), 'No cabe la descripción: tiene 32 caracteres y admite 31'),
    (3, '-1', 'Está fuera de rango el número de tantos: -1 no está entre 0 y 99999'),
    (4, '-0.5', 'Está fuera de rango la tasa normal: -0.5 no está entre 0 y 9999.999999'),
    (5, '1e30',
     'Está fuera de rango la tasa moratoria: 1000000000000000000000000000000 no está entre 0 y 9999.999999'),
    (6, '''ZZ''', 'No existe el movimiento de garantía: ZZ'),
    (7, quote_literal(repeat('9', 25)), 'No cabe la cuenta de activo: tiene 25 caracteres y admite 24'),
    (15, '''''', 'Falta la cuenta de riesgo crediticio'),
    (18, '''X''', 'Debe ser S o N la marca de aplicar IVA'),
    (19, '0', 'Está fuera de rango el plazo para traspasar a vencida: 0 no está entre 1 y 99999'),
    (30, '0', 'Falta la fórmula de interés normal'),
    (30, '99', 'No existe la fórmula de interés normal: número 99'),
    (31, '0', 'Falta la fórmula de interés moratorio'),
    (32, '''''', 'Falta la finalidad'),
    (32, '''ZZ''', 'No existe la finalidad: ZZ')
  ) AS caso (cambiado, nuevo, esperado);

-- What the direct update refuses.
SELECT is(pg_temp.directo('adriana', columna, nuevo), comun.rellena(esperado, valores), columna || '=' || nuevo)
  FROM cuentas, (VALUES
    ('cuentaintnormalresvigente', '''{C}''',
     'No es afectable la cuenta de interés normal de resultados vigente: {C} acumula a otras cuentas'),
    ('cuentaordenavalacredor', '''''', 'Falta la cuenta de orden de aval acreedora'),
    ('cuentaordenavalacredor', '''{C}''',
     'No es afectable la cuenta de orden de aval acreedora: {C} acumula a otras cuentas'),
    ('cuentagarantiadeudor', '''''', 'Falta la cuenta de garantías deudora'),
    ('cuentagarantiadeudor', '''{C}''',
     'No es afectable la cuenta de garantías deudora: {C} acumula a otras cuentas'),
    ('cuentagarantiaacredor', '''''', 'Falta la cuenta de garantías acreedora'),
    ('cuentagarantiaacredor', '''{C}''',
     'No es afectable la cuenta de garantías acreedora: {C} acumula a otras cuentas'),
    ('cuentaprovisioniva', 'NULL', 'Falta la cuenta de provisión de IVA'),
    ('cuentaprovisioniva', '''7777''',
     'No existe la cuenta de provisión de IVA: 7777 no está en el catálogo de cuentas'),
    ('montomaximo', '-1', 'Está fuera de rango el monto máximo: -1 no está entre 0 y 999999999999.99'),
    ('montomaximo', '1000000000000000019884624838656.000000',
     'Está fuera de rango el monto máximo: 1000000000000000019884624838656.000000 no está entre 0 y 999999999999.99'),
    ('plazomaximo', '-1', 'Está fuera de rango el plazo máximo: -1 no está entre 0 y 99999'),
    ('montominimo', '0.000000', 'Está fuera de rango el monto mínimo: 0.000000 no está entre 0.01 y 999999999999.99'),
    ('avalesminimos', '-1', 'Está fuera de rango el número de avales: -1 no está entre 0 y 99999'),
    ('periododiasdefault', '-1', 'Está fuera de rango el periodo: -1 no está entre 0 y 99999'),
    ('estatus', '2', 'Está fuera de rango el estatus: 2 no está entre 0 y 1'),
    ('comision', '''NaN''', 'Está fuera de rango la comisión: NaN no está entre 0 y 999999999999.99'),
    ('ivacomision', '-1', 'Está fuera de rango el IVA de la comisión: -1 no está entre 0 y 999999999999.99'),
    ('cuentacomision', '''''', 'Falta la cuenta de comisión'),
    ('cuentaivacomision', '''7777''',
     'No existe la cuenta de IVA de la comisión: 7777 no está en el catálogo de cuentas'),
    ('nivelautorizacion', '-1', 'Está fuera de rango el nivel de autorización: -1 no está entre 0 y 99999'),
    ('reciprocidad', '-1', 'Está fuera de rango la reciprocidad: -1 no está entre 0 y 999999999999.99'),
    ('prestamogrupal', '2', 'Está fuera de rango la marca de préstamo grupal: 2 no está entre 0 y 1'),
    ('clasificacioncontable', '''''', 'Falta la clasificación contable'),
    ('clasificacioncontable', quote_literal(repeat('9', 25)),
     'No cabe la clasificación contable: tiene 25 caracteres y admite 24')
  ) AS caso (columna, nuevo, esperado);
SELECT is(como('adriana', 'norte', 'SELECT montomaximo || rtrim(clasificacioncontable) FROM spstipoprestamo(''Q'')'),
          '90000.501301-Q', 'lo rechazado no cambia nada');
SELECT is(pg_temp.directo('adriana', columna, nuevo), '', columna || '=' || nuevo)
  FROM (VALUES ('cuentaintnormalresvigente', ''''''), ('montomaximo', '0.000000'), ('cuentacomision', '''{C}'''),
               ('clasificacioncontable', '''It''''s 100%''')) AS caso (columna, nuevo);

-- Who may: only with the right, only those columns, only by changing.
SELECT is(pg_temp.directo('camila', '', ''), 'permission denied for table tipoprestamo',
          'la segunda parte también pide permiso');
SELECT is(pg_temp.directo('camila', '', '', 'ZZ'), 'permission denied for table tipoprestamo',
          'aunque no haya nada que cambiar');
SELECT is(como('adriana', 'norte', sentencia), 'permission denied for table tipoprestamo', sentencia)
  FROM unnest(ARRAY[$$update tipoprestamo set desctipoprestamo='x' where tipoprestamoid='Q'$$,
                    $$update tipoprestamo set tasa_normal=0$$, $$update tipoprestamo set tipoprestamoid='W'$$,
                    $$delete from tipoprestamo$$, $$truncate tipoprestamo$$,
                    $$insert into tipoprestamo (tipoprestamoid) values ('W')$$]) AS sentencia;
SELECT is((SELECT nuevo ->> 'clasificacioncontable' FROM norte.bitacora
            WHERE tabla = 'tipoprestamo' AND clave = 'Q' AND usuario = 'adriana' AND operacion = 'UPDATE'
            ORDER BY bitacoraid DESC LIMIT 1), 'It''s 100%', 'la bitácora guarda también lo directo');

SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT octet_length(cuentaintnormalresvigente) FROM spstipoprestamo('Q')$$, '24'),
    ($$SELECT spitasa('Q','','','2026-03-01','',1,1) > 0$$, 'true'),
    ($$SELECT spdtipoprestamo('Q')$$, 'No se puede borrar el tipo de préstamo Q porque se usa en: 1 tasas'),
    ($$SELECT spdtasa(max(tasaid)) FROM tasa$$, ''),
    ($$SELECT spdtipoprestamo('Q  ')$$, ''),
    ($$SELECT spdtipoprestamo('Q')$$, 'El tipo de préstamo Q no existe'),
    ($$SELECT string_agg(tipoprestamoid, ' ') FROM spstipoprestamo('   ')$$, 'AGR AUT EME GRU EMP NOM ORD VIV')
  ) AS paso (sentencia, esperado);

-- A row that nobody has completed yet can be read.
SELECT is(pg_temp.guarda('spitipoprestamo', 0, ''), '', 'otra vez la primera parte sola');
SELECT is(como('adriana', 'norte', 'SELECT montomaximo IS NULL AND octet_length(cuentacomision) = 24 '
                                   'FROM spstipoprestamo(''Q'')'), 'true', 'lo que falta se lee en blanco');

-- The demonstration's types pass what the functions ask of them.
SELECT is_empty($$ SELECT tipoprestamoid, columna
                     FROM norte.tipoprestamo AS t, jsonb_each_text(to_jsonb(t)) AS c (columna, v)
                     JOIN norte.catalogo_ctas ON cuentaid = v::bpchar
                    WHERE tipo_cta <> 'A' $$, 'las cuentas de la demostración son afectables');
SELECT is_empty($$ SELECT tipoprestamoid, columna
                     FROM norte.tipoprestamo AS t, jsonb_each_text(to_jsonb(t)) AS c (columna, v)
                    WHERE tipoprestamoid <> 'Q' AND btrim(coalesce(v, '')) = '' $$, 'y están todas');

SELECT * FROM finish();
ROLLBACK;
