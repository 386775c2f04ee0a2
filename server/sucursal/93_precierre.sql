-- The monthly pre-close of the loans: their state at the end of a day, one row each, computed once per month.
CREATE TABLE tramoreserva (
  diasdesde integer PRIMARY KEY CHECK (diasdesde >= 0),
  porcentaje numeric(7,4) NOT NULL CHECK (porcentaje BETWEEN 0 AND 100)
);
COMMENT ON TABLE tramoreserva IS 'tramos de reserva: por ciento del saldo que se reserva según los días vencidos';

CREATE TABLE cierre (
  ejercicio integer NOT NULL CHECK (ejercicio BETWEEN 1900 AND 9999),
  periodo integer NOT NULL CHECK (periodo BETWEEN 1 AND 12),
  fechacierre date NOT NULL,
  usuarioid name NOT NULL DEFAULT session_user,
  momento timestamptz NOT NULL DEFAULT now(),
  PRIMARY KEY (ejercicio, periodo)
);
COMMENT ON TABLE cierre IS 'cierres: meses cuyo precierre ya se corrió';

CREATE TABLE precorte (
  ejercicio integer NOT NULL,
  periodo integer NOT NULL,
  prestamoid bigint NOT NULL REFERENCES prestamos,
  fechacierre date NOT NULL,
  tipoprestamoid character(3) NOT NULL REFERENCES tipoprestamo,
  clavefinalidad character(3) NOT NULL REFERENCES finalidades,
  montoprestamo numeric(14,2) NOT NULL,
  fecha_vencimiento date NOT NULL,
  saldoprestamo numeric(14,2) NOT NULL,
  diastraspasoavencida integer NOT NULL,
  diasvencidos integer NOT NULL,
  noamorvencidas integer NOT NULL,
  saldovencidomenoravencido numeric(14,2) NOT NULL,
  saldovencidomayoravencido numeric(14,2) NOT NULL,
  interesdevengadomenoravencido numeric(14,2) NOT NULL,
  interesdevengadomayoravencido numeric(14,2) NOT NULL,
  interesdevmormenor numeric(14,2) NOT NULL,
  interesdevmormayor numeric(14,2) NOT NULL,
  porcentajeaplicado numeric(7,4) NOT NULL,
  factoraplicado numeric(9,6) NOT NULL,
  reservacalculada numeric(14,2) NOT NULL,
  pagocapitalenperiodo numeric(14,2) NOT NULL,
  pagointeresenperiodo numeric(14,2) NOT NULL,
  pagomoratorioenperiodo numeric(14,2) NOT NULL,
  bonificacionintenperiodo numeric(14,2) NOT NULL,
  bonificacionmorenperiodo numeric(14,2) NOT NULL,
  fechaultamorpagada date,
  ultimoabono date,
  ultimoabonointeres date,
  PRIMARY KEY (ejercicio, periodo, prestamoid),
  FOREIGN KEY (ejercicio, periodo) REFERENCES cierre
);
COMMENT ON TABLE precorte IS 'renglones de precierre: estado de cada préstamo al cierre de cada mes';
COMMENT ON COLUMN precorte.saldovencidomenoravencido IS
  'capital vencido, si el atraso no pasa de diastraspasoavencida; si pasa, está en saldovencidomayoravencido';
COMMENT ON COLUMN precorte.interesdevengadomenoravencido IS
  'interés devengado y no pagado hasta el traspaso a cartera vencida; el posterior está en el otro renglón';
COMMENT ON COLUMN precorte.interesdevmormenor IS 'moratorio devengado hasta el traspaso a cartera vencida';
COMMENT ON COLUMN precorte.factoraplicado IS 'porcentajeaplicado entre 100';
CREATE INDEX ON precorte (prestamoid);
CREATE INDEX ON precorte (tipoprestamoid);
CREATE INDEX ON precorte (clavefinalidad);

CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON tramoreserva
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('diasdesde');
CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON cierre
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('ejercicio', 'periodo');
-- A close logs itself; its thousands of computed rows are logged only when somebody touches them afterwards.
CREATE TRIGGER bitacora AFTER UPDATE OR DELETE ON precorte
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('ejercicio', 'periodo', 'prestamoid');

