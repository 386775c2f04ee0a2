-- A password asked again within a session. A wrong one takes a second to answer.
BEGIN;
SELECT no_plan();
SET LOCAL password_encryption = 'scram-sha-256';
ALTER ROLE braulio PASSWORD 'Contraseña 1' VALID UNTIL 'infinity';
ALTER ROLE dario PASSWORD 'Contraseña 2' VALID UNTIL 'infinity';
ALTER ROLE julieta PASSWORD 'Contraseña 3' VALID UNTIL '2001-01-01';

SELECT is(como('camila', 'norte', sentencia), esperado, sentencia)
  FROM (VALUES
    ($$select login('braulio','Contraseña 1');$$, '1'),
    ($$select login('braulio             ','Contraseña 1');$$, '1'),
    ($$select login('braulio','contraseña 1');$$, '0'),
    ($$select login('braulio','');$$, '0'),
    ($$select login('dario','Contraseña 2');$$, '0'),  -- right, but of the other branch
    ($$select login('julieta','Contraseña 3');$$, '0'),  -- right, but expired
    ($$select login(NULL,NULL);$$, '0'),
    ($$select comun.clave_correcta('braulio','Contraseña 1')$$, 'permission denied for schema comun'),
    ($$select rolpassword from pg_authid$$, 'permission denied for table pg_authid')
  ) AS paso (sentencia, esperado);

ALTER ROLE braulio NOLOGIN;
SELECT is(como('camila', 'norte', $$select login('braulio','Contraseña 1');$$), '0',
          'quien no puede entrar, tampoco aquí');

-- The published example of the derivation (RFC 7677): password "pencil".
ALTER ROLE julieta PASSWORD 'SCRAM-SHA-256$4096:W22ZaJ0SNY7soEsUEjb6gQ=='
  '$WG5d8oPm3OtcPnkdi4Uo7BkeZkBFzpcXkuLmtbsT4qY=:wfPLwcE6nTWhTAmQ7tl2KeoiWGPlZqQxSrmfPwDl2dU=';
ALTER ROLE julieta VALID UNTIL 'infinity';
SELECT is(como('camila', 'norte', $$select login('julieta','pencil');$$), '1', 'la derivación es la publicada');

SELECT * FROM finish();
ROLLBACK;
