-- Loan types. The client saves one with two statements of one transaction: the stored function, which takes the first
-- 32 columns of its list, and a direct update of the other 19. Columns stand in the order in which it reads them.

-- The amounts of the direct update have no precision of their own: a number too large for one would be refused ahead
-- of the trigger, in the server's words.
CREATE TABLE tipoprestamo (
  tipoprestamoid character(3) PRIMARY KEY,
  cuentaactivo character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaactivovencida character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaintnormal character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaintnormalvencida character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaintnormalnocob character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaintmora character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaintmoravencida character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaiva character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentariesgocred character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaordeninteres character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaordenaval character(24) NOT NULL REFERENCES catalogo_ctas,
  tipomovimientoid character(2) REFERENCES tipomovimiento,
  desctipoprestamo varchar(31) NOT NULL,
  tantos integer NOT NULL CHECK (tantos >= 0),
  tasa_normal numeric(10,6) NOT NULL CHECK (tasa_normal >= 0),
  tasa_mora numeric(10,6) NOT NULL CHECK (tasa_mora >= 0),
  aplicaivaprestamo character(1) NOT NULL CHECK (aplicaivaprestamo IN ('S', 'N')),
  diastraspasoavencida integer NOT NULL CHECK (diastraspasoavencida > 0),
  cuentaintdevnocobres character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentariesgocredres character(24) REFERENCES catalogo_ctas,
  cuentaintmoranocobact character(24) NOT NULL REFERENCES catalogo_ctas,
  cuentaintmoradevnocobres character(24) NOT NULL REFERENCES catalogo_ctas,
  ordendeudornormalbonificado character(24) REFERENCES catalogo_ctas,
  ordenacredornormalbonificado character(24) REFERENCES catalogo_ctas,
  cuentafondorecuperacion character(24) REFERENCES catalogo_ctas,
  cuentagtosadm character(24) REFERENCES catalogo_ctas,
  cuentaintnormalresvencida character(24) REFERENCES catalogo_ctas,
  ordeninteresacreedor character(24) REFERENCES catalogo_ctas,
  calculonormalid bigint NOT NULL REFERENCES calculo,
  calculomoraid bigint NOT NULL REFERENCES calculo,
  clavefinalidad character(3) NOT NULL REFERENCES finalidades,
  -- written by the direct update only: NULL until it comes
  cuentaintnormalresvigente character(24) REFERENCES catalogo_ctas,
  cuentaordenavalacredor character(24) REFERENCES catalogo_ctas,
  cuentagarantiadeudor character(24) REFERENCES catalogo_ctas,
  cuentagarantiaacredor character(24) REFERENCES catalogo_ctas,
  cuentaprovisioniva character(24) REFERENCES catalogo_ctas,
  montomaximo numeric CHECK (montomaximo >= 0),
  plazomaximo integer CHECK (plazomaximo >= 0),
  montominimo numeric CHECK (montominimo >= 0),
  avalesminimos integer CHECK (avalesminimos >= 0),
  periododiasdefault integer CHECK (periododiasdefault >= 0),
  estatus integer CHECK (estatus IN (0, 1)),
  comision numeric CHECK (comision >= 0),
  ivacomision numeric CHECK (ivacomision >= 0),
  cuentacomision character(24) REFERENCES catalogo_ctas,
  cuentaivacomision character(24) REFERENCES catalogo_ctas,
  nivelautorizacion integer CHECK (nivelautorizacion >= 0),
  reciprocidad numeric CHECK (reciprocidad >= 0),
  prestamogrupal integer CHECK (prestamogrupal IN (0, 1)),
  clasificacioncontable text
);
COMMENT ON TABLE tipoprestamo IS 'tipos de préstamo: créditos que ofrece la institución';
COMMENT ON COLUMN tipoprestamo.tipomovimientoid IS 'tipo de movimiento de la garantía';
COMMENT ON COLUMN tipoprestamo.diastraspasoavencida IS 'días de atraso con que pasa a cartera vencida';
COMMENT ON COLUMN tipoprestamo.plazomaximo IS 'plazo mayor, en días';
COMMENT ON COLUMN tipoprestamo.estatus IS '1 se ofrece, 0 ya no';

CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON tipoprestamo
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('tipoprestamoid');

-- What the client hands over to insert and to update, in its order, and the names alone.
SELECT $$
  clave text, descri text, veces integer, normal numeric, mora numeric, movi_garantia text, activo text,
  activo_vencida text, int_normal text, int_normal_vencida text, int_normal_no_cob text, int_mora text,
  int_mora_vencida text, iva text, riesgo text, orden_aval text, orden_interes text, aplica_iva text, dias integer,
  int_dev_no_cob_res text, riesgo_res text, int_mora_no_cob_act text, int_mora_dev_no_cob_res text,
  orden_deudor_bonificado text, orden_acredor_bonificado text, fondo_recuperacion text, gastos_adm text,
  int_normal_res_vencida text, orden_interes_acreedor text, formula_normal bigint, formula_mora bigint,
  finalidad text
$$ AS campos \gset
SELECT regexp_replace(:'campos', ' (text|integer|bigint|numeric)\M', '', 'g') AS dados \gset

-- The values of the stored functions as they will be stored, or a refusal; the other columns are left without one.
CREATE FUNCTION tipoprestamo_valido(:campos) RETURNS tipoprestamo
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
DECLARE
  fila tipoprestamo;
BEGIN
  fila.desctipoprestamo := obligatorio(descri, 31, 'la descripción');
  fila.cuentaactivo := cuenta_requerida(activo, 'la cuenta de activo');
  fila.cuentaactivovencida := cuenta_requerida(activo_vencida, 'la cuenta de activo vencida');
  fila.cuentaintnormal := cuenta_requerida(int_normal, 'la cuenta de interés normal');
  fila.cuentaintnormalvencida := cuenta_requerida(int_normal_vencida, 'la cuenta de interés normal vencido');
  fila.cuentaintnormalnocob := cuenta_requerida(int_normal_no_cob, 'la cuenta de interés normal no cobrado');
  fila.cuentaintmora := cuenta_requerida(int_mora, 'la cuenta de interés moratorio');
  fila.cuentaintmoravencida := cuenta_requerida(int_mora_vencida, 'la cuenta de interés moratorio vencido');
  fila.cuentaiva := cuenta_requerida(iva, 'la cuenta de IVA');
  fila.cuentariesgocred := cuenta_existente(obligatorio(riesgo, 24, 'la cuenta de riesgo crediticio'),
                                            'la cuenta de riesgo crediticio');
  fila.tipoprestamoid := obligatorio(clave, 3, 'la clave');
  fila.cuentaordenaval := cuenta_requerida(orden_aval, 'la cuenta de orden de aval');
  fila.cuentaordeninteres := cuenta_requerida(orden_interes, 'la cuenta de orden de interés');
  fila.aplicaivaprestamo := letra_si_no(aplica_iva, 'la marca de aplicar IVA');
  fila.diastraspasoavencida := numero(dias, 1, 99999, 'el plazo para traspasar a vencida');
  fila.cuentaintdevnocobres := cuenta_requerida(int_dev_no_cob_res,
                                                'la cuenta de interés normal devengado de resultados');
  fila.cuentaintmoranocobact := cuenta_requerida(int_mora_no_cob_act,
                                                 'la cuenta de interés moratorio no cobrado de activo');
  fila.cuentaintmoradevnocobres := cuenta_requerida(int_mora_dev_no_cob_res,
                                                    'la cuenta de interés moratorio devengado de resultados');
  fila.cuentariesgocredres := cuenta_existente(riesgo_res, 'la cuenta de riesgo crediticio de resultados');
  fila.ordendeudornormalbonificado := cuenta_afectable(orden_deudor_bonificado,
                                                       'la cuenta de orden deudora de interés bonificado');
  fila.ordenacredornormalbonificado := cuenta_afectable(orden_acredor_bonificado,
                                                        'la cuenta de orden acreedora de interés bonificado');
  fila.cuentafondorecuperacion := cuenta_afectable(fondo_recuperacion, 'la cuenta de fondo de recuperación');
  fila.cuentagtosadm := cuenta_afectable(gastos_adm, 'la cuenta de gastos de administración');
  fila.cuentaintnormalresvencida := cuenta_afectable(int_normal_res_vencida,
                                                     'la cuenta de interés normal de resultados vencida');
  fila.ordeninteresacreedor := cuenta_afectable(orden_interes_acreedor, 'la cuenta de orden de interés acreedora');
  fila.tantos := numero(veces, 0, 99999, 'el número de tantos');
  fila.tasa_normal := numero(normal, 0, 9999.999999, 'la tasa normal');
  fila.tasa_mora := numero(mora, 0, 9999.999999, 'la tasa moratoria');
  fila.tipomovimientoid := referencia(opcional(movi_garantia, 2, 'el movimiento de garantía'), 'tipomovimiento',
                                       'tipomovimientoid', 'el movimiento de garantía');
  fila.calculonormalid := formula_existente(formula_normal, 'la fórmula de interés normal');
  fila.calculomoraid := formula_existente(formula_mora, 'la fórmula de interés moratorio');
  fila.clavefinalidad := referencia(obligatorio(finalidad, 3, 'la finalidad'), 'finalidades', 'clavefinalidad',
                                    'la finalidad');
  RETURN fila;
