-- Branches that live on another server. Here such a branch is a schema of foreign tables over the few views that an answer
-- over all branches reads, and nothing else: nobody is granted a foreign table, and only the owner of everything, as
-- which those functions run, has a password for the other server.
SET LOCAL ROLE tolvara_propietario;
SET LOCAL search_path TO comun, pg_temp;

-- Their names, the foreign server of each, and where that is: '10.0.0.2, puerto 5433'.
CREATE OR REPLACE FUNCTION sucursales_remotas() RETURNS TABLE (nombre name, servidor name, lugar text)
LANGUAGE sql STABLE SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT n.nspname, s.srvname,
         (SELECT pg_catalog.format('%s, puerto %s', pg_catalog.max(option_value) FILTER (WHERE option_name = 'host'),
                                   pg_catalog.max(option_value) FILTER (WHERE option_name = 'port'))
            FROM pg_catalog.pg_options_to_table(s.srvoptions))
    FROM pg_catalog.pg_foreign_table t
    JOIN pg_catalog.pg_class c ON c.oid = t.ftrelid
    JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace
    JOIN pg_catalog.pg_foreign_server s ON s.oid = t.ftserver
   WHERE c.relname = 'sucursal_detalle' AND pg_catalog.pg_get_userbyid(n.nspowner) = 'tolvara_propietario'
   ORDER BY n.nspname;
END;

-- Refuses in words what another server said or did not say.
CREATE OR REPLACE FUNCTION rechaza_remota(nombres name[], lugar text, estado text, mensaje text, detalle text) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  cuales CONSTANT text := CASE cardinality(nombres) WHEN 1 THEN 'La sucursal ' ELSE 'Las sucursales ' END
                          || array_to_string(nombres, ', ');
  n CONSTANT text := CASE cardinality(nombres) WHEN 1 THEN '' ELSE 'n' END;
  -- what libpq says, without where, which is told already
  motivo CONSTANT text := btrim(regexp_replace(regexp_replace(coalesce(nullif(detalle, ''), mensaje), '\s*\n\s*', ' ', 'g'),
    '(connection to server at "[^"]*"|falló la conexión al servidor en «[^»]*»)( \([^)]*\))?[^:]*: |FATAL:\s+', '', 'g'));
BEGIN
  RAISE EXCEPTION '%', CASE
      WHEN estado = '08001' AND motivo ~ '(support|soporta) SSL|channel binding' THEN
        format('%s no se lee%s (%s): el otro servidor no ofrece TLS, y fuera de este equipo no se habla sin él (%s)', cuales, n,
               lugar, motivo)
      WHEN estado = '08001' AND detalle ~ 'FATAL: ' THEN
        format('%s no se lee%s (%s): el otro servidor no deja entrar (%s)', cuales, n, lugar, motivo)
      WHEN estado ~ '^(08|57P)' THEN
        format('%s no contesta%s (%s): %s', cuales, n, lugar, motivo)
      WHEN estado = '57014' THEN
        format('%s no contesta%s (%s): se acabó el tiempo que se le da', cuales, n, lugar)
      WHEN estado IN ('2F003', '42704') THEN
        format('%s no se lee%s (%s): falta la contraseña; el administrador de este servidor debe correr otra vez: '
               'servidor sucursal-remota', cuales, n, lugar)
      WHEN estado ~ '^42' THEN
        format('%s no tiene%s lo que se le pide (%s): %s; el administrador de aquel servidor debe correr allá: '
               'servidor actualiza', cuales, n, lugar, mensaje)
      ELSE format('%s no pudo contestar (%s): %s', cuales, lugar, mensaje) END
    USING ERRCODE = 'object_not_in_prerequisite_state';
END $$;

