-- What must fail for a user who leaves the client aside and talks to the server himself.
BEGIN;
SELECT no_plan();

SELECT matches(como(usuario, 'norte', sentencia), esperado, usuario || ': ' || sentencia)
  FROM (VALUES
    -- direct writing
    ('braulio', $$INSERT INTO moneda VALUES ('ZZ', 1, 'Directa')$$, 'permission denied for table moneda'),
    ('braulio', $$UPDATE moneda SET monedavalor = 9$$, 'permission denied for table moneda'),
    ('braulio', $$DELETE FROM moneda$$, 'permission denied for table moneda'),
    ('braulio', $$TRUNCATE moneda$$, 'permission denied for table moneda'),
    ('braulio', $$UPDATE permisomodulo SET permiso = 'S'$$, 'permission denied for table permisomodulo'),
    ('braulio', $$UPDATE empresa SET nconcurrencias = 99$$, 'permission denied for table empresa'),
    ('braulio', $$INSERT INTO usuario (usuarioid, tipousuarioid) VALUES ('x', 'ADM')$$,
     'permission denied for table usuario'),
    ('adriana', $$UPDATE parametro SET serieuser = 'Z'$$, 'permission denied for table parametro'),
    -- the log
    ('adriana', $$SELECT count(*) FROM bitacora$$, 'permission denied for table bitacora'),
    ('adriana', $$DELETE FROM bitacora$$, 'permission denied for table bitacora'),
    ('adriana', $$INSERT INTO bitacora (tabla, clave, operacion) VALUES ('x', 'x', 'INSERT')$$,
     'permission denied for table bitacora'),
    ('postgres', $$DELETE FROM bitacora$$, 'La bitácora no se puede alterar'),
    ('postgres', $$UPDATE bitacora SET usuario = 'otro'$$, 'La bitácora no se puede alterar'),
    ('postgres', $$TRUNCATE bitacora$$, 'La bitácora no se puede alterar'),
    -- another branch
    ('braulio', $$SELECT count(*) FROM sur.moneda$$, 'permission denied for schema sur'),
    ('braulio', $$SELECT sur.spimoneda('ZZ', 'De fuera', 1)$$, 'permission denied for schema sur'),
    ('braulio', $$SELECT count(*) FROM sur.spsparametro('')$$, 'permission denied for schema sur'),
    ('dario', $$SELECT count(*) FROM spsmoneda('')$$, 'function spsmoneda\(unknown\) does not exist'),
    -- internal functions
    ('adriana', $$SELECT norte.otorga_permisos_de_tipo('adriana')$$, 'permission denied for function'),
    ('adriana', $$SELECT norte.exige_permiso('0203')$$, 'permission denied for function'),
    ('adriana', $$SELECT comun.alta_login('intruso', 'norte')$$, 'permission denied for schema comun'),
    -- logins
    ('braulio', $$SELECT * FROM creausuario('braulio', 'tolvara_usuarios')$$, 'No tiene permiso para la opción Usuarios'),
    ('adriana', $$SELECT * FROM creausuario('postgres', 'tolvara_usuarios')$$, 'El usuario postgres no existe'),
    ('adriana', $$SELECT * FROM creausuario('camila', 'tolvara_propietario')$$, 'no es de esta sucursal'),
    ('adriana', $$SELECT * FROM creausuario('camila', 'sucursal_sur')$$, 'no es de esta sucursal'),
    ('adriana', $$SELECT * FROM creausuario('camila', NULL)$$, 'no es de esta sucursal'),
    ('adriana', $$SELECT * FROM creausuario(NULL, 'tolvara_usuarios')$$, 'El usuario <NULL> no existe'),
    ('adriana', $$SELECT * FROM creausuario('camila', 'tolvara_usuarios')$$, '^1$'),
    ('adriana', $$CREATE ROLE intruso LOGIN$$, 'permission denied to create role'),
    ('adriana', $$ALTER ROLE camila PASSWORD 'nueva'$$, 'must have CREATEROLE|permission denied'),
    ('adriana', $$GRANT tolvara_propietario TO adriana$$, 'must have admin option'),
    ('adriana', $$SET ROLE tolvara_propietario$$, 'permission denied to set role'),
    ('adriana', $$SET ROLE tolvara_altas$$, 'permission denied to set role'),
    -- passwords
    ('adriana', $$SELECT rolpassword FROM pg_authid LIMIT 1$$, 'permission denied for table pg_authid'),
    ('adriana', $$SELECT passwd FROM pg_shadow LIMIT 1$$, 'permission denied for view pg_shadow'),
    -- own objects
    ('braulio', $$CREATE TABLE public.moneda (a integer)$$, 'permission denied for schema public'),
    ('braulio', $$CREATE TABLE norte.trampa (a integer)$$, 'permission denied for schema norte'),
    ('braulio', $$CREATE SCHEMA trampa$$, 'permission denied for database'),
    ('braulio', $$CREATE TEMPORARY TABLE moneda (a integer)$$, 'permission denied (to create temporary|for schema pg_temp)'),
    ('braulio', $$CREATE OR REPLACE FUNCTION norte.exige_permiso(modulo text) RETURNS void LANGUAGE sql AS ''$$,
     'permission denied for schema norte|must be owner'),
    ('braulio', $$ALTER TABLE moneda DISABLE TRIGGER bitacora$$, 'must be owner of table moneda'),
    ('adriana', $$SET session_replication_role = 'replica'$$, 'permission denied to set parameter')
  ) AS ataque (usuario, sentencia, esperado);

