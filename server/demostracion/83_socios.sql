-- 260 members with their addresses. Names are put together from words that no family bears.
INSERT INTO sujeto (paterno, materno, nombre, fechanacimiento)
SELECT (ARRAY['Quimera', 'Ensueño', 'Supuesto', 'Muestra', 'Ejemplo', 'Ficticio', 'Imaginario', 'Inventado', 'Fantasía',
              'Lunares', 'Nube', 'Ábaco', 'Fábula', 'Leyenda', 'Utopía', 'Espejismo', 'Mito', 'Acertijo', 'Cometa',
              'Bruma', 'de la Rima', 'Ñandú'])[1 + n * 5 % 22],
       (ARRAY['Cuento', 'Ensayo', 'Modelo', 'Boceto', 'Trazo', 'Prólogo', 'Verso', 'Capítulo', 'Refrán', 'Enigma',
              'Duende', 'Hada', 'Sirena', 'Dragón', 'Brújula', 'Faro', ''])[1 + n * 11 % 17],
       (ARRAY['Adelina', 'Bonifacio', 'Casilda', 'Demetrio', 'Eulalia', 'Fermín', 'Genoveva', 'Hilario', 'Irene',
              'Jacinto', 'María Leonor', 'José Melitón', 'Nicolasa', 'Ovidio', 'Paz', 'Quintín', 'Rufina', 'Sabino',
              'Tomasa', 'Urbano', 'Virtudes', 'Wenceslao', 'Ximena'])[1 + n * 7 % 23],
       date '1945-05-03' + n * 1013 % 22000
  FROM generate_series(CASE :'juego' WHEN 'norte' THEN 1 ELSE 501 END, CASE :'juego' WHEN 'norte' THEN 260 ELSE 760 END)
       AS n;

INSERT INTO socio (clavesocioint, sujetoid, tiposocioid, estatus, fechaalta)
SELECT format('%s-%s', rtrim(e.sucid), lpad((row_number() OVER (ORDER BY s.sujetoid))::text, 6, '0')), s.sujetoid,
       CASE WHEN s.sujetoid % 29 = 0 THEN 'AS' ELSE 'AC' END,
       CASE WHEN s.sujetoid % 31 = 0 THEN 'Inactivo' ELSE 'Activo' END,
       timestamptz '2006-01-09 09:30' + s.sujetoid % 200 * interval '32 days 7 minutes'
  FROM sujeto s CROSS JOIN empresa e
 WHERE NOT EXISTS (SELECT FROM usuario u WHERE u.sujetoid = s.sujetoid);

-- Keys of all persons. What curp_de() leaves open is the sex that goes with the name, the state of the branch, and a
-- number for the two last characters.
UPDATE sujeto
   SET rfc = rfc_de(paterno, materno, nombre, fechanacimiento),
       curp = overlay(overlay(curp_de(paterno, materno, nombre, fechanacimiento)
                        PLACING CASE WHEN nombre ~ '(a|Irene|Paz|Virtudes|Leonor|Beatriz)$' THEN 'M' ELSE 'H' END
                                || CASE :'juego' WHEN 'norte' THEN 'JC' ELSE 'GR' END FROM 11)
                PLACING '0' || sujetoid % 10 FROM 17),
       edad = extract(year FROM age(fechanacimiento));

INSERT INTO domicilio (ciudadmexid, sujetoid, calle, numero_ext, numero_int, colonia, codpostal, comunidad,
                       teldomicilio, coloniaid)
SELECT c.ciudadmexid, s.sujetoid,
       (ARRAY['Calle del Ejemplo', 'Av. de la Muestra', 'Privada Quimera', 'Calzada del Cuento', 'Calle de las Nubes',
              'Andador Imaginario', 'Av. Espejismo', 'Calle Primera'])[1 + s.sujetoid % 8],
       (s.sujetoid * 17 % 900 + 1)::text, CASE WHEN s.sujetoid % 6 = 0 THEN 'B' ELSE '' END, left(c.nombrecolonia, 30),
       c.cp, CASE WHEN s.sujetoid % 9 = 0 THEN 'El Espejismo' ELSE '' END,
       format('55 0000 %s', lpad((s.sujetoid % 10000)::text, 4, '0')), c.coloniaid
  FROM sujeto s
  JOIN (SELECT *, row_number() OVER (ORDER BY coloniaid) - 1 AS lugar, count(*) OVER () AS cuantas
          FROM colonias
         WHERE ciudadmexid IN (SELECT ciudadmexid FROM ciudadesmex
                                WHERE estadomexid = CASE :'juego' WHEN 'norte' THEN 14 ELSE 12 END)) AS c
    ON c.lugar = s.sujetoid % c.cuantas;
