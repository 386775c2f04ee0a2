-- Goods that guarantee the larger loans of their owners.
INSERT INTO garantia (prestamoid, garantiabienid, nohip, folio, fecharegistro, fechavencimiento, descripcion)
SELECT p.prestamoid, b.bienid, format('H-%s', p.prestamoid), format('%s/%s', b.bienid - 1000000000, p.prestamoid),
       p.fecha_otorga, p.fecha_vencimiento, b.describien
  FROM prestamos p JOIN socio s USING (socioid) JOIN bienes b USING (sujetoid)
 WHERE p.montoprestamo > 40000
 ORDER BY p.prestamoid;
