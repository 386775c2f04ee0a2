-- The functions of geography, persons, users and assets, and the processes; included by ../10_contrato.sql.
INSERT INTO contrato VALUES
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
  ('spssujetoc', 'text, text, text, text', 'text');
