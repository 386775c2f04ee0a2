-- Non-working days. The client reads and writes this table directly; triggers ask and refuse as functions do elsewhere.
CREATE TABLE inabil (
  fecha date PRIMARY KEY
);
COMMENT ON TABLE inabil IS 'días inhábiles: en los que la institución no abre';

CREATE FUNCTION valida_inabil() RETURNS trigger
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM por_turno('inabil');
  IF NEW.fecha IS NULL OR extract(year FROM NEW.fecha) = 1900 THEN
    RAISE EXCEPTION 'Falta la fecha' USING ERRCODE = 'not_null_violation';
  ELSIF NOT isfinite(NEW.fecha) OR extract(year FROM NEW.fecha) NOT BETWEEN 1901 AND 2999 THEN
    RAISE EXCEPTION 'Está fuera de rango la fecha: % no está entre 1901 y 2999', NEW.fecha
      USING ERRCODE = 'datetime_field_overflow';
  ELSIF EXISTS (SELECT FROM inabil WHERE fecha = NEW.fecha) THEN
    RAISE EXCEPTION 'El día % ya es inhábil', to_char(NEW.fecha, 'DD/MM/YYYY') USING ERRCODE = 'unique_violation';
  END IF;
  RETURN NEW;
END $$;

CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON inabil
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('fecha');
CREATE TRIGGER permiso BEFORE INSERT OR UPDATE OR DELETE ON inabil
  FOR EACH STATEMENT WHEN (current_user <> 'tolvara_propietario') EXECUTE FUNCTION exige_permiso_directo('0448');
CREATE TRIGGER valida BEFORE INSERT OR UPDATE ON inabil FOR EACH ROW EXECUTE FUNCTION valida_inabil();

GRANT SELECT ON inabil TO :"grupo";
