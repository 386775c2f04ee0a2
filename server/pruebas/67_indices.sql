-- Indices by day and by month.
BEGIN;
SELECT no_plan();

SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$select spiudis('2030-01-15',9.123456)$$, ''),
    ($$SELECT t::text FROM spsudis('2030-01-15') AS t$$, '(2030-01-15,9.123456)'),
    ($$SELECT valor FROM spsudis('15/01/2030')$$, '9.123456'),
    ($$select spiudis('15/01/2030',9)$$, 'La UDI del 15/01/2030 ya existe'),
    ($$select spuudis('2030-01-15',0.000000)$$, ''),
    ($$SELECT valor FROM spsudis('2030-01-15')$$, '0.000000'),
    ($$select spuudis('2030-01-15',-0.01)$$, 'Está fuera de rango el valor: -0.01 no está entre 0 y 999999999999'),
    ($$select spuudis('2030-01-16',1)$$, 'La UDI del 16/01/2030 no existe'),
    ($$select spiudis('1900-01-01',1)$$, 'Falta la fecha'),
    ($$select spiudis('0000-00-00',1)$$, 'Falta la fecha'),
    ($$select spiudis('2030-02-30',1)$$, 'La fecha "2030-02-30" no existe en el calendario'),
    ($$select spiudis(' 1/ 2/2030',1)$$, 'La fecha "1/ 2/2030" no tiene la forma dd/mm/aaaa ni aaaa-mm-dd'),
    ($$SELECT spdudis('2030-01-15')$$, ''),
    ($$SELECT spdudis('2030-01-15')$$, 'La UDI del 15/01/2030 no existe'),
    ($$SELECT count(*) FROM spsudis('2030-01-15')$$, '0'),
    ($$SELECT array_agg(fecha) = array_agg(fecha ORDER BY fecha) AND count(*) > 1800 FROM spsudis('1900-01-01')$$,
     'true'),
    ($$SELECT (SELECT count(*) FROM spsudis('')) = (SELECT count(*) FROM udis)$$, 'true'),
    ($$SELECT (SELECT count(*) FROM spsudis(NULL)) = (SELECT count(*) FROM udis)$$, 'true')
  ) AS paso (sentencia, esperado);

-- Both series by month.
SELECT is(como('adriana', 'norte', replace(sentencia, '{s}', serie)),
          replace(replace(esperado, '{q}', quien), '{c}', campo), replace(sentencia, '{s}', serie))
  FROM (VALUES ('inpc', 'El INPC', 'el INPC: -1 no está entre 0 y 999999999999'),
               ('recargos', 'El recargo', 'el porcentaje: -1 no está entre 0 y 100')) AS s (serie, quien, campo),
  LATERAL (VALUES
    ($$select spi{s}(2030,7,1.130000)$$, ''),
    ($$SELECT t::text FROM sps{s}(2030,7) AS t$$, '(2030,7,1.130000)'),
    ($$select spi{s}(2030,7,2)$$, '{q} de 7/2030 ya existe'),
    ($$select spu{s}(2030,7,0.000000)$$, ''),
    ($$SELECT t::text FROM sps{s}(2030,7) AS t$$, '(2030,7,0.000000)'),
    ($$select spu{s}(2030,7,-1)$$, 'Está fuera de rango {c}'),
    ($$select spu{s}(2030,8,1)$$, '{q} de 8/2030 no existe'),
    ($$select spi{s}(2030,13,1)$$, 'Está fuera de rango el mes: 13 no está entre 1 y 12'),
    ($$select spi{s}(2030,0,1)$$, 'Está fuera de rango el mes: 0 no está entre 1 y 12'),
    ($$select spi{s}(0,7,1)$$, 'Está fuera de rango el año: 0 no está entre 1901 y 2999'),
    ($$select spi{s}(NULL,7,1)$$, 'Falta el año'),
    ($$SELECT spd{s}(2030,7)$$, ''),
    ($$SELECT spd{s}(2030,7)$$, '{q} de 7/2030 no existe'),
    ($$SELECT count(*) FROM sps{s}(2030,7)$$, '0'),
    ($$SELECT string_agg(mes::text, ' ') FROM sps{s}(2024,0)$$, '1 2 3 4 5 6 7 8 9 10 11 12'),
    ($$SELECT (SELECT count(*) FROM sps{s}(0,0)) = (SELECT count(*) FROM {s}) AND count(*) > 250 FROM {s}$$, 'true'),
    ($$SELECT array_agg(ano * 12 + mes) = array_agg(ano * 12 + mes ORDER BY ano, mes) FROM sps{s}(0,0)$$, 'true')
  ) AS paso (sentencia, esperado);

SELECT * FROM finish();
ROLLBACK;
