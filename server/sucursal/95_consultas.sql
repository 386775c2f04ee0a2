-- What the back office looks at: the log, for whoever has its module, and the modules of the options that only read.

INSERT INTO modulo (clavemodulo, descrimodulo) VALUES
  ('0911', 'Listas de catálogos'),
  ('0912', 'Bitácora'),
  ('0913', 'Matriz de permisos');
INSERT INTO tipousuariomodulo SELECT 'ADM', clavemodulo FROM modulo WHERE clavemodulo BETWEEN '0911' AND '0913';

-- The newest lines first, whatever the filter: without it a page of the whole log would be sorted in full. A line of a
-- page is found again by the same index.
CREATE INDEX ON bitacora (momento, bitacoraid);

-- A page of the log: the 500 newest lines that pass the filter, of those older than the line given by its moment and
-- number (none: from the newest). A blank argument does not filter; the days are those of the server. A line of
-- a changed key is found under both.
CREATE FUNCTION spsbitacora(desde text, hasta text, usuario_pedido text, tabla_pedida text, clave_pedida text,
                            operacion_pedida text, momento_anterior text, id_anterior bigint)
RETURNS TABLE (bitacoraid bigint, momento text, fecha text, usuario name, operacion text, tabla name, nombre text,
               clave text, clave_anterior text, direccion text, aplicacion text)
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  condiciones text := 'true';
  columna record;
BEGIN
  PERFORM exige_permiso('0912');
  FOR columna IN
    SELECT * FROM (VALUES
      ('b.momento >= $1', desde), ('b.momento < $2', hasta), ('b.usuario = $3', usuario_pedido),
      ('b.tabla = $4', tabla_pedida), ('(b.clave = $5 OR b.clave_anterior = $5)', clave_pedida),
      ('b.operacion = $6', operacion_pedida),
      ('(b.momento, b.bitacoraid) < ($7, $8)', momento_anterior)) AS c (condicion, valor)
     WHERE coalesce(btrim(valor), '') <> ''
  LOOP
    condiciones := condiciones || ' AND ' || columna.condicion;
  END LOOP;
  -- The condition is put together of the texts above, so that each filter is planned with its own index.
  RETURN QUERY EXECUTE
    'SELECT b.bitacoraid, b.momento::text, to_char(b.momento, ''DD/MM/YYYY HH24:MI:SS''), b.usuario, b.operacion, b.tabla,
            coalesce(split_part(obj_description(to_regclass(quote_ident(b.tabla)), ''pg_class''), '':'', 1), ''''), b.clave,
            coalesce(b.clave_anterior, ''''), coalesce(host(b.direccion), ''''), b.aplicacion
       FROM (SELECT * FROM bitacora b WHERE ' || condiciones || '
              ORDER BY b.momento DESC, b.bitacoraid DESC LIMIT 500) AS b
      ORDER BY b.momento DESC, b.bitacoraid DESC'
    USING fecha_opcional(desde)::timestamptz, (fecha_opcional(hasta) + 1)::timestamptz, btrim(usuario_pedido)::name,
          btrim(tabla_pedida)::name, btrim(clave_pedida), btrim(operacion_pedida),
          nullif(btrim(momento_anterior), '')::timestamptz, coalesce(id_anterior, 0);
END $$;
COMMENT ON FUNCTION spsbitacora IS 'una página de la bitácora, de lo más nuevo a lo más viejo';

-- One line of the log, column by column of its row, before and after.
CREATE FUNCTION spsbitacoradetalle(momento_pedido text, id bigint)
RETURNS TABLE (campo text, anterior text, nuevo text, cambia boolean)
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0912');
  RETURN QUERY
    SELECT campo_dado, a.value, n.value, a.value IS DISTINCT FROM n.value
      FROM (SELECT b.anterior, b.nuevo FROM bitacora b
             WHERE b.momento = momento_pedido::timestamptz AND b.bitacoraid = id) AS b
     CROSS JOIN LATERAL (SELECT jsonb_object_keys(coalesce(b.anterior, '{}') || coalesce(b.nuevo, '{}'))) AS c (campo_dado)
      LEFT JOIN LATERAL jsonb_each_text(b.anterior) AS a ON a.key = campo_dado
      LEFT JOIN LATERAL jsonb_each_text(b.nuevo) AS n ON n.key = campo_dado
     ORDER BY campo_dado;
END $$;
COMMENT ON FUNCTION spsbitacoradetalle IS 'lo que un renglón tenía antes y después de un cambio';

-- Every user against every module: what an auditor asks for first.
CREATE FUNCTION spsmatrizpermisos()
RETURNS TABLE (usuarioid varchar(20), nombre text, clavemodulo character(10), descrimodulo varchar(80), permitido boolean)
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0913');
  RETURN QUERY
    SELECT u.usuarioid, concat_ws(' ', s.nombre, s.paterno, s.materno), m.clavemodulo, m.descrimodulo,
           coalesce(p.permiso <> 'N', false)
      FROM usuario u
     CROSS JOIN modulo m
      LEFT JOIN permisomodulo p ON p.usuarioid = u.usuarioid AND p.clavemodulo = m.clavemodulo
      LEFT JOIN sujeto s ON s.sujetoid = u.sujetoid
     ORDER BY u.usuarioid, m.clavemodulo;
END $$;
COMMENT ON FUNCTION spsmatrizpermisos IS 'los permisos de todos los usuarios';

GRANT EXECUTE ON FUNCTION spsbitacora, spsbitacoradetalle, spsmatrizpermisos TO :"grupo";
