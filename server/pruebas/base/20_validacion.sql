-- What becomes of each argument before it is stored.
BEGIN;
SELECT no_plan();

SELECT is(como('postgres', 'norte, comun', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT fecha('15/03/2006')$$, '2006-03-15'),
    ($$SELECT fecha('5/3/2006')$$, '2006-03-05'),
    ($$SELECT fecha('2006-03-15')$$, '2006-03-15'),
    ($$SELECT fecha(' 2006-03-15 ')$$, '2006-03-15'),
    ($$SELECT fecha('29/02/2000')$$, '2000-02-29'),
    ($$SELECT fecha('')$$, ''),
    ($$SELECT fecha('   ')$$, ''),
    ($$SELECT fecha(NULL)$$, ''),
    ($$SELECT fecha('0000-00-00')$$, ''),
    ($$SELECT fecha('00/00/0000')$$, ''),
    ($$SELECT fecha('31/02/2006')$$, 'La fecha "31/02/2006" no existe en el calendario'),
    ($$SELECT fecha('29/02/1900')$$, 'La fecha "29/02/1900" no existe en el calendario'),
    ($$SELECT fecha('0000-01-01')$$, 'La fecha "0000-01-01" no existe en el calendario'),
    ($$SELECT fecha('15/03/06')$$, 'La fecha "15/03/06" no tiene la forma dd/mm/aaaa ni aaaa-mm-dd'),
    ($$SELECT fecha('mañana')$$, 'La fecha "mañana" no tiene la forma dd/mm/aaaa ni aaaa-mm-dd'),
    ($$SELECT fecha('2006-03-15 10:00')$$, 'La fecha "2006-03-15 10:00" no tiene la forma dd/mm/aaaa ni aaaa-mm-dd'),
    ($$SELECT fecha_obligatoria('', 'la fecha de alta')$$, 'Falta la fecha de alta'),
    ($$SELECT fecha_obligatoria('01/01/2020', 'la fecha')$$, '2020-01-01'),
    ($$SELECT texto('ñandúes', 7, 'el nombre')$$, 'ñandúes'),
    ($$SELECT texto('ñandúes', 6, 'el nombre')$$, 'No cabe el nombre: tiene 7 caracteres y admite 6'),
    ($$SELECT texto(NULL, 6, 'el nombre')$$, ''),
    ($$SELECT obligatorio('A', 2, 'la clave')$$, 'A'),
    ($$SELECT obligatorio('A    ', 2, 'la clave')$$, 'A    '),
    ($$SELECT obligatorio('  ', 2, 'la clave')$$, 'Falta la clave'),
    ($$SELECT obligatorio(NULL, 2, 'la clave')$$, 'Falta la clave'),
    ($$SELECT opcional('  ', 2, 'la cuenta') IS NULL$$, 'true'),
    ($$SELECT opcional('ABC', 2, 'la cuenta')$$, 'No cabe la cuenta: tiene 3 caracteres y admite 2'),
    ($$SELECT numero(0, 0, 9, 'el valor')$$, '0'),
    ($$SELECT numero(9, 0, 9, 'el valor')$$, '9'),
    ($$SELECT numero(9.01, 0, 9, 'el valor')$$, 'Está fuera de rango el valor: 9.01 no está entre 0 y 9'),
    ($$SELECT numero(-0.01, 0, 9, 'el valor')$$, 'Está fuera de rango el valor: -0.01 no está entre 0 y 9'),
    ($$SELECT numero('NaN', 0, 9, 'el valor')$$, 'Está fuera de rango el valor: NaN no está entre 0 y 9'),
    ($$SELECT numero('Infinity', 0, 9, 'el valor')$$, 'Está fuera de rango el valor: Infinity no está entre 0 y 9'),
    ($$SELECT numero(NULL, 0, 9, 'el valor')$$, 'Falta el valor')
  ) AS caso (sentencia, esperado);

SET LOCAL datestyle = 'SQL, MDY';
SELECT is(comun.fecha('03/12/2006'), make_date(2006, 12, 3), 'el DateStyle de la sesión no cambia el día y el mes');

SELECT * FROM finish();
ROLLBACK;
