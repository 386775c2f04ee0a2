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

-- One person: keys, address, membership, loans and goods, each on lines of its own below the first.
CREATE FUNCTION persona_reporte(p sujeto) RETURNS text
LANGUAGE sql STABLE SET search_path FROM CURRENT AS $$
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

-- The persons of this branch who fit, without an end of line. Each argument is words to be found, in any order: in the
-- given names, in either surname, and in the RFC, CURP or member's key; a blank one fits everybody.
CREATE FUNCTION personas_reporte(nombres text, apaterno text, amaterno text, clave text) RETURNS text
LANGUAGE sql STABLE SET search_path FROM CURRENT AS $$
  WITH hallada AS (
    SELECT p AS persona
      FROM sujeto p LEFT JOIN socio s USING (sujetoid)
     WHERE sin_acentos(p.nombre) LIKE ALL ((SELECT patrones(nombres))::text[])
       AND sin_acentos(p.paterno) LIKE ALL ((SELECT patrones(apaterno))::text[])
       AND sin_acentos(p.materno) LIKE ALL ((SELECT patrones(amaterno))::text[])
       AND sin_acentos(concat_ws(' ', p.rfc, p.curp, s.clavesocioint)) LIKE ALL ((SELECT patrones(clave))::text[]))
  SELECT concat_ws(E'\n',
           'Sucursal ' || (SELECT sucid FROM empresa),
           repeat('-', 135),
           coalesce(string_agg(persona_reporte(persona), E'\n' ORDER BY (persona).paterno, (persona).materno,
                               (persona).nombre, (persona).sujetoid),
                    'No hay personas con esos datos.'),
           repeat('-', 135),
           'Personas: ' || count(*))
    FROM hallada
$$;

-- The report of this branch.
CREATE FUNCTION spssujeto(nombres text, apaterno text, amaterno text, clave text) RETURNS text
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0442');
  RETURN concat(encabezado_reporte(nombres, apaterno, amaterno, clave), E'\n',
                personas_reporte(nombres, apaterno, amaterno, clave), E'\n');
END $$;

-- The report of all branches. A user reads only his own; this reads the others with the owner's rights, for whoever may
-- use the option of persons here.
CREATE FUNCTION spssujetoc(nombres text, apaterno text, amaterno text, clave text) RETURNS text
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  reporte text;
  partes text[] := ARRAY[encabezado_reporte(nombres, apaterno, amaterno, clave)];
  sucursal name;
BEGIN
  PERFORM exige_permiso('0442');
  FOR sucursal IN SELECT * FROM sucursales_iguales(current_schema()) LOOP
    EXECUTE format('SELECT %I.personas_reporte($1, $2, $3, $4)', sucursal)
       INTO reporte USING nombres, apaterno, amaterno, clave;
    partes := partes || (reporte || E'\n');
  END LOOP;
  RETURN array_to_string(partes, E'\n');
END $$;

GRANT EXECUTE ON FUNCTION spssujeto(text, text, text, text), spssujetoc TO :"grupo";
