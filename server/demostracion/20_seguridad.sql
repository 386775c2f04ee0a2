-- Kinds of staff, what each receives, and the staff. `consulta` receives nothing: who holds it is refused everywhere.
INSERT INTO tipousuario (tipousuarioid, descripciontipousuario) VALUES
  ('GER', 'Gerente de sucursal'),
  ('CAJ', 'Cajero'),
  ('CON', 'Consulta');

INSERT INTO tipousuariomodulo (tipousuarioid, clavemodulo)
SELECT 'GER', clavemodulo FROM modulo WHERE clavemodulo NOT IN ('0206', '0215', '0216');
INSERT INTO tipousuariomodulo (tipousuarioid, clavemodulo) VALUES ('CAJ', '0102'), ('CAJ', '0203');

-- adriana keeps both branches; the rest belong to one. A boss comes ahead of his people.
CREATE TEMPORARY TABLE plantilla ON COMMIT DROP AS
SELECT orden, login, tipo, jefe, serie
  FROM (VALUES (1, 'norte', 'adriana', 'ADM', NULL, 'A'),
               (2, 'norte', 'braulio', 'CAJ', 'adriana', 'B'),
               (3, 'norte', 'camila', 'CON', 'adriana', 'C'),
               (1, 'sur', 'adriana', 'ADM', NULL, 'A'),
               (2, 'sur', 'efrain', 'GER', 'adriana', 'E'),
               (3, 'sur', 'dario', 'CAJ', 'efrain', 'D'))
       AS personal (orden, juego, login, tipo, jefe, serie)
 WHERE juego = :'juego';

INSERT INTO usuario (usuarioid, tipousuarioid, usu_usuarioid, email, dicola, obsusuario)
SELECT login, tipo, jefe, login || '@ensueno.example', 'caja', 'Usuario de demostración' FROM plantilla ORDER BY orden;

INSERT INTO parametro (usuarioid, serieuser, impresoracaja, impresorareporte, reporteslaser)
SELECT login, serie, 'caja', 'reportes', 1 FROM plantilla ORDER BY orden;

SELECT alta_login(login, :'sucursal'), otorga_permisos_de_tipo(login) FROM plantilla ORDER BY orden;
