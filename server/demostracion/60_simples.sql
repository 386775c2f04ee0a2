-- Catalogues of a key and a description.
INSERT INTO tipo_garantia (clavegarantia, descripciongarantia) VALUES
  ('AVA', 'Aval u obligado solidario'),
  ('HIP', 'Hipotecaria'),
  ('LIQ', 'Líquida en ahorro'),
  ('PRE', 'Prendaria'),
  ('QUI', 'Quirografaria'),
  ('SEG', 'Seguro de crédito');

INSERT INTO estados_credito (claveestadocredito, descripcionedocredito) VALUES
  ('SOL', 'Solicitado'),
  ('EST', 'En estudio'),
  ('AUT', 'Autorizado'),
  ('REC', 'Rechazado'),
  ('ENT', 'Entregado'),
  ('VEN', 'Vencido'),
  ('JUR', 'En cobranza judicial'),
  ('CAS', 'Castigado'),
  ('LIQ', 'Liquidado');

INSERT INTO finalidades (clavefinalidad, descripcionfinalidad) VALUES
  ('AGR', 'Actividad agropecuaria'),
  ('AUT', 'Compra de automóvil'),
  ('CON', 'Consumo personal'),
  ('CTR', 'Capital de trabajo'),
  ('DEU', 'Pago de deudas'),
  ('EDU', 'Educación'),
  ('EQU', 'Maquinaria y equipo'),
  ('MEJ', 'Mejora de vivienda'),
  ('SAL', 'Gastos médicos'),
  ('VIV', 'Compra de vivienda');

INSERT INTO tiposocio (tiposocioid, descritiposocio, observaciones) VALUES
  ('AC', 'Socio activo', 'Mayor de edad con su parte social cubierta; participa en la asamblea con voz y voto.'),
  ('ME', 'Menor ahorrador', 'Menor de 18 años, representado por padre, madre o tutor. No vota ni pide crédito.'),
  ('PM', 'Persona moral', 'Sociedad o asociación con actividad en la zona; vota por medio de su representante.'),
  ('AS', 'Aspirante', 'Cubre su parte social en plazos, hasta doce meses. Ahorra, pero aún no pide crédito.'),
  ('EM', 'Empleado', 'Personal de la institución. Sus créditos los autoriza el consejo de administración.');

INSERT INTO tipomovibanco (tipomovibancoid, descritipomovibanco, operacionsumaresta) VALUES
  ('CH', 'Cheque expedido', '-'),
  ('CO', 'Comisión del banco', '-'),
  ('DE', 'Depósito en ventanilla', '+'),
  ('DV', 'Cheque devuelto', '-'),
  ('IN', 'Intereses ganados', '+'),
  ('IS', 'ISR retenido', '-'),
  ('TE', 'Transferencia enviada', '-'),
  ('TR', 'Transferencia recibida', '+');

INSERT INTO asesor (asesorid, nomasesor) VALUES
  (1, 'Aurelio Supuesto Campos'),
  (2, 'Berenice Quimera Lagos'),
  (3, 'Casimiro Ejemplo Robles'),
  (4, 'Dorotea Ficticia Nava'),
  (5, 'Eleuterio Muestra Pinos'),
  (6, 'Fidelia Imaginaria Soto');

INSERT INTO motivobaja (descripcionmotivo) VALUES
  ('Retiro voluntario'), ('Cambio de domicilio'), ('Fallecimiento'), ('Exclusión por la asamblea'),
  ('Incumplimiento de pagos'), ('Mayoría de edad'), ('Inactividad de dos años');

INSERT INTO clasificacioncredito (descripcion) VALUES
  ('Consumo'), ('Comercial'), ('Vivienda'), ('Microcrédito'), ('Reestructurado');

INSERT INTO grupo (grupo) VALUES
  ('Mujeres del Valle'), ('Productores de Ensueño'), ('Artesanos unidos'), ('La Esperanza'),
  ('Comerciantes del Centro'), ('Ganaderos de la Sierra');

INSERT INTO ocupacion (ocupacion) VALUES
  ('Agricultor'), ('Albañil'), ('Ama de casa'), ('Artesano'), ('Carpintero'), ('Chofer'), ('Comerciante'),
  ('Contador'), ('Costurera'), ('Electricista'), ('Empleado administrativo'), ('Empleado de gobierno'),
  ('Enfermero'), ('Estudiante'), ('Ganadero'), ('Herrero'), ('Ingeniero'), ('Jornalero'), ('Jubilado o pensionado'),
  ('Maestro'), ('Mecánico'), ('Médico'), ('Mesero'), ('Minero'), ('Obrero'), ('Panadero'), ('Pescador'), ('Plomero'),
  ('Policía'), ('Profesionista independiente'), ('Vendedor ambulante'), ('Otra');

INSERT INTO conceptoscoring (conceptoscoring) VALUES
  ('Edad'), ('Estado civil'), ('Dependientes'), ('Antigüedad de socio'), ('Hábito de ahorro'), ('Ingreso mensual'),
  ('Arraigo domiciliario'), ('Estabilidad laboral'), ('Historial de pagos'), ('Garantía ofrecida');

INSERT INTO tipoacreditador (tipoacreditadoid, descripciontipoacreditado) VALUES
  (1, 'Persona física sin actividad empresarial'),
  (2, 'Persona física con actividad empresarial'),
  (3, 'Persona moral'),
  (4, 'Grupo solidario'),
  (5, 'Empleado de la institución'),
  (6, 'Miembro de los órganos de gobierno');

-- Numbered as the postal service does.
INSERT INTO tipoasentamiento (tipoasentamientoid, asentamiento) VALUES
  (1, 'Aeropuerto'), (2, 'Barrio'), (4, 'Campamento'), (9, 'Colonia'), (10, 'Condominio'), (11, 'Congregación'),
  (12, 'Conjunto habitacional'), (15, 'Ejido'), (16, 'Estación'), (17, 'Equipamiento'), (18, 'Exhacienda'),
  (20, 'Finca'), (21, 'Fraccionamiento'), (22, 'Gran usuario'), (23, 'Granja'), (24, 'Hacienda'), (25, 'Ingenio'),
  (26, 'Parque industrial'), (27, 'Poblado comunal'), (28, 'Pueblo'), (29, 'Ranchería'), (30, 'Residencial'),
  (31, 'Unidad habitacional'), (32, 'Villa'), (33, 'Zona comercial'), (34, 'Zona federal'), (37, 'Zona industrial'),
  (40, 'Puerto'), (45, 'Paraje'), (47, 'Zona militar'), (48, 'Rancho');
