-- Roles of the house and who may enter this database.
--
-- Roles belong to the whole cluster, so each is made only where it is missing: several databases share them.
--   tolvara_usuarios     every person's login is a member; owns nothing
--   tolvara_propietario  owns every object; the stored functions run with its rights; nobody logs in as it
--   tolvara_altas        owns only the functions that make and retire logins (30_logins.sql), and is therefore the
--                        only role that may create roles: a flaw elsewhere cannot reach that power
--   tolvara_auditores    reads the log of every branch and nothing else
--   tolvara_registro     owns only the function that reads the server's own log for them (60_registro.sql)
--   tolvara_lectores     the logins of other servers, which read of each branch what goes into an answer over all (70_remotas.sql)
--   tolvara_respaldo     what a backup of the shared objects is read as where a password is kept that it must not hold
SELECT format('CREATE ROLE %I NOLOGIN%s', papel, facultad)
  FROM (VALUES ('tolvara_usuarios', ''), ('tolvara_propietario', ''), ('tolvara_altas', ' CREATEROLE'),
               ('tolvara_auditores', ''), ('tolvara_registro', ''), ('tolvara_lectores', ''), ('tolvara_respaldo', ''))
       AS papeles (papel, facultad)
 WHERE NOT EXISTS (SELECT FROM pg_roles WHERE rolname = papel)
\gexec

SELECT current_database() AS base \gset
REVOKE ALL ON DATABASE :"base" FROM PUBLIC;
GRANT CONNECT ON DATABASE :"base" TO tolvara_usuarios, tolvara_auditores, tolvara_lectores;
ALTER ROLE tolvara_respaldo BYPASSRLS;  -- a restored one has lost it
GRANT pg_read_all_data TO tolvara_respaldo;
REVOKE ALL ON SCHEMA public FROM PUBLIC;

-- A retired login's sessions are ended, see 30_logins.sql.
GRANT pg_signal_backend TO tolvara_altas;

-- Nobody's business is in the other databases of the cluster.
SELECT format('REVOKE ALL ON DATABASE %I FROM PUBLIC', datname) FROM pg_database WHERE datname IN ('postgres', 'template1')
\gexec

-- What anybody could fill the server's memory or disk with: locks that belong to no table, large objects, messages in
-- the write-ahead log.
SELECT format('REVOKE EXECUTE ON FUNCTION %s FROM PUBLIC', oid::regprocedure)
  FROM pg_proc
 WHERE pronamespace = 'pg_catalog'::regnamespace
   AND (proname ~ '^pg_(try_)?advisory_' OR proname ~ '^lo_' OR proname IN ('loread', 'lowrite', 'pg_logical_emit_message'))
   AND has_function_privilege('public', oid, 'EXECUTE')
\gexec
GRANT EXECUTE ON FUNCTION pg_advisory_xact_lock(bigint) TO tolvara_propietario;

-- No statement reaches the server's log file, since one may hold a password; errors do, without it.
ALTER DATABASE :"base" SET log_statement = 'none';
ALTER DATABASE :"base" SET log_min_error_statement = 'panic';
ALTER DATABASE :"base" SET log_min_duration_statement = -1;
ALTER DATABASE :"base" SET log_min_duration_sample = -1;

CREATE SCHEMA IF NOT EXISTS comun AUTHORIZATION tolvara_propietario;

-- The version of these objects (`comun`) and of each branch, and the digest of the template that made them; a branch that
-- is not here is of version 1.
CREATE TABLE IF NOT EXISTS comun.version (
  objeto name PRIMARY KEY,
  version integer NOT NULL,
  desde timestamptz NOT NULL DEFAULT now()
);
ALTER TABLE comun.version ADD COLUMN IF NOT EXISTS huella text;
ALTER TABLE comun.version OWNER TO tolvara_propietario;
INSERT INTO comun.version (objeto, version, huella) VALUES ('comun', :version, :'huella')
ON CONFLICT (objeto) DO UPDATE SET version = excluded.version, huella = excluded.huella, desde = now()
 WHERE (version.version, version.huella) IS DISTINCT FROM (excluded.version, excluded.huella);

-- A function is for its owner until a line of its own file grants it.
ALTER DEFAULT PRIVILEGES FOR ROLE tolvara_propietario REVOKE EXECUTE ON FUNCTIONS FROM PUBLIC;

-- For the constraint on the periods of rates.
CREATE EXTENSION IF NOT EXISTS btree_gist SCHEMA comun;
