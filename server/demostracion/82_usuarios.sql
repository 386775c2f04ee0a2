-- The rest of the staff, twenty with those of 20_seguridad.sql, and who they are. A manager answers to adriana, the
-- others to the manager.
INSERT INTO usuario (usuarioid, tipousuarioid, usu_usuarioid, email, dicola, obsusuario)
SELECT login, tipo,
       CASE WHEN tipo IN ('ADM', 'GER') THEN 'adriana' WHEN :'juego' = 'norte' THEN 'gerardo' ELSE 'beatriz' END,
       login || '@ensueno.example', 'caja', 'Usuario de demostración'
  FROM (VALUES ('ADM', 'ignacio', 'abundio'), ('GER', 'gerardo', 'beatriz'), ('GER', 'hilda', 'celso'),
               ('CAJ', 'julieta', 'delfina'), ('CAJ', 'karina', 'emiliano'), ('CAJ', 'lorenzo', 'fabiola'),
               ('CAJ', 'mauricio', 'gonzalo'), ('CAJ', 'natalia', 'herminia'), ('CAJ', 'octavio', 'isidro'),
               ('CAJ', 'patricia', 'josefina'), ('CAJ', 'quirino', 'leonel'), ('CAJ', 'rosaura', 'magdalena'),
               ('CON', 'salvador', 'nicanor'), ('CON', 'teresa', 'olivia'), ('CON', 'ubaldo', 'prudencio'),
               ('CON', 'valeria', 'ramona'), ('CON', 'wilfrido', 'silvestre')) AS personal (tipo, norte, sur)
 CROSS JOIN LATERAL (SELECT CASE :'juego' WHEN 'norte' THEN norte ELSE sur END AS login) AS p;

SELECT alta_login(usuarioid, :'sucursal'), otorga_permisos_de_tipo(usuarioid)
  FROM usuario LEFT JOIN parametro USING (usuarioid)
 WHERE parametroid IS NULL
 ORDER BY usuarioid;

SELECT ajusta_sesiones(usuarioid) FROM usuario;

INSERT INTO parametro (usuarioid, serieuser, impresoracaja, impresorareporte, reporteslaser)
SELECT usuarioid, upper(left(usuarioid, 2)), 'caja', 'reportes', 1 FROM usuario ORDER BY usuarioid
ON CONFLICT DO NOTHING;
UPDATE parametro SET cuentacaja = '1101-01-00-00-0000';

-- Every user became a person by the name of his login.
UPDATE sujeto s
   SET nombre = initcap(u.usuarioid),
       paterno = (ARRAY['Quimera', 'Supuesto', 'Ficticio', 'Ensueño', 'Lunares'])[1 + s.sujetoid % 5],
       materno = (ARRAY['Muestra', 'Ejemplo', 'Inventado', 'Fábula', 'Utopía', 'Bruma', 'Cometa'])[1 + s.sujetoid % 7],
       fechanacimiento = date '1965-02-11' + (s.sujetoid * 487 % 11000)::integer
  FROM usuario u
 WHERE u.sujetoid = s.sujetoid;
