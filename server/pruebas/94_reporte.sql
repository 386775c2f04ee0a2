-- The report on persons.
BEGIN;
SELECT no_plan();
INSERT INTO norte.sujeto (sujetoid, paterno, materno, nombre, rfc, curp, edad, fechanacimiento, razonsocial)
VALUES (7777, 'Zzúñiga', 'Peñafiel', 'Reporte Ángel', 'ZXPR800229AB1', 'CURPDEPRUEBA', 46, '1980-02-29',
        'Empresa de Prueba');
INSERT INTO norte.domicilio (sujetoid, ciudadmexid, calle, numero_ext, numero_int, codpostal, comunidad, teldomicilio,
                             coloniaid)
SELECT 7777, ciudadmexid, 'Calle Larga', '10', 'B', cp, 'Rancho Chico', '55 1234', coloniaid
  FROM norte.colonias WHERE coloniaid = 1;
INSERT INTO norte.socio (socioid, clavesocioint, sujetoid, estatus, fechaalta)
VALUES (7777, 'CLAVE-7777', 7777, 'Activo', '2020-03-15 12:00');
INSERT INTO norte.prestamos (prestamoid, referenciaprestamo, socioid, tipoprestamoid, clavefinalidad, montoprestamo,
                             tasanormal, tasa_moratoria, fecha_otorga, fecha_vencimiento, numero_de_amor, condicionid)
VALUES (7777, '123456789012345678', 7777, 'ORD', 'CON', 1234567.89, 1, 1, '2024-01-01', '2024-12-26', 12, 0);
INSERT INTO norte.pago (prestamoid, fecha, capital) VALUES (7777, '2024-02-01', 234567.89);
INSERT INTO norte.bienes
SELECT (jsonb_populate_record(b, '{"bienid": 1000007777, "sujetoid": 7777, "describien": "Casa",
                                   "valorcomercial": 999999999999.99}')).* FROM norte.bienes AS b LIMIT 1;

SELECT is(regexp_replace(como('hilda', 'norte', $$SELECT * FROM spssujeto('angel','zzuñi','','');$$),
                         '\d\d/\d\d/\d{4} \d\d:\d\d', 'dd/mm/aaaa hh:mm'),
          (SELECT string_agg(renglon, E'\n' ORDER BY n) || E'\n' FROM (VALUES
  (1, '                                     Caja Solidaria Valle de Ensueño, S.C. de A.P. de R.L. de C.V.'),
  (2, '                                                          REPORTE DE PERSONAS'),
  (3, ''),
  (4, 'Búsqueda: angel zzuñi' || repeat(' ', 91) || 'Fecha: dd/mm/aaaa hh:mm'),
  (5, repeat('=', 135)),
  (6, ' Número  Nombre                                                          RFC               CURP'
      '                   Nacimiento  Edad'),
  (7, repeat('=', 135)),
  (8, 'Sucursal 0001'),
  (9, repeat('-', 135)),
  (10, '   7777  Zzúñiga Peñafiel Reporte Ángel                                  ZXPR800229AB1     CURPDEPRUEBA'
       '           29/02/1980    46'),
  (11, '         Empresa de Prueba'),
  (12, '         Calle Larga 10 B, Centro'),
  (13, '         C.P. 20000  Aguascalientes, Aguascalientes  Tel. 55 1234'),
  (14, '         Rancho Chico'),
  (15, '         Socio CLAVE-7777       Activo                            desde 15/03/2020'),
  (16, '         Préstamo 123456789012345678  tipo ORD  otorgado 01/01/2024  vence 26/12/2024'
       '  monto    1,234,567.89  saldo    1,000,000.00'),
  (17, '         Bien     Casa                                                          valor comercial'
       ' 999,999,999,999.99'),
  (18, repeat('-', 135)),
  (19, 'Personas: 1')) AS r (n, renglon)), 'el reporte de una persona');

SELECT is((regexp_match(como('hilda', 'norte', format('SELECT * FROM spssujeto(%L,%L,%L,%L);', nombre, paterno,
                                                       materno, clave)), 'Personas: (\d+)'))[1]::integer, personas,
          concat_ws('|', nombre, paterno, materno, clave))
  FROM (VALUES
    ('REPORTE', '', '', '', 1), ('angel reporte', '', '', '', 1), ('', 'zzuniga', '', '', 1), ('', '', 'PEÑAF', '', 1),
    ('', '', 'penafiela', '', 0), ('', '', '', 'ZXPR800229', 1), ('', '', '', 'curpdeprueba', 1),
    ('', '', '', 'clave-7777', 1), ('reporte', 'otro', '', '', 0), ('%', '', '', '', 0), ('', '', '', '', 281)
  ) AS caso (nombre, paterno, materno, clave, personas);

SELECT is((SELECT max(length(renglon)) FROM regexp_split_to_table(como('hilda', 'norte', $$SELECT spssujeto('','','','')$$), E'\n') AS renglon),
          135, 'ningún renglón pasa de 135 columnas');
SELECT matches(como('hilda', 'norte', $$SELECT * FROM spssujeto('nadie así','','','');$$),
               'No hay personas con esos datos\.', 'se dice que no hay nadie');

-- The consolidated one tells of every branch, to whoever has the option.
SELECT is((SELECT string_agg(s[1], ',') FROM regexp_matches(como('hilda', 'norte',
            $$SELECT * FROM spssujetoc('','quimera','','');$$), '^Sucursal (\d+)$', 'gn') AS s), '0001,0002',
          'el consolidado recorre las sucursales');
SELECT is(como('camila', 'norte', $$SELECT * FROM spssujeto('','quimera','','');$$),
          'No tiene permiso para la opción Personas (módulo 0442)', 'el reporte es de quien tiene la opción');
SELECT is(como('camila', 'norte', $$SELECT * FROM spssujetoc('','quimera','','');$$),
          'No tiene permiso para la opción Personas (módulo 0442)', 'y solo con permiso');
SELECT is(como('hilda', 'norte', $$SELECT sur.personas_reporte('','','','')$$), 'permission denied for schema sur',
          'de otra manera nadie lee la otra sucursal');

SELECT * FROM finish();
ROLLBACK;
