-- A colleague with few rights who wants to shut others out, keep what was taken from him, or come back.
BEGIN;
SELECT no_plan();

-- Locks and memory that belong to nobody, and other databases.
SELECT matches(como('camila', 'norte', sentencia), 'permission denied', 'camila: ' || sentencia)
  FROM unnest(ARRAY[
    'SELECT count(pg_advisory_lock(i)) FROM generate_series(1, 20000) AS i', 'SELECT pg_advisory_xact_lock(1, 2)',
    'SELECT pg_try_advisory_lock_shared(1)', 'SELECT lo_create(0)', $$SELECT lo_from_bytea(0, 'x')$$,
    $$SELECT pg_logical_emit_message(false, 'x', 'y')$$, 'CREATE TEMPORARY TABLE t (a integer)',
    $$SELECT lo_import('/etc/passwd')$$, $$SELECT pg_read_file('/etc/passwd')$$,
    -- direct rights without the module
    'LOCK TABLE inabil IN ACCESS EXCLUSIVE MODE', 'LOCK TABLE tasavariable IN SHARE MODE',
    'LOCK TABLE tipoprestamo IN ACCESS EXCLUSIVE MODE', 'LOCK TABLE moneda IN SHARE MODE',
    'SELECT * FROM tipoprestamo FOR UPDATE', 'SELECT * FROM inabil FOR SHARE', 'SELECT * FROM empresa FOR KEY SHARE',
    'SELECT * FROM permisomodulo FOR SHARE', 'INSERT INTO inabil VALUES (''2031-01-01'')',
    'UPDATE tipoprestamo SET estatus = 0', 'DELETE FROM tasavariable']) AS sentencia;
SELECT ok(NOT has_database_privilege('camila', datname, 'CONNECT'), 'camila no entra a ' || datname)
  FROM pg_database WHERE datname IN ('postgres', 'template1');
SELECT is((SELECT rolconnlimit FROM pg_roles WHERE rolname = 'camila'), 3 + 4, 'sesiones de un login');
UPDATE norte.empresa SET nconcurrencias = 9;
SELECT is((SELECT string_agg(rolname || ' ' || rolconnlimit, ' ' ORDER BY rolname) FROM pg_roles
            WHERE rolname IN ('adriana', 'camila', 'dario')), 'adriana 13 camila 13 dario 7',
          'siguen a la institución, y valen las de la sucursal que permite más');

-- Memory: a session has its bound, so that the system need not kill the server for want of any.
SELECT matches(como('camila', 'norte', $$SELECT length(string_agg(x, '')) + length(string_agg(x, ','))
                                           FROM (SELECT repeat('y', 100000000) FROM generate_series(1, 9)) AS t (x)$$),
               'out of memory', 'la memoria de una sesión tiene fin');

-- The right to write follows the permission: in whatever way the row comes, goes or changes.
CREATE FUNCTION pg_temp.puede(login text) RETURNS text LANGUAGE sql AS $$
  SELECT concat(CASE WHEN has_table_privilege(login, 'norte.inabil', 'INSERT') THEN 'i' END,
                CASE WHEN has_table_privilege(login, 'norte.tasavariable', 'DELETE') THEN 't' END,
                CASE WHEN has_column_privilege(login, 'norte.tipoprestamo', 'estatus', 'UPDATE') THEN 'p' END)
$$;
SELECT is(pg_temp.puede(login), puede, login || ' puede escribir: ' || puede)
  FROM (VALUES ('adriana', 'itp'), ('hilda', 'itp'), ('camila', ''), ('braulio', ''), ('efrain', '')) AS d (login, puede);
CREATE FUNCTION norte.renglon(login text, clave text) RETURNS bigint LANGUAGE sql SECURITY DEFINER
RETURN (SELECT permisomoduloid FROM norte.permisomodulo WHERE usuarioid = login AND clavemodulo = clave::bpchar);
SELECT is(como('adriana', 'norte', sentencia) || pg_temp.puede('hilda') || ' ' || pg_temp.puede('camila'), esperado,
          sentencia)
  FROM (VALUES
    ($$SELECT spupermisomodulo(renglon('hilda','0448'),'0448','hilda','N')$$, 'tp '),
    ($$SELECT spdpermisosmodulos(renglon('hilda','0217'))$$, 'p '),
    ($$SELECT spupermisomodulo(renglon('camila','0448'),'0448','camila','S')$$, 'p i'),
    ($$SELECT spdpermisosmodulos(renglon('camila','0217'))$$, 'p i'),
    ($$SELECT substr(spipermisomodulo('0217','camila','S')::text, 1, 0)$$, 'p it'),
    ($$SELECT spdpermisosmodulos(renglon('camila','0208'))$$, 'p it'),
    ($$SELECT spupermisomodulo(renglon('hilda','0208'),'0208','camila','S')$$, ' itp')
  ) AS paso (sentencia, esperado);
