-- What a session may be set to changes nothing of what a function does or stores: its text is read, and dates are written,
-- as they were meant.
SELECT format('ALTER FUNCTION %s SET standard_conforming_strings TO on SET datestyle TO ''ISO, DMY''', p.oid::regprocedure)
  FROM pg_proc p
 WHERE p.pronamespace = current_schema()::regnamespace AND p.proconfig::text ~ 'search_path=' AND p.proowner = 'tolvara_propietario'::regrole
\gexec
