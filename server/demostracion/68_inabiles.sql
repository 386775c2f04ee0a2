-- Non-working days of Mexican savings institutions: fixed days, Mondays, the change of president, and Holy Week.
INSERT INTO inabil (fecha)
SELECT dia
  FROM (SELECT make_date(ano, mes, numero)
          FROM generate_series(2022, 2028) AS ano,
               (VALUES (1, 1), (5, 1), (9, 16), (11, 2), (12, 12), (12, 25)) AS fija (mes, numero)
        UNION
        -- the first Monday of February, the third ones of March and November
        SELECT (primero + (8 - extract(isodow FROM primero)::integer) % 7 + 7 * (orden - 1))::date
          FROM generate_series(2022, 2028) AS ano, (VALUES (2, 1), (3, 3), (11, 3)) AS lunes (mes, orden),
               LATERAL (SELECT make_date(ano, mes, 1)) AS m (primero)
        UNION
        SELECT make_date(ano, 10, 1) FROM generate_series(2024, 2028, 6) AS ano
        UNION
        -- Thursday and Friday ahead of Easter
        SELECT domingo::date - antes
          FROM (VALUES (date '2022-04-17'), ('2023-04-09'), ('2024-03-31'), ('2025-04-20'), ('2026-04-05'),
                       ('2027-03-28'), ('2028-04-16')) AS pascua (domingo),
               (VALUES (3), (2)) AS jueves_y_viernes (antes)) AS dias (dia)
 ORDER BY dia;