END $$;

-- What the direct update writes, checked and brought into form.
CREATE FUNCTION valida_tipoprestamo_directo() RETURNS trigger
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  NEW.cuentaintnormalresvigente := cuenta_afectable(NEW.cuentaintnormalresvigente,
                                                    'la cuenta de interés normal de resultados vigente');
  NEW.cuentaordenavalacredor := cuenta_requerida(NEW.cuentaordenavalacredor, 'la cuenta de orden de aval acreedora');
  NEW.cuentagarantiadeudor := cuenta_requerida(NEW.cuentagarantiadeudor, 'la cuenta de garantías deudora');
  NEW.cuentagarantiaacredor := cuenta_requerida(NEW.cuentagarantiaacredor, 'la cuenta de garantías acreedora');
  NEW.cuentaprovisioniva := cuenta_requerida(NEW.cuentaprovisioniva, 'la cuenta de provisión de IVA');
  NEW.montomaximo := round(numero(NEW.montomaximo, 0, 999999999999.99, 'el monto máximo'), 2);
  NEW.plazomaximo := numero(NEW.plazomaximo, 0, 99999, 'el plazo máximo');
  NEW.montominimo := round(numero(NEW.montominimo, 0.01, 999999999999.99, 'el monto mínimo'), 2);
  NEW.avalesminimos := numero(NEW.avalesminimos, 0, 99999, 'el número de avales');
  NEW.periododiasdefault := numero(NEW.periododiasdefault, 0, 99999, 'el periodo');
  NEW.estatus := numero(NEW.estatus, 0, 1, 'el estatus');
  NEW.comision := round(numero(NEW.comision, 0, 999999999999.99, 'la comisión'), 6);
  NEW.ivacomision := round(numero(NEW.ivacomision, 0, 999999999999.99, 'el IVA de la comisión'), 6);
  NEW.cuentacomision := cuenta_existente(obligatorio(NEW.cuentacomision, 24, 'la cuenta de comisión'),
                                         'la cuenta de comisión');
  NEW.cuentaivacomision := cuenta_existente(obligatorio(NEW.cuentaivacomision, 24, 'la cuenta de IVA de la comisión'),
                                            'la cuenta de IVA de la comisión');
  NEW.nivelautorizacion := numero(NEW.nivelautorizacion, 0, 99999, 'el nivel de autorización');
  NEW.reciprocidad := round(numero(NEW.reciprocidad, 0, 999999999999.99, 'la reciprocidad'), 6);
  NEW.prestamogrupal := numero(NEW.prestamogrupal, 0, 1, 'la marca de préstamo grupal');
  NEW.clasificacioncontable := obligatorio(NEW.clasificacioncontable, 24, 'la clasificación contable');
  RETURN NEW;
END $$;

CREATE TRIGGER permiso BEFORE INSERT OR UPDATE OR DELETE ON tipoprestamo
  FOR EACH STATEMENT WHEN (current_user <> 'tolvara_propietario') EXECUTE FUNCTION exige_permiso_directo('0208');
