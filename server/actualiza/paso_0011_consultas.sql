-- From version 10: the modules of the back office's options, which the copy has taken away with the rows of the template.
INSERT INTO modulo (clavemodulo, descrimodulo) VALUES
  ('0911', 'Listas de catálogos'),
  ('0912', 'Bitácora'),
  ('0913', 'Matriz de permisos')
ON CONFLICT DO NOTHING;
INSERT INTO tipousuariomodulo (tipousuarioid, clavemodulo)
SELECT tipousuarioid, clavemodulo FROM tipousuario CROSS JOIN modulo
 WHERE tipousuarioid = 'ADM' AND clavemodulo BETWEEN '0911' AND '0913'
ON CONFLICT DO NOTHING;
INSERT INTO permisomodulo (clavemodulo, usuarioid, permiso)
SELECT m.clavemodulo, u.usuarioid, CASE WHEN t.clavemodulo IS NULL THEN 'N' ELSE 'S' END
  FROM usuario u CROSS JOIN modulo m LEFT JOIN tipousuariomodulo t USING (tipousuarioid, clavemodulo)
 WHERE m.clavemodulo BETWEEN '0911' AND '0913'
ON CONFLICT DO NOTHING;
