-- Whether a password is a login's own, asked again within a session (a supervisor who authorises at somebody's desk).
-- The server keeps no password, only what the SCRAM-SHA-256 exchange needs to recognise one (RFC 5802), and only
-- tolvara_altas may read that here; nothing of it is ever answered.
SET LOCAL search_path TO comun, pg_temp;

GRANT SELECT (rolname, rolcanlogin, rolpassword, rolvaliduntil) ON pg_authid TO tolvara_altas;

-- The bytes of both, XORed; as many as both have, a multiple of eight.
CREATE OR REPLACE FUNCTION xor_bytes(a bytea, b bytea) RETURNS bytea
LANGUAGE sql IMMUTABLE
RETURN (SELECT string_agg(int8send((('x' || encode(substr(a, n, 8), 'hex'))::bit(64)
                                    # ('x' || encode(substr(b, n, 8), 'hex'))::bit(64))::bigint), '' ORDER BY n)
          FROM generate_series(1, length(a), 8) AS n);

-- The inner and the outer key of an HMAC with SHA-256.
CREATE OR REPLACE FUNCTION llaves_hmac(llave bytea, OUT interior bytea, OUT exterior bytea)
LANGUAGE plpgsql IMMUTABLE SET search_path FROM CURRENT AS $$
DECLARE
  corta bytea := CASE WHEN length(llave) > 64 THEN sha256(llave) ELSE llave END;
  bloque bytea := corta || decode(repeat('00', 64 - length(corta)), 'hex');
BEGIN
  interior := xor_bytes(bloque, decode(repeat('36', 64), 'hex'));
  exterior := xor_bytes(bloque, decode(repeat('5c', 64), 'hex'));
END $$;

-- How many wrong passwords of a login may be tried: five, and then none until a minute has passed without. Each attempt
-- is counted ahead of its answer, and in a sequence, because what a sequence counts no cancelling and no rollback takes
-- back. The value is the second of the last attempt, times eight, plus how many there have been.
CREATE OR REPLACE FUNCTION prepara_intentos(login text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT SET client_min_messages = warning AS $$
BEGIN
  EXECUTE format('CREATE SEQUENCE IF NOT EXISTS comun.%I', 'intentos_' || login);
END $$;

-- Counts one, or refuses. The lock lasts no longer than the inner block, whose undoing releases it.
CREATE OR REPLACE FUNCTION cuenta_intento(login text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  contador text := format('comun.%I', 'intentos_' || login);
  segundo bigint := extract(epoch FROM clock_timestamp());
  ultimo bigint;
  cuantos bigint;
BEGIN
  BEGIN
    PERFORM pg_advisory_xact_lock(hashtextextended(contador, 0));
    EXECUTE format('SELECT last_value FROM %s', contador) INTO ultimo;
    cuantos := CASE WHEN segundo - ultimo / 8 >= 60 THEN 1 ELSE ultimo % 8 + 1 END;
    IF cuantos <= 5 THEN
      PERFORM setval(contador, segundo * 8 + cuantos);
    END IF;
    RAISE EXCEPTION SQLSTATE 'TV000';
  EXCEPTION WHEN SQLSTATE 'TV000' THEN
    NULL;
  END;
  IF cuantos > 5 THEN
    RAISE EXCEPTION 'Demasiados intentos con la contraseña de %: espere un minuto', login
      USING ERRCODE = 'invalid_password';
  END IF;
END $$;

-- A right password was no attempt.
CREATE OR REPLACE FUNCTION devuelve_intento(login text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  contador text := format('comun.%I', 'intentos_' || login);
BEGIN
  EXECUTE format('SELECT setval(%L, last_value - 1) FROM %s WHERE last_value %% 8 > 0', contador, contador);
END $$;

ALTER FUNCTION prepara_intentos(text) OWNER TO tolvara_propietario;
ALTER FUNCTION cuenta_intento(text) OWNER TO tolvara_propietario;
ALTER FUNCTION devuelve_intento(text) OWNER TO tolvara_propietario;
REVOKE ALL ON FUNCTION prepara_intentos, cuenta_intento, devuelve_intento FROM PUBLIC;

-- Answers after a second when the password is wrong, expired or of a login that may not connect, so that guessing is no
-- faster here than at the door.
CREATE OR REPLACE FUNCTION clave_correcta(login text, clave text) RETURNS boolean
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT SET standard_conforming_strings TO on AS $$
DECLARE
  partes text[];
  llaves record;
  u bytea;
  suma bit(256);
BEGIN
  SELECT regexp_match(rolpassword, '^SCRAM-SHA-256\$(\d+):([^$]+)\$([^:]+):') INTO partes
    FROM pg_authid
   WHERE rolname = login AND rolcanlogin AND coalesce(rolvaliduntil, 'infinity') > now();
  -- A user can give himself a verifier of his own making: one that would keep the server computing is nobody's.
  IF partes[1] = '4096' AND clave <> '' AND char_length(clave) <= 100 THEN
    SELECT * INTO llaves FROM llaves_hmac(convert_to(normalize(clave, NFKC), 'UTF8'));
    u := decode(partes[2], 'base64') || '\x00000001'::bytea;
    suma := repeat('0', 256)::bit(256);
    FOR vuelta IN 1 .. partes[1]::integer LOOP
      u := sha256(llaves.exterior || sha256(llaves.interior || u));
      suma := suma # ('x' || encode(u, 'hex'))::bit(256);
    END LOOP;
    SELECT string_agg(int8send(substring(suma FROM n FOR 64)::bit(64)::bigint), '' ORDER BY n) INTO u
      FROM generate_series(1, 256, 64) AS n;
    SELECT * INTO llaves FROM llaves_hmac(u);
    IF sha256(sha256(llaves.exterior || sha256(llaves.interior || 'Client Key'::bytea)))
       = decode(partes[3], 'base64') THEN
      RETURN true;
    END IF;
  END IF;
  PERFORM pg_sleep(1);
  RETURN false;
END $$;

ALTER FUNCTION clave_correcta(text, text) OWNER TO tolvara_altas;
REVOKE ALL ON FUNCTION clave_correcta, xor_bytes, llaves_hmac FROM PUBLIC;
GRANT EXECUTE ON FUNCTION xor_bytes, llaves_hmac TO tolvara_altas;
GRANT EXECUTE ON FUNCTION clave_correcta TO tolvara_propietario;
