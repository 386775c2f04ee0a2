-- Users through the functions, each row after the one above: adriana may, gerardo (a manager) and camila may not.
BEGIN;
SELECT no_plan();
\ir apoyo/numeracion.sql

SELECT is(como(usuario, 'norte', sentencia), esperado, usuario || ': ' || sentencia)
  FROM (VALUES
    ('adriana', $$select spisujeto('Prueba','','Lucía','','',30,'1996-05-04','');$$,
     (SELECT (max(sujetoid) + 1)::text FROM norte.sujeto)),
    ('adriana', $$select spiusuario('lucia','CAJ','adriana','','l@x.example','caja','Nota',
                                    (SELECT max(sujetoid) FROM sujeto));$$, ''),
    ('adriana', $$SELECT usuarioid || '|' || tipousuarioid || '|' || usu_usuarioid || '|' || contrasenia || '|' || email
                    || '|' || dicola || '|' || obsusuario FROM spsusuario('lucia');$$,
     'lucia|CAJ|adriana||l@x.example|caja|Nota'),
    ('adriana', $$SELECT nombre FROM spssujeto((SELECT sujetoid FROM spsusuario('lucia')));$$, 'Lucía'),
    ('adriana', $$SELECT string_agg(rtrim(clavemodulo), ',') FROM spspermisosmodulos('lucia') WHERE permiso = 'S';$$,
     '0102,0203'),
    ('adriana', $$SELECT count(*) = (SELECT count(*) FROM modulo) FROM spspermisosmodulos('lucia');$$, 'true'),
    ('adriana', $$select spiparametro('lucia','ZZ','1101-01-00-00-0000','','',0,'');$$, ''),
    ('adriana', $$select * from creausuario('lucia','tolvara_usuarios');$$, '1'),
    ('lucia', $$SELECT spimoneda('LU','De Lucía',1)$$, ''),
    ('adriana', $$select spiusuario('lucia','CAJ',NULL,'','','','',(SELECT max(sujetoid) FROM sujeto));$$,
     'El usuario lucia ya existe'),
    ('adriana', $$select spiusuario('lucas','CAJ',NULL,'','','','',(SELECT max(sujetoid) FROM sujeto));$$,
     (SELECT format('La persona %s ya es otro usuario', max(sujetoid) + 1) FROM norte.sujeto)),
    ('adriana', $$select spiusuario('','CAJ',NULL,'','','','',5);$$, 'Falta el usuario'),
    ('adriana', $$select spiusuario(repeat('x',21),'CAJ',NULL,'','','','',5);$$,
     'No cabe el usuario: tiene 21 caracteres y admite 20'),
    ('adriana', $$select spiusuario('lu cas','CAJ',NULL,'','','','',50);$$,
     'El login "lu cas" no es válido: letras sin acento, números, "_", "." o "-", y al principio una letra'),
    ('adriana', $$select spiusuario('lucas','QQQ',NULL,'','','','',50);$$, 'No existe el tipo de usuario: QQQ'),
    ('adriana', $$select spiusuario('lucas','','','','','','',50);$$, 'Falta el tipo de usuario'),
    ('adriana', $$select spiusuario('lucas','CAJ','nadie','','','','',50);$$, 'No existe el jefe: nadie'),
    ('adriana', $$select spiusuario('lucas','CAJ','lucas','','','','',50);$$, 'No existe el jefe: lucas'),
    ('adriana', $$select spuusuario('lucia','CAJ','lucia','','','','',50);$$,
     'El usuario lucia no puede ser su propio jefe'),
    ('adriana', $$select spiusuario('lucas','CAJ',NULL,'secreto','','','',50);$$,
     'La contraseña no se guarda en el catálogo de usuarios: la cambia el administrador del servidor'),
    ('adriana', $$select spiusuario('lucas','CAJ',NULL,'','','','',0);$$, 'La persona 0 no existe'),
    ('adriana', $$select spuusuario('lucia','GER',NULL,'','nuevo@x.example','','',
                                    (SELECT sujetoid FROM spsusuario('lucia')));$$, ''),
    ('adriana', $$SELECT concat_ws('|', tipousuarioid, coalesce(usu_usuarioid, '-'), email) FROM spsusuario('lucia')$$,
     'GER|-|nuevo@x.example'),
    ('adriana', $$SELECT string_agg(rtrim(clavemodulo), ',') FROM spspermisosmodulos('lucia') WHERE permiso = 'S';$$,
     '0102,0203'),
    ('adriana', $$select spuusuario('nadie','GER',NULL,'','','','',50);$$, 'El usuario nadie no existe'),
    ('adriana', $$SELECT count(*) FROM spsusuario('  ');$$, '21'),
    ('camila', $$SELECT count(*) FROM spsusuario('  ') WHERE contrasenia <> '';$$, '0'),
    ('adriana', $$SELECT spdusuario('adriana');$$, 'No se puede borrar el usuario adriana con el que está conectado'),
    ('adriana', $$SELECT spdusuario('gerardo');$$,
     'No se puede borrar el usuario gerardo porque se usa en: 14 usuarios'),
    ('adriana', $$SELECT spdusuario('nadie');$$, 'El usuario nadie no existe'),
    ('adriana', $$SELECT spdusuario('');$$, 'Falta el usuario'),
    ('gerardo', $$SELECT spdusuario('lucia');$$, 'No tiene permiso para la opción Usuarios y accesos (módulo 0206)'),
    ('gerardo', $$select spisujeto('A','','B','','',0,'','');$$,
     'No tiene permiso para la opción Usuarios y accesos (módulo 0206)'),
    -- a user goes with permissions, parameters, address and person, and out of the branch
    ('adriana', $$SELECT spidomicilio(1,(SELECT sujetoid FROM spsusuario('lucia')),'Calle','','','',0,'','',0) > 0;$$,
     'true'),
    ('adriana', $$SELECT spdusuario('lucia');$$, ''),
    ('adriana', $$SELECT count(*) FROM spspermisosmodulos('lucia');$$, '0'),
    ('adriana', $$SELECT count(*) FROM spsparametro('lucia');$$, '0'),
    ('adriana', $$SELECT count(*) FROM spssujetos('lucía prueba');$$, '0'),
    ('lucia', $$SELECT count(*) FROM spsmoneda('')$$, 'function spsmoneda(unknown) does not exist')
  ) AS paso (usuario, sentencia, esperado);
