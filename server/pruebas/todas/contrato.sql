-- The functions that the client calls are there and nothing else is; and the shape that every object of a branch keeps,
-- so that a new file cannot forget it.
BEGIN;
SELECT no_plan();

\ir ../apoyo/contrato.sql

CREATE TEMPORARY VIEW funcion AS
SELECT p.oid, p.proname::text AS nombre, coalesce(tipos.lista, '') AS argumentos,
       pg_get_function_result(p.oid) AS resultado, p.prosecdef, p.proconfig, p.proowner, p.proacl
  FROM pg_proc p
  LEFT JOIN LATERAL (SELECT string_agg(format_type(t, NULL), ', ' ORDER BY n) AS lista
                       FROM unnest(p.proargtypes) WITH ORDINALITY AS a (t, n)) AS tipos ON true
 WHERE p.pronamespace = 'norte'::regnamespace;

SELECT is((SELECT f.resultado FROM funcion f WHERE f.nombre = c.nombre AND f.argumentos = c.argumentos), c.resultado,
          format('%s(%s)', c.nombre, c.argumentos))
  FROM contrato c;

SELECT ok(has_function_privilege('sucursal_norte', f.oid, 'EXECUTE'),
          format('%s(%s) puede llamarla quien tiene cuenta en la sucursal', nombre, argumentos))
  FROM funcion f JOIN contrato USING (nombre, argumentos);

SELECT is_empty($$ SELECT nombre, argumentos FROM funcion f
                    WHERE has_function_privilege('sucursal_norte', f.oid, 'EXECUTE') AND nombre <> 'puede_leer'
                   EXCEPT SELECT nombre, argumentos FROM contrato $$,
                'salvo la de las políticas, ninguna otra función de la sucursal está al alcance de los usuarios');
SELECT is_empty($$ SELECT nombre FROM funcion
                    WHERE (prosecdef OR proconfig IS NOT NULL)
                      AND NOT proconfig @> ARRAY['search_path=norte, comun, pg_temp', 'standard_conforming_strings=on',
                                                 'DateStyle=ISO, DMY'] $$,
                'toda función con derechos del dueño tiene fija su ruta, con lo temporal al final, y sus ajustes');
SELECT is_empty($$ SELECT oid::regprocedure FROM pg_proc
                    WHERE pronamespace IN ('norte'::regnamespace, 'comun'::regnamespace) AND proconfig IS NULL
                      AND prosqlbody IS NULL AND proowner = 'tolvara_propietario'::regrole
                      AND has_function_privilege('sucursal_norte', oid, 'EXECUTE') $$,
                'lo que corre con los ajustes de quien lo llama no lo llama un usuario');
SELECT is_empty($$ SELECT nombre FROM funcion WHERE proowner <> 'tolvara_propietario'::regrole $$,
                'todas las funciones de la sucursal son del propietario');
SELECT is_empty($$ SELECT relname FROM pg_class WHERE relnamespace = 'norte'::regnamespace
                      AND relowner <> 'tolvara_propietario'::regrole $$,
                'todas las tablas de la sucursal son del propietario');
SELECT is_empty($$ SELECT relname FROM pg_class c
                    WHERE relnamespace = 'norte'::regnamespace AND relkind = 'r' AND relname !~ '^bitacora_'
                      AND NOT EXISTS (SELECT FROM pg_trigger t WHERE t.tgrelid = c.oid AND t.tgname = 'bitacora') $$,
                'todas las tablas anotan sus cambios en la bitácora');
SELECT is_empty($$ SELECT relname FROM pg_class c
                    WHERE relnamespace = 'norte'::regnamespace AND relkind IN ('r', 'p') AND relname !~ '^bitacora_'
                      AND obj_description(c.oid) !~ '^[^:]+: .+' IS NOT FALSE $$,
                'el comentario de cada tabla empieza con su nombre en plural y dos puntos');
SELECT is_empty($$ SELECT nombre FROM funcion WHERE has_function_privilege('public', oid, 'EXECUTE') $$,
                'ninguna función es de todo el mundo');
SELECT set_eq($$ SELECT rolname FROM pg_roles WHERE rolname ~ '^(tolvara|sucursal)_' AND rolcanlogin $$,
              ARRAY[]::name[], 'nadie entra al servidor con un papel de la casa');

SELECT * FROM finish();
ROLLBACK;
