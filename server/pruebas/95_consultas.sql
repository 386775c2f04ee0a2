-- What the back office looks at: a page of the log, a line of it, the matrix of permissions.
BEGIN;
SELECT no_plan();

SELECT is(como('adriana', 'norte', sentencia), '', sentencia)
  FROM (VALUES ($$SELECT spimoneda('Q7', 'Primera', 1)$$), ($$SELECT spumoneda('Q7', 'Segunda', 1)$$),
               ($$SELECT spdmoneda('Q7')$$)) AS paso (sentencia);

-- Who may ask.
SELECT is(como(usuario, 'norte', 'SELECT count(*) > 0 FROM ' || funcion), esperado, usuario || ': ' || funcion)
  FROM (VALUES
    ('adriana', $$spsbitacora('', '', '', '', '', '', 0)$$, 'true'),
    ('camila', $$spsbitacora('', '', '', '', '', '', 0)$$, 'No tiene permiso para la opción Bitácora (módulo 0912)'),
    ('camila', $$spsbitacoradetalle(1)$$, 'No tiene permiso para la opción Bitácora (módulo 0912)'),
    ('adriana', 'spsmatrizpermisos()', 'true'),
    ('camila', 'spsmatrizpermisos()', 'No tiene permiso para la opción Matriz de permisos (módulo 0913)'))
    AS caso (usuario, funcion, esperado);

-- Each filter, and what fits none.
SELECT is(como('adriana', 'norte', format('SELECT string_agg(operacion, '','' ORDER BY bitacoraid) FROM spsbitacora(%s, 0)', filtro)),
          esperado, filtro)
  FROM (VALUES
    ($$'', '', '', 'moneda', 'Q7', ''$$, 'INSERT,UPDATE,DELETE'),
    ($$'', '', 'adriana', 'moneda', 'Q7', 'UPDATE'$$, 'UPDATE'),
    ($$' ', NULL, '  adriana ', ' moneda ', ' Q7 ', ''$$, 'INSERT,UPDATE,DELETE'),
    ($$'', '', 'camila', 'moneda', 'Q7', ''$$, ''),
    (format($$'%s', '%1$s', '', 'moneda', 'Q7', ''$$, comun.hoy()), 'INSERT,UPDATE,DELETE'),
    (format($$'%s', '', '', 'moneda', 'Q7', ''$$, comun.hoy() + 1), ''),
    (format($$'', '%s', '', 'moneda', 'Q7', ''$$, comun.hoy() - 1), ''),
    ($$'', '', '', 'moneda', 'Q''7%', ''$$, ''),
    ($$'', '', '', 'moneda', 'Q7'' OR true --', ''$$, ''),
    (format($$'', '', '%s', '', '', ''$$, repeat('x', 5000)), ''),
    (format($$'', '', 'adriana%s', '', '', ''$$, repeat(' ', 60) || 'x'), '')) AS caso (filtro, esperado);
SELECT matches(como('adriana', 'norte', $$SELECT count(*) FROM spsbitacora('ayer', '', '', '', '', '', 0)$$), 'fecha',
               'un día que no es fecha se niega con palabras');

-- A line of a changed key, under both.
INSERT INTO norte.bitacora (tabla, clave, clave_anterior, operacion) VALUES ('tabla_borrada_2', 'NUEVA', 'VIEJA', 'UPDATE');
SELECT is(como('adriana', 'norte', format($$SELECT count(*) FROM spsbitacora('', '', '', 'tabla_borrada_2', %L, '', 0)$$, clave)),
          esperado, 'por la clave ' || clave)
  FROM (VALUES ('NUEVA', '1'), ('VIEJA', '1'), ('OTRA', '0')) AS caso (clave, esperado);

-- The page behind a line, without that line; the name of a table from its comment, of one that is gone none.
INSERT INTO norte.bitacora (momento, tabla, clave, operacion)
SELECT now(), 'tabla_borrada', n::text, 'INSERT' FROM generate_series(1, 1200) AS n;
SELECT is(como('adriana', 'norte', $$SELECT count(*) || ' ' || max(clave::int) || ' ' || min(clave::int) || ' ' || max(nombre)
                                       FROM spsbitacora('', '', '', 'tabla_borrada', '', '', 0)$$),
          '500 1200 701 ', 'la primera página');
SELECT is(como('adriana', 'norte', format($$SELECT count(*) || ' ' || max(clave::int) || ' ' || min(clave::int)
                                       FROM spsbitacora('', '', '', 'tabla_borrada', '', '', %s)$$, bitacoraid)),
          esperado, 'detrás de ' || clave)
  FROM norte.bitacora JOIN (VALUES ('701', '500 700 201'), ('201', '200 200 1')) AS c (clave, esperado) USING (clave)
 WHERE tabla = 'tabla_borrada';
SELECT is(como('adriana', 'norte', $$SELECT max(nombre) FROM spsbitacora('', '', '', 'moneda', 'Q7', '', 0)$$),
          'monedas', 'el nombre de una tabla que existe');

-- Before and after, each column, the changed ones marked.
SELECT is(como('adriana', 'norte', $$SELECT string_agg(concat_ws('=', campo, anterior, nuevo, cambia), ' ' ORDER BY campo)
      FROM spsbitacora('', '', '', 'moneda', 'Q7', 'UPDATE', 0) AS b, spsbitacoradetalle(b.bitacoraid)$$),
          'monedadescri=Primera=Segunda=t monedaid=Q7=Q7=f monedavalor=1.000000=1.000000=f', 'un cambio');
SELECT is(como('adriana', 'norte', $$SELECT string_agg(campo, ' ' ORDER BY campo) FILTER (WHERE cambia AND nuevo IS NULL)
      FROM spsbitacora('', '', '', 'moneda', 'Q7', 'DELETE', 0) AS b, spsbitacoradetalle(b.bitacoraid)$$),
          'monedadescri monedaid monedavalor', 'una baja');

-- A page is found by index, and not by a look at the whole log.
ANALYZE norte.bitacora;
SET LOCAL enable_seqscan = off;
SELECT isnt_empty($$ SELECT linea FROM plan('SELECT * FROM norte.bitacora ORDER BY bitacoraid DESC LIMIT 500')
                      AS linea WHERE linea ~ 'Index Scan Backward' $$, 'lo más nuevo, sin ordenar todo');
RESET enable_seqscan;

-- The matrix has every user against every module, once.
SELECT is(como('adriana', 'norte', 'SELECT count(*) FROM spsmatrizpermisos()'),
          (SELECT ((SELECT count(*) FROM norte.usuario) * (SELECT count(*) FROM norte.modulo))::text), 'todos contra todos');
SELECT is(como('adriana', 'norte', 'SELECT string_agg(DISTINCT usuarioid, '','') FROM spsmatrizpermisos() WHERE permitido AND clavemodulo = ''0912'''),
          (SELECT string_agg(usuarioid, ',' ORDER BY usuarioid) FROM norte.permisomodulo WHERE clavemodulo = '0912' AND permiso <> 'N'),
          'quién tiene la bitácora');

SELECT * FROM finish();
ROLLBACK;