-- The rows as they would be at the end of `corte`: loans with a balance, and those paid in the same month.
--   Payments of capital and of interest cover the oldest amortisations first; what is forgiven counts as paid, and so
--   does the interest to come of a loan without balance. An amortisation is overdue from the day after it fell due, and
--   the loan since its oldest overdue one.
--   Interest accrues daily on the balance, over the institution's days of the year. The part that accrued since the
--   loan had `diastraspasoavencida` days of arrears belongs to the overdue portfolio ("mayor"), what went before to
--   the current one ("menor"). Late interest accrues on the capital that is still overdue of each amortisation, from the
--   day that it fell due, and is parted at the same day of the loan; what was paid of it since the arrears began is
--   taken off the older part first.
--   A loan that has paid exactly what fell due is done with the two sums; only the others are looked at amortisation by
--   amortisation (`pendiente`), which is what takes time.
--   What is answered stands in the order of the table, each expression with the name of its column; a test compares.
CREATE FUNCTION calcula_precorte(corte date) RETURNS SETOF precorte
LANGUAGE sql STABLE SET search_path FROM CURRENT AS $$
  WITH mes AS (
    SELECT date_trunc('month', corte)::date AS inicio, 100.0 * coalesce(nullif(diasanualesprestamo, 0), 360) AS base
      FROM empresa),
  pagado AS (
    SELECT prestamoid, sum(capital) AS capital, sum(interes + bonificacioninteres) AS interes,
           sum(capital * (corte - fecha)) AS capital_por_dias,
           max(fecha) FILTER (WHERE capital > 0) AS ultimo_capital,
           max(fecha) FILTER (WHERE interes > 0) AS ultimo_interes
      FROM pago
     WHERE fecha <= corte
     GROUP BY prestamoid),
  pagado_mes AS (
    SELECT prestamoid, sum(capital) AS capital_mes, sum(interes) AS interes_mes, sum(moratorio) AS moratorio_mes,
           sum(bonificacioninteres) AS bonificacion_interes_mes, sum(bonificacionmoratorio) AS bonificacion_moratorio_mes
      FROM pago
     WHERE fecha BETWEEN (SELECT inicio FROM mes) AND corte
     GROUP BY prestamoid),
  exigible AS (
    SELECT prestamoid, sum(capital) FILTER (WHERE fecha_vencimiento <= corte) AS capital,
           sum(interes) FILTER (WHERE fecha_vencimiento <= corte) AS interes,
           max(fecha_vencimiento) FILTER (WHERE fecha_vencimiento <= corte OR capital + interes = 0) AS ultima
      FROM amortizacion
     GROUP BY prestamoid),
  cartera AS (
    SELECT p.*, t.diastraspasoavencida, p.montoprestamo - coalesce(g.capital, 0) AS saldo,
           coalesce(g.capital, 0) AS capital_pagado, coalesce(g.interes, 0) AS interes_pagado,
           coalesce(g.capital_por_dias, 0) AS capital_por_dias, m.capital_mes, m.interes_mes, m.moratorio_mes,
           m.bonificacion_interes_mes, m.bonificacion_moratorio_mes, g.ultimo_capital, g.ultimo_interes,
           coalesce(e.capital, 0) = coalesce(g.capital, 0) AND coalesce(e.interes, 0) = coalesce(g.interes, 0)
             AND p.montoprestamo > coalesce(g.capital, 0) AS al_dia,
           e.ultima
      FROM prestamos p
      JOIN tipoprestamo t USING (tipoprestamoid)
      LEFT JOIN pagado g USING (prestamoid)
      LEFT JOIN pagado_mes m USING (prestamoid)
      LEFT JOIN exigible e USING (prestamoid)
     WHERE p.fecha_otorga <= corte AND (p.montoprestamo > coalesce(g.capital, 0) OR m.capital_mes IS NOT NULL)),
  pendiente AS (
    SELECT c.prestamoid, c.diastraspasoavencida, a.fecha_vencimiento AS vence,
           least(a.capital, greatest(0, sum(a.capital) OVER lo_anterior - c.capital_pagado)) AS capital,
           CASE WHEN c.saldo > 0
                THEN least(a.interes, greatest(0, sum(a.interes) OVER lo_anterior - c.interes_pagado))
                ELSE 0 END AS interes
      FROM cartera c JOIN amortizacion a USING (prestamoid)
     WHERE NOT c.al_dia
    WINDOW lo_anterior AS (PARTITION BY a.prestamoid ORDER BY a.numero)),
  atraso AS (
    SELECT prestamoid, min(desde) AS desde, count(*) FILTER (WHERE vencida) AS amortizaciones,
           sum(capital) FILTER (WHERE vencida) AS capital,
           sum(capital * (least(corte, desde + diastraspasoavencida) - least(vence, desde + diastraspasoavencida)))
             FILTER (WHERE vencida) AS mora_menor,
           sum(capital * (corte - greatest(vence, least(corte, desde + diastraspasoavencida))))
             FILTER (WHERE vencida) AS mora_mayor,
           max(vence) FILTER (WHERE capital + interes = 0) AS ultima_pagada
      FROM (SELECT *, min(vence) FILTER (WHERE vencida) OVER (PARTITION BY prestamoid) AS desde
              FROM (SELECT *, vence < corte AND capital + interes > 0 AS vencida FROM pendiente) AS p) AS p
     GROUP BY prestamoid),
  pagado_en_atraso AS (
    SELECT prestamoid, sum(g.moratorio + g.bonificacionmoratorio) AS mora,
           sum(g.capital * greatest(0, g.fecha - a.desde - c.diastraspasoavencida)) AS capital_por_dias
      FROM atraso a JOIN cartera c USING (prestamoid) JOIN pago g USING (prestamoid)
     WHERE g.fecha > a.desde AND g.fecha <= corte
     GROUP BY prestamoid),
  devengado AS (
    SELECT c.*, coalesce(corte - a.desde, 0) AS dias, coalesce(a.amortizaciones, 0) AS amortizaciones,
           coalesce(a.capital, 0) AS capital_vencido, CASE WHEN c.al_dia THEN c.ultima ELSE a.ultima_pagada END
             AS ultima_pagada,
           CASE WHEN c.saldo > 0
                THEN greatest(0, round(c.tasanormal / mes.base
                                       * (c.montoprestamo * (corte - c.fecha_otorga) - c.capital_por_dias), 2)
                                 - c.interes_pagado) ELSE 0 END AS interes,
           round(c.tasanormal / mes.base
                 * (c.saldo * greatest(0, coalesce(corte - a.desde, 0) - c.diastraspasoavencida)
                    + coalesce(g.capital_por_dias, 0)), 2) AS interes_tras_traspaso,
           round(coalesce(a.mora_menor, 0) * c.tasa_moratoria / mes.base, 2) AS mora_menor,
           round(coalesce(a.mora_mayor, 0) * c.tasa_moratoria / mes.base, 2) AS mora_mayor,
           coalesce(g.mora, 0) AS mora_pagada
      FROM mes CROSS JOIN cartera c
      LEFT JOIN atraso a USING (prestamoid)
      LEFT JOIN pagado_en_atraso g USING (prestamoid)),
  tramo AS (
    SELECT porcentaje, diasdesde, coalesce(lead(diasdesde) OVER (ORDER BY diasdesde), 2147483647) AS hasta
      FROM tramoreserva),
  calificado AS (
    SELECT d.*, d.dias > d.diastraspasoavencida AS traspasado,
           least(d.interes, d.interes_tras_traspaso) AS interes_mayor, coalesce(r.porcentaje, 0) AS porcentaje
      FROM devengado d
      LEFT JOIN tramo r ON d.dias >= r.diasdesde AND d.dias < r.hasta)
  SELECT extract(year FROM corte)::integer AS ejercicio,
         extract(month FROM corte)::integer AS periodo,
         prestamoid,
         corte AS fechacierre,
         tipoprestamoid,
         clavefinalidad,
         montoprestamo,
         fecha_vencimiento,
         saldo AS saldoprestamo,
         diastraspasoavencida,
         dias AS diasvencidos,
         amortizaciones::integer AS noamorvencidas,
         CASE WHEN traspasado THEN 0 ELSE capital_vencido END AS saldovencidomenoravencido,
         CASE WHEN traspasado THEN capital_vencido ELSE 0 END AS saldovencidomayoravencido,
         interes - interes_mayor AS interesdevengadomenoravencido,
         interes_mayor AS interesdevengadomayoravencido,
         greatest(0, mora_menor - mora_pagada) AS interesdevmormenor,
         greatest(0, mora_mayor - greatest(0, mora_pagada - mora_menor)) AS interesdevmormayor,
         porcentaje AS porcentajeaplicado,
         porcentaje / 100 AS factoraplicado,
         round(saldo * porcentaje / 100, 2) AS reservacalculada,
         coalesce(capital_mes, 0) AS pagocapitalenperiodo,
         coalesce(interes_mes, 0) AS pagointeresenperiodo,
         coalesce(moratorio_mes, 0) AS pagomoratorioenperiodo,
         coalesce(bonificacion_interes_mes, 0) AS bonificacionintenperiodo,
         coalesce(bonificacion_moratorio_mes, 0) AS bonificacionmorenperiodo,
         ultima_pagada AS fechaultamorpagada,
         ultimo_capital AS ultimoabono,
         ultimo_interes AS ultimoabonointeres
    FROM calificado
