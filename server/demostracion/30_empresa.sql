-- The institution.
UPDATE empresa
   SET sucid = CASE :'juego' WHEN 'norte' THEN '0001' ELSE '0002' END,
       nombrecaja = 'Caja Solidaria Valle de Ensueño, S.C. de A.P. de R.L. de C.V.',
       gerente = CASE :'juego' WHEN 'norte' THEN 'Adriana Cienfuegos Imaginaria' ELSE 'Efraín Lunares Supuesto' END,
       presidenteadmon = 'Teófilo Quimera Ensueño',
       contador = 'Priscila Ábaco Ficticia',
       direccioncaja = CASE :'juego' WHEN 'norte' THEN 'Av. de los Ejemplos 100, Col. Centro, Villa Ensueño'
                                     ELSE 'Calle de la Muestra 25, Barrio Abajo, Puerto Ensueño' END,
       contadorsucursal = CASE :'juego' WHEN 'norte' THEN 'Norberto Saldívar Ficticio' ELSE 'Sara Valdés Ficticia' END,
       niveloperaciones = 'Nivel II',
       lineasiniciales = 6, lineasfinales = 6,
       calculaisrinversion = 1, inversionexenta = 198031.80, porcentajeisrinversion = 0.5000,
       ccpresidente = 'Rómulo Inventado Paz', ccvicepresidente = 'Dalia Supuesto Ríos',
       ccoficial = 'Ulises Quimera Sol', ccanalista = 'Ofelia Ejemplo Mar', ccsecretario = 'Genaro Muestra Cruz',
       bonificaenpagopuntual = 1, porcentajebonifica = 10.0000, preguntaperiodo = 1,
       iva = 16.0000, altasucursales = 1, devengamoratorio = 1,
       impresoracaja = 'caja', impresorareporte = 'reportes', reporteslaser = 1,
       nivel = 2, modificarinversion = 1, formatopoliza = 1, formatocuenta = '9999-99-99-99-9999',
       interesamortiza = 1, comisionacreditos = 1, porcentajecomision = 1.5000,
       nconcurrencias = 3, periodopagoinversion = 30, abonointeres = 1, usomultisucursal = 1,
       manejoplazoinversion = 1, clientesocio = 'Socio',
       fechacobroiva = '2010-01-01';
