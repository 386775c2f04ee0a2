-- The catalogues of a key and a description: the same steps for each, one row per catalogue, and what is of one only.
BEGIN;
SELECT no_plan();

-- `alta` is the name of the insertion where it does not follow the rule; a catalogue without `clave` has it assigned.
CREATE TEMPORARY TABLE simple (tabla text, alta text, llave text, columna text, ancho integer, campo text, quien text,
                               clave text, ajena text, todas text, mala text, refusa_mala text);
INSERT INTO simple
SELECT tabla, coalesce(alta, 'spi' || tabla), llave, columna, ancho, campo, quien, clave,
       CASE WHEN ancho_llave > 0 THEN '''ZZ''' ELSE '777' END,
       CASE WHEN ancho_llave > 0 THEN '''  ''' ELSE '0' END,
       CASE WHEN ancho_llave > 0 THEN quote_literal(repeat('x', ancho_llave + 1)) ELSE '-1' END,
       CASE WHEN ancho_llave > 0
            THEN format('No cabe la clave: tiene %s caracteres y admite %s', ancho_llave + 1, ancho_llave)
            ELSE 'Está fuera de rango la clave: -1 no está entre 1 y 2147483647' END
  FROM (VALUES
    ('tipo_garantia', NULL, 'clavegarantia', 'descripciongarantia', 30, 'la descripción', 'El tipo de garantía',
     '''Q''', 3),
    ('estados_credito', NULL, 'claveestadocredito', 'descripcionedocredito', 30, 'la descripción',
     'El estado del crédito', '''Q''', 3),
    ('finalidades', 'spiFinalidades', 'clavefinalidad', 'descripcionfinalidad', 30, 'la descripción', 'La finalidad',
     '''Q''', 3),
    ('modulo', NULL, 'clavemodulo', 'descrimodulo', 80, 'la descripción', 'El módulo', '''Q''', 10),
    ('tipousuario', NULL, 'tipousuarioid', 'descripciontipousuario', 20, 'la descripción', 'El tipo de usuario',
     '''Q''', 3),
    ('asesor', NULL, 'asesorid', 'nomasesor', 50, 'el nombre del asesor', 'El asesor', '99', 0),
    ('motivobaja', NULL, 'motivobajaid', 'descripcionmotivo', 29, 'la descripción', 'El motivo de baja', NULL, 0),
    ('clasificacioncredito', NULL, 'clasificacioncreditoid', 'descripcion', 29, 'la descripción',
     'La clasificación de crédito', NULL, 0),
    ('grupo', NULL, 'grupoid', 'grupo', 25, 'el nombre del grupo', 'El grupo', NULL, 0),
    ('ocupacion', NULL, 'ocupacionid', 'ocupacion', 40, 'la descripción', 'La ocupación', NULL, 0),
    ('conceptoscoring', NULL, 'conceptoscoringid', 'conceptoscoring', 20, 'el concepto', 'El concepto de scoring',
     NULL, 0),
    ('tipoacreditador', 'spitipiacreditador', 'tipoacreditadoid', 'descripciontipoacreditado', 50, 'la descripción',
     'El tipo de acreditado', '99', 0),
    ('tipoasentamiento', NULL, 'tipoasentamientoid', 'asentamiento', 50, 'la descripción', 'El tipo de asentamiento',
     '99', 0)) AS s (tabla, alta, llave, columna, ancho, campo, quien, clave, ancho_llave);

CREATE FUNCTION pg_temp.en_norte(sentencia text, VARIADIC partes text[]) RETURNS text
LANGUAGE sql AS $$ SELECT como('adriana', 'norte', format(sentencia, VARIADIC partes)) $$;

CREATE TEMPORARY TABLE total AS
SELECT tabla, pg_temp.en_norte('SELECT count(*) FROM %s', tabla)::integer AS filas FROM simple;

-- insertion; where the key is assigned it is the answer
SELECT is(pg_temp.en_norte('SELECT %s(%s,%L)', alta, clave, 'Uno'), '', alta || ': agrega')
  FROM simple WHERE clave IS NOT NULL;
