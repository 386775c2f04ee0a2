-- Texts hold what can be seen and told apart; see texto().
BEGIN;
SELECT no_plan();

CREATE TEMPORARY TABLE signo AS
SELECT chr(codigo) AS letra, que, codigo FROM (VALUES
  (1, 'control'), (7, 'campana'), (9, 'tabulador'), (10, 'fin de línea'), (13, 'retorno'), (27, 'escape'),
  (127, 'suprimir'), (133, 'otro fin de línea'), (155, 'control de terminal'), (160, 'blanco que no se parte'),
  (173, 'guion que no se ve'), (769, 'acento suelto'), (847, 'unión de letras'), (1564, 'marca árabe'),
  (8195, 'blanco ancho'), (8203, 'blanco sin ancho'), (8204, 'separador sin ancho'), (8205, 'unión sin ancho'),
  (8206, 'izquierda a derecha'), (8207, 'derecha a izquierda'), (8232, 'separador de líneas'), (8234, 'incrustado'),
  (8238, 'invertido'), (8239, 'blanco angosto'), (8288, 'unión de palabras'), (8294, 'aislado'), (8297, 'fin de aislado'),
  (12288, 'blanco de otra escritura'), (12644, 'relleno'), (65039, 'variante'), (65279, 'marca de orden'),
  (65313, 'A ancha'), (1040, 'А de otra escritura'), (917, 'Ε de otra escritura'), (917601, 'etiqueta')) AS s (codigo, que);

-- In a name, a key and a description nothing of it.
SELECT is(como('adriana', 'norte', format('SELECT spimoneda(%L, %L, 1)', clave, descri)),
          format('No se admite en %s el carácter U+%s: no se ve o se confunde con otro', campo,
                 lpad(upper(to_hex(codigo)), 4, '0')), que)
  FROM signo,
       LATERAL (VALUES ('M' || letra, 'Peso', 'la clave'), ('Q9', 'Pe' || letra || 'so', 'la descripción')) AS v (clave, descri, campo);
SELECT is(como('adriana', 'norte', format('SELECT spisujeto(%L,''Y'',''Z'','''','''',1,'''','''')', 'Ro' || letra || 'jas'))
            ~ '^No se admite en el apellido paterno', true, 'apellido: ' || que) FROM signo;

-- In a paragraph ends of line and tabs and nothing else.
SELECT is(como('adriana', 'norte', format('SELECT spitiposocio(''Q9'', ''X'', %L)', 'Uno' || letra || 'dos'))
          || como('adriana', 'norte', 'SELECT spdtiposocio(''Q9'')'),
          CASE WHEN codigo IN (9, 10, 13) THEN ''
               ELSE format('No se admite en el texto de observaciones el carácter U+%s: no se ve o se confunde con otro'
                           'El tipo de socio Q9 no existe', lpad(upper(to_hex(codigo)), 4, '0')) END, 'párrafo: ' || que)
  FROM signo;
SELECT matches(como('adriana', 'norte', format('SELECT spimodulo(''Q9'', %L)', E'Una\nmaldad' || chr(8238))),
               'U\+202E', 'tras un fin de línea, tampoco');
SELECT is(como('adriana', 'norte', $$SELECT spimodulo('Q9', E' \n\t ')$$), 'Falta la descripción', 'ni vacío por dentro');

-- What people write.
SELECT is(como('adriana', 'norte', format('SELECT spimoneda(''Q'', %L, 1)', texto))
          || como('adriana', 'norte', $$SELECT monedadescri FROM spsmoneda('Q')$$)
          || como('adriana', 'norte', $$SELECT spdmoneda('Q')$$), texto, texto)
  FROM unnest(ARRAY['Peso áéíóúüñ ÁÉÍÓÚÜÑ', '¿Qué? ¡Sí! «100 %» & "más"', 'Euro € 5–7 “así”…', 'Šárka Łódź Ødegård',
                    'O''Farrill \ {x} [y] ~^`|']) AS texto;

-- Nobody stores in any table what the functions refuse: no function with a text stores one of these.
SELECT is((SELECT count(*) FROM norte.moneda WHERE monedadescri ~ '[^\u0020-\u024f]' OR monedaid ~ '[^\u0020-\u024f]'),
          0::bigint, 'nada de ello quedó guardado');

SELECT * FROM finish();
ROLLBACK;
