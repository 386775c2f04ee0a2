-- Persons' data without a module that is about persons: only the names of members and of users.
BEGIN;
SELECT no_plan();
SELECT is(como('hilda', 'norte', $$SELECT precierre('31/10/2026')$$), '1', 'hay un mes cerrado');
UPDATE norte.permisomodulo SET permiso = 'N' WHERE usuarioid IN ('camila', 'braulio');

CREATE TEMPORARY TABLE lee (sentencia text, modulos text);
INSERT INTO lee VALUES
  ('SELECT count(*) FROM sujeto', '0206 0442 0907 0910'), ('SELECT count(*) FROM domicilio', '0206 0442 0907 0910'),
  ('SELECT count(*) FROM bienes', '0206 0442 0907'), ('SELECT count(*) FROM garantia', '0907'),
  ('SELECT count(*) FROM prestamos', '0910'), ('SELECT count(*) FROM precorte', '0910'),
  ('SELECT count(*) FROM spssujeto(0)', '0206 0442 0907 0910'), ('SELECT count(*) FROM spssujeto(1)', '0206 0442 0907 0910'),
  ('SELECT count(*) FROM spsdomicilio(0)', '0206 0442 0907 0910'),
  ('SELECT count(*) FROM spsdomiciliosujeto(1)', '0206 0442 0907 0910'), ('SELECT count(*) FROM spsbienes(0)', '0206 0442 0907'),
  ('SELECT count(*) FROM spsgarantiap(0)', '0907'), ('SELECT count(*) FROM spsgarantias(0)', '0907'),
  ('SELECT count(*) FROM spssujetos(''a'')', '0206 0442 0907'), ('SELECT length(spssujeto('''','''','''','''')) > 0', '0442');

SELECT matches(como('camila', 'norte', sentencia), '^No tiene permiso', 'sin módulo: ' || sentencia) FROM lee;
SELECT is(como('postgres', 'norte', format('UPDATE permisomodulo SET permiso = CASE clavemodulo WHEN %L THEN ''S'' ELSE ''N'' END
                                             WHERE usuarioid = ''braulio''', modulo)), '', 'con ' || modulo)
       || E'\n' ||
       is(como('braulio', 'norte', sentencia) ~ '^No tiene permiso', NOT modulo = ANY (string_to_array(modulos, ' ')),
          format('con %s: %s', modulo, sentencia))
  FROM unnest(ARRAY['0206', '0442', '0907', '0910', '0203']) AS modulo, lee;

SELECT matches(como('camila', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    -- what everybody may know: names for a list, and whether there is somebody new
    ('SELECT count(*) > 200 FROM spssociocaja()', '^true$'), ('SELECT count(*) > 0 FROM spssociocajaf(''a'')', '^true$'),
    ('SELECT trunc(extract(epoch FROM max(fechaalta))) > 0 FROM socio', '^true$'),
    ('SELECT count(*) > 0 FROM spsusuario('''')', '^true$'),
    -- around it
    ('SELECT count(*) FROM sujeto WHERE false', '^(0|No tiene permiso)'),
    ('SELECT 1 / length(paterno) FROM sujeto', '^No tiene permiso'),
    ('SELECT count(*) FROM sujeto WHERE 1 / (length(paterno) - length(paterno)) = 1', '^No tiene permiso'),
    ('SELECT count(*) FROM socio JOIN sujeto USING (sujetoid)', '^No tiene permiso'),
    ('SELECT count(*) FROM pg_stats WHERE schemaname = ''norte'' AND tablename IN (''sujeto'', ''domicilio'', ''bienes'')', '^0$'),
    ('COPY sujeto TO STDOUT', 'No tiene permiso|COPY'),
    ('SELECT nombre FROM sujeto FOR UPDATE', 'permission denied'),
    ('SELECT puede_leer(''0203'')', '^No tiene permiso')) AS paso (sentencia, esperado);
SET LOCAL row_security = off;
SELECT matches(como('camila', 'norte', 'SELECT count(*) FROM sujeto'), 'row-level security', 'la política no se apaga');
SELECT * FROM finish();
ROLLBACK;
