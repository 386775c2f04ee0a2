-- The chart of accounts: as the functions keep it, and as the demonstration fills it.
BEGIN;
SELECT no_plan();

SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    -- one account, with the dates as the client writes them
    ($$select spicatalogo_ctas('9000',NULL,'6','Prueba','C','A','2026-3-5','0-0-0','D',0.000000,0.000000,0.000000,
                               0.000000);$$, ''),
    ($$select spicatalogo_ctas('9000-01','9000                    ','6','Hija','A','A','1900-1-1','2026-10-31','A',
                               1.500000,-2.250000,3.000000,4.000000);$$, ''),
    ($$SELECT t::text FROM spscatalogo_ctas('9000-01') AS t$$,
     '("9000-01                 ","9000                    ",6,Hija,A,A,,2026-10-31,A,1.50,-2.25,3.00,4.00)'),
    ($$SELECT cuentaacumula IS NULL AND fecha_estado = '2026-03-05' AND fecha_ult_mov IS NULL
         FROM spscatalogo_ctas('9000')$$, 'true'),
    ($$select spicatalogo_ctas('9000-01','9000','6','Otra','A','A','','','A',0,0,0,0)$$, 'La cuenta 9000-01 ya existe'),
    ($$select spucatalogo_ctas('9000-01','9000','5','Hija nueva','A','B','05/03/2026','','D',0,0,0,0)$$, ''),
    ($$SELECT identificacion || cuentanombre || estado_cta || naturaleza || fecha_estado
         FROM spscatalogo_ctas('9000-01')$$,
     '5Hija nuevaBD2026-03-05'),
    ($$select spucatalogo_ctas('9999','9000','5','Nada','A','A','','','D',0,0,0,0)$$, 'La cuenta 9999 no existe'),
    -- what is refused
    ($$select spicatalogo_ctas('',NULL,'1','Sin número','A','A','','','D',0,0,0,0)$$, 'Falta la cuenta'),
    ($$select spicatalogo_ctas(repeat('9',25),NULL,'1','Larga','A','A','','','D',0,0,0,0)$$,
     'No cabe la cuenta: tiene 25 caracteres y admite 24'),
    ($$select spicatalogo_ctas('9001','4','1','Suelta','A','A','','','D',0,0,0,0)$$,
     'No existe la cuenta en que acumula: 4 no está en el catálogo de cuentas'),
    ($$select spicatalogo_ctas('9001','9000-01','1','Nieta','A','A','','','D',0,0,0,0)$$,
     'La cuenta 9000-01 es afectable: ninguna puede acumular en ella'),
    ($$select spicatalogo_ctas('9001',NULL,'7','Rubro','A','A','','','D',0,0,0,0)$$,
     'El rubro debe ser un número del 0 al 6'),
    ($$select spicatalogo_ctas('9001',NULL,'','Rubro','A','A','','','D',0,0,0,0)$$, 'Falta el rubro'),
    ($$select spicatalogo_ctas('9001',NULL,'1','','A','A','','','D',0,0,0,0)$$, 'Falta el nombre de la cuenta'),
    ($$select spicatalogo_ctas('9001',NULL,'1',repeat('ñ',101),'A','A','','','D',0,0,0,0)$$,
     'No cabe el nombre de la cuenta: tiene 101 caracteres y admite 100'),
    ($$select spicatalogo_ctas('9001',NULL,'1','Tipo','X','A','','','D',0,0,0,0)$$,
     'El tipo de cuenta debe ser A (afectable) o C (acumulativa)'),
    ($$select spicatalogo_ctas('9001',NULL,'1','Naturaleza','A','A','','','X',0,0,0,0)$$,
     'La naturaleza debe ser A (acreedora) o D (deudora)'),
    ($$select spicatalogo_ctas('9001',NULL,'1','Fecha','A','A','2026-2-30','','D',0,0,0,0)$$,
     'La fecha "2026-2-30" no existe en el calendario'),
    ($$select spicatalogo_ctas('9001',NULL,'1','Saldo','A','A','','','D',0,1e17,0,0)$$,
     'Está fuera de rango el saldo inicial: 100000000000000000 no está entre -9999999999999999.99 y '
     '9999999999999999.99'),
    ($$select spucatalogo_ctas('9000',NULL,'6','Prueba','A','A','','','D',0,0,0,0)$$,
     'La cuenta 9000 no puede ser afectable: otras acumulan en ella'),
    ($$select spucatalogo_ctas('9000','9000','6','Prueba','C','A','','','D',0,0,0,0)$$,
     'La cuenta 9000 no puede acumular en sí misma'),
    ($$select spicatalogo_ctas('9000-02','9000','6','Media','C','A','','','D',0,0,0,0)$$, ''),
    ($$select spucatalogo_ctas('9000','9000-02','6','Prueba','C','A','','','D',0,0,0,0)$$,
     'La cuenta 9000 no puede acumular en sí misma'),
    ($$SELECT spdcatalogo_ctas('9000')$$, 'No se puede borrar la cuenta 9000 porque se usa en: 2 cuentas contables'),
    ($$SELECT spdcatalogo_ctas('9000-02')$$, ''),
    ($$SELECT spdcatalogo_ctas('9000-01')$$, ''),
    ($$SELECT spdcatalogo_ctas('9000-01')$$, 'La cuenta 9000-01 no existe'),
    ($$SELECT spdcatalogo_ctas('9000')$$, ''),
    -- an account in all branches, those that lack it
    ($$select spicatalogo_ctasc('9000',NULL,'6','De todas','A','A','05/03/2026',' ','D',0.000000,0.000000,0.000000,
                                0.000000);$$, ''),
    ($$select spicatalogo_ctasc('9000',NULL,'6','De todas','A','A','05/03/2026',' ','D',0,0,0,0)$$,
     'La cuenta 9000 ya existe en todas las sucursales'),
    ($$SELECT spdcatalogo_ctas('9000')$$, ''),
    ($$select spicatalogo_ctasc('9000',NULL,'6','De todas','A','A','05/03/2026',' ','D',0,0,0,0)$$, ''),
    -- the client's stamp
    ($$select trunc(extract(epoch from max(fecha_estado))) from catalogo_ctas$$, '1772668800')
  ) AS paso (sentencia, esperado);
