-- The branch itself: its schema and the group of those who have an account in it.
--
-- The files of this folder run in the order of their names, in one transaction, with the psql variable `sucursal`.
-- From here on all of them work as the owner, with a path that functions keep for themselves (SET search_path FROM
-- CURRENT): branch, shared helpers, and temporary objects last, so that nobody can put a table of his own in front.
-- The variable `grupo` is for the GRANTs that close each file; nothing else names the branch.
\set grupo sucursal_ :sucursal

SELECT format('CREATE ROLE %I NOLOGIN', :'grupo') WHERE NOT EXISTS (SELECT FROM pg_roles WHERE rolname = :'grupo')
\gexec

CREATE SCHEMA :"sucursal" AUTHORIZATION tolvara_propietario;
SET LOCAL ROLE tolvara_propietario;
SET LOCAL search_path TO :"sucursal", comun, pg_temp;
GRANT USAGE ON SCHEMA :"sucursal" TO :"grupo";
INSERT INTO version (objeto, version, huella) VALUES (:'sucursal', :version, :'huella')
ON CONFLICT (objeto) DO UPDATE SET version = excluded.version, huella = excluded.huella, desde = now();
