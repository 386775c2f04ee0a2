-- The report on persons: one text of 135 columns, laid out here and only printed by the client.

-- The heading: institution, title, what was asked, column titles.
CREATE FUNCTION encabezado_reporte(nombres text, apaterno text, amaterno text, clave text) RETURNS text
LANGUAGE sql STABLE SET search_path FROM CURRENT AS $$
  SELECT concat_ws(E'\n',
           repeat(' ', (135 - length(nombrecaja)) / 2) || nombrecaja,
           repeat(' ', 58) || 'REPORTE DE PERSONAS',
           '',
           format('Búsqueda: %-98s%27s', left(coalesce(nullif(pedido, ''), 'todas'), 98),
                  to_char(hora_local(now()), '"Fecha: "DD/MM/YYYY HH24:MI')),
           repeat('=', 135),
           format('%7s  %-62s  %-16s  %-21s  %10s  %4s', 'Número', 'Nombre', 'RFC', 'CURP', 'Nacimiento', 'Edad'),
           repeat('=', 135))
    FROM empresa, btrim(regexp_replace(concat_ws(' ', left(nombres, 99), left(apaterno, 99), left(amaterno, 99),
                                                   left(clave, 99)), '\s+', ' ', 'g')) AS pedido
$$;

-- One person: keys, address, membership, loans and goods, each on lines of its own below the first. It runs with the owner's
-- rights, since in a view a function has those of whoever reads it.
CREATE FUNCTION persona_reporte(p sujeto) RETURNS text
LANGUAGE sql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
  SELECT concat_ws(E'\n',
           rtrim(format('%7s  %-62s  %-16s  %-21s  %10s  %4s', p.sujetoid,
                        left(concat_ws(' ', p.paterno, nullif(p.materno, ''), p.nombre), 62), p.rfc, p.curp,
                        to_char(p.fechanacimiento, 'DD/MM/YYYY'), nullif(p.edad, 0))),
           margen || nullif(p.razonsocial, ''),
           margen || nullif(concat_ws(', ', nullif(concat_ws(' ', nullif(d.calle, ''), nullif(d.numero_ext, ''),
                                                             nullif(d.numero_int, '')), ''),
                                      left(coalesce(k.nombrecolonia, nullif(d.colonia, '')), 48)), ''),
           margen || nullif(concat_ws('  ', 'C.P. ' || nullif(to_char(d.codpostal, 'FM00000'), '00000'),
                                      nullif(concat_ws(', ', c.nombreciudadmex, e.nombreestadomex), ''),
                                      'Tel. ' || nullif(d.teldomicilio, '')), ''),
           margen || nullif(d.comunidad, ''),
           margen || CASE WHEN s.socioid IS NOT NULL
                          THEN format('Socio %-15s  %-32s  desde %s', s.clavesocioint, s.estatus,
                                      to_char(hora_local(s.fechaalta), 'DD/MM/YYYY')) END,
           (SELECT string_agg(format('%sPréstamo %-18s  tipo %-3s  otorgado %s  vence %s  monto %15s  saldo %15s',
                                     margen, r.referenciaprestamo, r.tipoprestamoid,
                                     to_char(r.fecha_otorga, 'DD/MM/YYYY'),
                                     to_char(r.fecha_vencimiento, 'DD/MM/YYYY'), to_char(r.montoprestamo, importe),
                                     to_char(r.montoprestamo - coalesce((SELECT sum(g.capital) FROM pago g
                                                                          WHERE g.prestamoid = r.prestamoid), 0),
                                             importe)),
                              E'\n' ORDER BY r.prestamoid)
              FROM prestamos r WHERE r.socioid = s.socioid),
           (SELECT string_agg(format('%sBien     %-60s  valor comercial %18s', margen, b.describien,
                                     to_char(b.valorcomercial, importe)),
                              E'\n' ORDER BY b.bienid)
              FROM bienes b WHERE b.sujetoid = p.sujetoid))
    FROM (VALUES ('         ', 'FM999,999,999,990.00')) AS forma (margen, importe)
    LEFT JOIN domicilio d ON d.sujetoid = p.sujetoid
    LEFT JOIN colonias k USING (coloniaid)
    LEFT JOIN ciudadesmex c ON c.ciudadmexid = d.ciudadmexid
    LEFT JOIN estadosmex e USING (estadomexid)
    LEFT JOIN socio s ON s.sujetoid = p.sujetoid
$$;