CREATE OR REPLACE FUNCTION rechaza_version(nombre name, lugar text, suya integer, propia integer) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  RAISE EXCEPTION 'La sucursal % (%) está en la versión % y ésta en la %: el administrador de % debe correr: servidor actualiza',
    nombre, lugar, coalesce(suya::text, 'que no dice'), propia,
    CASE WHEN suya > propia THEN 'este servidor' ELSE 'aquel servidor' END
    USING ERRCODE = 'object_not_in_prerequisite_state';
END $$;

-- To be called with the error of a statement that reads several branches: refuses in words that name the other server's
-- branch which is to blame, and comes back when none is. The wrapper names the server that it could not connect to, or
-- the statement that it sent; where it does neither, each is asked again by itself.
CREATE OR REPLACE FUNCTION culpa_remota(estado text, mensaje text, detalle text, contexto text) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  orden CONSTANT text := substring(contexto FROM 'remote SQL command: ([^\n]*)');
  remota record;
BEGIN
  IF estado !~ '^(08|HV|57P|2F003|42704)' AND orden IS NULL THEN
    RETURN;
  END IF;
  SELECT * INTO remota
    FROM sucursales_remotas() AS r
   WHERE strpos(mensaje, '"' || r.servidor || '"') > 0 OR orden ~ format('FROM "?%s"?\.', r.nombre)
   LIMIT 1;
  IF FOUND THEN
    PERFORM rechaza_remota(CASE WHEN estado ~ '^08' THEN ARRAY(SELECT r.nombre FROM sucursales_remotas() AS r
                                                                WHERE r.lugar = remota.lugar)
                                ELSE ARRAY[remota.nombre] END, remota.lugar, estado, mensaje, detalle);
  END IF;
  FOR remota IN SELECT * FROM sucursales_remotas() LOOP
    PERFORM lee_remota(remota.nombre, 'sucursal_detalle', remota.lugar);
  END LOOP;
END $$;

-- The version of a branch elsewhere, read through one of its tables; refuses in words where it cannot be read.
CREATE OR REPLACE FUNCTION lee_remota(nombre name, tabla name, lugar text) RETURNS integer
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  suya integer;
  detalle text;
BEGIN
  EXECUTE format('SELECT t FROM %I.%I AS t LIMIT 0', nombre, tabla);
  EXECUTE format('SELECT version FROM %I.sucursal_detalle', nombre) INTO suya;
  RETURN suya;
EXCEPTION WHEN OTHERS OR query_canceled THEN
  GET STACKED DIAGNOSTICS detalle = PG_EXCEPTION_DETAIL;
  PERFORM rechaza_remota(ARRAY[nombre], lugar, SQLSTATE, SQLERRM, detalle);
END $$;

-- Refuses unless every branch elsewhere answers and is of this version, and was of this version when its tables were
-- learned. All are asked at once.
CREATE OR REPLACE FUNCTION exige_remotas(propia integer) RETURNS void
LANGUAGE plpgsql STABLE SET search_path FROM CURRENT AS $$
DECLARE
  consulta CONSTANT text := consulta_de(ARRAY(SELECT nombre FROM sucursales_remotas()),
                                        'SELECT %1$L::name AS nombre, version FROM %1$I.sucursal_detalle');
  otra record;
  detalle text;
  contexto text;
