-- The log: who changed which row, when, and what it held before and after. Nobody is granted anything on it, and not
-- even the owner's functions can change or delete a line.
CREATE TABLE bitacora (
  bitacoraid bigint GENERATED ALWAYS AS IDENTITY PRIMARY KEY,
  momento timestamptz NOT NULL DEFAULT clock_timestamp(),
  usuario name NOT NULL DEFAULT session_user,
  tabla name NOT NULL,
  clave text NOT NULL,
  operacion text NOT NULL CHECK (operacion IN ('INSERT', 'UPDATE', 'DELETE')),
  anterior jsonb,
  nuevo jsonb
);
COMMENT ON TABLE bitacora IS 'bitácora: todos los cambios hechos a los datos de la sucursal';

-- Row trigger of every table that is watched; its arguments are the key columns.
CREATE FUNCTION anota_bitacora() RETURNS trigger
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  anterior jsonb := CASE WHEN TG_OP <> 'INSERT' THEN to_jsonb(OLD) END;
  nuevo jsonb := CASE WHEN TG_OP <> 'DELETE' THEN to_jsonb(NEW) END;
BEGIN
  IF anterior IS DISTINCT FROM nuevo THEN
    INSERT INTO bitacora (tabla, clave, operacion, anterior, nuevo)
    VALUES (TG_TABLE_NAME,
            (SELECT string_agg(rtrim(coalesce(nuevo, anterior) ->> llave), '/') FROM unnest(TG_ARGV) AS llave),
            TG_OP, anterior, nuevo);
  END IF;
  RETURN NULL;
END $$;

CREATE FUNCTION protege_bitacora() RETURNS trigger
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  RAISE EXCEPTION 'La bitácora no se puede alterar' USING ERRCODE = 'insufficient_privilege';
END $$;

CREATE TRIGGER inalterable BEFORE UPDATE OR DELETE OR TRUNCATE ON bitacora
  FOR EACH STATEMENT EXECUTE FUNCTION protege_bitacora();
