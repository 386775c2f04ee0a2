-- Rates: the history of the types, and the variable ones. {id} is the number that the server gave to the first added,
-- {otra} the next.
BEGIN;
SELECT no_plan();

DELETE FROM norte.tasa WHERE tipoprestamoid = 'EME';
SELECT como('adriana', 'norte', $$SELECT spitasa('EME','','','2024-01-01','0000-00-00',12.000000,18.000000);$$) AS id
\gset
SELECT is(como('adriana', 'norte', replace(sentencia, '{id}', :'id')),
          replace(replace(esperado, '{id}', :'id'), '{otra}', (:id + 1)::text), sentencia)
  FROM (VALUES
    ($$SELECT t::text FROM spstasa({id}) AS t$$, '({id},EME,"   ","  ",2024-01-01,,12.000000,18.000000)'),
    -- a new one ends the one that was open
    ($$SELECT spitasa('EME','   ','  ','01/01/2025','1900-01-01',11.500000,17.250000) > {id}$$, 'true'),
    ($$SELECT fechafinal FROM spstasa({id})$$, '2024-12-31'),
    ($$SELECT spitasa('EME','','','2024-12-31','2025-02-01',11,17)$$,
     'El periodo se encima con el de la tasa número {id}, que empieza el 01/01/2024'),
    ($$SELECT spitasa('EME','','','2023-01-01','',11,17)$$,
     'El periodo se encima con el de la tasa número {id}, que empieza el 01/01/2024'),
    ($$SELECT spitasa('EME','','','2023-01-01','2023-12-31',11,17) > {id}$$, 'true'),
    ($$SELECT spitasa('EME','028','','2023-01-01','2023-12-31',11,17) > {id}$$, 'true'),
    ($$SELECT sputasa({id},'EME','','','2024-02-01','2024-12-30',0.000000,0.000000)$$, ''),
    ($$SELECT fechainicial || ' ' || fechafinal || ' ' || tasanormal FROM spstasa({id})$$,
     '2024-02-01 2024-12-30 0.000000'),
    ($$SELECT count(*) FROM tasa WHERE tipoprestamoid = 'EME' AND fechafinal IS NULL$$, '1'),
    ($$SELECT sputasa({id},'EME','','','2024-02-01','2025-12-30',1,1)$$,
     'El periodo se encima con el de la tasa número {otra}, que empieza el 01/01/2025'),
    -- what is refused
    ($$SELECT spitasa('','','','2024-01-01','',1,1)$$,
     'Falta el tipo de préstamo, de inversión o de movimiento de la tasa'),
    ($$SELECT spitasa('ZZ','','','2024-01-01','',1,1)$$, 'No existe el tipo de préstamo: ZZ'),
    ($$SELECT spitasa('','ZZ','','2024-01-01','',1,1)$$, 'No existe el tipo de inversión: ZZ'),
    ($$SELECT spitasa('','','ZZ','2024-01-01','',1,1)$$, 'No existe el tipo de movimiento: ZZ'),
    ($$SELECT spitasa('ABCD','','','2024-01-01','',1,1)$$,
     'No cabe el tipo de préstamo: tiene 4 caracteres y admite 3'),
    ($$SELECT spitasa('ORD','','','','',1,1)$$, 'Falta la fecha inicial'),
    ($$SELECT spitasa('ORD','','','1900-01-01','',1,1)$$, 'Falta la fecha inicial'),
    ($$SELECT spitasa('ORD','','','2024-13-01','',1,1)$$, 'La fecha "2024-13-01" no existe en el calendario'),
    ($$SELECT spitasa('ORD','','','2024-02-01','2024-01-31',1,1)$$,
     'La fecha final 31/01/2024 es anterior a la inicial 01/02/2024'),
    ($$SELECT spitasa('ORD','','','2024-02-01','',-1,1)$$,
     'Está fuera de rango la tasa normal: -1 no está entre 0 y 9999.999999'),
    ($$SELECT spitasa('ORD','','','2024-02-01','',1,1e30)$$,
     'Está fuera de rango la tasa moratoria: 1000000000000000000000000000000 no está entre 0 y 9999.999999'),
    ($$SELECT sputasa(0,'ORD','','','2020-02-01','2020-02-02',1,1)$$, 'La tasa número 0 no existe'),
    ($$SELECT spdtasa({id})$$, ''),
    ($$SELECT spdtasa({id})$$, 'La tasa número {id} no existe'),
    ($$SELECT count(*) FROM spstasa(0)$$, '0')
  ) AS paso (sentencia, esperado);