BEGIN
  IF consulta IS NULL THEN
    RETURN;
  END IF;
  BEGIN
    EXECUTE 'SELECT r.nombre, r.lugar, v.version, c.version AS conocida
               FROM comun.sucursales_remotas() AS r LEFT JOIN (' || consulta || ') AS v USING (nombre)
               LEFT JOIN comun.version AS c ON c.objeto = r.nombre
              WHERE v.version IS DISTINCT FROM $1 OR c.version IS DISTINCT FROM $1 ORDER BY r.nombre LIMIT 1'
       INTO otra USING propia;
  EXCEPTION WHEN OTHERS OR query_canceled THEN
    GET STACKED DIAGNOSTICS detalle = PG_EXCEPTION_DETAIL, contexto = PG_EXCEPTION_CONTEXT;
    PERFORM culpa_remota(SQLSTATE, SQLERRM, detalle, contexto);
    RAISE;
  END;
  IF otra.version IS DISTINCT FROM propia AND otra.nombre IS NOT NULL THEN
    PERFORM rechaza_version(otra.nombre, otra.lugar, otra.version, propia);
  ELSIF otra.nombre IS NOT NULL THEN
    RAISE EXCEPTION 'La sucursal % (%) se conoció en la versión %, y ya está en la %: el administrador de este servidor debe '
      'correr: servidor actualiza', otra.nombre, otra.lugar, coalesce(otra.conocida::text, 'que no se sabe'), propia
      USING ERRCODE = 'object_not_in_prerequisite_state';
  END IF;
END $$;

-- What a user reads who names a branch of another server in the login; it stands in the place of the row of `empresa`.
CREATE OR REPLACE FUNCTION rechaza_entrada(sucursal name) RETURNS boolean
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  RAISE EXCEPTION 'La sucursal % está en otro servidor (%): entre con ese servidor y ese puerto', sucursal,
    (SELECT lugar FROM sucursales_remotas() WHERE nombre = sucursal) USING ERRCODE = 'object_not_in_prerequisite_state';
END $$;
GRANT EXECUTE ON FUNCTION rechaza_entrada TO tolvara_usuarios;

-- Fills the empty schema of a branch elsewhere, or refuses; for whoever has made the schema and its foreign server.
CREATE OR REPLACE FUNCTION conoce_remota(sucursal name, servidor_suyo name, propia integer) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  tablas CONSTANT name[] := ARRAY['sucursal_detalle', 'cuenta_detalle', 'persona_detalle', 'precorte_detalle'];
  remotos CONSTANT text[] := (SELECT ARRAY[max(option_value) FILTER (WHERE option_name = 'host'),
                                           max(option_value) FILTER (WHERE option_name = 'port')]
                                FROM pg_foreign_server, pg_options_to_table(srvoptions) WHERE srvname = servidor_suyo);
  sitio CONSTANT text := format('%s, puerto %s', VARIADIC remotos);
  local CONSTANT regnamespace := (SELECT quote_ident(s) FROM sucursales() AS s JOIN version ON objeto = s AND version = propia LIMIT 1);
  tabla name;
  suya integer;
  detalle text;
