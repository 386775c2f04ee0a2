-- From version 1: what logins get one by one since then, and how a retired one is told from a suspended one.
SELECT prepara_intentos(usuarioid), ajusta_sesiones(usuarioid) FROM usuario;
SELECT ajusta_escritura(usuarioid, modulo) FROM usuario, unnest(ARRAY['0208', '0217', '0448']) AS modulo;
RESET ROLE;
SELECT format('ALTER ROLE %I PASSWORD NULL VALID UNTIL ''-infinity''', rolname)
  FROM pg_roles AS r
 WHERE NOT rolcanlogin AND rolvaliduntil IS DISTINCT FROM '-infinity' AND rolname !~ '^(tolvara|sucursal)_'
   AND EXISTS (SELECT FROM pg_auth_members WHERE member = r.oid AND roleid = 'tolvara_usuarios'::regrole)
   AND NOT EXISTS (SELECT FROM pg_auth_members m JOIN pg_roles g ON g.oid = m.roleid
                    WHERE m.member = r.oid AND g.rolname ~ '^sucursal_')
\gexec
SET LOCAL ROLE tolvara_propietario;
