-- Currencies, in pesos per unit.
INSERT INTO moneda (monedaid, monedadescri, monedavalor) VALUES
  ('MX', 'Peso mexicano', 1),
  ('US', 'Dólar estadounidense', 17.25),
  ('EU', 'Euro', 18.904),
  ('CA', 'Dólar canadiense', 12.685),
  ('GB', 'Libra esterlina', 22.0175),
  ('JP', 'Yen japonés', 0.115632),
  ('CH', 'Franco suizo', 19.44),
  ('GT', 'Quetzal guatemalteco', 2.2431),
  ('CO', 'Peso colombiano', 0.004358),
  ('UD', 'Unidad de inversión', 8.143827);
