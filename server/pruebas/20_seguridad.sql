-- Who may what: the rows of permission, how they change, and that a change counts at the very next call.
BEGIN;
SELECT no_plan();

-- The number of a user's row for a module, for the statements below.
CREATE FUNCTION norte.renglon(login text, clave text) RETURNS bigint LANGUAGE sql SECURITY DEFINER
RETURN (SELECT permisomoduloid FROM norte.permisomodulo WHERE usuarioid = login AND clavemodulo = clave::bpchar);

SELECT is((SELECT count(*) FROM norte.permisomodulo WHERE usuarioid = u.usuarioid),
          (SELECT count(*) FROM norte.modulo), u.usuarioid || ' tiene un renglón por módulo')
  FROM norte.usuario u;

SELECT is(como(usuario, 'norte', sentencia), esperado, usuario || ': ' || sentencia)
  FROM (VALUES
    ('camila', $$SELECT permiso FROM spspermisomodulo('camila','0203')$$, 'N'),
    ('camila', $$SELECT permiso || descripcionmodulo FROM spspermisomodulo('braulio','0203')$$, 'SMonedas'),
    ('camila', $$SELECT count(*) FROM spspermisomodulo('camila','9999')$$, '0'),
    ('camila', $$SELECT count(*) FROM spspermisomodulo('nadie','0203')$$, '0'),
    ('adriana', $$SELECT clavemodulo FROM spspermisosmodulos('braulio') LIMIT 1$$, '0102'),
    ('adriana', $$SELECT usuarioid || clavemodulo FROM spspermisosmodulos(renglon('camila','0203'))$$,
     'camila0203'),
    ('adriana', $$SELECT count(*) FROM spspermisosmodulos(0)$$, '0'),
    ('adriana', $$SELECT spupermisomodulo(renglon('camila','0203'),'0203      ','camila','S')$$, ''),
    ('camila', $$SELECT spimoneda('CM','De camila',1)$$, ''),
    ('adriana', $$SELECT spupermisomodulo(renglon('camila','0203'),'0203','camila','N')$$, ''),
    ('camila', $$SELECT spimoneda('CN','De camila',1)$$, 'No tiene permiso para la opción Monedas (módulo 0203)'),
    ('adriana', $$SELECT spupermisomodulo(renglon('camila','0203'),'0203','camila','X')$$,
     'El permiso debe ser S o N'),
    ('adriana', $$SELECT spupermisomodulo(renglon('camila','0203'),'0203','camila',NULL)$$,
     'El permiso debe ser S o N'),
    ('adriana', $$SELECT spupermisomodulo(0,'0203','camila','S')$$, 'El permiso número 0 no existe'),
    ('adriana', $$SELECT spupermisomodulo(renglon('camila','0203'),'0102','camila','S')$$,
     'El usuario camila ya tiene renglón del módulo 0102'),
    ('adriana', $$SELECT spupermisomodulo(renglon('camila','0203'),'9999','camila','S')$$, 'El módulo 9999 no existe'),
    ('adriana', $$SELECT spipermisomodulo('0203','camila','S')$$, 'El usuario camila ya tiene renglón del módulo 0203'),
    ('adriana', $$SELECT spipermisomodulo('0203','nadie','S')$$, 'El usuario nadie no existe'),
    ('adriana', $$SELECT spipermisomodulo('','camila','S')$$, 'Falta el módulo'),
    ('adriana', $$SELECT spipermisomodulo(NULL,NULL,NULL)$$, 'Falta el usuario'),
    ('adriana', $$SELECT spdpermisosmodulos(renglon('camila','0203'))$$, ''),
    ('camila', $$SELECT spdmoneda('CM')$$, 'No tiene permiso para la opción Monedas (módulo 0203)'),
    ('adriana', $$SELECT spipermisomodulo('0203','camila','S') = renglon('camila','0203')$$, 'true'),
    ('camila', $$SELECT spdmoneda('CM')$$, ''),
    ('adriana', $$SELECT spdpermisosmodulos(0)$$, 'El permiso número 0 no existe'),
    ('braulio', $$SELECT spupermisomodulo(1,'0203','camila','S')$$,
     'No tiene permiso para la opción Usuarios y accesos (módulo 0206)'),
    ('braulio', $$SELECT spipermisomodulo('0206','braulio','S')$$,
     'No tiene permiso para la opción Usuarios y accesos (módulo 0206)'),
    ('braulio', $$SELECT spdpermisosmodulos(1)$$,
     'No tiene permiso para la opción Usuarios y accesos (módulo 0206)')
  ) AS paso (usuario, sentencia, esperado);

-- The client's rule holds here too: every letter but "N" grants.
SELECT is(como('camila', 'norte', format('SELECT spumoneda(''MX'',''Peso'',%s)', valor)), esperado, letra)
  FROM (VALUES (1, '', ''), (2, 'n', ''), (3, 'S', ''),
               (4, 'N', 'No tiene permiso para la opción Monedas (módulo 0203)')) AS caso (valor, letra, esperado),
       LATERAL (SELECT como('postgres', 'norte', format(
         'UPDATE permisomodulo SET permiso = %L WHERE usuarioid = ''camila'' AND clavemodulo = ''0203''', letra))) AS c
 WHERE c IS NOT NULL;

SELECT results_eq(
  $$ SELECT usuario, operacion, nuevo ->> 'permiso' FROM norte.bitacora
      WHERE tabla = 'permisomodulo' AND clave = 'camila/0203' AND usuario = 'adriana' ORDER BY bitacoraid $$,
  $$ VALUES ('adriana'::name, 'UPDATE', 'S'), ('adriana', 'UPDATE', 'N'), ('adriana', 'DELETE', NULL),
            ('adriana', 'INSERT', 'S') $$,
  'la bitácora guarda cada permiso que se da o se quita');

SELECT * FROM finish();
ROLLBACK;
