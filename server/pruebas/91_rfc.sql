-- Tax keys, worked out by the authority's published rules and not by the function: the four letters and the date by
-- hand, rule by rule; the two characters for namesakes and the check digit by the tables of the annexes. The sums of the
-- first one, which is published whole: GOMEZ DIAZ EMMA is 0 17 26 24 15 39 00 14 19 11 39 00 15 24 24 11; 01x1 + 17x7 +
-- 72x2 + ... + 11x1 = 2535; 535 = 15 x 34 + 25, the places of G and R. Gx13 + Ox12 + Dx11 + ... + Rx2 = 1026 = 93 x 11
-- + 3, and 11 - 3 = 8.
BEGIN;
SELECT no_plan();

SELECT is((SELECT g.rfc FROM norte.generarfc(paterno, materno, nombre, dia) AS g), caso.rfc,
          concat_ws(' ', nombre, paterno, materno))
  FROM (VALUES
    -- surname, its next vowel, the other surname, the name; the date of birth
    ('Gómez', 'Díaz', 'Emma', '31/12/1956', 'GODE561231GR8'),
    ('Barrios', 'Fernández', 'Juan', '13/12/1970', 'BAFJ701213SBA'),
    ('gomez  ', ' diaz', 'emma', '1956-12-31', 'GODE561231GR8'),
    ('Iriarte', 'Méndez', 'Eva', '21/12/1970', 'IIME701221CS1'),
    ('Hernández', 'López', 'Raúl', '01/01/2000', 'HELR000101RS4'),
    ('Ávila', 'Íñiguez', 'Óscar', '29/02/2000', 'AIIO000229ED4'),
    ('Ortiz', 'Ibarra', 'Úrsula', '05/05/1985', 'OIIU850505549'),
    ('Escobedo', 'Quiroga', 'Héctor', '09/09/1999', 'EOQH990909643'),
    ('Ynzunza', 'Lugo', 'Tomás', '10/10/2010', 'YULT101010Q46'),
    ('Güemes', 'Argüello', 'Saúl', '30/06/1971', 'GUAS7106302Z8'),
    -- compound letters count as their first
    ('Chávez', 'González', 'Manuel', '18/06/1924', 'CAGM2406181Y1'),
    ('Camargo', 'Llamas', 'Felipe', '28/02/1945', 'CALF450228LK1'),
    ('Kennedy', 'Truman', 'Charles', '12/10/1951', 'KETC511012KR0'),
    ('Llorente', 'Chavarría', 'Guillermo', '03/03/1933', 'LOCG330303A62'),
    -- father's surname of one or two letters: both initials and two letters of the name
    ('de la O', 'Lozano', 'Álvaro', '01/12/1940', 'OLAL401201R99'),
    ('Ek', 'Rivera', 'Ernesto', '20/11/1907', 'ERER0711209E3'),
    ('Li', 'Chan', 'Rosa', '07/07/1977', 'LCRO770707JA2'),
    ('Ku', 'Uc', 'Martín', '15/08/1988', 'KUMA880815PN2'),
    ('Xu', 'Pérez', 'María Elena', '11/11/1991', 'XPEL911111E99'),
    ('U', 'Canché', 'Jesús', '02/02/1962', 'UCJE620202GK4'),
    -- compound surnames: the first word
    ('San Martín', 'Dávalos', 'Dolores', '18/12/1918', 'SADD1812181G1'),
    ('Sánchez de la Barquera', 'Gómez', 'Mario', '25/02/1976', 'SAGM760225FL0'),
    ('Jiménez', 'Ponce de León', 'Antonio', '17/08/1913', 'JIPA130817M48'),
    ('Montes de Oca', 'Santa Cruz', 'Irene', '06/01/1966', 'MOSI660106IR4'),
    ('Castro', 'Díez de Bonilla', 'Jaime', '23/04/1958', 'CADJ580423S23'),
    ('Pérez-Gil', 'Ruiz-Velasco', 'Elisa', '14/02/1984', 'PERE840214IZ4'),
    -- compound given names: the first word, but the second behind María or José
    ('Fernández', 'Juárez', 'Luz María', '05/02/1920', 'FEJL200205K85'),
    ('Camargo', 'Hernández', 'José Antonio', '17/05/1912', 'CAHA120517UL6'),
    ('Ramírez', 'Sánchez', 'María Luisa', '10/10/1918', 'RASL181010LM5'),
    ('Ramírez', 'Sánchez', 'Ma. de los Ángeles', '10/10/1918', 'RASA181010R65'),
    ('Ramírez', 'Sánchez', 'María', '10/10/1918', 'RASM181010PQ3'),
    ('Ramírez', 'Sánchez', 'José', '10/10/1918', 'RASJ181010HG5'),
    ('Ramírez', 'Sánchez', 'José María', '10/10/1918', 'RASM181010BL5'),
    ('Ramírez', 'Sánchez', 'María José', '10/10/1918', 'RASJ181010BL2'),
    ('Torres', 'Vega', 'Juan José', '24/12/1990', 'TOVJ9012242W0'),
    ('Torres', 'Vega', 'Ana María', '24/12/1990', 'TOVA9012244X5'),
    ('Torres', 'Vega', 'J. Guadalupe', '24/12/1990', 'TOVG901224GI7'),
    ('Torres', 'Vega', 'Ma. Fernanda', '24/12/1990', 'TOVF901224GU2'),
    ('Torres', 'Vega', 'María del Carmen', '24/12/1990', 'TOVC9012248B8'),
    ('Torres', 'Vega', 'José de Jesús', '24/12/1990', 'TOVJ901224HQ0'),
    ('Torres', 'Vega', 'Mariana', '24/12/1990', 'TOVM9012244K1'),
    ('Torres', 'Vega', 'Josefa Rita', '24/12/1990', 'TOVJ901224QE7'),
    ('Reyes', 'Mora', 'María de la Luz', '31/05/1955', 'REML550531UR9'),
    -- one surname: two letters of it and two of the name
    ('Martínez', '', 'Juan', '16/01/1942', 'MAJU420116BP3'),
    ('', 'Zafra', 'Gerarda', '15/11/1925', 'ZAGE251115923'),
    ('Ñáñez', '', 'Noé', '08/08/1980', 'ÑANO8008086RA'),
    ('Smith', '', 'María Jane', '19/03/1969', 'SMJA6903193Z5'),
    ('Ortega', '', 'José', '19/03/1969', 'ORJO690319QK4'),
    ('de la Cruz', '', 'Eva', '25/07/1947', 'CREV4707251L2'),
    ('', 'Li', 'Ana', '26/09/1996', 'LIAN960926FN7'),
    -- articles, prepositions, conjunctions and contractions do not count
    ('de la Peña', 'Ramírez', 'Carmen', '01/12/1963', 'PERC631201KM5'),
    ('Sánchez', 'de los Cobos', 'Mario', '10/11/1970', 'SACM701110MT0'),
    ('González y', 'Durán', 'Roberto', '01/01/1960', 'GODR600101UJ7'),
    ('del Valle', 'Martínez', 'Juan', '01/10/1969', 'VAMJ6910019G2'),
    ('von der Heyden', 'Mac Gregor', 'Luis', '04/04/1944', 'HEGL4404043L1'),
    ('van Gogh', 'de la Garza', 'Inés', '30/03/1953', 'GOGI530330H49'),
    ('Mc Donald', 'Di Stéfano', 'Alan', '21/06/1981', 'DOSA810621FY0'),
    ('De León', 'y Barra', 'Sofía', '22/02/1922', 'LEBS220222QC2'),
    ('da Silva', 'das Neves', 'Paulo', '13/01/1993', 'SINP930113TJ2'),
    ('Le Blanc', 'El Khoury', 'Nadia', '27/10/1987', 'BAKN871027722'),
    -- rude words lose their last letter
    ('Bustos', 'Espino', 'Irma', '01/01/1980', 'BUEX800101BH8'),
    ('Cano', 'Campos', 'Ana', '01/01/1980', 'CACX800101MUA'),
    ('Pérez', 'Díaz', 'Olga', '01/01/1980', 'PEDX800101MD3'),
    ('Ramos', 'Torres', 'Alicia', '12/03/1967', 'RATX6703128W1'),
    ('Mejía', 'Álvarez', 'Sara', '16/06/1986', 'MEAX860616GA9'),
    ('Muñoz', 'León', 'Aurora', '20/04/1974', 'MULX7404209H0'),
    ('Quintero', 'López', 'Omar', '11/09/1961', 'QULX6109116D0'),
    ('Pi', 'Uribe', 'Tomás', '18/11/1949', 'PUTX4911183Z9'),
    ('Caballero', '', 'Carlos', '29/08/1959', 'CACX59082998A'),
    ('López', 'Cano', 'Omar', '05/12/1975', 'LOCO751205EU9'),
    -- signs fall away, and are left out of the characters for namesakes
    ('O''Farril', 'Carballo', 'Roberto', '21/11/1966', 'OACR661121B47'),
    ('D’Angelo', 'Fargo', 'Rubén', '08/01/1971', 'DAFR710108128'),
    ('Fernández', 'Juárez', 'Luz Ma.', '20/01/1983', 'FEJL830120156'),
    ('Ruiz, Jr.', 'Soto (†)', '"Memo" Luis', '07/04/1978', 'RUSM7804074W8'),
    -- Ñ is a letter of its own, other marks are not
    ('Ñuño', 'Núñez', 'Íñigo', '29/02/2000', 'ÑUNI000229SVA'),
    ('Ibáñez', 'Ñanco', 'Luis', '17/07/1957', 'IAÑL570717A6A'),
    ('Peña', 'Muñoz', 'Begoña', '03/10/1973', 'PEMB731003KMA'),
    ('Müller', 'Çelik', 'Jürgen', '28/11/1968', 'MUCJ681128126'),
    ('Løken', 'Weiß', 'Åsa', '15/05/1995', 'LOWA950515V79'),
    ('Nguyễn', 'Trần', 'Thị Ánh', '09/12/1989', 'NUTT8912092E6')
  ) AS caso (paterno, materno, nombre, dia, rfc);

