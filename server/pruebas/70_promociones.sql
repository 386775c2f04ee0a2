-- Promotions. {id} is the number that the server gave to the one added.
BEGIN;
SELECT no_plan();

SELECT como('adriana', 'norte',
            $$SELECT spitipopromocion('AH','2026-03-01','0000-00-00','Condición',0,'Prueba');$$) AS id
\gset
SELECT is(como('adriana', 'norte', replace(sentencia, '{id}', :'id')), replace(esperado, '{id}', :'id'), sentencia)
  FROM (VALUES
    ($$SELECT t::text FROM spstipopromocion({id}) AS t$$, '({id},AH,2026-03-01,,Condición,0,Prueba)'),
    ($$SELECT sputipopromocion({id},'MN','2026-03-02','2026-04-30','Otra',2,'Prueba 2')$$, ''),
    ($$SELECT t::text FROM spstipopromocion({id}) AS t$$, '({id},MN,2026-03-02,2026-04-30,Otra,2,"Prueba 2")'),
    -- without a final date the client leaves the argument out
    ($$SELECT sputipopromocion({id},'MN','01/03/2026','It''s 100%',1,'Prueba 3')$$, ''),
    ($$SELECT t::text FROM spstipopromocion({id}) AS t$$, '({id},MN,2026-03-01,,"It''s 100%",1,"Prueba 3")'),
    ($$SELECT sputipopromocion({id},'MN','2026-03-01',repeat('ñ',83),1,repeat('ñ',30))$$, ''),
    ($$SELECT sputipopromocion({id},'','2026-03-01','x',1,'y')$$, 'Falta el tipo de movimiento'),
    ($$SELECT sputipopromocion({id},'ZZ','2026-03-01','x',1,'y')$$, 'No existe el tipo de movimiento: ZZ'),
    ($$SELECT sputipopromocion({id},'MN','1900-01-01','x',1,'y')$$, 'Falta la fecha de inicio'),
    ($$SELECT sputipopromocion({id},'MN','2026-02-29','x',1,'y')$$, 'La fecha "2026-02-29" no existe en el calendario'),
    ($$SELECT sputipopromocion({id},'MN','2026-03-01','2026-02-28','x',1,'y')$$,
     'La fecha final 28/02/2026 es anterior a la inicial 01/03/2026'),
    ($$SELECT sputipopromocion({id},'MN','2026-03-01',' ',1,'y')$$, 'Falta la condición'),
    ($$SELECT sputipopromocion({id},'MN','2026-03-01',repeat('ñ',84),1,'y')$$,
     'No cabe la condición: tiene 84 caracteres y admite 83'),
    ($$SELECT sputipopromocion({id},'MN','2026-03-01','x',-1,'y')$$,
     'Está fuera de rango el estatus: -1 no está entre 0 y 2'),
    ($$SELECT sputipopromocion({id},'MN','2026-03-01','x',3,'y')$$,
     'Está fuera de rango el estatus: 3 no está entre 0 y 2'),
    ($$SELECT sputipopromocion({id},'MN','2026-03-01','x',1,'')$$, 'Falta la descripción'),
    ($$SELECT sputipopromocion({id},'MN','2026-03-01','x',1,repeat('ñ',31))$$,
     'No cabe la descripción: tiene 31 caracteres y admite 30'),
    ($$SELECT sputipopromocion(0,'MN','2026-03-01','x',1,'y')$$, 'La promoción número 0 no existe'),
    ($$SELECT condicion = repeat('ñ',83) AND estatus = 1 FROM spstipopromocion({id})$$, 'true'),
    ($$SELECT spdtipopromocion({id})$$, ''),
    ($$SELECT spdtipopromocion({id})$$, 'La promoción número {id} no existe'),
    ($$SELECT count(*) FROM spstipopromocion({id})$$, '0'),
    ($$SELECT array_agg(tipopromocionid) = array_agg(tipopromocionid ORDER BY tipopromocionid) AND count(*) = 7
         FROM spstipopromocion(0)$$, 'true')
  ) AS paso (sentencia, esperado);

SELECT * FROM finish();
ROLLBACK;
