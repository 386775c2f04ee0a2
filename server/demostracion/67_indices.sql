-- Indices over years. The unit and the price index grow some 4.4 % a year with the seasons; the figures are made up.
INSERT INTO udis (fecha, valor)
SELECT dia::date, round((7.1082 * exp(0.043 * n / 365.25) + 0.012 * sin(2 * pi() * n / 365.25))::numeric, 6)
  FROM generate_series(timestamp '2022-01-01', '2026-12-10', '1 day') WITH ORDINALITY AS d (dia, n);

INSERT INTO inpc (ano, mes, inpc)
SELECT extract(year FROM dia), extract(month FROM dia),
       round((57.0 * exp(0.0435 * n / 12) - 0.35 * sin(2 * pi() * n / 12))::numeric, 3)
  FROM generate_series(timestamp '2005-01-01', '2026-10-01', '1 month') WITH ORDINALITY AS m (dia, n);

INSERT INTO recargos (ano, mes, porcentaje)
SELECT extract(year FROM dia), extract(month FROM dia),
       CASE WHEN dia < '2018-01-01' THEN 1.13 WHEN dia < '2026-01-01' THEN 1.47 ELSE 2.07 END
  FROM generate_series(timestamp '2005-01-01', '2026-12-01', '1 month') AS m (dia);