-- Temporary objects cannot get in front of the branch's, even where temporary tables are allowed.
GRANT TEMPORARY ON DATABASE tolvara TO braulio, camila;
SELECT is(como(usuario, 'norte', sentencia), esperado, usuario || ': ' || sentencia)
  FROM (VALUES
    ('camila', $$CREATE TEMPORARY TABLE permisomodulo AS
                 SELECT 'camila'::varchar(20) AS usuarioid, '0203'::character(10) AS clavemodulo, 'S' AS permiso$$, ''),
    ('camila', $$SELECT spimoneda('TR','Trampa',1)$$, 'No tiene permiso para la opción Monedas (módulo 0203)'),
    ('braulio', $$CREATE TEMPORARY TABLE moneda (monedaid character(2), monedavalor numeric, monedadescri text)$$, ''),
    ('braulio', $$CREATE TEMPORARY TABLE bitacora (tabla text, clave text, operacion text)$$, ''),
    ('braulio', $$SELECT spimoneda('TR','Verdadera',1)$$, ''),
    ('braulio', $$SELECT count(*) FROM pg_temp.moneda$$, '0'),
    ('braulio', $$SELECT monedadescri FROM spsmoneda('TR')$$, 'Verdadera')
  ) AS paso (usuario, sentencia, esperado);
SELECT is((SELECT usuario FROM norte.bitacora WHERE tabla = 'moneda' AND clave = 'TR'), 'braulio'::name,
          'el cambio queda en la bitácora de verdad');

-- Logins: who is let in, who is not, and what a retired one keeps.
SELECT matches(como('postgres', 'norte, comun', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT alta_login('postgres', 'norte')$$, 'El login "postgres" está reservado en el servidor'),
    ($$CREATE ROLE mandamas SUPERUSER IN ROLE tolvara_usuarios$$, '^$'),
    ($$SELECT alta_login('mandamas', 'norte')$$, 'El login "mandamas" está reservado en el servidor'),
    ($$SELECT alta_login('tolvara_propietario', 'norte')$$, 'está reservado en el servidor'),
    ($$SELECT alta_login('sucursal_sur', 'norte')$$, 'está reservado en el servidor'),
    ($$SELECT alta_login('pg_monitor', 'norte')$$, 'está reservado en el servidor'),
    ($$SELECT alta_login('x"; DROP ROLE braulio', 'norte')$$, 'no es válido'),
    ($$SELECT alta_login('', 'norte')$$, 'no es válido'),
    ($$SELECT alta_login(NULL, 'norte')$$, 'no es válido'),
    ($$SELECT alta_login('Nueva.Persona-1', 'norte')$$, '^$'),
    ($$SELECT pg_has_role('Nueva.Persona-1', 'sucursal_norte', 'MEMBER')$$, 'true'),
    ($$SELECT pg_has_role('Nueva.Persona-1', 'sucursal_sur', 'MEMBER')$$, 'false'),
    ($$SELECT rolcanlogin AND rolpassword IS NULL FROM pg_authid WHERE rolname = 'Nueva.Persona-1'$$, 'true'),
    ($$SELECT baja_login('Nueva.Persona-1', 'norte')$$, '^$'),
    ($$SELECT rolcanlogin FROM pg_roles WHERE rolname = 'Nueva.Persona-1'$$, 'false'),
    ($$SELECT baja_login('adriana', 'sur')$$, '^$'),
    ($$SELECT rolcanlogin FROM pg_roles WHERE rolname = 'adriana'$$, 'true'),
    ($$SELECT pg_has_role('adriana', 'sucursal_sur', 'MEMBER')$$, 'false'),
    ($$SELECT baja_login('postgres', 'norte')$$, '^$'),
    ($$SELECT rolcanlogin FROM pg_roles WHERE rolname = 'postgres'$$, 'true')
  ) AS paso (sentencia, esperado);

SELECT * FROM finish();
ROLLBACK;