SELECT is(como('camila', 'norte', $$insert into inabil values('2031-01-01');$$), '', 'y con él se escribe');
SELECT is(como('adriana', 'norte', $$SELECT spdusuario('camila')$$) || pg_temp.puede('camila'), '',
          'quien se va de la sucursal no conserva ninguno');

-- Deleted, suspended and made again.
SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$select spisujeto('Prueba','','Lucía','','',30,'1996-05-04','') > 0;$$, 'true'),
    ($$select spiusuario('lucia','GER','adriana','','','','',(SELECT max(sujetoid) FROM sujeto));$$, ''),
    ($$select * from creausuario('lucia','tolvara_usuarios');$$, '1')
  ) AS paso (sentencia, esperado);
SELECT is(pg_temp.puede('lucia'), 'itp', 'el login nuevo recibe lo que ya tenía su usuario');
ALTER ROLE lucia PASSWORD 'la de antes 1' VALID UNTIL '2100-01-01';
SELECT is(como('adriana', 'norte', $$SELECT spdusuario('lucia');$$), '', 'se borra a lucia');
SELECT is((SELECT concat_ws(' ', rolcanlogin, rolpassword IS NULL, rolvaliduntil) FROM pg_authid WHERE rolname = 'lucia'),
          'f t -infinity', 'el login queda sin entrada y sin contraseña');
SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$select spisujeto('Otra','','Lucía','','',30,'1996-05-04','') > 0;$$, 'true'),
    ($$select spiusuario('lucia','CAJ','adriana','','','','',(SELECT max(sujetoid) FROM sujeto));$$, ''),
    ($$select * from creausuario('lucia','tolvara_usuarios');$$, '1')
  ) AS paso (sentencia, esperado);
SELECT is((SELECT concat_ws(' ', rolcanlogin, rolpassword IS NULL, rolvaliduntil) FROM pg_authid WHERE rolname = 'lucia'),
          't t infinity', 'con el nombre no vuelve la contraseña de antes');
ALTER ROLE lucia NOLOGIN;
SELECT is(como('adriana', 'norte', $$select * from creausuario('lucia','tolvara_usuarios');$$),
          'El login "lucia" está suspendido por el administrador del servidor', 'a quien se suspendió no se le revive');
SELECT is(como('adriana', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$SELECT spdusuario('lucia');$$, ''),
    ($$select spisujeto('Otra','','Lucía','','',30,'1996-05-04','') > 0;$$, 'true'),
    ($$select spiusuario('lucia','CAJ','adriana','','','','',(SELECT max(sujetoid) FROM sujeto));$$, ''),
    ($$select * from creausuario('lucia','tolvara_usuarios');$$,
     'El login "lucia" está suspendido por el administrador del servidor')
  ) AS paso (sentencia, esperado);
SELECT is((SELECT rolcanlogin FROM pg_roles WHERE rolname = 'lucia'), false, 'ni borrándolo antes');
SELECT is((SELECT string_agg(operacion, ' ' ORDER BY bitacoraid) FROM norte.bitacora
            WHERE tabla = 'usuario' AND clave = 'lucia' AND usuario = 'adriana'),
          'INSERT ALTA DELETE BAJA INSERT ALTA DELETE BAJA INSERT', 'las altas y bajas de login quedan en la bitácora');

-- A verifier of a user's own making would keep the server computing; this one is right for the password.
ALTER ROLE braulio PASSWORD 'SCRAM-SHA-256$4097:W22ZaJ0SNY7soEsUEjb6gQ==$sdt05isWsRhzHfFDCiwaaMa8LoSaM5Z/LeTC4U4ZU/A=:3n+hspa+IoQPK0KU41yOewwLA7QonR6nXC4CY9mCuTc=';
SELECT is(como('adriana', 'norte', $$SELECT login('braulio', 'pencil')$$), '0', 'otro número de vueltas no es de nadie');

SELECT * FROM finish();
ROLLBACK;
