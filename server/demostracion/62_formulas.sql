-- Formulas of interest, each with the figures that it was tried with.
INSERT INTO calculo (descripcioncalculo, saldoinsoluto, dias, tasaintnormal, tasaintmoratorio, formula) VALUES
  ('Interés normal sobre saldo insoluto', 10000, 30, 24, 36, 'SaldoInsoluto * TasaIntNormal / 100 / 360 * Dias'),
  ('Interés moratorio sobre saldo insoluto', 10000, 15, 24, 36, 'SaldoInsoluto * TasaIntMoratorio / 100 / 360 * Dias'),
  ('Interés normal de año natural', 10000, 31, 24, 36, 'SaldoInsoluto * TasaIntNormal / 100 / 365 * Dias'),
  ('Interés mensual fijo', 10000, 30, 24, 36, 'SaldoInsoluto * TasaIntNormal / 100 / 12'),
  ('Interés de inversión a plazo', 50000, 91, 8.5, 0, 'SaldoInsoluto * TasaIntNormal / 100 / 360 * Dias'),
  ('Sin interés', 10000, 30, 0, 0, '0');
