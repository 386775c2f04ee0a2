-- Bank accounts; each branch has its own numbers and balances.
INSERT INTO banco (no_cuenta, banco, fecha_inicio, saldo_inicial, saldo_actual, saldo_pen, cuentaid, serie, nocheque)
SELECT numero, nombre, inicio, inicial, actual, pendiente, cuenta || '-00-00-0000', serie, cheque
  FROM (VALUES ('norte', '0110045871', 'Banco del Valle', date '2015-03-02', 250000.00, 1384210.55, 18250.00,
                '1102-01', 'A', 1532),
               ('norte', '0220981334', 'Banco Mercantil de Ensueño', '2017-08-14', 100000.00, 642118.20, 0,
                '1102-02', 'B', 417),
               ('norte', '0330012290', 'Banco de la Sierra', '2019-01-07', 50000.00, 98450.75, 3100.50,
                '1102-03', 'C', 88),
               ('norte', '0440556120', 'Banco Costa Azul', '2021-06-21', 75000.00, 210377.00, 0, '1102-04', 'D', 12),
               ('norte', '0550003345', 'Banco de la Frontera', NULL, 0, 0, 0, '1102-05', 'E', 0),
               ('sur', '0110099120', 'Banco del Valle', '2018-05-15', 120000.00, 730015.40, 9120.00,
                '1102-01', 'A', 803),
               ('sur', '0440771002', 'Banco Costa Azul', '2020-02-10', 60000.00, 305882.90, 0, '1102-04', 'B', 156),
               ('sur', '0550008812', 'Banco de la Frontera', '2022-11-04', 30000.00, 41977.65, 1500.00,
                '1102-05', 'C', 29))
         AS b (juego, numero, nombre, inicio, inicial, actual, pendiente, cuenta, serie, cheque)
 WHERE juego = :'juego';