CREATE TRIGGER valida BEFORE UPDATE ON tipoprestamo
  FOR EACH ROW WHEN (current_user <> 'tolvara_propietario') EXECUTE FUNCTION valida_tipoprestamo_directo();

CREATE FUNCTION spstipoprestamo(clave text)
RETURNS TABLE (tipoprestamoid character(3), cuentaactivo character(24), cuentaactivovencida character(24),
               cuentaintnormal character(24), cuentaintnormalvencida character(24), cuentaintnormalnocob character(24),
               cuentaintmora character(24), cuentaintmoravencida character(24), cuentaiva character(24),
               cuentariesgocred character(24), cuentaordeninteres character(24), cuentaordenaval character(24),
               tipomovimientoid character(2), desctipoprestamo varchar(31), tantos integer, tasa_normal numeric,
               tasa_mora numeric, aplicaivaprestamo character(1), diastraspasoavencida integer,
               cuentaintdevnocobres character(24), cuentariesgocredres character(24),
               cuentaintmoranocobact character(24), cuentaintmoradevnocobres character(24),
               ordendeudornormalbonificado character(24), ordenacredornormalbonificado character(24),
               cuentafondorecuperacion character(24), cuentagtosadm character(24),
               cuentaintnormalresvencida character(24), ordeninteresacreedor character(24), calculonormalid bigint,
               calculomoraid bigint, clavefinalidad character(3), cuentaintnormalresvigente character(24),
               cuentaordenavalacredor character(24), cuentagarantiadeudor character(24),
               cuentagarantiaacredor character(24), cuentaprovisioniva character(24), montomaximo numeric,
               plazomaximo integer, montominimo numeric, avalesminimos integer, periododiasdefault integer,
               estatus integer, comision numeric, ivacomision numeric, cuentacomision character(24),
               cuentaivacomision character(24), nivelautorizacion integer, reciprocidad numeric,
               prestamogrupal integer, clasificacioncontable text)
LANGUAGE sql STABLE
BEGIN ATOMIC
  SELECT t.tipoprestamoid, t.cuentaactivo, t.cuentaactivovencida, t.cuentaintnormal, t.cuentaintnormalvencida,
         t.cuentaintnormalnocob, t.cuentaintmora, t.cuentaintmoravencida, t.cuentaiva, t.cuentariesgocred,
         t.cuentaordeninteres, t.cuentaordenaval, coalesce(t.tipomovimientoid, ''::character(2)),
         t.desctipoprestamo, t.tantos, t.tasa_normal, t.tasa_mora, t.aplicaivaprestamo, t.diastraspasoavencida,
         t.cuentaintdevnocobres, coalesce(t.cuentariesgocredres, ''::character(24)), t.cuentaintmoranocobact,
         t.cuentaintmoradevnocobres, coalesce(t.ordendeudornormalbonificado, ''::character(24)),
         coalesce(t.ordenacredornormalbonificado, ''::character(24)),
         coalesce(t.cuentafondorecuperacion, ''::character(24)), coalesce(t.cuentagtosadm, ''::character(24)),
         coalesce(t.cuentaintnormalresvencida, ''::character(24)), coalesce(t.ordeninteresacreedor, ''::character(24)),
         t.calculonormalid, t.calculomoraid, t.clavefinalidad,
         coalesce(t.cuentaintnormalresvigente, ''::character(24)),
         coalesce(t.cuentaordenavalacredor, ''::character(24)), coalesce(t.cuentagarantiadeudor, ''::character(24)),
         coalesce(t.cuentagarantiaacredor, ''::character(24)), coalesce(t.cuentaprovisioniva, ''::character(24)),
         t.montomaximo, t.plazomaximo, t.montominimo, t.avalesminimos, t.periododiasdefault, t.estatus, t.comision,
         t.ivacomision, coalesce(t.cuentacomision, ''::character(24)),
         coalesce(t.cuentaivacomision, ''::character(24)), t.nivelautorizacion, t.reciprocidad, t.prestamogrupal,
         t.clasificacioncontable
    FROM tipoprestamo t
   WHERE coalesce(btrim(clave), '') = '' OR t.tipoprestamoid = clave::bpchar
   ORDER BY t.desctipoprestamo COLLATE "es-MX-x-icu", t.tipoprestamoid;
