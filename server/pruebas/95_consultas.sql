-- What the back office looks at: a page of the log, a line of it, the matrix of permissions; the board of closed months.
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
    ('camila', 'spsmatrizpermisos()', 'No tiene permiso para la opción Matriz de permisos (módulo 0913)'),
    ('adriana', 'spstablero()', 'false'),
    ('camila', 'spstablero()', 'No tiene permiso para la opción Tablero de cierres (módulo 0914)'))
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

-- The board: a month, and its types, as the rows of its export add up; a loan that the export leaves out does not count.
SELECT is(como('adriana', 'norte', $$SELECT precierre('30/09/2026')$$), '1', 'se cierra septiembre');
SELECT is(como('adriana', 'norte', $$SELECT precierre('31/10/2026')$$), '1', 'se cierra octubre');
UPDATE norte.domicilio SET ciudadmexid = NULL
 WHERE sujetoid = (SELECT sujetoid FROM norte.precorte JOIN norte.prestamos USING (prestamoid) JOIN norte.socio USING (socioid)
                    ORDER BY saldoprestamo DESC LIMIT 1);
SELECT cmp_ok((SELECT count(*) FROM norte.precorte_detalle), '<', (SELECT count(*) FROM norte.precorte), 'una exportación deja fuera uno');
PREPARE tablero AS SELECT * FROM como('adriana', 'norte', $$SELECT string_agg(concat_ws('|', ejercicio, periodo,
   tipoprestamoid, saldo, vencido, reserva), ' ' ORDER BY ejercicio, periodo, tipoprestamoid) FROM spstablero()$$);
PREPARE exportado AS
  SELECT string_agg(concat_ws('|', ejercicio, periodo, tipo, saldo, vencido, reserva), ' ' ORDER BY ejercicio, periodo, tipo)
    FROM (SELECT ejercicio, periodo, tipo, sum(saldoprestamo) AS saldo,
                 sum(saldovencidomenoravencido) + sum(saldovencidomayoravencido) AS vencido, sum(reservacalculada) AS reserva
            FROM norte.precorte_detalle, LATERAL (VALUES (tipoprestamoid::text), ('')) AS t (tipo)
           GROUP BY 1, 2, 3) AS suma;
SELECT results_eq('tablero', 'exportado', 'el tablero suma lo que las exportaciones');
SELECT is(como('adriana', 'norte', $$SELECT count(*) FROM spstablero() AS t JOIN tipoprestamo USING (tipoprestamoid, desctipoprestamo)$$),
          (SELECT count(DISTINCT (ejercicio, periodo, tipoprestamoid))::text FROM norte.precorte_detalle), 'cada tipo con su nombre');

-- A month without loans is there with zeros; one that is not closed is not; one of a year before the last is not either.
INSERT INTO norte.cierre VALUES (2025, 11, '2025-11-30'), (2025, 10, '2025-10-31');
SELECT is(como('adriana', 'norte', $$SELECT string_agg(periodo || '/' || ejercicio, ' ' ORDER BY ejercicio, periodo)
                                       FROM spstablero() WHERE tipoprestamoid = ''$$),
          '11/2025 9/2026 10/2026', 'los doce meses hasta el último cerrado');
SELECT is(como('adriana', 'norte', $$SELECT concat_ws('|', tipoprestamoid, saldo, vencido, reserva) FROM spstablero()
                                      WHERE ejercicio = 2025$$), '|0.00|0.00|0.00', 'un mes sin préstamos');

SELECT * FROM finish();
ROLLBACK;