SELECT is((SELECT cuentanombre FROM sur.catalogo_ctas WHERE cuentaid = '9000'), 'De todas',
          'la otra sucursal la tiene');

-- Without the right in one of the branches none gets it.
UPDATE sur.permisomodulo SET permiso = 'N' WHERE usuarioid = 'adriana' AND clavemodulo = '0901';
SELECT is(como('adriana', 'norte', $$select spicatalogo_ctasc('9100',NULL,'6','De todas','A','A','','','D',0,0,0,0)$$),
          'No tiene permiso para la opción Catálogo de cuentas (módulo 0901)', 'hace falta permiso en cada sucursal');
SELECT is((SELECT count(*) FROM norte.catalogo_ctas WHERE cuentaid = '9100'), 0::bigint, 'y no queda en ninguna');

-- The demonstration's chart.
SET LOCAL search_path TO norte, tap, public;
DELETE FROM catalogo_ctas WHERE cuentaid = '9000';
SELECT cmp_ok((SELECT count(*) FROM catalogo_ctas), '>=', 300::bigint, 'el catálogo tiene unas 300 cuentas');
SELECT is_empty($$ SELECT cuentaid FROM catalogo_ctas c
                    WHERE (tipo_cta = 'C')
                          <> EXISTS (SELECT FROM catalogo_ctas h WHERE h.cuentaacumula = c.cuentaid) $$,
                'acumula la que tiene cuentas debajo, y solo ella');
SELECT is_empty($$ SELECT cuentaid FROM catalogo_ctas
                    WHERE rtrim(cuentaid) !~ ('^' || replace((SELECT formatocuenta FROM empresa), '9', '\d') || '$') $$,
                'los números tienen la forma de la institución');
SELECT is_empty($$ SELECT c.cuentaid FROM catalogo_ctas c JOIN catalogo_ctas h ON h.cuentaacumula = c.cuentaid
                    GROUP BY c.cuentaid
                   HAVING sum(CASE WHEN h.naturaleza = c.naturaleza THEN h.saldo_inic_ejer ELSE -h.saldo_inic_ejer END)
                          <> c.saldo_inic_ejer OR sum(h.cargos_acum_ejer) <> c.cargos_acum_ejer $$,
                'el saldo de una cuenta es la suma de las de abajo');
SELECT results_eq($$ SELECT cuentaid FROM spscatalogo_ctas('  ') $$,
                  $$ SELECT cuentaid FROM catalogo_ctas ORDER BY cuentaid COLLATE "C" $$,
                  'se leen todas, por número de cuenta');
SELECT is_empty($$ SELECT linea FROM plan('SELECT * FROM spscatalogo_ctas(''  '')') AS linea
                    WHERE linea ~ 'Function Scan' $$, 'leer por la función cuesta lo que leer la tabla');

SELECT * FROM finish();
ROLLBACK;