END;

CREATE FUNCTION inserta_tipoprestamo(fila tipoprestamo) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  INSERT INTO tipoprestamo SELECT fila.* ON CONFLICT DO NOTHING;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El tipo de préstamo % ya existe', rtrim(fila.tipoprestamoid) USING ERRCODE = 'unique_violation';
  END IF;
END $$;

CREATE FUNCTION spitipoprestamo(:campos) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT exige_permiso('0208');
  SELECT inserta_tipoprestamo(tipoprestamo_valido(:dados));
END;

CREATE FUNCTION cambia_tipoprestamo(fila tipoprestamo) RETURNS void
LANGUAGE plpgsql SET search_path FROM CURRENT AS $$
BEGIN
  UPDATE tipoprestamo
     SET cuentaactivo = fila.cuentaactivo, cuentaactivovencida = fila.cuentaactivovencida,
         cuentaintnormal = fila.cuentaintnormal, cuentaintnormalvencida = fila.cuentaintnormalvencida,
         cuentaintnormalnocob = fila.cuentaintnormalnocob, cuentaintmora = fila.cuentaintmora,
         cuentaintmoravencida = fila.cuentaintmoravencida, cuentaiva = fila.cuentaiva,
         cuentariesgocred = fila.cuentariesgocred, cuentaordeninteres = fila.cuentaordeninteres,
         cuentaordenaval = fila.cuentaordenaval, tipomovimientoid = fila.tipomovimientoid,
         desctipoprestamo = fila.desctipoprestamo, tantos = fila.tantos, tasa_normal = fila.tasa_normal,
         tasa_mora = fila.tasa_mora, aplicaivaprestamo = fila.aplicaivaprestamo,
         diastraspasoavencida = fila.diastraspasoavencida, cuentaintdevnocobres = fila.cuentaintdevnocobres,
         cuentariesgocredres = fila.cuentariesgocredres, cuentaintmoranocobact = fila.cuentaintmoranocobact,
         cuentaintmoradevnocobres = fila.cuentaintmoradevnocobres,
         ordendeudornormalbonificado = fila.ordendeudornormalbonificado,
         ordenacredornormalbonificado = fila.ordenacredornormalbonificado,
         cuentafondorecuperacion = fila.cuentafondorecuperacion, cuentagtosadm = fila.cuentagtosadm,
         cuentaintnormalresvencida = fila.cuentaintnormalresvencida,
         ordeninteresacreedor = fila.ordeninteresacreedor, calculonormalid = fila.calculonormalid,
         calculomoraid = fila.calculomoraid, clavefinalidad = fila.clavefinalidad
   WHERE tipoprestamoid = fila.tipoprestamoid;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El tipo de préstamo % no existe', rtrim(fila.tipoprestamoid) USING ERRCODE = 'no_data_found';
  END IF;
END $$;

CREATE FUNCTION sputipoprestamo(:campos) RETURNS void
LANGUAGE sql SECURITY DEFINER SET search_path FROM CURRENT
BEGIN ATOMIC
  SELECT exige_permiso('0208');
  SELECT cambia_tipoprestamo(tipoprestamo_valido(:dados));
END;

CREATE FUNCTION spdtipoprestamo(clave text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM exige_permiso('0208');
  DELETE FROM tipoprestamo WHERE tipoprestamoid = obligatorio(clave, 3, 'la clave')::bpchar;
  IF NOT FOUND THEN
    RAISE EXCEPTION 'El tipo de préstamo % no existe', rtrim(clave) USING ERRCODE = 'no_data_found';
  END IF;
EXCEPTION WHEN foreign_key_violation THEN
  PERFORM rechaza_uso('tipoprestamo', clave, 'el tipo de préstamo ' || rtrim(clave));
END $$;

-- The client's direct update is granted with the module, see ajusta_escritura().
GRANT SELECT ON tipoprestamo TO :"grupo";
GRANT EXECUTE ON FUNCTION spstipoprestamo, spitipoprestamo, sputipoprestamo, spdtipoprestamo TO :"grupo";
