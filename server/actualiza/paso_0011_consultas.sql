-- From version 10: the modules of the back office's options.
SELECT $$
  ('0911', 'Listas de catálogos'),
  ('0912', 'Bitácora'),
  ('0913', 'Matriz de permisos')
$$ AS modulos \gset
\ir modulos.sql
