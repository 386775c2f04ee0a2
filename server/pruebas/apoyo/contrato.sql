-- The functions that the client calls, one row each: name, argument types, result.
CREATE TEMPORARY TABLE contrato (nombre text, argumentos text, resultado text);
INSERT INTO contrato VALUES
  -- currencies, parameters, permissions, and what the login asks
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
  ('fechacobroiva', '', 'date'),
  -- simple catalogues
  ('spstipo_garantia', 'text', 'TABLE(clavegarantia character, descripciongarantia character varying)'),
  ('spitipo_garantia', 'text, text', 'void'),
  ('sputipo_garantia', 'text, text', 'void'),
  ('spdtipo_garantia', 'text', 'void'),
  ('spsestados_credito', 'text', 'TABLE(claveestadocredito character, descripcionedocredito character varying)'),
  ('spiestados_credito', 'text, text', 'void'),
  ('spuestados_credito', 'text, text', 'void'),
  ('spdestados_credito', 'text', 'void'),
  ('spsfinalidades', 'text', 'TABLE(clavefinalidad character, descripcionfinalidad character varying)'),
  ('spifinalidades', 'text, text', 'void'),
  ('spufinalidades', 'text, text', 'void'),
  ('spdfinalidades', 'text', 'void'),
  ('spsmodulo', 'text', 'TABLE(clavemodulo character, descrimodulo character varying)'),
  ('spimodulo', 'text, text', 'void'),
  ('spumodulo', 'text, text', 'void'),
  ('spdmodulo', 'text', 'void'),
  ('spstipousuario', 'text', 'TABLE(tipousuarioid character, descripciontipousuario character varying)'),
  ('spitipousuario', 'text, text', 'void'),
  ('sputipousuario', 'text, text', 'void'),
  ('spdtipousuario', 'text', 'void'),
  ('spstiposocio', 'text',
   'TABLE(tiposocioid character, descritiposocio character varying, observaciones character varying)'),
  ('spitiposocio', 'text, text, text', 'void'),
  ('sputiposocio', 'text, text, text', 'void'),
  ('spdtiposocio', 'text', 'void'),
  ('spstipomovibanco', 'text',
   'TABLE(tipomovibancoid character, descritipomovibanco character varying, operacionsumaresta character)'),
  ('spitipomovibanco', 'text, text, text', 'void'),
  ('sputipomovibanco', 'text, text, text', 'void'),
  ('spdtipomovibanco', 'text', 'void'),
  ('spsasesor', 'integer', 'TABLE(asesorid integer, nomasesor character varying)'),
  ('spiasesor', 'integer, text', 'void'),
  ('spuasesor', 'integer, text', 'void'),
  ('spdasesor', 'integer', 'void'),
  ('spsmotivobaja', 'integer', 'TABLE(motivobajaid integer, descripcionmotivo character varying)'),
  ('spimotivobaja', 'text', 'integer'),
  ('spumotivobaja', 'integer, text', 'void'),
  ('spdmotivobaja', 'integer', 'void'),
  ('spsclasificacioncredito', 'integer', 'TABLE(clasificacioncreditoid integer, descripcion character varying)'),
  ('spiclasificacioncredito', 'text', 'integer'),
  ('spuclasificacioncredito', 'integer, text', 'void'),
  ('spdclasificacioncredito', 'integer', 'void'),
  ('spsgrupo', 'integer', 'TABLE(grupoid integer, grupo character varying)'),
  ('spigrupo', 'text', 'integer'),
  ('spugrupo', 'integer, text', 'void'),
  ('spdgrupo', 'integer', 'void'),
  ('spsocupacion', 'integer', 'TABLE(ocupacionid integer, ocupacion character varying)'),
  ('spiocupacion', 'text', 'integer'),
  ('spuocupacion', 'integer, text', 'void'),
  ('spdocupacion', 'integer', 'void'),
  ('spsconceptoscoring', 'integer', 'TABLE(conceptoscoringid integer, conceptoscoring character varying)'),
  ('spiconceptoscoring', 'text', 'integer'),
  ('spuconceptoscoring', 'integer, text', 'void'),
  ('spdconceptoscoring', 'integer', 'void'),
  ('spitipiacreditador', 'integer, text', 'void'),
  ('spstipoacreditador', 'integer', 'TABLE(tipoacreditadoid integer, descripciontipoacreditado character)'),
  ('sputipoacreditador', 'integer, text', 'void'),
  ('spdtipoacreditador', 'integer', 'void'),
  ('spstipoasentamiento', 'bigint', 'TABLE(tipoasentamientoid bigint, asentamiento character)'),
  ('spitipoasentamiento', 'bigint, text', 'void'),
  ('sputipoasentamiento', 'bigint, text', 'void'),
  ('spdtipoasentamiento', 'bigint', 'void'),
  ('spsasentamiento', 'bigint', 'TABLE(tipoasentamientoid bigint, asentamiento character)'),
  -- chart of accounts
  ('spscatalogo_ctas', 'text',
   'TABLE(cuentaid character, cuentaacumula character, identificacion character, cuentanombre character varying,'
   ' tipo_cta character, estado_cta character varying, fecha_estado date, fecha_ult_mov date, naturaleza '
   'character, digito_agrupador numeric, saldo_inic_ejer numeric, cargos_acum_ejer numeric, abonos_acum_ejer '
   'numeric)'),
  ('spicatalogo_ctas', 'text, text, text, text, text, text, text, text, text, numeric, numeric, numeric, numeric',
   'void'),
  ('spucatalogo_ctas', 'text, text, text, text, text, text, text, text, text, numeric, numeric, numeric, numeric',
   'void'),
  ('spdcatalogo_ctas', 'text', 'void'),
  ('spicatalogo_ctasc', 'text, text, text, text, text, text, text, text, text, numeric, numeric, numeric, numeric',
   'void'),
  -- formulas
  ('spscalculo', 'bigint',
   'TABLE(calculoid bigint, descripcioncalculo character varying, saldoinsoluto numeric, dias integer, '
   'tasaintnormal numeric, tasaintmoratorio numeric, formula character varying, saldo numeric)'),
  ('spicalculo', 'text, text', 'bigint'),
  ('spucalculo', 'bigint, text, text', 'void'),
  ('spdcalculo', 'bigint', 'void'),
  -- movement, investment and loan types
  ('spstipomovimiento', 'text',
   'TABLE(tipomovimientoid character, cuentadeposito character, cuentaretiro character, cuentaintpagado '
   'character, cuentaintcobrado character, cuentaivamovimiento character, cuentaisr character, '
   'desctipomovimiento character varying, aplicasaldo character, tipopoliza character, aceptadeposito character,'
   ' aceptaretiro character, tasainteres numeric, cuentaordenacredor character, cuentaordendeudor character, '
   'cuentaorden character, cuentaprovisionisr character, comision numeric, porcomision numeric, porivacomision '
   'numeric, cuentacomision character, cuentaivacomision character, desglosaiva integer)'),
  ('spitipomovimiento',
   'text, text, text, text, text, text, text, text, text, text, text, text, numeric, text, text, text, text, '
   'numeric, numeric, numeric, text, text, integer',
   'void'),
  ('sputipomovimiento',
   'text, text, text, text, text, text, text, text, text, text, text, text, numeric, text, text, text, text, '
   'numeric, numeric, numeric, text, text, integer',
   'void'),
  ('spdtipomovimiento', 'text', 'void'),
  ('spstipoinversion', 'text',
   'TABLE(tipoinversionid character, cuentariesgocred character, cuentaintinvernocob character, calculoid '
   'bigint, cuentapasivo character, cuentapasivovencida character, cuentaintinver character, cuentaivainver '
   'character, desctipoinversion character varying, tasa_normal numeric, plazo integer, aplicaivainversion '
   'character, aplicaisr integer, reinvierteinteres integer, tipomovimientoid character, cuentaprovisionisr '
   'character, clasificacionid integer, montomax numeric, montomin numeric, plazomax integer)'),
  ('spitipoinversion',
   'text, text, text, bigint, text, text, text, text, text, numeric, integer, text, integer, integer, text, '
   'text, integer, numeric, numeric, integer',
   'void'),
  ('sputipoinversion',
   'text, text, text, bigint, text, text, text, text, text, numeric, integer, text, integer, integer, text, '
   'text, integer, numeric, numeric, integer',
   'void'),
  ('spdtipoinversion', 'text', 'void'),
  ('spstipoprestamo', 'text',
   'TABLE(tipoprestamoid character, cuentaactivo character, cuentaactivovencida character, cuentaintnormal '
   'character, cuentaintnormalvencida character, cuentaintnormalnocob character, cuentaintmora character, '
   'cuentaintmoravencida character, cuentaiva character, cuentariesgocred character, cuentaordeninteres '
   'character, cuentaordenaval character, tipomovimientoid character, desctipoprestamo character varying, '
   'tantos integer, tasa_normal numeric, tasa_mora numeric, aplicaivaprestamo character, diastraspasoavencida '
   'integer, cuentaintdevnocobres character, cuentariesgocredres character, cuentaintmoranocobact character, '
   'cuentaintmoradevnocobres character, ordendeudornormalbonificado character, ordenacredornormalbonificado '
   'character, cuentafondorecuperacion character, cuentagtosadm character, cuentaintnormalresvencida character, '
   'ordeninteresacreedor character, calculonormalid bigint, calculomoraid bigint, clavefinalidad character, '
   'cuentaintnormalresvigente character, cuentaordenavalacredor character, cuentagarantiadeudor character, '
   'cuentagarantiaacredor character, cuentaprovisioniva character, montomaximo numeric, plazomaximo integer, '
   'montominimo numeric, avalesminimos integer, periododiasdefault integer, estatus integer, comision numeric, '
   'ivacomision numeric, cuentacomision character, cuentaivacomision character, nivelautorizacion integer, '
   'reciprocidad numeric, prestamogrupal integer, clasificacioncontable text)'),
  ('spitipoprestamo',
   'text, text, integer, numeric, numeric, text, text, text, text, text, text, text, text, text, text, text, '
   'text, text, integer, text, text, text, text, text, text, text, text, text, text, bigint, bigint, text',
   'void'),
  ('sputipoprestamo',
   'text, text, integer, numeric, numeric, text, text, text, text, text, text, text, text, text, text, text, '
   'text, text, integer, text, text, text, text, text, text, text, text, text, text, bigint, bigint, text',
   'void'),
  ('spdtipoprestamo', 'text', 'void'),
  -- rates
  ('spstasa', 'bigint',
   'TABLE(tasaid bigint, tipoprestamoid character, tipoinversionid character, tipomovimientoid character, '
   'fechainicial date, fechafinal date, tasanormal numeric, tasamoratorio numeric)'),
  ('spitasa', 'text, text, text, text, text, numeric, numeric', 'bigint'),
  ('sputasa', 'bigint, text, text, text, text, text, numeric, numeric', 'void'),
  ('spdtasa', 'bigint', 'void'),
  ('subtipotasa', 'text, text, text, text', 'TABLE(tipotasa character varying, descripcion character varying)'),
  ('spstasavariable', 'integer',
   'TABLE(tasavariableid integer, tipotasa character varying, fechainicial date, fechafinal date, valor1 '
   'numeric, valor2 numeric)'),
  ('spitasavariable', 'text, text, text, numeric, numeric', 'integer'),
  ('sputasavariable', 'integer, text, text, text, numeric, numeric', 'void'),
  -- indices
  ('spsudis', 'text', 'TABLE(fecha date, valor numeric)'),
  ('spiudis', 'text, numeric', 'void'),
  ('spuudis', 'text, numeric', 'void'),
  ('spdudis', 'text', 'void'),
  ('spsinpc', 'integer, integer', 'TABLE(ano integer, mes integer, inpc numeric)'),
  ('spiinpc', 'integer, integer, numeric', 'void'),
  ('spuinpc', 'integer, integer, numeric', 'void'),
  ('spdinpc', 'integer, integer', 'void'),
  ('spsrecargos', 'integer, integer', 'TABLE(ano integer, mes integer, porcentaje numeric)'),
  ('spirecargos', 'integer, integer, numeric', 'void'),
  ('spurecargos', 'integer, integer, numeric', 'void'),
  ('spdrecargos', 'integer, integer', 'void'),
  -- banks and promotions
  ('spsbanco', 'text',
   'TABLE(no_cuenta character, cuentaid character, banco character varying, fecha_inicio date, saldo_inicial '
   'numeric, saldo_actual numeric, saldo_pen numeric, serie character varying, nocheque bigint)'),
  ('spibanco', 'text, text, text, numeric, numeric, numeric, text, text, bigint', 'void'),
  ('spubanco', 'text, text, text, numeric, numeric, numeric, text, text, bigint', 'void'),
  ('spdbanco', 'text', 'void'),
  ('spstipopromocion', 'integer',
   'TABLE(tipopromocionid integer, tipomovimientoid character, fechainicial date, fechafinal date, condicion '
   'character varying, estatus integer, descripcion character varying)'),
  ('spitipopromocion', 'text, text, text, text, integer, text', 'integer'),
  ('sputipopromocion', 'integer, text, text, text, integer, text', 'void'),
  ('sputipopromocion', 'integer, text, text, text, text, integer, text', 'void'),
  ('spdtipopromocion', 'integer', 'void'),
  -- geography
  ('spsestadomex', 'integer',
   'TABLE(estadomexid integer, claveestadomex character, nombreestadomex character varying)'),
  ('spiestadomex', 'text, text', 'integer'),
  ('spuestadomex', 'text, text, integer', 'void'),
  ('spdestadomex', 'integer', 'void'),
  ('spsciudadmex', 'integer',
   'TABLE(ciudadmexid integer, estadomexid integer, claveciudadmex character, nombreciudadmex character varying)'),
  ('spsciudadxedo', 'integer',
   'TABLE(ciudadmexid integer, estadomexid integer, claveciudadmex character, nombreciudadmex character varying)'),
  ('spiciudadmex', 'integer, text, text', 'integer'),
  ('spuciudadmex', 'text, text, integer, integer', 'void'),
  ('spdciudadmex', 'integer', 'void'),
  ('spscolonia', 'bigint',
   'TABLE(coloniaid bigint, ciudadmexid integer, nombrecolonia character varying, cp integer, tipoasentamientoid '
   'bigint)'),
  ('spscolonias', 'bigint',
   'TABLE(coloniaid bigint, ciudadmexid integer, nombrecolonia character varying, cp integer, tipoasentamientoid '
   'bigint)'),
  ('spscoloniacp', 'bigint',
   'TABLE(coloniaid bigint, ciudadmexid integer, nombrecolonia character varying, cp integer, tipoasentamientoid '
   'bigint)'),
  ('spicolonia', 'integer, text, bigint, integer', 'bigint'),
  ('spucolonia', 'bigint, integer, text, bigint, integer', 'void'),
  ('spdcolonia', 'bigint', 'void'),
  -- persons and addresses
  ('spssujeto', 'bigint',
   'TABLE(sujetoid bigint, paterno character varying, materno character varying, nombre character varying, rfc '
   'character varying, curp character varying, edad integer, fechanacimiento date, razonsocial character varying)'),
  ('spssujetos', 'text',
   'TABLE(sujetoid bigint, paterno character varying, materno character varying, nombre character varying, rfc '
   'character varying, curp character varying, edad integer, fechanacimiento date, razonsocial character varying)'),
  ('spisujeto', 'text, text, text, text, text, integer, text, text', 'bigint'),
  ('spusujeto', 'bigint, text, text, text, text, text, integer, text, text', 'void'),
  ('spsujeto', 'bigint', 'void'),
  ('spsdomicilio', 'bigint',
   'TABLE(domicilioid bigint, ciudadmexid integer, sujetoid bigint, calle character varying, numero_ext character '
   'varying, numero_int character varying, colonia character varying, codpostal bigint, comunidad character '
   'varying, teldomicilio character varying, coloniaid bigint)'),
  ('spsdomiciliosujeto', 'bigint',
   'TABLE(domicilioid bigint, ciudadmexid integer, sujetoid bigint, calle character varying, numero_ext character '
   'varying, numero_int character varying, colonia character varying, codpostal bigint, comunidad character '
   'varying, teldomicilio character varying, coloniaid bigint)'),
  ('spidomicilio', 'integer, bigint, text, text, text, text, bigint, text, text, bigint', 'bigint'),
  ('spudomicilio', 'bigint, integer, bigint, text, text, text, text, bigint, text, text, bigint', 'void'),
  ('spdomicilio', 'bigint', 'void'),
  -- goods
  ('spsbienes', 'bigint',
   'TABLE(bienid bigint, sujetoid bigint, propietario character varying, describien character varying, '
   'caracteristicas character varying, registropublico character varying, valorcomercial numeric, valorfiscal '
   'numeric, valorcatastro numeric, datoshipoteca character varying, relaciongarantia numeric, adjudicado '
   'character, fechaadjudicado date)'),
  ('spibienes', 'bigint, text, text, text, text, numeric, numeric, numeric, text, numeric, text, text', 'bigint'),
  ('spubienes', 'bigint, bigint, text, text, text, text, numeric, numeric, numeric, text, numeric, text, text',
   'void'),
  ('spdbienes', 'bigint', 'void'),
  -- members
  ('spssociocaja', '',
   'TABLE(socioid bigint, clavesocioint character varying, paterno character varying, materno character varying, '
   'nombre character varying, estatus character varying)'),
  ('spssociocajaf', 'text',
   'TABLE(socioid bigint, clavesocioint character varying, paterno character varying, materno character varying, '
   'nombre character varying, estatus character varying)'),
  -- users
  ('spsusuario', 'text',
   'TABLE(usuarioid character varying, tipousuarioid character, usu_usuarioid character varying, contrasenia '
   'character varying, email character varying, dicola character varying, obsusuario character varying, sujetoid '
   'bigint)'),
  ('spiusuario', 'text, text, text, text, text, text, text, bigint', 'void'),
  ('spuusuario', 'text, text, text, text, text, text, text, bigint', 'void'),
  ('spdusuario', 'text', 'void'),
  -- fixed assets
  ('spsdepreciacion', 'bigint',
   'TABLE(depreciacionid bigint, depremoneda character, depre_activo character, depre_ctadepre character, '
   'depre_ctagasto character, depre_ctabaja character, depredescripcion character varying, depretasacontable '
   'numeric, depretasafiscal numeric, maximodeducible numeric, depreporcentaje numeric)'),
  ('spidepreciacion', 'text, text, text, text, text, text, numeric, numeric, numeric, numeric', 'bigint'),
  ('spudepreciacion', 'text, text, text, text, text, text, numeric, numeric, numeric, numeric, bigint', 'void'),
  ('spddepreciacion', 'bigint', 'void'),
  ('spsactivo', 'bigint',
   'TABLE(activoid bigint, depreciacionid bigint, activoclave character varying, activodescripcion character '
   'varying, activo_valor numeric, porcenvidautil numeric, valormercado numeric, localizacion character varying, '
   'activonoserie character varying, feciniciodepconta date, activotasaconta numeric, actdepreacumconta numeric, '
   'actmetododepreconta integer, feciniciodepfiscal date, actdeduccioninme character, activotasafiscal numeric, '
   'actdepreacumfiscal numeric, actmetododeprefiscal integer, actmonmaxdedufiscal numeric, montooriginal numeric, '
   'monedaid character, departamento integer)'),
  ('spiactivo', 'bigint, text, text, numeric, numeric, numeric, text, text, text, numeric, numeric, integer, text, '
               'text, numeric, numeric, integer, numeric, numeric, text, integer',
   'bigint'),
  ('spuactivo', 'bigint, bigint, text, text, numeric, numeric, numeric, text, text, text, numeric, numeric, integer, '
               'text, text, numeric, numeric, integer, numeric, numeric, text, integer',
   'void'),
  ('spdactivo', 'bigint', 'void'),
  -- loans and guarantees
  ('saldodemovr', 'bigint, text, text, bigint', 'numeric'),
  ('spsgarantiap', 'bigint',
   'TABLE(garantiaid bigint, solicitudprestamoid bigint, prestamoid bigint, garantiabienid bigint, nohip character '
   'varying, folio character varying, fecharegistro date, fechavencimiento date, descripcion character varying)'),
  ('spsgarantias', 'bigint',
   'TABLE(garantiaid bigint, solicitudprestamoid bigint, prestamoid bigint, garantiabienid bigint, nohip character '
   'varying, folio character varying, fecharegistro date, fechavencimiento date, descripcion character varying)'),
  ('spigarantia', 'bigint, bigint, bigint, text, text, text, text, text', 'bigint'),
  ('spugarantia', 'bigint, bigint, bigint, bigint, text, text, text, text, text', 'void'),
  ('spdgarantia', 'bigint', 'void'),
  -- processes
  ('cletra', 'numeric', 'text'),
  ('generarfc', 'text, text, text, text', 'TABLE(rfc text, curp text)'),
  ('login', 'text, text', 'integer'),
  ('precierre', 'text', 'integer'),
  ('precorteconsolidado', 'integer, integer', 'SETOF norte.precorte_detalle'),
  ('spssujeto', 'text, text, text, text', 'text'),
  ('spssujetoc', 'text, text, text, text', 'text'),
  -- what the second program looks at
  ('spsbitacora', 'text, text, text, text, text, text, bigint',
   'TABLE(bitacoraid bigint, momento text, usuario name, operacion text, tabla name, nombre text, clave text, '
   'clave_anterior text, direccion text, aplicacion text)'),
  ('spsbitacoradetalle', 'bigint', 'TABLE(campo text, anterior text, nuevo text, cambia boolean)'),
  ('spsmatrizpermisos', '',
   'TABLE(usuarioid character varying, nombre text, clavemodulo character, descrimodulo character varying, '
   'permitido boolean)'),
  ('spstablero', '',
   'TABLE(ejercicio integer, periodo integer, tipoprestamoid text, desctipoprestamo text, saldo numeric, '
   'vencido numeric, reserva numeric)');
