-- Persons and addresses through the functions, each row after the one above; adriana may. {p} is the person that the first
-- step makes, {d} the address.
BEGIN;
SELECT no_plan();
\ir apoyo/numeracion.sql
CREATE TEMPORARY TABLE clave AS
SELECT (SELECT max(sujetoid) + 1 FROM norte.sujeto) AS p, (SELECT max(domicilioid) + 1 FROM norte.domicilio) AS d;

SELECT is(como('adriana', 'norte', comun.rellena(sentencia, to_jsonb(clave))), comun.rellena(esperado, to_jsonb(clave)),
          sentencia)
  FROM clave, (VALUES
    -- persons
    ($$select spisujeto('Núñez ','Peña','Ana María','NUPA800229AB1','X',46,'29/02/1980','');$$, '{p}'),
    ($$SELECT sujetoid || '|' || paterno || '|' || materno || '|' || nombre || '|' || rfc || '|' || curp || '|' || edad
         || '|' || fechanacimiento || '|' || razonsocial FROM spssujeto({p});$$,
     '{p}|Núñez|Peña|Ana María|NUPA800229AB1|X|46|1980-02-29|'),
    ($$select spusujeto({p},'Núñez','','Ana','','',0,'1980-03-01','Razón, S.A.');$$, ''),
    ($$SELECT materno || '|' || nombre || '|' || fechanacimiento || '|' || razonsocial FROM spssujeto({p})$$,
     '|Ana|1980-03-01|Razón, S.A.'),
    ($$select spusujeto({p},'Núñez','','Ana','','',0,'0000-00-00','');$$, ''),
    ($$SELECT fechanacimiento IS NULL FROM spssujeto({p})$$, 'true'),
    ($$select spusujeto({p},'Núñez','','Ana','','',0,'1900-01-01','');$$, ''),
    ($$SELECT fechanacimiento IS NULL FROM spssujeto({p})$$, 'true'),
    ($$select spisujeto('','Peña','Ana','','',0,'','');$$, 'Falta el apellido paterno'),
    ($$select spisujeto('Núñez','Peña',' ','','',0,'','');$$, 'Falta el nombre'),
    ($$select spisujeto(repeat('ñ',21),'','Ana','','',0,'','');$$,
     'No cabe el apellido paterno: tiene 21 caracteres y admite 20'),
    ($$select spisujeto('Núñez','','Ana','','',-1,'','');$$, 'Está fuera de rango la edad: -1 no está entre 0 y 150'),
    ($$select spisujeto('Núñez','','Ana','','',0,'30/02/1980','');$$,
     'La fecha "30/02/1980" no existe en el calendario'),
    ($$select spisujeto('Núñez','','Ana','','',0,'01/01/2999','');$$,
     'La fecha de nacimiento 01/01/2999 está en el futuro'),
    ($$select spusujeto(0,'Núñez','','Ana','','',0,'','');$$, 'La persona 0 no existe'),
    ($$SELECT count(*) = (SELECT count(*) FROM sujeto) FROM spssujeto(0)$$, 'true'),
    -- the search: words in any order, accents and capitals apart, signs of patterns for themselves
    ($$SELECT string_agg(sujetoid::text, ',') FROM spssujetos('NUNEZ ana')$$, '{p}'),
    ($$SELECT string_agg(sujetoid::text, ',') FROM spssujetos('  ana   núñ ')$$, '{p}'),
    ($$SELECT count(*) FROM spssujetos('núñez inés')$$, '0'),
    ($$SELECT count(*) FROM spssujetos('%')$$, '0'),
    ($$SELECT count(*) FROM spssujetos('n_nez')$$, '0'),
    ($$SELECT count(*) FROM spssujetos('\')$$, '0'),
    ($$SELECT count(*) = (SELECT count(*) FROM sujeto) FROM spssujetos('')$$, 'true'),
    -- addresses
    ($$SELECT count(*) FROM spsdomiciliosujeto({p})$$, '0'),
    ($$SELECT spidomicilio(1,{p},'Calle Uno','10','B','Centro',20000,'Pueblo','555',1);$$, '{d}'),
    ($$SELECT domicilioid || '|' || ciudadmexid || '|' || sujetoid || '|' || calle || '|' || numero_ext || '|' ||
         numero_int || '|' || colonia || '|' || codpostal || '|' || comunidad || '|' || teldomicilio || '|' || coloniaid
         FROM spsdomiciliosujeto({p});$$, '{d}|1|{p}|Calle Uno|10|B|Centro|20000|Pueblo|555|1'),
    ($$SELECT spidomicilio(1,{p},'Calle Dos','','','',0,'','',0);$$, 'La persona {p} ya tiene domicilio'),
    -- number 0 stands for the address that the person has by now
    ($$SELECT spudomicilio(0,1,{p},'Calle Cero','','','',0,'','',0);$$, ''),
    ($$SELECT string_agg(domicilioid || calle, ',') FROM spsdomiciliosujeto({p})$$, '{d}Calle Cero'),
    ($$SELECT spudomicilio(0,9999,{p},'','','','',0,'','',0);$$, 'El municipio 9999 no existe'),
    ($$SELECT spudomicilio(0,1,999999,'','','','',0,'','',0);$$, 'La persona 999999 no existe'),
    -- an address never changes hands, whether the new owner has one or not
    ($$SELECT spudomicilio({d},1,1,'Calle Ajena','','','',0,'','',0);$$, 'El domicilio {d} es de otra persona'),
    ($$SELECT spisujeto('Prueba','','Sin','','',0,'','') > {p};$$, 'true'),
    ($$SELECT spudomicilio({d},1,(SELECT max(sujetoid) FROM sujeto),'Calle Ajena','','','',0,'','',0);$$,
     'El domicilio {d} es de otra persona'),
    ($$SELECT sujetoid || calle FROM spsdomicilio({d})$$, '{p}Calle Cero'),
    ($$SELECT count(*) FROM spsdomiciliosujeto((SELECT max(sujetoid) FROM sujeto))$$, '0'),
    ($$SELECT spsujeto((SELECT max(sujetoid) FROM sujeto));$$, ''),
    ($$SELECT spudomicilio({d},0,{p},'Calle Dos','','','',0,'','',0);$$, ''),
    ($$SELECT calle || '|' || ciudadmexid || '|' || coloniaid FROM spsdomicilio({d})$$, 'Calle Dos|0|0'),
    ($$SELECT spudomicilio({d},1,999999,'','','','',0,'','',0);$$, 'La persona 999999 no existe'),
    ($$SELECT spudomicilio({d},9999,{p},'','','','',0,'','',0);$$, 'El municipio 9999 no existe'),
    ($$SELECT spudomicilio({d},1,{p},'','','','',0,'','',99999);$$, 'La colonia 99999 no existe'),
    ($$SELECT spudomicilio({d},1,{p},repeat('x',41),'','','',0,'','',0);$$,
     'No cabe la calle: tiene 41 caracteres y admite 40'),
    ($$SELECT spudomicilio({d},1,{p},'','','','',123456,'','',0);$$,
     'Está fuera de rango el código postal: 123456 no está entre 0 y 99999'),
    ($$SELECT spudomicilio(999999,1,{p},'','','','',0,'','',0);$$, 'El domicilio 999999 no existe'),
    ($$SELECT spdomicilio({d});$$, ''),
    ($$SELECT spdomicilio({d});$$, 'El domicilio {d} no existe'),
    ($$SELECT spudomicilio(0,1,{p},'Calle Tres','','','',0,'','',0);$$, ''),
    ($$SELECT calle FROM spsdomiciliosujeto({p})$$, 'Calle Tres'),
    ($$SELECT count(*) = (SELECT count(*) FROM domicilio) FROM spsdomicilio(0)$$, 'true'),
    -- deleting a person
    ($$SELECT spsujeto(1);$$, 'No se puede borrar la persona 1 porque se usa en: 1 usuarios'),
    ($$SELECT spsujeto({p});$$, ''),
    ($$SELECT count(*) FROM domicilio WHERE sujetoid = {p}$$, '0'),
    ($$SELECT spsujeto({p});$$, 'La persona {p} no existe')
  ) AS paso (sentencia, esperado);

SELECT * FROM finish();
ROLLBACK;
