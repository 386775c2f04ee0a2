-- From version 1: how a retired login is told from a suspended one.
RESET ROLE;
SELECT format('ALTER ROLE %I PASSWORD NULL VALID UNTIL ''-infinity''', rolname)
  FROM pg_roles AS r
 WHERE NOT rolcanlogin AND rolvaliduntil IS DISTINCT FROM '-infinity' AND rolname !~ '^(tolvara|sucursal)_'
   AND EXISTS (SELECT FROM pg_auth_members WHERE member = r.oid AND roleid = 'tolvara_usuarios'::regrole)
   AND NOT EXISTS (SELECT FROM pg_auth_members m JOIN pg_roles g ON g.oid = m.roleid
                    WHERE m.member = r.oid AND g.rolname ~ '^sucursal_')
\gexec
SET LOCAL ROLE tolvara_propietario;
