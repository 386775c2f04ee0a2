-- What logins have one by one: the table of the client's direct writing is another one now.
SELECT prepara_intentos(usuarioid), ajusta_sesiones(usuarioid) FROM usuario;
SELECT ajusta_escritura(usuarioid, modulo) FROM usuario, unnest(ARRAY['0208', '0217', '0448']) AS modulo;