SELECT is(rolcanlogin, false, 'quien se queda sin sucursal no puede entrar') FROM pg_roles WHERE rolname = 'lucia';

-- A person whom the institution needs for something else stays when he stops being a user.
UPDATE norte.usuario SET sujetoid = (SELECT sujetoid FROM norte.socio WHERE socioid = 7) WHERE usuarioid = 'camila';
SELECT is(como('adriana', 'norte', $$SELECT spdusuario('camila')$$), '', 'se borra un usuario que es socio');
SELECT is((SELECT count(*) FROM norte.socio JOIN norte.sujeto USING (sujetoid) WHERE socioid = 7), 1::bigint,
          'el socio queda');

-- Whoever is given an account outside of the client is a person too.
INSERT INTO norte.usuario (usuarioid, tipousuarioid) VALUES ('directo', 'CON');
SELECT is((SELECT paterno || '|' || nombre FROM norte.sujeto JOIN norte.usuario USING (sujetoid)
            WHERE usuarioid = 'directo'), 'directo|directo', 'un usuario es siempre una persona');

-- And can be edited like any other: what he lacks is made by the update that the client sends.
SELECT is(como('adriana', 'norte', sentencia), '', sentencia)
  FROM (VALUES
    ($$select spusujeto((SELECT sujetoid FROM usuario WHERE usuarioid = 'directo'),'Recto','','Di','','',0,'','');$$),
    ($$SELECT spudomicilio(0,1,(SELECT sujetoid FROM usuario WHERE usuarioid = 'directo'),'C','','','',0,'','',0);$$),
    ($$select spuparametro('directo','DD','','','',0,'');$$)
  ) AS paso (sentencia);

SELECT * FROM finish();
ROLLBACK;