BEGIN
  BEGIN
    EXECUTE format('IMPORT FOREIGN SCHEMA %1$I LIMIT TO (%2$s) FROM SERVER %3$I INTO %1$I', sucursal,
                   array_to_string(tablas, ', '), servidor_suyo);
  EXCEPTION
    WHEN fdw_schema_not_found THEN
      RAISE EXCEPTION 'En el otro servidor (%) no hay sucursal %', sitio, sucursal USING ERRCODE = 'no_data_found';
    WHEN OTHERS THEN
      GET STACKED DIAGNOSTICS detalle = PG_EXCEPTION_DETAIL;
      PERFORM rechaza_remota(ARRAY[sucursal], sitio, SQLSTATE, SQLERRM, detalle);
  END;
  FOREACH tabla IN ARRAY tablas LOOP
    IF to_regclass(format('%I.%I', sucursal, tabla)) IS NULL THEN
      RAISE EXCEPTION 'La sucursal % (%) no tiene "%", que esta versión (%) lee: el administrador de aquel servidor debe correr '
        'allá: servidor actualiza', sucursal, sitio, tabla, propia USING ERRCODE = 'object_not_in_prerequisite_state';
    END IF;
    suya := lee_remota(sucursal, tabla, sitio);
    IF suya IS DISTINCT FROM propia THEN
      PERFORM rechaza_version(sucursal, sitio, suya, propia);
    END IF;
    SELECT string_agg(coalesce(l.columna, r.columna), ', ') INTO detalle
      FROM (SELECT format('%s %s', attname, format_type(atttypid, atttypmod)) AS columna FROM pg_attribute
             WHERE attrelid = to_regclass(format('%s.%I', local, tabla)) AND attnum > 0 AND NOT attisdropped) AS l
      FULL JOIN (SELECT format('%s %s', attname, format_type(atttypid, atttypmod)) AS columna FROM pg_attribute
                  WHERE attrelid = to_regclass(format('%I.%I', sucursal, tabla)) AND attnum > 0) AS r USING (columna)
     WHERE l.columna IS NULL OR r.columna IS NULL;
    IF local IS NOT NULL AND detalle IS NOT NULL THEN
      RAISE EXCEPTION 'La sucursal % (%) no tiene las columnas de ésta en "%": %', sucursal, sitio, tabla, detalle
        USING ERRCODE = 'object_not_in_prerequisite_state';
    END IF;
  END LOOP;
  -- In place of the institution's row, of which the login reads every column, the refusal; a condition on a column cannot
  -- be decided without it.
  IF local IS NOT NULL THEN
    EXECUTE (SELECT format('CREATE VIEW %I.empresa AS SELECT %s FROM comun.rechaza_entrada(%L) AS se_rechaza', sucursal,
                           string_agg(format('CASE WHEN se_rechaza THEN NULL::%s END AS %I',
                                             format_type(coalesce(nullif(typbasetype, 0), t.oid), NULL), attname),
                                      ', ' ORDER BY attnum), sucursal)
               FROM pg_attribute JOIN pg_type AS t ON t.oid = atttypid
              WHERE attrelid = format('%s.empresa', local)::regclass AND attnum > 0 AND NOT attisdropped);
    EXECUTE format('GRANT SELECT ON %1$I.empresa TO tolvara_usuarios; GRANT USAGE ON SCHEMA %1$I TO tolvara_usuarios', sucursal);
  END IF;
  INSERT INTO version (objeto, version) VALUES (sucursal, propia)
  ON CONFLICT (objeto) DO UPDATE SET version = excluded.version, huella = NULL, desde = now();
END $$;

-- Which accounts some branch has and which ones lack them, and, without an account, which branches do not answer: to be
-- looked at where an account is wanted everywhere, since nothing is written on two servers at once.
CREATE OR REPLACE FUNCTION faltan_cuentas() RETURNS TABLE (cuenta text, nombre text, falta_en text)
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  locales CONSTANT name[] := ARRAY(SELECT sucursales());
  remotas name[] := '{}';
  remota record;
BEGIN
  FOR remota IN SELECT * FROM sucursales_remotas() LOOP
    BEGIN
      PERFORM lee_remota(remota.nombre, 'cuenta_detalle', remota.lugar);
      remotas := remotas || remota.nombre;
    EXCEPTION WHEN object_not_in_prerequisite_state THEN
      nombre := SQLERRM;
      falta_en := remota.nombre;
      RETURN NEXT;
    END;
  END LOOP;
  IF locales || remotas <> '{}' THEN
    RETURN QUERY EXECUTE format('
      WITH tiene (sucursal, cuentaid, cuentanombre) AS (%s)
      SELECT rtrim(cuentaid), min(cuentanombre)::text,
             (SELECT string_agg(s, '', '' ORDER BY s) FROM unnest($1) AS s WHERE s <> ALL (array_agg(sucursal)))
        FROM tiene GROUP BY cuentaid HAVING count(*) < cardinality($1) ORDER BY cuentaid',
      concat_ws(' UNION ALL ', consulta_de(locales, 'SELECT %1$L::name, cuentaid, cuentanombre FROM %1$I.catalogo_ctas'),
                consulta_de(remotas, 'SELECT %1$L::name, cuentaid, cuentanombre FROM %1$I.cuenta_detalle')))
      USING locales || remotas;
  END IF;
END $$;

RESET ROLE;
