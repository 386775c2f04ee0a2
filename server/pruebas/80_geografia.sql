-- States, municipalities and neighbourhoods through the functions, each row after the one above; adriana may.
BEGIN;
SELECT no_plan();
\ir apoyo/numeracion.sql

SELECT results_eq('SELECT estadomexid FROM norte.spsestadomex(0)', 'SELECT generate_series(1, 32)',
                  'los estados corren del 1 al 32 sin huecos, en su orden');

SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    -- states
    ($$select spiestadomex('A  ','Nuevo');$$, '33'),
    ($$SELECT claveestadomex || '|' || nombreestadomex FROM spsestadomex(33);$$, 'A|Nuevo'),
    ($$SELECT octet_length(claveestadomex) FROM spsestadomex(33)$$, '3'),
    ($$SELECT count(*) FROM spsestadomex(NULL)$$, '33'),
    ($$SELECT count(*) FROM spsestadomex(99)$$, '0'),
    ($$select spiestadomex('A  ','Otro');$$, 'El estado con clave A ya existe'),
    ($$select spiestadomex('B','Segundo');$$, '34'),
    ($$select spuestadomex('A','Otro',34);$$, 'El estado con clave A ya existe'),
    ($$select spuestadomex('Ñ','Año Ñuevo',34);$$, ''),
    ($$SELECT claveestadomex || nombreestadomex FROM spsestadomex(34)$$, 'ÑAño Ñuevo'),
    ($$select spuestadomex('Z','Nadie',99);$$, 'El estado 99 no existe'),
    ($$select spiestadomex('','Sin clave');$$, 'Falta la clave'),
    ($$select spiestadomex('ABCD','Larga');$$, 'No cabe la clave: tiene 4 caracteres y admite 3'),
    ($$select spiestadomex('C','   ');$$, 'Falta el nombre'),
    ($$select spiestadomex('C',repeat('ñ',21));$$, 'No cabe el nombre: tiene 21 caracteres y admite 20'),
    ($$SELECT spdestadomex(33);$$,
     'No se puede borrar el estado 33 porque los estados se numeran sin huecos: solo se borra el último'),
    ($$select spiciudadmex(34,'1','Puerto');$$, '129'),
    ($$SELECT spdestadomex(34);$$, 'No se puede borrar el estado 34 porque se usa en: 1 municipios'),
    ($$SELECT spdestadomex(99);$$, 'El estado 99 no existe'),
    -- municipalities
    ($$SELECT ciudadmexid || '|' || estadomexid || '|' || claveciudadmex || '|' || nombreciudadmex
         FROM spsciudadmex(129);$$, '129|34|1|Puerto'),
    ($$SELECT octet_length(claveciudadmex) FROM spsciudadmex(129)$$, '4'),
    ($$select spiciudadmex(34,'1   ','Repetido');$$, 'El municipio con clave 1 ya existe en ese estado'),
    ($$select spiciudadmex(33,'1','En otro estado');$$, '131'),  -- a refused insertion leaves its number unused
    ($$select spiciudadmex(99,'1','Sin estado');$$, 'El estado 99 no existe'),
    ($$select spiciudadmex(34,'','Sin clave');$$, 'Falta la clave'),
    ($$select spiciudadmex(34,'12345','Larga');$$, 'No cabe la clave: tiene 5 caracteres y admite 4'),
    ($$select spiciudadmex(34,'2','');$$, 'Falta el nombre'),
    ($$select spuciudadmex('7','Villa',33,129);$$, ''),
    ($$SELECT estadomexid || '|' || rtrim(claveciudadmex) || '|' || nombreciudadmex FROM spsciudadmex(129)$$,
     '33|7|Villa'),
    ($$select spuciudadmex('1','Villa',33,129);$$, 'El municipio con clave 1 ya existe en ese estado'),
    ($$select spuciudadmex('7','Villa',99,129);$$, 'El estado 99 no existe'),
    ($$select spuciudadmex('7','Villa',33,999);$$, 'El municipio 999 no existe'),
    ($$SELECT string_agg(nombreciudadmex, ',') FROM (SELECT * FROM spsciudadxedo(33) order by nombreciudadmex) AS c$$,
     'En otro estado,Villa'),
    ($$SELECT count(*) FROM spsciudadxedo(34)$$, '0'),
    ($$SELECT count(*) = (SELECT count(*) FROM ciudadesmex) FROM spsciudadmex(0)$$, 'true'),
    ($$SELECT count(*) FROM spsciudadxedo(0)$$, '0'),
    -- neighbourhoods
    ($$select spicolonia(129,'El Muelle                                         ',98765,9);$$, '1281'),
    ($$SELECT coloniaid || '|' || ciudadmexid || '|' || nombrecolonia || '|' || cp || '|' || tipoasentamientoid
         FROM spscolonia(1281);$$, '1281|129|El Muelle|98765|9'),
    ($$select spicolonia(129,'El Muelle',98765,9);$$,
     'La colonia El Muelle ya existe en ese municipio y código postal'),
    ($$select spicolonia(999,'Lejos',98765,9);$$, 'El municipio 999 no existe'),
    ($$select spicolonia(129,'Lejos',98765,99);$$, 'El tipo de asentamiento 99 no existe'),
    ($$select spicolonia(129,' ',98765,9);$$, 'Falta el nombre'),
    ($$select spicolonia(129,'Lejos',0,9);$$, 'Está fuera de rango el código postal: 0 no está entre 1 y 99999'),
    ($$select spucolonia(1281,131,'La Playa',98764,2);$$, ''),
    ($$SELECT ciudadmexid || '|' || nombrecolonia || '|' || cp || '|' || tipoasentamientoid FROM spscolonia(1281)$$,
     '131|La Playa|98764|2'),
    ($$select spucolonia(9999,131,'La Playa',98764,2);$$, 'La colonia 9999 no existe'),
    ($$SELECT count(*) FROM spscolonias(131)$$, '1'),
    ($$SELECT count(*) FROM spscolonias(0)$$, '0'),
    ($$SELECT nombrecolonia FROM spscoloniacp(98764)$$, 'La Playa'),
    ($$SELECT count(*) FROM spscoloniacp(1)$$, '0'),
    ($$SELECT count(*) FROM spscoloniacp(0)$$, '0'),
    ($$SELECT count(*) FROM spscolonia(0)$$, '1281'),
    ($$SELECT spdciudadmex(131);$$, 'No se puede borrar el municipio 131 porque se usa en: 1 colonias'),
    ($$SELECT spdcolonia(1281);$$, ''),
    ($$SELECT spdcolonia(1281);$$, 'La colonia 1281 no existe'),
    ($$SELECT spdcolonia((SELECT coloniaid FROM domicilio WHERE sujetoid = 100))$$,
     (SELECT format('No se puede borrar la colonia %s porque se usa en: %s domicilios', coloniaid, count(*))
        FROM norte.domicilio WHERE coloniaid = (SELECT coloniaid FROM norte.domicilio WHERE sujetoid = 100)
       GROUP BY coloniaid)),
    ($$SELECT spdciudadmex(131);$$, ''),
    ($$SELECT spdciudadmex(131);$$, 'El municipio 131 no existe'),
    ($$SELECT spdestadomex(34);$$, ''),
    ($$select spiestadomex('D','Vuelve');$$, '34')
  ) AS paso (sentencia, esperado);

SELECT results_eq('SELECT estadomexid FROM norte.spsestadomex(0)', 'SELECT generate_series(1, 34)',
                  'los estados siguen sin huecos');

SELECT is_empty(format($$ SELECT linea FROM plan('SELECT * FROM norte.%s') AS linea WHERE linea ~ 'Function Scan' $$,
                       llamada), llamada || ': cuesta lo que la tabla')
  FROM unnest(ARRAY['spsestadomex(0)', 'spsciudadmex(0)', 'spsciudadxedo(3)', 'spscolonia(0)', 'spscolonias(3)',
                    'spscoloniacp(3)']) AS llamada;

SELECT * FROM finish();
ROLLBACK;
