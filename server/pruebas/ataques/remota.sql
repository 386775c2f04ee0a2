-- Branches of other servers: what a user gains from their tables and from the password that is kept for them, which is
-- nothing; and what the login of another server may read here beyond what it is for, which is nothing either.
BEGIN;
SELECT no_plan();
SET LOCAL search_path TO tap, public;
SET LOCAL client_min_messages TO error;
CREATE EXTENSION postgres_fdw SCHEMA comun;
CREATE SERVER tolvara_lejos FOREIGN DATA WRAPPER postgres_fdw OPTIONS (host '127.0.0.1', port '9', dbname 'tolvara');
CREATE USER MAPPING FOR tolvara_propietario SERVER tolvara_lejos OPTIONS (user 'lector', password 'la del lector');
CREATE SCHEMA lejos AUTHORIZATION tolvara_propietario;
GRANT USAGE ON FOREIGN SERVER tolvara_lejos TO tolvara_propietario;
SET LOCAL ROLE tolvara_propietario;
CREATE FOREIGN TABLE lejos.sucursal_detalle (version integer, sucid text) SERVER tolvara_lejos;
CREATE FOREIGN TABLE lejos.persona_detalle (paterno text) SERVER tolvara_lejos;
CREATE VIEW lejos.empresa AS SELECT CASE WHEN se_rechaza THEN NULL::integer END AS empresaid, CASE WHEN se_rechaza THEN ''::text END AS sucid
  FROM comun.rechaza_entrada('lejos') AS se_rechaza;
GRANT SELECT ON lejos.empresa TO tolvara_usuarios;
GRANT USAGE ON SCHEMA lejos TO tolvara_usuarios;
RESET ROLE;
REVOKE USAGE ON FOREIGN SERVER tolvara_lejos FROM tolvara_propietario;

SELECT matches(como(usuario, 'lejos, norte', sentencia), esperado, usuario || ': ' || sentencia)
  FROM unnest(ARRAY['camila', 'adriana']) AS usuario,
       (VALUES
    -- the tables
    ('SELECT count(*) FROM lejos.persona_detalle', 'permission denied for foreign table persona_detalle'),
    ('SELECT count(*) FROM persona_detalle WHERE false', 'permission denied for foreign table persona_detalle'),
    ('SELECT version FROM lejos.sucursal_detalle', 'permission denied for foreign table sucursal_detalle'),
    ('SELECT paterno FROM lejos.persona_detalle FOR UPDATE', 'permission denied'),
    ('INSERT INTO lejos.persona_detalle VALUES (''x'')', 'permission denied for foreign table persona_detalle'),
    ('UPDATE lejos.persona_detalle SET paterno = ''x''', 'permission denied for foreign table persona_detalle'),
    ('DELETE FROM lejos.persona_detalle', 'permission denied for foreign table persona_detalle'),
    ('TRUNCATE lejos.persona_detalle', 'permission denied for foreign table persona_detalle'),
    ('LOCK TABLE lejos.persona_detalle IN SHARE MODE', 'cannot lock relation'),
    ('ALTER FOREIGN TABLE lejos.persona_detalle OPTIONS (SET schema_name ''norte'')', 'must be owner|does not exist'),
    ('DROP FOREIGN TABLE lejos.persona_detalle', 'must be owner of foreign table'),
    ('SELECT count(*) FROM norte.persona_detalle', 'permission denied for view persona_detalle'),
    ('SELECT count(*) FROM norte.cuenta_detalle', 'permission denied for view cuenta_detalle'),
    ('SELECT norte.persona_reporte(NULL)', 'permission denied for function persona_reporte'),
    -- the place of the institution's row
    ('SELECT sucid FROM empresa WHERE empresaid=1', '^La sucursal lejos está en otro servidor \(127.0.0.1, puerto 9\)'),
    ('SELECT count(*) FROM lejos.empresa', '^La sucursal lejos está en otro servidor'),
    ('SELECT count(*) FROM lejos.empresa WHERE false', '^0$'),
    ('INSERT INTO lejos.empresa DEFAULT VALUES', 'cannot insert into view|permission denied for view empresa'),
    ('DROP VIEW lejos.empresa', 'must be owner'),
    ('CREATE TABLE lejos.trampa (a integer)', 'permission denied for schema lejos'),
    ('SELECT comun.rechaza_entrada(''lejos'')', 'permission denied for schema comun'),
    ('SELECT comun.faltan_cuentas()', 'permission denied for schema comun'),
    ('SELECT comun.conoce_remota(''x'', ''y'', 1)', 'permission denied for schema comun'),
    -- the password
    ('SELECT coalesce(string_agg(umoptions::text, ''''), ''nada'') FROM pg_user_mappings', '^nada$'),
    ('SELECT count(*) FROM information_schema.user_mapping_options WHERE option_value <> ''''', '^0$'),
    ('SELECT umoptions FROM pg_user_mapping', 'permission denied for table pg_user_mapping'),
    ('ALTER USER MAPPING FOR tolvara_propietario SERVER tolvara_lejos OPTIONS (SET user ''otro'')', 'must be owner of foreign server'),
    ('DROP USER MAPPING FOR tolvara_propietario SERVER tolvara_lejos', 'must be owner of foreign server'),
    -- further servers, or this one turned elsewhere
    ('CREATE USER MAPPING FOR CURRENT_USER SERVER tolvara_lejos OPTIONS (user ''x'', password ''y'')', 'permission denied for foreign server'),
    ('CREATE USER MAPPING FOR PUBLIC SERVER tolvara_lejos OPTIONS (user ''x'', password ''y'')', 'must be owner of foreign server'),
    ('CREATE SERVER mio FOREIGN DATA WRAPPER postgres_fdw OPTIONS (host ''127.0.0.1'')', 'permission denied for foreign-data wrapper'),
    ('ALTER SERVER tolvara_lejos OPTIONS (SET host ''127.0.0.2'')', 'must be owner of foreign server'),
    ('DROP SERVER tolvara_lejos CASCADE', 'must be owner of foreign server'),
    ('CREATE FOREIGN TABLE public.mia (a integer) SERVER tolvara_lejos', 'permission denied for (schema public|foreign server)'),
    ('IMPORT FOREIGN SCHEMA sur FROM SERVER tolvara_lejos INTO norte', 'permission denied for foreign server'),
    ('CREATE EXTENSION file_fdw', 'permission denied to create extension'),
    ('SELECT comun.postgres_fdw_disconnect_all()', 'permission denied for schema comun'),
    ('SET ROLE tolvara_lectores', 'permission denied to set role'),
    ('SET ROLE tolvara_respaldo', 'permission denied to set role')
  ) AS ataque (sentencia, esperado);