$$;

-- Runs the pre-close of the month of a day, as of that day, and answers 1. A month is closed once.
CREATE FUNCTION precierre(dia text) RETURNS integer
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  corte date;
BEGIN
  PERFORM exige_permiso('0910');
  corte := fecha_dada(dia, 'la fecha de cierre');
  IF corte > hoy() THEN
    RAISE EXCEPTION 'La fecha de cierre % está en el futuro', to_char(corte, 'DD/MM/YYYY')
      USING ERRCODE = 'datetime_field_overflow';
  END IF;
  INSERT INTO cierre (ejercicio, periodo, fechacierre)
  VALUES (numero(extract(year FROM corte), 1901, 2999, 'el ejercicio'), extract(month FROM corte), corte)
  ON CONFLICT DO NOTHING;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El mes % ya está cerrado', to_char(corte, 'MM/YYYY') USING ERRCODE = 'unique_violation';
  END IF;
  INSERT INTO precorte SELECT * FROM calcula_precorte(corte);
  RETURN 1;
END $$;

-- Opens the last closed month again, for a reason; answers how many rows of it were thrown away. It is the server's
-- administrator's and granted to nobody. The log keeps the reason and every row.
CREATE FUNCTION reabre_mes(anio integer, mes integer, motivo text) RETURNS bigint
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  razon text := obligatorio(motivo, 254, 'el motivo');
  ultimo cierre;
  filas bigint;
