-- Guarantees of loans, and the deposits that back them, each row after the one above; gerardo may.
BEGIN;
SELECT no_plan();
\ir apoyo/numeracion.sql
CREATE TEMPORARY TABLE clave AS
SELECT (SELECT max(garantiaid) + 1 FROM norte.garantia) AS g, (SELECT min(bienid) FROM norte.bienes) AS b,
       (SELECT p.prestamoid FROM norte.prestamos p
         WHERE NOT EXISTS (SELECT FROM norte.garantia g WHERE g.prestamoid = p.prestamoid) LIMIT 1) AS p;

SELECT is(como('gerardo', 'norte', comun.rellena(sentencia, to_jsonb(clave))), comun.rellena(esperado, to_jsonb(clave)),
          sentencia)
  FROM clave, (VALUES
    ($$select spigarantia(NULL,{p},{b},'H-1','F-1','15/03/2006','2016-03-15','Casa');$$, '{g}'),
    ($$SELECT garantiaid || '|' || coalesce(solicitudprestamoid::text, '-') || '|' || prestamoid || '|' ||
         garantiabienid || '|' || nohip || '|' || folio || '|' || fecharegistro || '|' || fechavencimiento || '|' ||
         descripcion FROM spsgarantiap({p});$$, '{g}|-|{p}|{b}|H-1|F-1|2006-03-15|2016-03-15|Casa'),
    ($$select spugarantia({g},NULL,{p},NULL,'H-2','F-2',' 0-0-0    ','1900-01-01','');$$, ''),
    ($$SELECT coalesce(garantiabienid::text, '-') || nohip || folio || coalesce(fecharegistro::text, '-')
         || coalesce(fechavencimiento::text, '-') FROM spsgarantiap({p})$$, '-H-2F-2--'),
    ($$select spugarantia({g},77,{p},NULL,'','','','','');$$, ''),
    ($$SELECT garantiaid FROM spsgarantias(77);$$, '{g}'),
    ($$SELECT count(*) FROM spsgarantias(78);$$, '0'),
    ($$select spigarantia(NULL,0,NULL,'','','','','');$$, 'Falta el préstamo que se garantiza'),
    ($$select spigarantia(NULL,999999,NULL,'','','','','');$$, 'El préstamo 999999 no existe'),
    ($$select spigarantia(NULL,{p},5,'','','','','');$$, 'El bien 5 no existe'),
    ($$select spigarantia(NULL,{p},NULL,'','','2016-03-15','2006-03-15','');$$,
     'La garantía vence antes de su registro'),
    ($$select spigarantia(NULL,{p},NULL,repeat('x',31),'','','','');$$,
     'No cabe el número de hipoteca: tiene 31 caracteres y admite 30'),
    ($$select spugarantia(999999,NULL,{p},NULL,'','','','','');$$, 'La garantía 999999 no existe'),
    ($$SELECT spdgarantia({g});$$, ''),
    ($$SELECT spdgarantia({g});$$, 'La garantía {g} no existe'),
    ($$SELECT count(*) = (SELECT count(*) FROM garantia) FROM spsgarantiap(0);$$, 'true'),
    ($$SELECT count(*) = (SELECT count(*) FROM garantia) FROM spsgarantias(0);$$, 'true')
  ) AS paso (sentencia, esperado);

-- Deposits up to a day, of that member, kind and loan only.
INSERT INTO norte.movimiento (socioid, tipomovimientoid, prestamoid, fecha, importe)
SELECT s.socioid, t.tipo, CASE t.con_prestamo WHEN 1 THEN clave.p END, t.fecha, t.importe
  FROM clave, (VALUES (1, 'AH', 1, date '2020-01-10', 100.00), (1, 'AH', 1, '2020-02-10', 50.25),
                      (1, 'AH', 1, '2020-03-10', -30), (1, 'AH', 0, '2020-01-10', 7),
                      (1, 'VC', 1, '2020-01-10', 7), (2, 'AH', 1, '2020-01-10', 7))
               AS t (socio, tipo, con_prestamo, fecha, importe)
  JOIN norte.socio s ON s.socioid = t.socio;
SELECT is(como('camila', 'norte', format('SELECT saldodemovr(1,%L,%L,%s)', tipo, dia, clave.p)), saldo,
          format('saldo de %s al %s', tipo, dia))
  FROM clave, (VALUES ('AH', '09/01/2020', '0'), ('AH', '10/01/2020', '100.00'), ('AH', '2020-02-10', '150.25'),
                      ('AH', '31/12/2020', '120.25'), ('AH', '', '120.25'), ('VC', '31/12/2020', '7.00'),
                      ('ES', '31/12/2020', '0'),
                      ('AH', '31/02/2020', 'La fecha "31/02/2020" no existe en el calendario'))
               AS t (tipo, dia, saldo);

SELECT * FROM finish();
ROLLBACK;