UPDATE simple SET clave = pg_temp.en_norte('SELECT %s(%L)', alta, 'Uno') WHERE clave IS NULL;
SELECT is(pg_temp.en_norte('SELECT max(%I) FROM %s', llave, tabla), btrim(clave, ''''), alta || ': responde la clave')
  FROM simple WHERE clave ~ '^\d' AND clave <> '99';
SELECT is(pg_temp.en_norte('SELECT %s(%s,%L)', alta, clave, 'Dos'),
          format('%s %s ya existe', quien, btrim(clave, '''')), alta || ': no repite la clave')
  FROM simple WHERE clave IN ('''Q''', '99');
SELECT is(pg_temp.en_norte('SELECT %s(%s,%L)', alta, mala, 'Tres'), refusa_mala, alta || ': clave que no cabe')
  FROM simple WHERE clave IN ('''Q''', '99');
SELECT is(pg_temp.en_norte('SELECT %s(NULL,%L)', alta, 'Tres'), 'Falta la clave', alta || ': sin clave')
  FROM simple WHERE clave IN ('''Q''', '99');

-- reading one, none, all
SELECT is(pg_temp.en_norte('SELECT string_agg(%I, ''/'') FROM sps%s(%s)', columna, tabla, clave), 'Uno',
          tabla || ': se encuentra por su clave') FROM simple;
SELECT is(pg_temp.en_norte('SELECT count(*) FROM sps%s(%s)', tabla, ajena), '0', tabla || ': clave desconocida')
  FROM simple;
SELECT is(pg_temp.en_norte('SELECT count(*) FROM sps%s(%s)', tabla, argumento), (filas + 1)::text,
          format('%s: todos los renglones con %s', tabla, argumento))
  FROM simple JOIN total USING (tabla), LATERAL (VALUES (todas), ('NULL')) AS a (argumento);
SELECT is(pg_temp.en_norte('SELECT array_agg(%1$I) = array_agg(%1$I ORDER BY %4$s) FROM sps%2$s(%3$s)', llave, tabla,
                           todas, orden), 'true', tabla || ': en su orden')
  FROM simple, LATERAL (SELECT CASE WHEN left(clave, 1) = '''' AND tabla <> 'modulo'
                                    THEN format('%I COLLATE "es-MX-x-icu", %I', columna, llave)
                                    ELSE llave END) AS o (orden);

-- change
SELECT is(pg_temp.en_norte('SELECT spu%s(%s,%L)', tabla, clave, repeat('ñ', ancho)), '',
          tabla || ': el texto más largo') FROM simple;
SELECT is(pg_temp.en_norte('SELECT spu%s(%s,%L)', tabla, clave, texto), refusa, tabla || ': ' || refusa)
  FROM simple, LATERAL (VALUES
    (repeat('ñ', ancho + 1), format('No cabe %s: tiene %s caracteres y admite %s', campo, ancho + 1, ancho)),
    ('  ', 'Falta ' || campo), (NULL, 'Falta ' || campo)) AS m (texto, refusa);
SELECT is(pg_temp.en_norte('SELECT %I FROM sps%s(%s)', columna, tabla, clave), repeat('ñ', ancho),
          tabla || ': lo rechazado no cambia nada') FROM simple;
SELECT is(pg_temp.en_norte('SELECT spu%s(%s,%L)', tabla, clave, 'It''s 100% \'), '', tabla || ': comillas y signos')
  FROM simple;
SELECT is(rtrim(pg_temp.en_norte('SELECT %I FROM sps%s(%s)', columna, tabla, clave)), 'It''s 100% \',
          tabla || ': comillas y signos, de regreso') FROM simple;
SELECT is(pg_temp.en_norte('SELECT spu%s(%s,%L)', tabla, ajena, 'Nada'),
          format('%s %s no existe', quien, btrim(ajena, '''')), tabla || ': no se cambia lo que no existe') FROM simple;

-- deletion
SELECT is(pg_temp.en_norte('SELECT spd%s(%s)', tabla, clave), '', tabla || ': se borra') FROM simple;
SELECT is(pg_temp.en_norte('SELECT spd%s(%s)', tabla, clave), format('%s %s no existe', quien, btrim(clave, '''')),
          tabla || ': no se borra dos veces') FROM simple;
SELECT is(pg_temp.en_norte('SELECT count(*) FROM sps%s(%s)', tabla, todas), filas::text, tabla || ': queda como estaba')
  FROM simple JOIN total USING (tabla);
SELECT is((SELECT string_agg(operacion, ' ' ORDER BY bitacoraid) FROM norte.bitacora b
            WHERE b.tabla = s.tabla AND clave = btrim(s.clave, '''') AND usuario = 'adriana'),
          'INSERT UPDATE UPDATE DELETE', tabla || ': la bitácora lo sabe todo') FROM simple AS s;

-- what belongs to one of them; U is in use, V is only denied
INSERT INTO norte.tipousuario VALUES ('U', 'En uso');
UPDATE norte.usuario SET tipousuarioid = 'U' WHERE usuarioid = 'camila';
INSERT INTO norte.modulo VALUES ('U', 'En uso'), ('V', 'Negado');
INSERT INTO norte.permisomodulo (clavemodulo, usuarioid, permiso) VALUES ('U', 'camila', 'S'), ('V', 'camila', 'N');
INSERT INTO norte.finalidades VALUES ('U', 'En uso');
SET LOCAL ROLE tolvara_propietario;
UPDATE norte.tipoprestamo SET clavefinalidad = 'U' WHERE tipoprestamoid = 'ORD';
RESET ROLE;
SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT spufinalidades('CON  ','Consumo')$$, ''),
    ($$SELECT descripcionfinalidad FROM spsfinalidades('CON')$$, 'Consumo'),
    ($$SELECT spdfinalidades('U')$$, 'No se puede borrar la finalidad U porque se usa en: 1 tipos de préstamo'),
    ($$SELECT spdtipousuario('U')$$, 'No se puede borrar el tipo de usuario U porque se usa en: 1 usuarios'),
    ($$SELECT spdmodulo('U')$$, 'No se puede borrar el módulo U porque se usa en: 1 permisos'),
    ($$SELECT spdmodulo('V')$$, ''),
    ($$SELECT octet_length(clavegarantia) FROM spstipo_garantia('') LIMIT 1$$, '3'),
    ($$SELECT octet_length(clavemodulo) FROM spsmodulo('0203')$$, '10'),
    ($$SELECT octet_length(descripciontipoacreditado) FROM spstipoacreditador(1)$$, '51'),
    ($$SELECT octet_length(asentamiento) FROM spsasentamiento(9)$$, '50'),
    ($$SELECT (SELECT count(*) FROM spsasentamiento(0)) = (SELECT count(*) FROM spstipoasentamiento(0))$$, 'true'),
    ($$SELECT spigrupo('A  ') > 0$$, 'true'),
    ($$SELECT grupo || '.' FROM spsgrupo(0) WHERE grupo LIKE 'A %'$$, 'A  .'),
    ($$SELECT spuconceptoscoring('1','Edad cumplida')$$, ''),
    ($$SELECT conceptoscoring FROM spsconceptoscoring(1)$$, 'Edad cumplida'),
    ($$SELECT spuconceptoscoring('uno','Edad')$$, 'invalid input syntax for type integer: "uno"'),
    -- kinds of members
    ($$SELECT spitiposocio('Q ','Prueba',repeat('ñ',254))$$, ''),
    ($$SELECT descritiposocio || char_length(observaciones) || octet_length(tiposocioid) FROM spstiposocio('Q')$$,
     'Prueba2542'),
    ($$SELECT spitiposocio('Q','Otra','')$$, 'El tipo de socio Q ya existe'),
    ($$SELECT sputiposocio('Q','Prueba 2','')$$, ''),
    ($$SELECT descritiposocio || observaciones FROM spstiposocio('Q ')$$, 'Prueba 2'),
    ($$SELECT sputiposocio('Q','Prueba',repeat('ñ',255))$$,
     'No cabe el texto de observaciones: tiene 255 caracteres y admite 254'),
    ($$SELECT sputiposocio('Q',repeat('x',31),'')$$, 'No cabe la descripción: tiene 31 caracteres y admite 30'),
    ($$SELECT sputiposocio('Q',' ','')$$, 'Falta la descripción'),
    ($$SELECT sputiposocio('ZZ','Nada','')$$, 'El tipo de socio ZZ no existe'),
    ($$SELECT spitiposocio('','Sin clave','')$$, 'Falta la clave'),
    ($$SELECT spdtiposocio('Q')$$, ''),
    ($$SELECT spdtiposocio('Q')$$, 'El tipo de socio Q no existe'),
    ($$SELECT count(*) FROM spstiposocio('  ')$$, '5'),
    -- kinds of bank movements
    ($$SELECT spitipomovibanco('Q ','Prueba','+')$$, ''),
    ($$SELECT descritipomovibanco || operacionsumaresta FROM spstipomovibanco('Q')$$, 'Prueba+'),
    ($$SELECT spitipomovibanco('Q','Otra','-')$$, 'El tipo de movimiento bancario Q ya existe'),
    ($$SELECT sputipomovibanco('Q','Prueba 2','-')$$, ''),
    ($$SELECT descritipomovibanco || operacionsumaresta FROM spstipomovibanco('Q')$$, 'Prueba 2-'),
    ($$SELECT sputipomovibanco('Q','Prueba','')$$, 'Falta la operación del movimiento'),
    ($$SELECT sputipomovibanco('Q','Prueba','*')$$, 'La operación del movimiento debe ser + o -'),
    ($$SELECT sputipomovibanco('Q','Prueba','+-')$$,
     'No cabe la operación del movimiento: tiene 2 caracteres y admite 1'),
    ($$SELECT spitipomovibanco('W','','+')$$, 'Falta la descripción'),
    ($$SELECT sputipomovibanco('ZZ','Nada','+')$$, 'El tipo de movimiento bancario ZZ no existe'),
    ($$SELECT spdtipomovibanco('Q')$$, ''),
    ($$SELECT spdtipomovibanco('Q')$$, 'El tipo de movimiento bancario Q no existe'),
    ($$SELECT string_agg(rtrim(tipomovibancoid), ' ') FROM spstipomovibanco('  ')$$, 'DV CH CO DE IN IS TE TR')
  ) AS paso (sentencia, esperado);

SELECT is((SELECT count(*) FROM sur.grupo WHERE grupo LIKE 'A %'), 0::bigint, 'la otra sucursal no cambia');

SELECT * FROM finish();
ROLLBACK;
