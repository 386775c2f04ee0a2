-- For the tests that name the numbers of new rows: until the end of the transaction each table of norte goes on from
-- its highest number, whatever other tests have used up.
DO $$
DECLARE
  columna record;
  siguiente bigint;
BEGIN
  FOR columna IN SELECT attrelid::regclass AS tabla, attname FROM pg_attribute JOIN pg_class c ON c.oid = attrelid
                  WHERE relnamespace = 'norte'::regnamespace AND relkind = 'r' AND attidentity <> '' LOOP
    EXECUTE format('SELECT max(%I) + 1 FROM %s', columna.attname, columna.tabla) INTO siguiente;
    IF siguiente IS NOT NULL THEN
      EXECUTE format('ALTER TABLE %s ALTER %I RESTART WITH %s', columna.tabla, columna.attname, siguiente);
    END IF;
  END LOOP;
END $$;
