-- Formulas of interest. {id} is the number that the server gave to the first one added.
BEGIN;
SELECT no_plan();

SELECT como('adriana', 'norte', $$select spicalculo('Prueba','SaldoInsoluto * 2')$$) AS id \gset
SELECT is(como('adriana', 'norte', replace(sentencia, '{id}', :'id')), replace(esperado, '{id}', :'id'), sentencia)
  FROM (VALUES
    ($$SELECT max(calculoid) FROM calculo$$, '{id}'),
    ($$SELECT descripcioncalculo || '|' || formula || '|' || saldoinsoluto || '|' || saldo FROM spscalculo({id})$$,
     'Prueba|SaldoInsoluto * 2|0.00|0.00'),
    ($$SELECT t::text FROM spscalculo(1) AS t$$,
     '(1,"Interés normal sobre saldo insoluto",10000.00,30,24.000000,36.000000,'
     '"SaldoInsoluto * TasaIntNormal / 100 / 360 * Dias",10000.00)'),
    ($$select spucalculo({id},'Prueba 2','Dias')$$, ''),
    ($$SELECT descripcioncalculo || '|' || formula FROM spscalculo({id})$$, 'Prueba 2|Dias'),
    ($$SELECT array_agg(calculoid)::text FROM spscalculo(0)$$, '{1,2,3,4,5,6,{id}}'),
    ($$SELECT count(*) FROM spscalculo(NULL)$$, '7'),
    ($$SELECT count(*) FROM spscalculo(99)$$, '0'),
    ($$select spicalculo('','x')$$, 'Falta la descripción'),
    ($$select spicalculo('x','  ')$$, 'Falta la fórmula'),
    ($$select spicalculo(repeat('ñ',44),'x')$$, 'No cabe la descripción: tiene 44 caracteres y admite 43'),
    ($$select spucalculo({id},'x',repeat('ñ',256))$$, 'No cabe la fórmula: tiene 256 caracteres y admite 255'),
    ($$select spucalculo({id},repeat('ñ',43),repeat('ñ',255))$$, ''),
    ($$select spucalculo({id},'It''s 100%','a\b''c')$$, ''),
    ($$SELECT descripcioncalculo || formula FROM spscalculo({id})$$, 'It''s 100%a\b''c'),
    ($$select spucalculo(99,'x','y')$$, 'La fórmula número 99 no existe'),
    ($$SELECT spdcalculo({id})$$, ''),
    ($$SELECT spdcalculo({id})$$, 'La fórmula número {id} no existe')
  ) AS paso (sentencia, esperado);

INSERT INTO norte.calculo (calculoid, descripcioncalculo, formula) VALUES (98, 'En uso', 'x');
UPDATE norte.tipoinversion SET calculoid = 98 WHERE tipoinversionid IN ('028', '091');
SELECT is(como('adriana', 'norte', 'SELECT spdcalculo(98)'),
          'No se puede borrar la fórmula número 98 porque se usa en: 2 tipos de inversión',
          'la que se usa no se borra');

SELECT * FROM finish();
ROLLBACK;
