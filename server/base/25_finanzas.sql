-- More of what stored functions do with their arguments, in the manner of 20_validacion.sql, for the catalogues of
-- products, and the template of the catalogues that are all alike.
SET LOCAL ROLE tolvara_propietario;
SET LOCAL search_path TO comun, pg_temp;

-- A mark of 'S' or 'N'.
CREATE OR REPLACE FUNCTION letra_si_no(valor text, campo text) RETURNS text
LANGUAGE plpgsql IMMUTABLE AS $$
BEGIN
  IF comun.obligatorio(valor, 1, campo) NOT IN ('S', 'N') THEN
    RAISE EXCEPTION 'Debe ser S o N %', campo USING ERRCODE = 'check_violation';
  END IF;
  RETURN valor;
END $$;

-- A date that may be missing; besides what fecha() takes for none, the client's own empty dates are none.
CREATE OR REPLACE FUNCTION fecha_opcional(valor text) RETURNS date
LANGUAGE sql IMMUTABLE SET search_path FROM CURRENT
RETURN nullif(fecha(nullif(btrim(valor), '0-0-0')), date '1900-01-01');

-- A date that must be given, otherwise as fecha_opcional().
CREATE OR REPLACE FUNCTION fecha_dada(valor text, campo text) RETURNS date
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT AS $$
BEGIN
  IF fecha_opcional(valor) IS NULL THEN
    RAISE EXCEPTION 'Falta %', campo USING ERRCODE = 'not_null_violation';
  END IF;
  RETURN fecha_opcional(valor);
END $$;

-- The day that a period ends, which may be open (NULL); not before it begins.
CREATE OR REPLACE FUNCTION fecha_final(valor text, inicial date) RETURNS date
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT AS $$
BEGIN
  IF fecha_opcional(valor) < inicial THEN
    RAISE EXCEPTION 'La fecha final % es anterior a la inicial %', to_char(fecha_opcional(valor), 'DD/MM/YYYY'),
      to_char(inicial, 'DD/MM/YYYY') USING ERRCODE = 'check_violation';
  END IF;
  RETURN fecha_opcional(valor);
END $$;

-- A key that must stand in a column of another table; NULL stays NULL. The row is held until the end of the
-- transaction, so that nobody deletes it in between.
CREATE OR REPLACE FUNCTION referencia(clave text, tabla regclass, columna name, campo text) RETURNS text
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  existe boolean;
BEGIN
  EXECUTE format('SELECT EXISTS (SELECT FROM %s WHERE %I::text = rtrim($1) FOR KEY SHARE)', tabla, columna)
     INTO existe USING clave;
  IF clave IS NOT NULL AND NOT existe THEN
    RAISE EXCEPTION 'No existe %: %', campo, rtrim(clave) USING ERRCODE = 'foreign_key_violation';
  END IF;
  RETURN clave;
END $$;

-- The names of all branches of this database.
CREATE OR REPLACE FUNCTION sucursales() RETURNS SETOF name
LANGUAGE sql STABLE SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT n.nspname
    FROM pg_catalog.pg_class c JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace
   WHERE c.relname = 'empresa' AND c.relkind = 'r' AND pg_catalog.pg_get_userbyid(n.nspowner) = 'tolvara_propietario'
   ORDER BY n.nspname;
END;

-- The same and those that live on other servers, for what reads all of them: none may be of another version than the one
-- that asks, nor fail to answer.
CREATE OR REPLACE FUNCTION sucursales_iguales(ejemplo name) RETURNS SETOF name
LANGUAGE plpgsql STABLE SET search_path FROM CURRENT AS $$
DECLARE
  propia CONSTANT integer := (SELECT version FROM version WHERE objeto = ejemplo);
  otra record;
BEGIN
  SELECT s AS nombre, coalesce(v.version, 1) AS version INTO otra
    FROM sucursales() AS s
    LEFT JOIN version AS v ON v.objeto = s
   WHERE coalesce(v.version, 1) <> propia
   ORDER BY s LIMIT 1;
  IF FOUND THEN
    RAISE EXCEPTION 'La sucursal % está en la versión % y ésta en la %: el administrador del servidor debe actualizarla',
      otra.nombre, otra.version, propia USING ERRCODE = 'object_not_in_prerequisite_state';
  END IF;
  PERFORM exige_remotas(propia);
  RETURN QUERY SELECT s FROM sucursales() AS s UNION ALL SELECT nombre FROM sucursales_remotas() ORDER BY 1;
END $$;

-- One statement over several of them: each takes the place of every %1$I and %1$L of `parte`.
CREATE OR REPLACE FUNCTION consulta_de(nombres name[], parte text) RETURNS text
LANGUAGE sql STABLE SET search_path FROM CURRENT
RETURN (SELECT string_agg(format(parte, s), ' UNION ALL ') FROM unnest(nombres) AS s);

-- A statement from a template: each {name} gives way to the value of that name.
CREATE OR REPLACE FUNCTION rellena(plantilla text, valores jsonb) RETURNS text
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT AS $$
DECLARE
  valor record;
BEGIN
  FOR valor IN SELECT * FROM jsonb_each_text(valores) LOOP
    plantilla := replace(plantilla, format('{%s}', valor.key), coalesce(valor.value, ''));
  END LOOP;
  RETURN plantilla;
END $$;

-- Reading functions are for the planner to take apart, so they run with the reader's rights.
GRANT EXECUTE ON FUNCTION fecha, fecha_opcional TO tolvara_usuarios;

RESET ROLE;