-- The names of the series; every call answers the whole catalogue, here the first of it.
SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT string_agg(tipotasa, ' ') FROM subtipotasa('a','null','null','null')$$, 'CCP CETES TIIE'),
    ($$SELECT string_agg(tipotasa, ' ') FROM subtipotasa('b','AAA','Prueba','null')$$, 'AAA CCP CETES TIIE'),
    ($$SELECT descripcion FROM subtipotasa('a','null','null','null')$$, 'Prueba'),
    ($$SELECT * FROM subtipotasa('b','AAA ','Otra','null')$$, 'El tipo de tasa AAA ya existe'),
    ($$SELECT * FROM subtipotasa('d','AAB','Prueba 2','AAA')$$, 'AAB'),
    ($$SELECT descripcion FROM subtipotasa('a','null','null','null')$$, 'Prueba 2'),
    ($$SELECT * FROM subtipotasa('d','AAC','Prueba','AAA')$$, 'El tipo de tasa AAA no existe'),
    ($$SELECT * FROM subtipotasa('d','CCP','Prueba','AAB')$$, 'El tipo de tasa CCP ya existe'),
    ($$SELECT * FROM subtipotasa('b','','Prueba','null')$$, 'Falta el nombre de la tasa'),
    ($$SELECT * FROM subtipotasa('b','X','','null')$$, 'Falta la descripción'),
    ($$SELECT * FROM subtipotasa('b',repeat('ñ',60),'Prueba','null')$$,
     'No cabe el nombre de la tasa: tiene 60 caracteres y admite 59'),
    ($$SELECT * FROM subtipotasa('b','X',repeat('ñ',260),'null')$$,
     'No cabe la descripción: tiene 260 caracteres y admite 259'),
    ($$SELECT * FROM subtipotasa('x','X','Prueba','null')$$, 'La operación "x" no existe: es a, b, c o d'),
    ($$SELECT * FROM subtipotasa(NULL,NULL,NULL,NULL)$$, 'La operación "<NULL>" no existe: es a, b, c o d'),
    ($$SELECT * FROM subtipotasa('c','TIIE','Prueba','null')$$,
     'No se puede borrar el tipo de tasa TIIE porque se usa en: 34 tasas variables'),
    ($$SELECT string_agg(tipotasa, ' ') FROM subtipotasa('c','AAB','Prueba','null')$$, 'CCP CETES TIIE'),
    ($$SELECT * FROM subtipotasa('c','AAB','Prueba','null')$$, 'El tipo de tasa AAB no existe'),
    ($$SELECT string_agg(tipotasa, ' ') FROM subtipotasa('d','CPP','Costo','CCP')$$, 'CETES CPP TIIE'),
    ($$SELECT count(*) FROM spstasavariable(0) WHERE tipotasa = 'CPP'$$, '34')
  ) AS paso (sentencia, esperado);
SELECT is(como('camila', 'norte', format('SELECT tipotasa FROM subtipotasa(%L,''CETES'',''x'',''CETES'')', letra)),
          CASE letra WHEN 'a' THEN 'CETES'
                     ELSE 'No tiene permiso para la opción Tipos de socios y tasas de interés (módulo 0217)' END,
          'sin permiso: ' || letra)
  FROM unnest(ARRAY['a', 'b', 'c', 'd']) AS letra;

-- Periods; an insertion carries the halves of a binary number.
SELECT como('adriana', 'norte',
            $$SELECT * FROM spitasavariable('TIIE', '2026-11-01','2026-11-30',-1717986918,1073217536);$$) AS id
\gset
SELECT is(como('adriana', 'norte', replace(sentencia, '{id}', :'id')), replace(esperado, '{id}', :'id'), sentencia)
  FROM (VALUES
    ($$SELECT t::text FROM spstasavariable({id}) AS t$$,
     '({id},TIIE,2026-11-01,2026-11-30,-1717986918.000000,1073217536.000000)'),
    ($$select * from sputasavariable({id},'TIIE','2026-11-01','0000-00-00',1.500000,2.500000)$$, ''),
    ($$SELECT t::text FROM spstasavariable({id}) AS t$$, '({id},TIIE,2026-11-01,,1.500000,2.500000)'),
    ($$SELECT * FROM spitasavariable('ZZ', '2026-11-01','2026-11-30',0,0)$$, 'No existe el tipo de tasa: ZZ'),
    ($$SELECT * FROM spitasavariable('', '2026-11-01','2026-11-30',0,0)$$, 'Falta el tipo de tasa'),
    ($$SELECT * FROM spitasavariable('TIIE', '0000-00-00','2026-11-30',0,0)$$, 'Falta la fecha inicial'),
    ($$SELECT * FROM spitasavariable('TIIE', '2026-11-01','2026-10-30',0,0)$$,
     'La fecha final 30/10/2026 es anterior a la inicial 01/11/2026'),
    ($$select * from sputasavariable({id},'TIIE','2026-11-01','',1e12,0)$$,
     'Está fuera de rango el primer valor: 1000000000000 no está entre -999999999999.999999 y 999999999999.999999'),
    ($$select * from sputasavariable(0,'TIIE','2026-11-01','',1,0)$$, 'La tasa variable número 0 no existe'),
    ($$update tasavariable set valor1=0$$, 'permission denied for table tasavariable'),
    ($$insert into tasavariable (tipotasa, fechainicial, valor1, valor2) values ('TIIE', '2026-11-01', 0, 0)$$,
     'permission denied for table tasavariable'),
    ($$delete from tasavariable where tasavariableid={id};$$, ''),
    ($$SELECT count(*) FROM spstasavariable({id})$$, '0'),
    ($$SELECT array_agg(tasavariableid) = array_agg(tasavariableid ORDER BY tasavariableid) AND count(*) = 102
         FROM spstasavariable(0)$$, 'true')
  ) AS paso (sentencia, esperado);
SELECT is(como('camila', 'norte', 'delete from tasavariable where tasavariableid=1;'),
          'permission denied for table tasavariable',
          'borrar directamente también pide permiso');
SELECT is((SELECT usuario FROM norte.bitacora WHERE tabla = 'tasavariable' AND clave = :'id' AND operacion = 'DELETE'),
          'adriana'::name, 'y queda en la bitácora');

SELECT * FROM finish();
ROLLBACK;
