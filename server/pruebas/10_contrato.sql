-- The functions that the client calls, one row each: name, argument types, result. And the shape that every object of
-- a branch keeps, so that a new file cannot forget it.
BEGIN;
SELECT no_plan();

CREATE TEMPORARY TABLE contrato (nombre text, argumentos text, resultado text);
INSERT INTO contrato VALUES
  ('spsmoneda', 'text', 'TABLE(monedaid character, monedavalor numeric, monedadescri character varying)'),
  ('spimoneda', 'text, text, numeric', 'void'),
  ('spumoneda', 'text, text, numeric', 'void'),
  ('spdmoneda', 'text', 'void'),
  ('spsparametro', 'text',
   'TABLE(parametroid bigint, usuarioid character varying, serieuser character varying, cuentacaja character, '
   'impresoracaja character varying, impresorareporte character varying, reporteslaser integer, '
   'clavesocioint character varying)'),
  ('spiparametro', 'text, text, text, text, text, integer, text', 'void'),
  ('spuparametro', 'text, text, text, text, text, integer, text', 'void'),
  ('spdparametro', 'text', 'void'),
  ('nombreusuario', 'text', 'text'),
  ('spspermisomodulo', 'text, text',
   'TABLE(permisomoduloid bigint, clavemodulo character, usuarioid character varying, permiso character varying, '
   'descripcionmodulo character varying)'),
  ('spspermisosmodulos', 'bigint',
   'TABLE(permisomoduloid bigint, clavemodulo character, usuarioid character varying, permiso character varying, '
   'descripcionmodulo character varying)'),
  ('spspermisosmodulos', 'text',
   'TABLE(permisomoduloid bigint, clavemodulo character, usuarioid character varying, permiso character varying, '
   'descripcionmodulo character varying)'),
  ('spipermisomodulo', 'text, text, text', 'bigint'),
  ('spupermisomodulo', 'bigint, text, text, text', 'void'),
  ('spdpermisosmodulos', 'bigint', 'void'),
  ('creausuario', 'text, text', 'integer'),
  ('serverdate', 'text', 'integer'),
  ('fechacobroiva', '', 'date');
\ir contrato/60_finanzas.sql
\ir contrato/80_personas.sql

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
                    WHERE has_function_privilege('sucursal_norte', f.oid, 'EXECUTE')
                   EXCEPT SELECT nombre, argumentos FROM contrato $$,
                'ninguna otra función de la sucursal está al alcance de los usuarios');
SELECT is_empty($$ SELECT nombre FROM funcion
                    WHERE (prosecdef OR proconfig IS NOT NULL)
                      AND NOT proconfig @> ARRAY['search_path=norte, comun, pg_temp', 'standard_conforming_strings=on',
                                                 'DateStyle=ISO, DMY'] $$,
                'toda función con derechos del dueño tiene fija su ruta, con lo temporal al final, y sus ajustes');
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
