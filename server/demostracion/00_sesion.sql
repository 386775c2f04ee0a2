-- Demonstration data of a branch: the files of this folder run as those of ../sucursal do. Persons are invented. The
-- branch `sur` has staff and figures of its own; any other name gets those of `norte`.
SET LOCAL ROLE tolvara_propietario;
SET LOCAL search_path TO :"sucursal", comun, pg_temp;
SELECT CASE :'sucursal' WHEN 'sur' THEN 'sur' ELSE 'norte' END AS juego \gset