-- The rude words of the annex, each out of a name that makes it; others are let be.
SELECT is(left((SELECT rfc FROM norte.generarfc(left(palabra, 2) || 'zz', substr(palabra, 3, 1) || 'az',
                                                right(palabra, 1) || 'az', '01/01/1980')), 4), esperada, palabra)
  FROM (
    SELECT palabra, left(palabra, 3) || 'X' AS esperada
      FROM unnest('{BUEI,BUEY,CACA,CACO,CAGA,CAGO,CAKA,CAKO,COGE,COJA,COJE,COJI,COJO,CULO,FETO,GUEY,JOTO,KACA,KACO,KAGA,
                    KAGO,KAKA,KOGE,KOJO,KULO,MAME,MAMO,MEAR,MEAS,MEON,MION,MOCO,MULA,PEDA,PEDO,PENE,PUTA,PUTO,QULO,
                    RATA,RUIN}'::text[]) AS palabra
    UNION ALL SELECT palabra, palabra FROM unnest('{LOCO,PEDI,CASA,MIMO}'::text[]) AS palabra) AS p;

-- What the rules leave open: no vowel, a surname of one letter alone, a hyphen, letters that are typed in two pieces,
-- letters that Spanish does not have.
SELECT alike((SELECT rfc FROM norte.generarfc(paterno, materno, nombre, '01/02/1980')), rfc,
             concat_ws(' ', 'abierto:', nombre, paterno, materno))
  FROM (VALUES
    ('Lynch', 'Cano', 'Patricia', 'LXCP800201___'),
    ('O', '', 'Eva', 'OEVX800201___'),
    ('Ek', 'Uc', 'J', 'EUJX800201___'),
    ('Torres', 'Vega', 'María-Luisa', 'TOVL800201___'),
    (E'n\u0303an\u0303ez', E'Me\u0301ndez', 'Eva', 'ÑAME800201___'),
    ('Łukasz', 'Đurić', 'Ægir', 'LUDA800201___')
  ) AS caso (paterno, materno, nombre, rfc);

-- The call as the client makes it, and its refusals.
SELECT is(como('camila', 'norte', format('select * from generarfc(%L,%L,%L,%L);', paterno, materno, nombre, dia)),
          respuesta, concat_ws(' ', 'consulta:', nombre, paterno, materno, dia))
  FROM (VALUES
    ('Gómez', 'Díaz', 'Emma', '31/12/1956', 'GODE561231GR8'),
    ('', '', 'Ana', '01/01/1980', 'Falta el apellido paterno'),
    ('¿?', '...', 'Ana', '01/01/1980', 'Falta el apellido paterno'),
    ('Cano', '', '', '01/01/1980', 'Falta el nombre'),
    ('Cano', 'Campos', 'Ana', '', 'Falta la fecha de nacimiento'),
    ('Cano', 'Campos', 'Ana', '31/02/1980', 'La fecha "31/02/1980" no existe en el calendario')
  ) AS caso (paterno, materno, nombre, dia, respuesta);

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