BEGIN
  SELECT * INTO ultimo FROM cierre ORDER BY ejercicio DESC, periodo DESC LIMIT 1 FOR UPDATE;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'No hay ningún mes cerrado' USING ERRCODE = 'no_data_found';
  ELSIF (ultimo.ejercicio, ultimo.periodo) IS DISTINCT FROM (anio, mes) THEN
    RAISE EXCEPTION 'Solo se reabre el último mes cerrado, que es el %', to_char(ultimo.fechacierre, 'MM/YYYY')
      USING ERRCODE = 'object_not_in_prerequisite_state';
  END IF;
  DELETE FROM precorte WHERE ejercicio = anio AND periodo = mes;
  GET DIAGNOSTICS filas = ROW_COUNT;
  DELETE FROM cierre WHERE ejercicio = anio AND periodo = mes;
  PERFORM anota_suceso('REAPERTURA', 'cierre', format('%s/%s', anio, mes), jsonb_build_object('motivo', razon));
  RETURN filas;
END $$;

-- The export of a month, row by row as the client's own statement reads it; the deposits are those of the closing day.
CREATE VIEW precorte_detalle AS
SELECT s.clavesocioint, pr.referenciaprestamo, p.ejercicio, p.periodo, p.fechacierre, p.diasvencidos,
       p.porcentajeaplicado, p.factoraplicado, p.saldoprestamo, p.reservacalculada, p.interesdevengadomenoravencido,
       p.interesdevengadomayoravencido, p.pagocapitalenperiodo, p.pagointeresenperiodo, p.pagomoratorioenperiodo,
       p.bonificacionintenperiodo, p.bonificacionmorenperiodo, p.noamorvencidas, p.saldovencidomenoravencido,
       p.saldovencidomayoravencido, p.fechaultamorpagada, p.tipoprestamoid, p.montoprestamo, pr.fecha_vencimiento,
       t.tantos, saldodemovr(pr.socioid, t.tipomovimientoid, to_char(p.fechacierre, 'YYYY-MM-DD'), pr.prestamoid)
         AS depositogarantia,
       pr.tasanormal, pr.tasa_moratoria, su.nombre || ' ' || su.paterno || ' ' || su.materno AS nombresocio, d.calle,
       d.numero_ext, d.colonia, d.comunidad, d.codpostal, c.nombreciudadmex, p.ultimoabono, p.diastraspasoavencida,
       p.ultimoabonointeres, pr.numero_de_amor, pr.fecha_otorga, f.descripcionfinalidad,
       CASE WHEN p.fecha_vencimiento > p.fechacierre AND p.saldoprestamo > 0
            THEN p.fecha_vencimiento - p.fechacierre ELSE 0 END AS diasrestantes,
       round((pr.fecha_vencimiento - pr.fecha_otorga)::numeric / pr.numero_de_amor) AS diasporamortizacion,
       p.interesdevmormenor, p.interesdevmormayor,
       CASE pr.condicionid WHEN 0 THEN 'Pago periodico de capital e interes'
                           WHEN 1 THEN 'Pago unico de capital al vencimiento e interes periodico'
                           WHEN 2 THEN 'Pago unico de capital e intereses al vencimiento'
                           WHEN 3 THEN 'Revolvente' END AS condicionpago
  FROM precorte p
  JOIN prestamos pr USING (prestamoid)
  JOIN socio s USING (socioid)
  JOIN tipoprestamo t ON t.tipoprestamoid = pr.tipoprestamoid
  JOIN sujeto su USING (sujetoid)
  JOIN domicilio d USING (sujetoid)
  JOIN ciudadesmex c USING (ciudadmexid)
  JOIN finalidades f ON f.clavefinalidad = p.clavefinalidad;

