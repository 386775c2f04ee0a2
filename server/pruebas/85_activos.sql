-- Depreciation types and fixed assets through the functions, each row after the one above; adriana may.
BEGIN;
SELECT no_plan();
\ir apoyo/numeracion.sql

SELECT is(como('adriana', 'norte', replace(sentencia, '{C}', '''1101-01-00-00-0000''')), esperado, sentencia)
  FROM (VALUES
    ($$select spidepreciacion('MX',{C},{C},{C},{C},'Prueba',1.5,2.25,3.75,4.125);$$, '5'),
    ($$SELECT depreciacionid || '|' || depremoneda || '|' || depredescripcion || '|' || depretasacontable || '|' ||
         depretasafiscal || '|' || maximodeducible || '|' || depreporcentaje || '|' || octet_length(depre_ctabaja)
         FROM spsdepreciacion(5);$$, '5|MX|Prueba|1.5000|2.2500|3.75|4.1250|24'),
    ($$select spudepreciacion('US','1603-00-00-00-0000','1690-03-00-00-0000','5303-00-00-00-0000',
                              '4303-00-00-00-0000','Otra',0,0,0,0,5);$$, ''),
    ($$SELECT depremoneda || '|' || rtrim(depre_activo) || '|' || rtrim(depre_ctadepre) || '|' || rtrim(depre_ctagasto)
         || '|' || rtrim(depre_ctabaja) || '|' || depredescripcion FROM spsdepreciacion(5)$$,
     'US|1603-00-00-00-0000|1690-03-00-00-0000|5303-00-00-00-0000|4303-00-00-00-0000|Otra'),
    ($$select spudepreciacion('MX',{C},{C},{C},{C},'Otra',0,0,0,0,99);$$, 'El tipo de depreciación 99 no existe'),
    ($$select spidepreciacion('ZZ',{C},{C},{C},{C},'Prueba',0,0,0,0);$$, 'No existe la moneda: ZZ'),
    ($$select spidepreciacion('',{C},{C},{C},{C},'Prueba',0,0,0,0);$$, 'Falta la moneda'),
    ($$select spidepreciacion('MX','77',{C},{C},{C},'Prueba',0,0,0,0);$$,
     'No existe la cuenta de activo: 77 no está en el catálogo de cuentas'),
    ($$select spidepreciacion('MX',{C},'',{C},{C},'Prueba',0,0,0,0);$$, 'Falta la cuenta de depreciación'),
    ($$select spidepreciacion('MX',{C},{C},'77',{C},'Prueba',0,0,0,0);$$,
     'No existe la cuenta de gasto: 77 no está en el catálogo de cuentas'),
    ($$select spidepreciacion('MX',{C},{C},{C},NULL,'Prueba',0,0,0,0);$$, 'Falta la cuenta de baja'),
    ($$select spidepreciacion('MX',{C},{C},{C},{C},'',0,0,0,0);$$, 'Falta la descripción'),
    ($$select spidepreciacion('MX',{C},{C},{C},{C},'Prueba',-0.5,0,0,0);$$,
     'Está fuera de rango la tasa contable: -0.5 no está entre 0 y 99999999'),
    -- assets
    ($$select spiactivo(5,'CLAVE','Descripción',1.5,2.25,3.75,'Lugar','Serie','15/03/2006',4.5,5.25,1,'2007-04-16','S',
                        6.5,7.25,2,8.5,9.75,'MX',2);$$, '41'),
    ($$SELECT activoid || '|' || depreciacionid || '|' || activoclave || '|' || activodescripcion || '|' || activo_valor
         || '|' || porcenvidautil || '|' || valormercado || '|' || localizacion || '|' || activonoserie || '|' ||
         feciniciodepconta || '|' || activotasaconta || '|' || actdepreacumconta || '|' || actmetododepreconta || '|' ||
         feciniciodepfiscal || '|' || actdeduccioninme || '|' || activotasafiscal || '|' || actdepreacumfiscal || '|' ||
         actmetododeprefiscal || '|' || actmonmaxdedufiscal || '|' || montooriginal || '|' || monedaid || '|' ||
         departamento FROM spsactivo(41);$$,
     '41|5|CLAVE|Descripción|1.50|2.2500|3.75|Lugar|Serie|2006-03-15|4.5000|5.25|1|2007-04-16|S|6.5000|7.25|2|8.50|9.75'
     '|MX|2'),
    ($$select spuactivo(41,1,'CLAVE','Otra',0,0,0,'Sitio','S2','2008-01-02',0,0,0,'2008-01-03','N',0,0,0,0,0,'US',0);$$,
     ''),
    ($$SELECT depreciacionid || '|' || activodescripcion || '|' || localizacion || '|' || feciniciodepconta || '|' ||
         feciniciodepfiscal || '|' || actdeduccioninme || '|' || monedaid || '|' || departamento FROM spsactivo(41)$$,
     '1|Otra|Sitio|2008-01-02|2008-01-03|N|US|0'),
    ($$select spuactivo(99,1,'C','Otra',0,0,0,'Sitio','S2','2008-01-02',0,0,0,'2008-01-03','N',0,0,0,0,0,'US',0);$$,
     'El activo 99 no existe'),
    ($$select spiactivo(1,'CLAVE','D',0,0,0,'L','S','2008-01-02',0,0,0,'2008-01-03','N',0,0,0,0,0,'MX',0);$$,
     'La clave de activo CLAVE ya existe'),
    ($$select spiactivo(99,'C2','D',0,0,0,'L','S','2008-01-02',0,0,0,'2008-01-03','N',0,0,0,0,0,'MX',0);$$,
     'El tipo de depreciación 99 no existe'),
    ($$select spiactivo(1,'C2','D',0,0,0,'L','S','2008-01-02',0,0,0,'2008-01-03','N',0,0,0,0,0,'ZZ',0);$$,
     'No existe la moneda: ZZ'),
    ($$select spiactivo(1,'C2','D',0,0,0,'L','S','',0,0,0,'2008-01-03','N',0,0,0,0,0,'MX',0);$$,
     'Falta la fecha de inicio de depreciación contable'),
    ($$select spiactivo(1,'C2','D',0,0,0,'L','S','2008-01-02',0,0,0,'1900-01-01','N',0,0,0,0,0,'MX',0);$$,
     'Falta la fecha de inicio de depreciación fiscal'),
    ($$select spiactivo(1,'C2','D',0,0,0,'L','S','2008-01-02',0,0,-1,'2008-01-03','N',0,0,0,0,0,'MX',0);$$,
     'Está fuera de rango el método de depreciación contable: -1 no está entre 0 y 2'),
    ($$select spiactivo(1,'C2','D',0,0,0,'L','S','2008-01-02',0,0,0,'2008-01-03','Q',0,0,0,0,0,'MX',0);$$,
     'Debe ser S o N la marca de deducción inmediata'),
    ($$select spiactivo(1,'C2','D',0,0,0,'L','S','2008-01-02',0,0,0,'2008-01-03','N',0,0,0,0,0,'MX',3);$$,
     'Está fuera de rango el departamento: 3 no está entre 0 y 2'),
    ($$SELECT spddepreciacion(1);$$, 'No se puede borrar el tipo de depreciación 1 porque se usa en: 11 activos fijos'),
    ($$SELECT spdactivo(41);$$, ''),
    ($$SELECT spdactivo(41);$$, 'El activo 41 no existe'),
    ($$SELECT count(*) FROM spsactivo(0);$$, '40'),
    ($$SELECT spddepreciacion(5);$$, ''),
    ($$SELECT spddepreciacion(5);$$, 'El tipo de depreciación 5 no existe'),
    ($$SELECT count(*) FROM spsdepreciacion(0);$$, '4'),
    ($$SELECT count(*) FROM spsdepreciacion(NULL);$$, '4')
  ) AS paso (sentencia, esperado);

SELECT * FROM finish();
ROLLBACK;
