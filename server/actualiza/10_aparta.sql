-- Puts the branch aside, with nobody at work in it, so that the template can make it anew under its name.
SELECT format('LOCK TABLE %I.%I IN ACCESS EXCLUSIVE MODE', :'sucursal', relname)
  FROM pg_class
 WHERE relnamespace = :'sucursal'::regnamespace AND relkind IN ('r', 'p') AND NOT relispartition
 ORDER BY relname
\gexec
ALTER SCHEMA :"sucursal" RENAME TO :"anterior";
