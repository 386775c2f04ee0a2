-- The modules of `modulos`, which a numbered step names: for a branch that is older than they are, since the copy has taken
-- them away with the rows of the template. Whoever's type has them in the template gets the right.
INSERT INTO modulo (clavemodulo, descrimodulo) VALUES :modulos
ON CONFLICT DO NOTHING;
INSERT INTO tipousuariomodulo (tipousuarioid, clavemodulo)
SELECT tipousuarioid, clave FROM tipousuario CROSS JOIN (VALUES :modulos) AS nuevo (clave, descripcion)
 WHERE tipousuarioid = 'ADM'
ON CONFLICT DO NOTHING;
INSERT INTO permisomodulo (clavemodulo, usuarioid, permiso)
SELECT m.clavemodulo, u.usuarioid, CASE WHEN t.clavemodulo IS NULL THEN 'N' ELSE 'S' END
  FROM usuario u CROSS JOIN modulo m LEFT JOIN tipousuariomodulo t USING (tipousuarioid, clavemodulo)
 WHERE m.clavemodulo IN (SELECT clave FROM (VALUES :modulos) AS nuevo (clave, descripcion))
ON CONFLICT DO NOTHING;
