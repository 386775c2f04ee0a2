-- Promotions in each of the three states, with and without an end.
INSERT INTO tipopromocion (tipomovimientoid, fechainicial, fechafinal, condicion, estatus, descripcion) VALUES
  ('MN', '2024-04-01', '2024-04-30', 'Alcancía de regalo al abrir la cuenta con 100 pesos o más', 1, 'Mes del niño'),
  ('NV', '2025-01-15', '2025-11-30', 'Medio punto más de interés a quien deposite cada mes', 1, 'Navidad anticipada'),
  ('AH', '2025-09-01', NULL, 'Un boleto de la rifa anual por cada 500 pesos de aumento del saldo', 0, 'Ahorra y gana'),
  ('ES', '2026-08-01', '2026-09-15', 'Paquete de útiles con un saldo promedio de 1,000 pesos', 1, 'Regreso a clases'),
  ('VC', '2026-02-01', '2026-06-30', 'Sin comisión de manejo por abrir antes de marzo', 2, 'Vacaciones sin comisión'),
  ('VI', '2026-10-01', '2027-03-31', 'Sin cuota de manejo con nómina domiciliada', 0, 'Nómina a la vista'),
  ('AH', '2026-11-01', '2026-12-31', 'Doble boleto por traer a un socio nuevo', 0, 'Trae a un amigo');
