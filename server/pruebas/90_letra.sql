-- Amounts in words.
BEGIN;
SELECT no_plan();

SELECT is(como('camila', 'norte', format('SELECT * FROM cletra(%s);', importe)), letra, importe)
  FROM (VALUES
    ('0.000000', 'CERO PESOS 00/100 M.N.'),
    ('0.010000', 'CERO PESOS 01/100 M.N.'),
    ('0.994999', 'CERO PESOS 99/100 M.N.'),
    ('0.995000', 'UN PESO 00/100 M.N.'),
    ('1', 'UN PESO 00/100 M.N.'),
    ('2.5', 'DOS PESOS 50/100 M.N.'),
    ('10', 'DIEZ PESOS 00/100 M.N.'),
    ('15.15', 'QUINCE PESOS 15/100 M.N.'),
    ('16', 'DIECISÉIS PESOS 00/100 M.N.'),
    ('20', 'VEINTE PESOS 00/100 M.N.'),
    ('21', 'VEINTIÚN PESOS 00/100 M.N.'),
    ('22', 'VEINTIDÓS PESOS 00/100 M.N.'),
    ('29', 'VEINTINUEVE PESOS 00/100 M.N.'),
    ('30', 'TREINTA PESOS 00/100 M.N.'),
    ('31', 'TREINTA Y UN PESOS 00/100 M.N.'),
    ('99.99', 'NOVENTA Y NUEVE PESOS 99/100 M.N.'),
    ('100', 'CIEN PESOS 00/100 M.N.'),
    ('101', 'CIENTO UN PESOS 00/100 M.N.'),
    ('121', 'CIENTO VEINTIÚN PESOS 00/100 M.N.'),
    ('500', 'QUINIENTOS PESOS 00/100 M.N.'),
    ('777', 'SETECIENTOS SETENTA Y SIETE PESOS 00/100 M.N.'),
    ('999', 'NOVECIENTOS NOVENTA Y NUEVE PESOS 00/100 M.N.'),
    ('1000', 'MIL PESOS 00/100 M.N.'),
    ('1001', 'MIL UN PESOS 00/100 M.N.'),
    ('1100', 'MIL CIEN PESOS 00/100 M.N.'),
    ('2000', 'DOS MIL PESOS 00/100 M.N.'),
    ('21021', 'VEINTIÚN MIL VEINTIÚN PESOS 00/100 M.N.'),
    ('100000', 'CIEN MIL PESOS 00/100 M.N.'),
    ('101101', 'CIENTO UN MIL CIENTO UN PESOS 00/100 M.N.'),
    ('1000000', 'UN MILLÓN DE PESOS 00/100 M.N.'),
    ('1000000.5', 'UN MILLÓN DE PESOS 50/100 M.N.'),
    ('1000001', 'UN MILLÓN UN PESOS 00/100 M.N.'),
    ('1001000', 'UN MILLÓN MIL PESOS 00/100 M.N.'),
    ('2000000', 'DOS MILLONES DE PESOS 00/100 M.N.'),
    ('21000100', 'VEINTIÚN MILLONES CIEN PESOS 00/100 M.N.'),
    ('1000000000', 'MIL MILLONES DE PESOS 00/100 M.N.'),
    ('1001000000', 'MIL UN MILLONES DE PESOS 00/100 M.N.'),
    ('123456789012.34', 'CIENTO VEINTITRÉS MIL CUATROCIENTOS CINCUENTA Y SEIS MILLONES SETECIENTOS OCHENTA Y NUEVE MIL '
                        'DOCE PESOS 34/100 M.N.'),
    ('999999999999.99', 'NOVECIENTOS NOVENTA Y NUEVE MIL NOVECIENTOS NOVENTA Y NUEVE MILLONES NOVECIENTOS NOVENTA Y '
                        'NUEVE MIL NOVECIENTOS NOVENTA Y NUEVE PESOS 99/100 M.N.'),
    ('999999999999.995', '1000000000000.00 PESOS M.N.'),
    ('1e300', '1' || repeat('0', 300) || '.00 PESOS M.N.'),
    ('-1e15', '-1000000000000000.00 PESOS M.N.'),
    ('-0.001', 'CERO PESOS 00/100 M.N.'),
    ('-0.01', 'MENOS CERO PESOS 01/100 M.N.'),
    ('-5.500000', 'MENOS CINCO PESOS 50/100 M.N.'),
    ('-1000000', 'MENOS UN MILLÓN DE PESOS 00/100 M.N.'),
    ('''NaN''', 'El importe NaN no es un número'),
    ('''Infinity''', 'El importe Infinity no es un número'),
    ('NULL', 'Falta el importe')
  ) AS caso (importe, letra);

-- The client's variable holds 255 bytes; these are the wordiest figures in every place.
SELECT cmp_ok(octet_length(norte.cletra(-454454454454.54)), '<=', 255, 'la letra más larga cabe en el cliente');

SELECT * FROM finish();
ROLLBACK;