-- Every person as the report has him, with what he is found by, and the order of his place in it.
CREATE VIEW persona_detalle AS
SELECT p.paterno, p.materno, p.nombre, p.sujetoid, sin_acentos(p.paterno) AS busca_paterno, sin_acentos(p.materno) AS busca_materno,
       sin_acentos(p.nombre) AS busca_nombre, sin_acentos(concat_ws(' ', p.rfc, p.curp, s.clavesocioint)) AS busca_clave,
       persona_reporte(p) AS renglones
  FROM sujeto p LEFT JOIN socio s USING (sujetoid);

-- The report of the persons who fit, branch by branch. Each argument is words to be found, in any order: in the given
-- names, in either surname, and in the RFC, CURP or member's key; a blank one fits everybody. The conditions are those of the
-- whole: within its parts they would make the planner ask one server after the other.
CREATE FUNCTION personas_reporte(sucursales name[], nombres text, apaterno text, amaterno text, clave text) RETURNS text
LANGUAGE plpgsql STABLE SET search_path FROM CURRENT AS $$
DECLARE
  reporte text;
BEGIN
  EXECUTE format('
    WITH hallada AS (%1$s),
    de_una AS (
      SELECT sucursal, count(*) AS personas, string_agg(renglones, %2$L ORDER BY paterno, materno, nombre, sujetoid) AS renglones
        FROM hallada
       WHERE busca_nombre LIKE ALL ($1) AND busca_paterno LIKE ALL ($2) AND busca_materno LIKE ALL ($3)
         AND busca_clave LIKE ALL ($4)
       GROUP BY sucursal)
    SELECT string_agg(concat_ws(%2$L, ''Sucursal '' || s.sucid, repeat(''-'', 135),
                                coalesce(d.renglones, ''No hay personas con esos datos.''), repeat(''-'', 135),
                                ''Personas: '' || coalesce(d.personas, 0), ''''), %2$L ORDER BY s.sucursal)
      FROM (%3$s) AS s LEFT JOIN de_una AS d USING (sucursal)',
    consulta_de(sucursales, 'SELECT %1$L::name AS sucursal, d.* FROM %1$I.persona_detalle AS d'),
    E'\n', consulta_de(sucursales, 'SELECT %1$L::name AS sucursal, sucid FROM %1$I.sucursal_detalle'))
     INTO reporte USING patrones(nombres), patrones(apaterno), patrones(amaterno), patrones(clave);
  RETURN concat_ws(E'\n', encabezado_reporte(nombres, apaterno, amaterno, clave), reporte);
END $$;

-- The report of this branch.
CREATE FUNCTION spssujeto(nombres text, apaterno text, amaterno text, clave text) RETURNS text
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0442');
  RETURN personas_reporte(ARRAY[current_schema()], nombres, apaterno, amaterno, clave);
END $$;

-- The report of all branches, those of other servers too; refuses with the name of one that cannot be read.
CREATE FUNCTION reporte_de_todas(nombres text, apaterno text, amaterno text, clave text) RETURNS text
LANGUAGE plpgsql STABLE SET search_path FROM CURRENT AS $$
DECLARE
  detalle text;
  contexto text;
BEGIN
  RETURN personas_reporte(ARRAY(SELECT sucursales_iguales(current_schema())), nombres, apaterno, amaterno, clave);
EXCEPTION WHEN OTHERS OR query_canceled THEN
  GET STACKED DIAGNOSTICS detalle = PG_EXCEPTION_DETAIL, contexto = PG_EXCEPTION_CONTEXT;
  PERFORM culpa_remota(SQLSTATE, SQLERRM, detalle, contexto);
  RAISE;
END $$;

-- The same for the client. A user reads only his own branch; this reads the others with the owner's rights, for whoever may
-- use the option of persons here. The client shows no refusal, and an empty report would read as "nobody": where a branch
-- cannot be read, the report says which in place of the persons.
CREATE FUNCTION spssujetoc(nombres text, apaterno text, amaterno text, clave text) RETURNS text
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0442');
  RETURN reporte_de_todas(nombres, apaterno, amaterno, clave);
EXCEPTION WHEN object_not_in_prerequisite_state THEN
  RETURN concat_ws(E'\n', encabezado_reporte(nombres, apaterno, amaterno, clave), SQLERRM, '');
END $$;

GRANT EXECUTE ON FUNCTION spssujeto(text, text, text, text), spssujetoc TO :"grupo";
