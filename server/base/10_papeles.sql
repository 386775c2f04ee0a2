-- Roles of the house and who may enter this database.
--
-- Roles belong to the whole cluster, so each is made only where it is missing: several databases share them.
--   tolvara_usuarios     every person's login is a member; owns nothing
--   tolvara_propietario  owns every object; the stored functions run with its rights; nobody logs in as it
--   tolvara_altas        owns only the functions that make and retire logins (30_logins.sql), and is therefore the
--                        only role that may create roles: a flaw elsewhere cannot reach that power
SELECT format('CREATE ROLE %I NOLOGIN%s', papel, facultad)
  FROM (VALUES ('tolvara_usuarios', ''), ('tolvara_propietario', ''), ('tolvara_altas', ' CREATEROLE'))
       AS papeles (papel, facultad)
 WHERE NOT EXISTS (SELECT FROM pg_roles WHERE rolname = papel)
\gexec

SELECT current_database() AS base \gset
REVOKE ALL ON DATABASE :"base" FROM PUBLIC;
GRANT CONNECT ON DATABASE :"base" TO tolvara_usuarios;
REVOKE ALL ON SCHEMA public FROM PUBLIC;

CREATE SCHEMA IF NOT EXISTS comun AUTHORIZATION tolvara_propietario;

-- A function is for its owner until a line of its own file grants it.
ALTER DEFAULT PRIVILEGES FOR ROLE tolvara_propietario REVOKE EXECUTE ON FUNCTIONS FROM PUBLIC;
