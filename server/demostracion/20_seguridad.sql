-- Kinds of staff, what each receives, and the staff. `consulta` receives nothing: who holds it is refused everywhere.
INSERT INTO tipousuario (tipousuarioid, descripciontipousuario) VALUES
  ('GER', 'Gerente de sucursal'),
  ('CAJ', 'Cajero'),
  ('CON', 'Consulta');

INSERT INTO tipousuariomodulo (tipousuarioid, clavemodulo)
SELECT 'GER', clavemodulo FROM modulo WHERE clavemodulo NOT IN ('0206', '0215', '0216', '0912', '0913');
INSERT INTO tipousuariomodulo (tipousuarioid, clavemodulo) VALUES ('CAJ', '0102'), ('CAJ', '0203');

-- adriana keeps both branches; the rest belong to one.
INSERT INTO usuario (usuarioid, tipousuarioid, usu_usuarioid, email, dicola, obsusuario)
SELECT login, tipo, jefe, login || '@ensueno.example', 'caja', 'Usuario de demostración'
  FROM (VALUES ('norte', 'adriana', 'ADM', NULL),
               ('norte', 'braulio', 'CAJ', 'adriana'),
               ('norte', 'camila', 'CON', 'adriana'),
               ('sur', 'adriana', 'ADM', NULL),
               ('sur', 'efrain', 'GER', 'adriana'),
               ('sur', 'dario', 'CAJ', 'efrain'))
       AS personal (juego, login, tipo, jefe)
 WHERE juego = :'juego';

INSERT INTO parametro (usuarioid, serieuser, impresoracaja, impresorareporte, reporteslaser)
SELECT usuarioid, upper(left(usuarioid, 1)), 'caja', 'reportes', 1 FROM usuario ORDER BY usuarioid;

SELECT alta_login(usuarioid, :'sucursal'), otorga_permisos_de_tipo(usuarioid) FROM usuario ORDER BY usuarioid;
