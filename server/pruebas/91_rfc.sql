-- Tax keys. The names are those with which the authority's published rules explain themselves; two of the keys are
-- published whole.
BEGIN;
SELECT no_plan();

SELECT alike(como('camila', 'norte', format('select * from generarfc(%L,%L,%L,%L);', paterno, materno, nombre, dia)),
             rfc, concat_ws(' ', nombre, paterno, materno))
  FROM (VALUES
    ('Gómez', 'Díaz', 'Emma', '31/12/1956', 'GODE561231GR8'),
    ('Barrios', 'Fernández', 'Juan', '13/12/1970', 'BAFJ701213SBA'),
    ('gomez  ', ' diaz', 'emma', '1956-12-31', 'GODE561231GR8'),
    ('Iriarte', 'Méndez', 'Eva', '21/12/1970', 'IIME701221___'),
    -- compound letters count as their first
    ('Chávez', 'González', 'Manuel', '18/06/1924', 'CAGM240618___'),
    ('Camargo', 'Llamas', 'Felipe', '28/02/1945', 'CALF450228___'),
    ('Kennedy', 'Truman', 'Charles', '12/10/1951', 'KETC511012___'),
    -- surnames of one or two letters
    ('de la O', 'Lozano', 'Álvaro', '01/12/1940', 'OLAL401201___'),
    ('Ek', 'Rivera', 'Ernesto', '20/11/1907', 'ERER071120___'),
    -- compound surnames
    ('San Martín', 'Dávalos', 'Dolores', '18/12/1918', 'SADD181218___'),
    ('Sánchez de la Barquera', 'Gómez', 'Mario', '25/02/1976', 'SAGM760225___'),
    ('Jiménez', 'Ponce de León', 'Antonio', '17/08/1913', 'JIPA130817___'),
    -- compound given names, María and José
    ('Fernández', 'Juárez', 'Luz María', '05/02/1920', 'FEJL200205___'),
    ('Camargo', 'Hernández', 'José Antonio', '17/05/1912', 'CAHA120517___'),
    ('Ramírez', 'Sánchez', 'María Luisa', '10/10/1918', 'RASL181010___'),
    ('Ramírez', 'Sánchez', 'Ma. de los Ángeles', '10/10/1918', 'RASA181010___'),
    ('Ramírez', 'Sánchez', 'María', '10/10/1918', 'RASM181010___'),
    ('Ramírez', 'Sánchez', 'José María', '10/10/1918', 'RASJ181010___'),
    -- one surname
    ('Martínez', '', 'Juan', '16/01/1942', 'MAJU420116___'),
    ('', 'Zafra', 'Gerarda', '15/11/1925', 'ZAGE251115___'),
    -- particles
    ('de la Peña', 'Ramírez', 'Carmen', '01/12/1963', 'PERC631201___'),
    ('Sánchez', 'de los Cobos', 'Mario', '10/11/1970', 'SACM701110___'),
    ('González y', 'Durán', 'Roberto', '01/01/1960', 'GODR600101___'),
    ('del Valle', 'Martínez', 'Juan', '01/10/1969', 'VAMJ691001___'),
    ('O''Farrill', 'Mac Gregor', 'Luis', '01/10/1969', 'OAGL691001___'),
    ('Ñuño', 'Núñez', 'Íñigo', '29/02/2000', 'ÑUNI000229___'),
    -- rude words
    ('Bustos', 'Espino', 'Irma', '01/01/1980', 'BUEX800101___'),
    ('Cano', 'Campos', 'Ana', '01/01/1980', 'CACX800101___'),
    ('Pérez', 'Díaz', 'Olga', '01/01/1980', 'PEDX800101___'),
    -- refusals
    ('', '', 'Ana', '01/01/1980', 'Falta el apellido paterno'),
    ('¿?', '...', 'Ana', '01/01/1980', 'Falta el apellido paterno'),
    ('Cano', '', '', '01/01/1980', 'Falta el nombre'),
    ('Cano', 'Campos', 'Ana', '', 'Falta la fecha de nacimiento'),
    ('Cano', 'Campos', 'Ana', '31/02/1980', 'La fecha "31/02/1980" no existe en el calendario')
  ) AS caso (paterno, materno, nombre, dia, rfc);

SELECT is((SELECT curp FROM norte.generarfc(paterno, materno, nombre, '01/01/1980')), curp,
          concat_ws(' ', 'CURP:', nombre, paterno, materno))
  FROM (VALUES ('Gómez', 'Díaz', 'Emma', 'GODE800101___MZM__'), ('Martínez', '', 'Juan', 'MAXJ800101___RXN__'),
               ('Ek', 'Rivera', 'Ernesto', 'EXRE800101___KVR__'), ('Ñuño', 'Peña', 'Ana', 'XUPA800101___XXN__'),
               ('Bustos', 'Espino', 'Irma', 'BXEI800101___SSR__')) AS caso (paterno, materno, nombre, curp);

-- A key with its digit: the places of its characters in the table, each by its weight from 13 down to 1, make a
-- multiple of 11.
SELECT is_empty($$
  SELECT rfc FROM norte.sujeto, generate_series(1, 13) AS n
   GROUP BY rfc
  HAVING sum((strpos('0123456789ABCDEFGHIJKLMN&OPQRSTUVWXYZ Ñ', substr(rfc, n, 1)) - 1) * (14 - n)) % 11 <> 0
      OR rfc !~ '^[A-ZÑ]{4}[0-9]{6}[1-9A-NP-Z]{2}[0-9A]$' $$, 'todas las claves tienen su dígito y su forma');
SELECT cmp_ok((SELECT count(DISTINCT right(rfc, 1)) FROM norte.sujeto), '=', 11::bigint, 'y salen los once dígitos');

SELECT * FROM finish();
ROLLBACK;