-- Not even the owner's functions can be made to tell the password, since the owner may not use the server.
SELECT is((SELECT string_agg(coalesce(umoptions::text, 'nada'), ' ') FROM pg_user_mappings), '{user=lector,"password=la del lector"}',
          'hay una contraseña que robar');
SELECT is(como('tolvara_propietario', 'norte', 'SELECT string_agg(coalesce(umoptions::text, ''nada''), '' '') FROM pg_user_mappings'), 'nada',
          'y ni el propietario la lee');

-- The login of another server.
CREATE ROLE lector_de_otro LOGIN IN ROLE tolvara_lectores;
SELECT matches(como('lector_de_otro', 'norte', sentencia), esperado, 'lector: ' || sentencia)
  FROM (VALUES
    ('SELECT version > 0 FROM norte.sucursal_detalle', '^true$'),
    ('SELECT count(*) > 200 FROM norte.cuenta_detalle', '^true$'),
    ('SELECT count(renglones) > 200 FROM norte.persona_detalle', '^true$'),
    ('SELECT count(depositogarantia) FROM norte.precorte_detalle', '^\d+$'),
    ('SELECT count(*) FROM sur.persona_detalle', '^\d+$'),
    ('SELECT count(*) FROM norte.sujeto', 'permission denied for table sujeto'),
    ('SELECT count(*) FROM norte.prestamos', 'permission denied for table prestamos'),
    ('SELECT count(*) FROM norte.precorte', 'permission denied for table precorte'),
    ('SELECT count(*) FROM norte.catalogo_ctas', 'permission denied for table catalogo_ctas'),
    ('SELECT count(*) FROM norte.usuario', 'permission denied for table usuario'),
    ('SELECT count(*) FROM norte.bitacora', 'permission denied for table bitacora'),
    ('SELECT count(*) FROM norte.empresa', 'permission denied for table empresa'),
    ('SELECT count(*) FROM norte.spssociocaja()', 'permission denied for function spssociocaja'),
    ('SELECT norte.login(''hilda'', ''x'')', 'permission denied for function login'),
    ('SELECT norte.precierre(''31/10/2026'')', 'permission denied for function precierre'),
    ('SELECT count(*) FROM norte.precorteconsolidado(2026, 10)', 'permission denied for function precorteconsolidado'),
    ('SELECT norte.spimoneda(''Q'', ''x'', 1)', 'permission denied for function spimoneda'),
    ('INSERT INTO norte.persona_detalle (paterno) VALUES (''x'')', 'cannot insert|permission denied'),
    ('UPDATE norte.cuenta_detalle SET cuentanombre = ''x''', 'permission denied for view cuenta_detalle'),
    ('DELETE FROM norte.cuenta_detalle', 'permission denied for view cuenta_detalle'),
    ('INSERT INTO norte.inabil VALUES (''2031-01-01'')', 'permission denied for table inabil'),
    ('CREATE TEMPORARY TABLE t (a integer)', 'permission denied'),
    ('CREATE FUNCTION norte.f() RETURNS integer LANGUAGE sql AS ''SELECT 1''', 'permission denied for schema norte'),
    ('SELECT * FROM comun.version', 'permission denied for schema comun'),
    ('SELECT comun.rechazos()', 'permission denied for schema comun'),
    ('SELECT coalesce(string_agg(umoptions::text, ''''), ''nada'') FROM pg_user_mappings', '^nada$'),
    ('SELECT version FROM lejos.sucursal_detalle', 'permission denied for schema lejos'),
    ('SELECT rolpassword FROM pg_authid LIMIT 1', 'permission denied for table pg_authid'),
    ('SET ROLE tolvara_propietario', 'permission denied to set role')
  ) AS ataque (sentencia, esperado);
SELECT is(como('postgres', 'norte, comun', 'SELECT alta_login(''lector_de_otro'', ''norte'')'),
          'El login "lector_de_otro" está reservado en el servidor', 'y no se vuelve usuario');

-- Nothing is written where all branches cannot be reached in one transaction.
SELECT matches(como('adriana', 'norte', $$SELECT spicatalogo_ctasc('9000',NULL,'6','De todas','A','A','05/03/2026',' ','D',0,0,0,0)$$),
               '^Una cuenta no se da de alta a la vez en varios servidores, y hay sucursales en otro: lejos \(127.0.0.1, puerto 9\)\. Dela',
               'una cuenta en todas se niega');
SELECT is((SELECT count(*) FROM norte.catalogo_ctas WHERE cuentaid = '9000'), 0::bigint, 'antes de escribirla en ninguna');

SELECT * FROM finish();
ROLLBACK;
