-- The branch asks for the program that came with its template.
UPDATE :"sucursal".empresa SET version = DEFAULT;

-- The old branch has given everything.
RESET ROLE;
SET LOCAL client_min_messages = error;
DROP SCHEMA :"anterior" CASCADE;
SELECT format('ANALYZE %s', oid::regclass) FROM pg_class
 WHERE relnamespace = :'sucursal'::regnamespace AND relkind IN ('r', 'p') AND NOT relispartition
\gexec
