-- A good of one member of three.
INSERT INTO bienes (sujetoid, propietario, describien, caracteristicas, registropublico, valorcomercial, valorfiscal,
                    valorcatastro, datoshipoteca, relaciongarantia, adjudicado, fechaadjudicado)
SELECT s.sujetoid, concat_ws(' ', s.nombre, s.paterno, nullif(s.materno, '')),
       (ARRAY['Casa habitación', 'Terreno urbano', 'Parcela de riego', 'Camioneta de carga', 'Local comercial']
        )[1 + s.sujetoid % 5],
       format('Superficie o modelo %s, en buen estado', 80 + s.sujetoid % 400),
       format('Libro %s, foja %s, de un registro imaginario', s.sujetoid % 60 + 1, s.sujetoid % 300 + 1),
       b.valor, round(b.valor * 0.8, -2), round(b.valor * 0.65, -2), 'Libre de gravamen', 1 + s.sujetoid % 20 / 10.0,
       CASE WHEN s.sujetoid % 45 = 0 THEN 'S' ELSE 'N' END,
       CASE WHEN s.sujetoid % 45 = 0 THEN current_date - (s.sujetoid % 900)::integer END
  FROM socio JOIN sujeto s USING (sujetoid)
 CROSS JOIN LATERAL (SELECT 45000 + s.sujetoid * 7919 % 900 * 1000 AS valor) AS b
 WHERE s.sujetoid % 3 = 0;
