-- Working parameters, and the two questions that the login asks of the institution's row.
BEGIN;
SELECT no_plan();

SELECT is(como(usuario, 'norte', sentencia), esperado, usuario || ': ' || sentencia)
  FROM (VALUES
    ('adriana', $$SELECT serieuser || '|' || impresoracaja || '|' || reporteslaser FROM spsparametro('braulio')$$,
     'B|caja|1'),
    ('adriana', $$SELECT count(*) FROM spsparametro('nadie')$$, '0'),
    ('adriana', $$SELECT left(string_agg(usuarioid, ' '), 22) FROM spsparametro('  ')$$, 'adriana braulio camila'),
    ('adriana', $$SELECT nombreusuario('B')$$, 'braulio'),
    ('adriana', $$SELECT nombreusuario('Z')$$, ''),
    ('adriana', $$SELECT nombreusuario('')$$, ''),
    ('adriana', $$SELECT spiparametro('braulio','Z','','','',0,'')$$, 'El usuario braulio ya tiene parámetros'),
    ('adriana', $$SELECT spiparametro('nadie','Z','','','',0,'')$$, 'El usuario nadie no existe'),
    ('adriana', $$SELECT spuparametro('braulio','A','','','',0,'')$$, 'La serie A ya es de otro usuario'),
    ('adriana', $$SELECT spuparametro('braulio','ABC','','','',0,'')$$,
     'No cabe la serie: tiene 3 caracteres y admite 2'),
    ('adriana', $$SELECT spuparametro('braulio','BB','','','',2,'')$$,
     'Está fuera de rango la marca de reportes láser: 2 no está entre 0 y 1'),
    ('adriana', $$SELECT spuparametro('braulio','BB','1101-01','laser','papel',0,'S-15')$$, ''),
    ('adriana', $$SELECT serieuser || '|' || rtrim(cuentacaja) || '|' || impresoracaja || '|' || impresorareporte
                         || '|' || reporteslaser || '|' || clavesocioint FROM spsparametro('braulio')$$,
     'BB|1101-01|laser|papel|0|S-15'),
    ('adriana', $$SELECT octet_length(cuentacaja) FROM spsparametro('braulio')$$, '24'),
    ('adriana', $$SELECT spuparametro('braulio','BB','','','',0,'')$$, ''),
    ('adriana', $$SELECT cuentacaja IS NULL FROM spsparametro('braulio')$$, 'true'),
    ('braulio', $$SELECT spuparametro('braulio','BB','','','',0,'')$$,
     'No tiene permiso para la opción Usuarios y accesos (módulo 0206)'),
    ('braulio', $$SELECT spiparametro('braulio','BB','','','',0,'')$$,
     'No tiene permiso para la opción Usuarios y accesos (módulo 0206)'),
    ('braulio', $$SELECT spdparametro('braulio')$$,
     'No tiene permiso para la opción Usuarios y accesos (módulo 0206)'),
    ('adriana', $$SELECT spdparametro('braulio')$$, ''),
    ('adriana', $$SELECT spdparametro('braulio')$$, 'El usuario braulio no tiene parámetros'),
    -- who has none gets them with the update
    ('adriana', $$SELECT spuparametro('nadie','Z','','','',0,'')$$, 'El usuario nadie no existe'),
    ('adriana', $$SELECT spuparametro('braulio','BB','','','',0,'')$$, ''),
    ('adriana', $$SELECT serieuser || '|' || reporteslaser FROM spsparametro('braulio')$$, 'BB|0'),
    ('adriana', $$SELECT spdparametro('braulio')$$, ''),
    ('adriana', $$SELECT spiparametro('braulio','BB','','','',1,'')$$, ''),
    ('adriana', $$SELECT spiparametro(NULL,NULL,NULL,NULL,NULL,NULL,NULL)$$, 'Falta el usuario'),
    ('camila', $$SELECT serverdate(to_char(current_date, 'YYYY-MM-DD'))$$, '1'),
    ('camila', $$SELECT serverdate(to_char(current_date, 'DD/MM/YYYY'))$$, '1'),
    ('camila', $$SELECT serverdate(to_char(current_date - 1, 'YYYY-MM-DD'))$$, '0'),
    ('camila', $$SELECT serverdate('')$$, 'Falta la fecha'),
    ('camila', $$SELECT serverdate('31/02/2006')$$, 'La fecha "31/02/2006" no existe en el calendario'),
    ('camila', $$SELECT fechacobroiva()$$, '2010-01-01'),
    ('camila', $$SELECT rtrim(version) || length(rtrim(version)) || octet_length(version) FROM empresa
                  WHERE empresaid=1$$, '0.0.7520')
  ) AS paso (usuario, sentencia, esperado);

SELECT is(array_agg(attname::text ORDER BY attnum), string_to_array(
  'empresaid,sucid,nombrecaja,gerente,presidenteadmon,contador,direccioncaja,contadorsucursal,niveloperaciones,'
  'lineasiniciales,calculaisrinversion,inversionexenta,porcentajeisrinversion,ccpresidente,ccvicepresidente,ccoficial,'
  'ccanalista,ccsecretario,bonificaenpagopuntual,porcentajebonifica,preguntaperiodo,sabana,iva,reciboconquery,'
  'altasucursales,cobrardiainicial,diasanualesprestamo,diasanualesinversion,diasanualesmov,devengamoratorio,'
  'tomaintervalo,impresoracaja,impresorareporte,reporteslaser,ordenaval,lineasfinales,version,retirareciprocidad,'
  'nivel,modificarinversion,formatopoliza,formatocuenta,ciudadmexid,foliopdf,retirainteresinversion,poride,ideexento,'
  'modificatasas,interesamortiza,comisionacreditos,porcentajecomision,nconcurrencias,diaspagoinversion,'
  'periodopagoinversion,abonointeres,manejochequegrupal,manejopagoamortizacion,usomultisucursal,manejopagoseguro,'
  'manejoplazoinversion,manejocargosprestamo,cortecajaagrupado,clientesocio,pggrupodefault,fechacobroiva', ','),
  'empresa tiene las columnas que el cliente copia')
  FROM pg_attribute WHERE attrelid = 'norte.empresa'::regclass AND attnum > 0 AND NOT attisdropped;

SELECT throws_ok('INSERT INTO norte.empresa (empresaid) VALUES (2)', '23514', NULL, 'empresa tiene un solo renglón');
UPDATE norte.empresa SET nconcurrencias = 5;
SELECT is((SELECT nuevo ->> 'nconcurrencias' FROM norte.bitacora WHERE tabla = 'empresa'
            ORDER BY bitacoraid DESC LIMIT 1), '5', 'los cambios de empresa van a la bitácora');

SELECT * FROM finish();
ROLLBACK;
