-- From version 13: the module of the board of closed months.
SELECT $$
  ('0914', 'Tablero de cierres')
$$ AS modulos \gset
\ir modulos.sql