-- The same of all branches, those of other servers too. A user reads only his own; this reads the others with the owner's
-- rights, for whoever may run the pre-close here, and answers nothing but that month.
CREATE FUNCTION precorteconsolidado(anio integer, mes integer) RETURNS SETOF precorte_detalle
LANGUAGE plpgsql STABLE SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  detalle text;
  contexto text;
BEGIN
  PERFORM exige_permiso('0910');
  RETURN QUERY EXECUTE consulta_de(ARRAY(SELECT sucursales_iguales(current_schema())),
                                   'SELECT * FROM %1$I.precorte_detalle WHERE ejercicio = $1 AND periodo = $2')
                       || ' ORDER BY diasvencidos, clavesocioint, referenciaprestamo' USING anio, mes;
EXCEPTION WHEN OTHERS OR query_canceled THEN
  GET STACKED DIAGNOSTICS detalle = PG_EXCEPTION_DETAIL, contexto = PG_EXCEPTION_CONTEXT;
  PERFORM culpa_remota(SQLSTATE, SQLERRM, detalle, contexto);
  RAISE;
END $$;

ALTER TABLE precorte ENABLE ROW LEVEL SECURITY;
CREATE POLICY lectura ON precorte FOR SELECT TO :"grupo" USING ((SELECT puede_leer('0910')));
GRANT SELECT ON precorte TO :"grupo";
GRANT EXECUTE ON FUNCTION precierre, precorteconsolidado TO :"grupo";

INSERT INTO tramoreserva (diasdesde, porcentaje) VALUES
  (0, 1), (1, 4), (8, 15), (31, 30), (61, 50), (91, 75), (121, 90), (181, 100);
