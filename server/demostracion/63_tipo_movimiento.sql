-- Movement types: what each of them does, the accounts of the product by its number and the accounts that all share.
INSERT INTO tipomovimiento (
  tipomovimientoid, desctipomovimiento, aplicasaldo, tipopoliza, aceptadeposito, aceptaretiro, tasainteres, cuentaorden,
  comision, porcomision, porivacomision, desglosaiva,
  cuentadeposito, cuentaretiro, cuentaintpagado, cuentacomision, cuentaintcobrado, cuentaivamovimiento, cuentaisr,
  cuentaprovisionisr, cuentaivacomision, cuentaordendeudor, cuentaordenacredor)
SELECT t.id, t.nombre, 'S', t.poliza, 'S', t.retiro, t.tasa, t.orden, t.comision, t.porcentaje, 16, t.desglosa,
       '2101' || t.cola, '2101' || t.cola, '5101' || t.cola, '4201' || t.cola, '4202-00-00-00-0000',
       '2403-00-00-00-0000', '2402-01-00-00-0000', '2402-02-00-00-0000', '2401-04-00-00-0000',
       CASE t.orden WHEN 'S' THEN '6105-00-00-00-0000' END, CASE t.orden WHEN 'S' THEN '6205-00-00-00-0000' END
  FROM (SELECT tipo.*, format('-%s-00-00-0000', lpad(numero::text, 2, '0')) AS cola
          FROM (VALUES (1, 'AH', 'Ahorro ordinario', 'I', 'S', 2.5, 'N', 0, 0, 1),
                       (2, 'MN', 'Ahorro de menores', 'I', 'S', 3.5, 'N', 0, 0, 0),
                       (3, 'PS', 'Parte social', 'D', 'N', 0, 'S', 0, 0, 0),
                       (4, 'NV', 'Ahorro navideño', 'I', 'N', 4.25, 'N', 0, 0, 0),
                       (5, 'VC', 'Ahorro vacacional', 'I', 'S', 3.75, 'N', 25, 0, 1),
                       (6, 'ES', 'Ahorro escolar', 'I', 'S', 3.5, 'N', 0, 0, 0),
                       (7, 'GL', 'Garantía líquida', 'D', 'N', 1, 'S', 0, 0, 0),
                       (8, 'VI', 'Cuenta a la vista', 'I', 'S', 0.5, 'N', 10, 0.25, 1))
               AS tipo (numero, id, nombre, poliza, retiro, tasa, orden, comision, porcentaje, desglosa)) AS t;
