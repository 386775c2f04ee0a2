-- From version 13: the module of the board of closed months, which the copy has taken away with the rows of the template.
INSERT INTO modulo (clavemodulo, descrimodulo) VALUES
  ('0914', 'Tablero de cierres')
ON CONFLICT DO NOTHING;
INSERT INTO tipousuariomodulo (tipousuarioid, clavemodulo)
SELECT tipousuarioid, clavemodulo FROM tipousuario CROSS JOIN modulo
 WHERE tipousuarioid = 'ADM' AND clavemodulo = '0914'
ON CONFLICT DO NOTHING;
INSERT INTO permisomodulo (clavemodulo, usuarioid, permiso)
SELECT m.clavemodulo, u.usuarioid, CASE WHEN t.clavemodulo IS NULL THEN 'N' ELSE 'S' END
  FROM usuario u CROSS JOIN modulo m LEFT JOIN tipousuariomodulo t USING (tipousuarioid, clavemodulo)
 WHERE m.clavemodulo = '0914'
ON CONFLICT DO NOTHING;
