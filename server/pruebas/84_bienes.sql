-- Goods through the functions, each row after the one above; adriana may. {p} is the person that the first step makes,
-- {b} the good. They are read by their own number and by the person's.
BEGIN;
SELECT no_plan();
\ir apoyo/numeracion.sql
CREATE TEMPORARY TABLE clave AS
SELECT (SELECT max(sujetoid) + 1 FROM norte.sujeto) AS p, (SELECT max(bienid) + 1 FROM norte.bienes) AS b;

SELECT is(como('adriana', 'norte', comun.rellena(sentencia, to_jsonb(clave))), comun.rellena(esperado, to_jsonb(clave)),
          sentencia)
  FROM clave, (VALUES
    ($$select spisujeto('Núñez','','Ana','','',0,'','');$$, '{p}'),
    ($$select spibienes({p},'Dueño','Casa','Grande','Libro 1',1.50,2.25,3.75,'Libre',1.5,'N',NULL);$$, '{b}'),
    ($$SELECT bienid || '|' || sujetoid || '|' || propietario || '|' || describien || '|' || caracteristicas || '|' ||
         registropublico || '|' || valorcomercial || '|' || valorfiscal || '|' || valorcatastro || '|' || datoshipoteca
         || '|' || relaciongarantia || '|' || adjudicado || '|' || coalesce(fechaadjudicado::text, '-')
         FROM spsbienes({b});$$, '{b}|{p}|Dueño|Casa|Grande|Libro 1|1.50|2.25|3.75|Libre|1.500000|N|-'),
    ($$SELECT bienid FROM spsbienes({p});$$, '{b}'),
    ($$select spubienes({b},{p},'Dueña','Casa','Grande','Libro 1',1.5,2.25,3.75,'Libre',1.5,'S','15/03/2006');$$, ''),
    ($$SELECT propietario || adjudicado || fechaadjudicado FROM spsbienes({b})$$, 'DueñaS2006-03-15'),
    ($$select spubienes({b},{p},'Dueña','Casa','Grande','Libro 1',1.5,2.25,3.75,'Libre',1.5,'S',NULL);$$,
     'Falta la fecha de adjudicación'),
    ($$select spubienes({b},{p},'Dueña','Casa','Grande','Libro 1',1.5,2.25,3.75,'Libre',1.5,'Q',NULL);$$,
     'Debe ser S o N la marca de adjudicado'),
    ($$select spubienes({b},{p},'','Casa','Grande','Libro 1',1.5,2.25,3.75,'Libre',1.5,'N',NULL);$$,
     'Falta el propietario'),
    ($$select spubienes({b},{p},'Dueña','Casa','Grande','Libro 1',-1,2.25,3.75,'Libre',1.5,'N',NULL);$$,
     'Está fuera de rango el valor comercial: -1 no está entre 0 y 999999999999.99'),
    ($$select spubienes({b},999999,'Dueña','Casa','Grande','Libro 1',1,2.25,3.75,'Libre',1.5,'N',NULL);$$,
     'La persona 999999 no existe'),
    ($$select spubienes(7,{p},'Dueña','Casa','Grande','Libro 1',1,2.25,3.75,'Libre',1.5,'N',NULL);$$,
     'El bien 7 no existe'),
    ($$SELECT spsujeto({p});$$, 'No se puede borrar la persona {p} porque se usa en: 1 bienes'),
    ($$SELECT spdbienes({b});$$, ''),
    ($$SELECT spdbienes({b});$$, 'El bien {b} no existe'),
    ($$SELECT count(*) = (SELECT count(*) FROM bienes) FROM spsbienes(0)$$, 'true')
  ) AS paso (sentencia, esperado);

SELECT ok((SELECT max(sujetoid) FROM norte.sujeto) < (SELECT min(bienid) FROM norte.bienes),
          'ningún bien lleva el número de una persona');
SELECT matches(como('adriana', 'norte', format('SELECT spdbienes(%s)', garantiabienid)),
               '^No se puede borrar el bien 1\d+ porque se usa en: \d+ garantías$', 'un bien que garantiza no se borra')
  FROM (SELECT garantiabienid FROM norte.garantia LIMIT 1) AS g;

SELECT * FROM finish();
ROLLBACK;
