-- Every row of every table of the old branch into the new one, and the numbers that come next. What would have no place
-- there is refused: the step of that version has to see to it first.
RESET ROLE;
-- An index is made when the rows are there, which takes a fraction of the time; one that a reference rests on stays.
SET LOCAL maintenance_work_mem = '256MB';
CREATE TEMPORARY TABLE indice_aparte ON COMMIT DROP AS
SELECT CASE WHEN c.oid IS NULL THEN format('DROP INDEX %s', i.indexrelid::regclass)
            ELSE format('ALTER TABLE %s DROP CONSTRAINT %I', i.indrelid::regclass, c.conname) END AS quita,
       CASE WHEN c.oid IS NULL THEN replace(pg_get_indexdef(i.indexrelid), ' ON ONLY ', ' ON ')  -- on the partitions too
            ELSE format('ALTER TABLE %s ADD CONSTRAINT %I %s', i.indrelid::regclass, c.conname, pg_get_constraintdef(c.oid))
             END AS pone
  FROM pg_index i
  JOIN pg_class t ON t.oid = i.indrelid AND t.relkind IN ('r', 'p') AND NOT t.relispartition
  LEFT JOIN pg_constraint c ON c.conindid = i.indexrelid AND c.contype IN ('p', 'u', 'x')
 WHERE t.relnamespace = :'sucursal'::regnamespace
   AND NOT EXISTS (SELECT FROM pg_constraint f WHERE f.conindid = i.indexrelid AND f.contype = 'f');
SELECT quita FROM indice_aparte
\gexec
SET LOCAL session_replication_role = replica;  -- no trigger: neither the log's nor those of the references, which held
SELECT set_config('tolvara.sucursal', :'sucursal', true), set_config('tolvara.anterior', :'anterior', true);
DO $$
DECLARE
  nueva CONSTANT regnamespace := quote_ident(current_setting('tolvara.sucursal'))::regnamespace;
  vieja CONSTANT regnamespace := quote_ident(current_setting('tolvara.anterior'))::regnamespace;
  tabla record;
  numero record;
BEGIN
  EXECUTE (SELECT 'TRUNCATE ' || string_agg(oid::regclass::text, ', ')
             FROM pg_class WHERE relnamespace = nueva AND relkind IN ('r', 'p') AND NOT relispartition);
  FOR tabla IN
    SELECT t.relname, string_agg(quote_ident(a.attname), ', ' ORDER BY a.attnum) AS columnas,
           string_agg(a.attname, ', ') FILTER (WHERE n.attname IS NULL) AS sin_lugar
      FROM pg_class t
      JOIN pg_attribute a ON a.attrelid = t.oid AND a.attnum > 0 AND NOT a.attisdropped
      LEFT JOIN pg_class c ON c.relnamespace = nueva AND c.relname = t.relname
      LEFT JOIN pg_attribute n ON n.attrelid = c.oid AND n.attname = a.attname AND NOT n.attisdropped
     WHERE t.relnamespace = vieja AND t.relkind IN ('r', 'p') AND NOT t.relispartition
     GROUP BY t.relname
  LOOP
    IF tabla.sin_lugar IS NOT NULL THEN
      RAISE EXCEPTION 'No hay lugar en la versión nueva para % de la tabla %', tabla.sin_lugar, tabla.relname;
    END IF;
    EXECUTE format('INSERT INTO %s.%I (%s) OVERRIDING SYSTEM VALUE SELECT %3$s FROM %4$s.%2$I', nueva, tabla.relname,
                   tabla.columnas, vieja);
  END LOOP;
  FOR numero IN
    SELECT pg_get_serial_sequence(format('%s.%I', vieja, relname), attname) AS de_antes,
           pg_get_serial_sequence(format('%s.%I', nueva, relname), attname) AS de_ahora
      FROM pg_attribute JOIN pg_class c ON c.oid = attrelid
     WHERE relnamespace = vieja AND attidentity <> '' AND NOT relispartition
  LOOP
    EXECUTE format('SELECT setval(%L, last_value, is_called) FROM %s', numero.de_ahora, numero.de_antes);
  END LOOP;
END $$;
SET LOCAL session_replication_role = origin;
SELECT pone FROM indice_aparte
\gexec
SET LOCAL ROLE tolvara_propietario;
