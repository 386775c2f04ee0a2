-- The log: who changed which row, when and from where, and what it held before and after; and what happens to logins
-- and to closed months. A line is found under the key that the row had before and the one it had after. Auditors read
-- it, nobody else does, and not even the owner's functions can change or delete a line. A month is a partition.
CREATE TABLE bitacora (
  bitacoraid bigint GENERATED ALWAYS AS IDENTITY,
  momento timestamptz NOT NULL DEFAULT clock_timestamp(),
  usuario name NOT NULL DEFAULT session_user,
  direccion inet DEFAULT inet_client_addr(),
  aplicacion text NOT NULL DEFAULT current_setting('application_name'),
  tabla name NOT NULL,
  clave text NOT NULL,
  clave_anterior text,
  operacion text NOT NULL
    CHECK (operacion IN ('INSERT', 'UPDATE', 'DELETE', 'ALTA', 'BAJA', 'CLAVE', 'REAPERTURA')),
  anterior jsonb,
  nuevo jsonb
) PARTITION BY RANGE (momento);
COMMENT ON TABLE bitacora IS 'bitácora: todos los cambios hechos a los datos de la sucursal';
COMMENT ON COLUMN bitacora.direccion IS 'equipo desde el que se hizo; ninguna si fue en el servidor mismo';
COMMENT ON COLUMN bitacora.aplicacion IS 'programa, como él mismo se llama';
COMMENT ON COLUMN bitacora.clave_anterior IS 'la que tenía el renglón, si el cambio fue de clave';
COMMENT ON COLUMN bitacora.operacion IS
  'sobre un renglón, o ALTA y BAJA de un login, CLAVE puesta por el administrador, REAPERTURA de un mes';
CREATE INDEX ON bitacora (tabla, clave);
CREATE INDEX ON bitacora (tabla, clave_anterior) WHERE clave_anterior IS NOT NULL;
CREATE INDEX ON bitacora USING brin (momento);

CREATE FUNCTION protege_bitacora() RETURNS trigger
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  RAISE EXCEPTION 'La bitácora no se puede alterar' USING ERRCODE = 'insufficient_privilege';
END $$;

CREATE TRIGGER inalterable BEFORE UPDATE OR DELETE OR TRUNCATE ON bitacora
  FOR EACH STATEMENT EXECUTE FUNCTION protege_bitacora();

-- What falls in no month that is ready.
CREATE TABLE bitacora_resto PARTITION OF bitacora DEFAULT;
CREATE TRIGGER inalterable BEFORE UPDATE OR DELETE OR TRUNCATE ON bitacora_resto
  FOR EACH STATEMENT EXECUTE FUNCTION protege_bitacora();

-- Makes the partition of the month of a moment, unless there are lines of it elsewhere.
CREATE FUNCTION prepara_mes(momento timestamptz) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT SET timezone TO 'UTC' AS $$
DECLARE
  mes CONSTANT date := date_trunc('month', momento);
  siguiente CONSTANT date := mes + interval '1 month';
  parte CONSTANT text := to_char(mes, '"bitacora_"YYYY"_"MM');
BEGIN
  IF to_regclass(parte) IS NULL
     AND NOT EXISTS (SELECT FROM bitacora_resto r WHERE r.momento >= mes AND r.momento < siguiente) THEN
    EXECUTE format('CREATE TABLE %I PARTITION OF bitacora FOR VALUES FROM (%L) TO (%L)', parte, mes, siguiente);
    EXECUTE format('CREATE TRIGGER inalterable BEFORE UPDATE OR DELETE OR TRUNCATE ON %I
                      FOR EACH STATEMENT EXECUTE FUNCTION protege_bitacora()', parte);
  END IF;
END $$;

-- This month's and those of the next three.
CREATE FUNCTION prepara_bitacora() RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT SET timezone TO 'UTC' AS $$
BEGIN
  PERFORM prepara_mes(date_trunc('month', now()) + make_interval(months => n)) FROM generate_series(0, 3) AS n;
END $$;
SELECT prepara_bitacora();

-- Row trigger of every table that is watched; its arguments are the key columns.
CREATE FUNCTION anota_bitacora() RETURNS trigger
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  anterior jsonb := CASE WHEN TG_OP <> 'INSERT' THEN to_jsonb(OLD) END;
  nuevo jsonb := CASE WHEN TG_OP <> 'DELETE' THEN to_jsonb(NEW) END;
  llave text;
  llave_anterior text;
BEGIN
  IF anterior IS DISTINCT FROM nuevo THEN
    FOR n IN 0 .. TG_NARGS - 1 LOOP
      llave := concat_ws('/', llave, rtrim(coalesce(nuevo, anterior) ->> TG_ARGV[n]));
      llave_anterior := concat_ws('/', llave_anterior, rtrim(anterior ->> TG_ARGV[n]));
    END LOOP;
    INSERT INTO bitacora (tabla, clave, clave_anterior, operacion, anterior, nuevo)
    VALUES (TG_TABLE_NAME, coalesce(llave, ''), CASE WHEN TG_OP = 'UPDATE' THEN nullif(llave_anterior, llave) END, TG_OP, anterior, nuevo);
  END IF;
  RETURN NULL;
END $$;

-- What is no change of a row.
CREATE FUNCTION anota_suceso(operacion text, tabla text, clave text, detalle jsonb DEFAULT NULL) RETURNS void
LANGUAGE sql SET search_path FROM CURRENT AS $$
  INSERT INTO bitacora (tabla, clave, operacion, nuevo) VALUES (tabla, clave, operacion, detalle)
$$;

GRANT USAGE ON SCHEMA :"sucursal" TO tolvara_auditores;
GRANT SELECT ON bitacora TO tolvara_auditores;
