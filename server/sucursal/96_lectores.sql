-- What another server reads of this branch for its answers over all branches (comun, 70_remotas.sql), and nothing else: these
-- views, with the owner's rights, and the functions in them.
CREATE VIEW sucursal_detalle AS
SELECT (SELECT version FROM version WHERE objeto = :'sucursal') AS version, sucid FROM empresa;

CREATE VIEW cuenta_detalle AS SELECT cuentaid, cuentanombre FROM catalogo_ctas;

GRANT USAGE ON SCHEMA :"sucursal" TO tolvara_lectores;
GRANT SELECT ON sucursal_detalle, cuenta_detalle, persona_detalle, precorte_detalle TO tolvara_lectores;
GRANT EXECUTE ON FUNCTION sin_acentos, persona_reporte, saldodemovr TO tolvara_lectores;
