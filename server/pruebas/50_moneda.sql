-- Currencies through the functions, each row after the one above: adriana may, braulio may, camila may not.
BEGIN;
SELECT no_plan();

SELECT is(como(usuario, 'norte', sentencia), esperado, usuario || ': ' || sentencia)
  FROM (VALUES
    ('braulio', $$SELECT spimoneda('X','Equis',3.250000)$$, ''),
    ('braulio', $$SELECT monedaid || '|' || monedavalor || '|' || monedadescri FROM spsmoneda('X')$$, 'X|3.250000|Equis'),
    ('braulio', $$SELECT octet_length(monedaid) FROM spsmoneda('X ')$$, '2'),
    ('braulio', $$SELECT spimoneda('X ','Otra',1)$$, 'La moneda X ya existe'),
    ('braulio', $$SELECT spumoneda('X ','Equis nueva',0)$$, ''),
    ('braulio', $$SELECT monedavalor FROM spsmoneda('X')$$, '0.000000'),
    ('braulio', $$SELECT spumoneda('ZZ','Nada',1)$$, 'La moneda ZZ no existe'),
    ('braulio', $$SELECT count(*) FROM spsmoneda('ZZ')$$, '0'),
    ('braulio', $$SELECT count(*) FROM spsmoneda('MXN')$$, '0'),
    ('braulio', $$SELECT count(*) FROM spsmoneda('  ')$$, '11'),
    ('braulio', $$SELECT count(*) FROM spsmoneda('')$$, '11'),
    ('braulio', $$SELECT count(*) FROM spsmoneda(NULL)$$, '11'),
    ('braulio', $$SELECT string_agg(rtrim(monedaid), ' ') FROM spsmoneda('  ')$$, 'CA US X EU CH GB CO MX GT UD JP'),
    ('braulio', $$SELECT spimoneda('','Sin clave',1)$$, 'Falta la clave'),
    ('braulio', $$SELECT spimoneda(NULL,NULL,NULL)$$, 'Falta la clave'),
    ('braulio', $$SELECT spimoneda('ABC','Larga',1)$$, 'No cabe la clave: tiene 3 caracteres y admite 2'),
    ('braulio', $$SELECT spimoneda('AB','',1)$$, 'Falta la descripción'),
    ('braulio', $$SELECT spimoneda('AB',repeat('ñ',31),1)$$, 'No cabe la descripción: tiene 31 caracteres y admite 30'),
    ('braulio', $$SELECT spimoneda('AB',repeat('ñ',30),1)$$, ''),
    ('braulio', $$SELECT spimoneda('AC','Negativa',-0.01)$$,
     'Está fuera de rango el valor: -0.01 no está entre 0 y 999999999999'),
    ('braulio', $$SELECT spumoneda('AB','Enorme',1e30)$$,
     'Está fuera de rango el valor: 1000000000000000000000000000000 no está entre 0 y 999999999999'),
    ('braulio', $$SELECT spumoneda('AB','NaN','NaN')$$,
     'Está fuera de rango el valor: NaN no está entre 0 y 999999999999'),
    ('braulio', $$SELECT spimoneda('Q''','It''s 100%',1)$$, ''),
    ('braulio', $$SELECT monedadescri FROM spsmoneda('Q''')$$, 'It''s 100%'),
    ('camila', $$SELECT spimoneda('CC','Sin permiso',1)$$, 'No tiene permiso para la opción Monedas (módulo 0203)'),
    ('camila', $$SELECT spumoneda('X','Sin permiso',1)$$, 'No tiene permiso para la opción Monedas (módulo 0203)'),
    ('camila', $$SELECT spdmoneda('X')$$, 'No tiene permiso para la opción Monedas (módulo 0203)'),
    ('camila', $$SELECT monedadescri FROM spsmoneda('X')$$, 'Equis nueva'),
    ('braulio', $$SELECT spdmoneda('X')$$, ''),
    ('braulio', $$SELECT spdmoneda('X')$$, 'La moneda X no existe'),
    ('braulio', $$SELECT spdmoneda('  ')$$, 'Falta la clave')
  ) AS paso (usuario, sentencia, esperado);

SELECT results_eq(
  $$ SELECT usuario, operacion, anterior ->> 'monedadescri', nuevo ->> 'monedadescri' FROM norte.bitacora
      WHERE tabla = 'moneda' AND clave = 'X' ORDER BY bitacoraid $$,
  $$ VALUES ('braulio'::name, 'INSERT', NULL, 'Equis'), ('braulio', 'UPDATE', 'Equis', 'Equis nueva'),
            ('braulio', 'DELETE', 'Equis nueva', NULL) $$,
  'la bitácora dice quién, qué y con qué valores');
SELECT is((SELECT count(*) FROM sur.moneda WHERE monedaid IN ('X', 'AB')), 0::bigint, 'la otra sucursal no cambia');

-- A table that uses currencies, to see the refusal of a deletion.
CREATE TABLE norte.cuenta_prueba (cuenta integer, moneda character(2) REFERENCES norte.moneda);
COMMENT ON TABLE norte.cuenta_prueba IS 'cuentas de prueba: solo de esta prueba';
INSERT INTO norte.cuenta_prueba VALUES (1, 'GB'), (2, 'GB'), (3, 'US');
GRANT SELECT ON norte.cuenta_prueba TO tolvara_propietario;
SELECT is(como('adriana', 'norte', $$SELECT spdmoneda('GB')$$),
          'No se puede borrar la moneda GB porque se usa en: 2 cuentas de prueba', 'una moneda en uso no se borra');

SELECT is_empty($$ SELECT linea FROM plan('SELECT * FROM norte.spsmoneda(''  '')') AS linea
                    WHERE linea ~ 'Function Scan' $$, 'leer por la función cuesta lo que leer la tabla');

SELECT * FROM finish();
ROLLBACK;
