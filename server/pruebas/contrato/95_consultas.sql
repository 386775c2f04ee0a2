INSERT INTO contrato VALUES
  ('spsbitacora', 'text, text, text, text, text, text, text, bigint',
   'TABLE(bitacoraid bigint, momento text, fecha text, usuario name, operacion text, tabla name, nombre text, clave text, '
   'clave_anterior text, direccion text, aplicacion text)'),
  ('spsbitacoradetalle', 'text, bigint', 'TABLE(campo text, anterior text, nuevo text, cambia boolean)'),
  ('spsmatrizpermisos', '',
   'TABLE(usuarioid character varying, nombre text, clavemodulo character, descrimodulo character varying, '
   'permitido boolean)');
