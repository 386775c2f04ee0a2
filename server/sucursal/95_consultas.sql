-- What the back office looks at: the log, for whoever has its module; who may do what; the closed months; and the modules
-- of these options.

INSERT INTO modulo (clavemodulo, descrimodulo) VALUES
  ('0911', 'Listas de catálogos'),
  ('0912', 'Bitácora'),
  ('0913', 'Matriz de permisos'),
  ('0914', 'Tablero de cierres');
INSERT INTO tipousuariomodulo SELECT 'ADM', clavemodulo FROM modulo WHERE clavemodulo BETWEEN '0911' AND '0914';

-- The newest lines first, whatever the filter, and a line by its number: without it the whole log would be read for a page.
CREATE INDEX ON bitacora (bitacoraid);

-- A page of the log: of the lines that pass the filter the 500 newest, of those older than the line with the number
-- `siguiente` (0: of all). A blank argument does not filter; days are the institution's. A line of a changed key is found
-- under both.
CREATE FUNCTION spsbitacora(desde text, hasta text, usuario_pedido text, tabla_pedida text, clave_pedida text,
                            operacion_pedida text, siguiente bigint)
RETURNS TABLE (bitacoraid bigint, momento text, usuario name, operacion text, tabla name, nombre text, clave text,
               clave_anterior text, direccion text, aplicacion text)
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  condiciones text;
BEGIN
  PERFORM exige_permiso('0912');
  SELECT coalesce(string_agg(condicion, ' AND '), 'true') INTO condiciones
    FROM (VALUES ('b.momento >= comienzo($1)', desde), ('b.momento < comienzo($2 + 1)', hasta),
                 ('b.usuario = $3', usuario_pedido), ('b.tabla = $4', tabla_pedida),
                 ('(b.clave = $5 OR b.clave_anterior = $5)', clave_pedida), ('b.operacion = $6', operacion_pedida),
                 ('b.bitacoraid < $7', nullif(siguiente, 0)::text)) AS c (condicion, valor)
   WHERE btrim(valor) <> '';
  -- Put together of the texts above and of nothing that is given, so that what is asked is planned with its own index.
  RETURN QUERY EXECUTE
    'WITH pagina AS MATERIALIZED (SELECT * FROM bitacora AS b WHERE ' || condiciones || ' ORDER BY b.bitacoraid DESC LIMIT 500),
          nombrada AS (SELECT t.tabla, split_part(obj_description(to_regclass(quote_ident(t.tabla)), ''pg_class''), '':'', 1) AS nombre
                         FROM (SELECT DISTINCT p.tabla FROM pagina AS p) AS t)
     SELECT b.bitacoraid, to_char(b.momento AT TIME ZONE $8, ''DD/MM/YYYY HH24:MI:SS''), b.usuario, b.operacion, b.tabla,
            coalesce(n.nombre, ''''), b.clave, coalesce(b.clave_anterior, ''''), coalesce(host(b.direccion), ''''), b.aplicacion
       FROM pagina AS b LEFT JOIN nombrada AS n USING (tabla)
      ORDER BY b.bitacoraid DESC'
    USING fecha_opcional(desde), fecha_opcional(hasta), btrim(usuario_pedido), btrim(tabla_pedida), btrim(clave_pedida),
          btrim(operacion_pedida), siguiente, zona();
END $$;
COMMENT ON FUNCTION spsbitacora IS 'una página de la bitácora, de lo más nuevo a lo más viejo';

-- One line of the log, column by column of its row, before and after; what changed comes first.
CREATE FUNCTION spsbitacoradetalle(id bigint)
RETURNS TABLE (campo text, anterior text, nuevo text, cambia boolean)
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0912');
  RETURN QUERY
    SELECT c.campo, b.anterior ->> c.campo, b.nuevo ->> c.campo, (b.anterior ->> c.campo) IS DISTINCT FROM (b.nuevo ->> c.campo)
      FROM bitacora AS b,
           LATERAL (SELECT jsonb_object_keys(coalesce(b.anterior, '{}') || coalesce(b.nuevo, '{}'))) AS c (campo)
     WHERE b.bitacoraid = id
     ORDER BY 4 DESC, c.campo;
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
      FROM usuario AS u
     CROSS JOIN modulo AS m
      LEFT JOIN permisomodulo AS p ON p.usuarioid = u.usuarioid AND p.clavemodulo = m.clavemodulo
      LEFT JOIN sujeto AS s ON s.sujetoid = u.sujetoid
     ORDER BY u.usuarioid, m.clavemodulo;
END $$;
COMMENT ON FUNCTION spsmatrizpermisos IS 'los permisos de todos los usuarios';

-- The closed ones of the twelve months up to the last closed one, added up over the rows that their exports have: a row for
-- the month, its type blank, which is there even if the month has no loan, and one for each type of loan in it.
CREATE FUNCTION spstablero()
RETURNS TABLE (ejercicio integer, periodo integer, tipoprestamoid text, desctipoprestamo text, saldo numeric,
               vencido numeric, reserva numeric)
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0914');
  RETURN QUERY
    WITH mes AS (
      SELECT c.ejercicio, c.periodo
        FROM cierre AS c
       WHERE c.ejercicio * 12 + c.periodo > (SELECT max(u.ejercicio * 12 + u.periodo) - 12 FROM cierre AS u)),
    suma AS (
      SELECT d.ejercicio, d.periodo, d.tipoprestamoid, sum(d.saldoprestamo) AS saldo,
             sum(d.saldovencidomenoravencido + d.saldovencidomayoravencido) AS vencido, sum(d.reservacalculada) AS reserva
        FROM precorte_detalle AS d JOIN mes AS m ON m.ejercicio = d.ejercicio AND m.periodo = d.periodo
       GROUP BY GROUPING SETS ((d.ejercicio, d.periodo), (d.ejercicio, d.periodo, d.tipoprestamoid)))
    SELECT m.ejercicio, m.periodo, coalesce(s.tipoprestamoid::text, ''), coalesce(t.desctipoprestamo::text, ''),
           coalesce(s.saldo, 0.00), coalesce(s.vencido, 0.00), coalesce(s.reserva, 0.00)
      FROM mes AS m
      LEFT JOIN suma AS s ON s.ejercicio = m.ejercicio AND s.periodo = m.periodo
      LEFT JOIN tipoprestamo AS t ON t.tipoprestamoid = s.tipoprestamoid
     ORDER BY 1, 2, 3;
END $$;
COMMENT ON FUNCTION spstablero IS 'saldo, vencido y reserva de los últimos doce meses cerrados, por tipo de préstamo';

GRANT EXECUTE ON FUNCTION spsbitacora, spsbitacoradetalle, spsmatrizpermisos, spstablero TO :"grupo";
