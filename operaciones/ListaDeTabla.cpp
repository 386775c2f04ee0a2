#include "operaciones/ListaDeTabla.h"

#include <fxkeys.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

FXDEFMAP(ListaDeTabla)
ListaDeTablaMap[] = {
    FXMAPFUNC(SEL_COMMAND, FXIconList::ID_HEADER_CHANGE, ListaDeTabla::onEncabezado),
    FXMAPFUNC(SEL_RIGHTBUTTONPRESS, FXIconList::ID_HEADER_CHANGE, ListaDeTabla::onMenuDeColumna),
    FXMAPFUNCS(SEL_COMMAND, ListaDeTabla::ID_IZQUIERDA, ListaDeTabla::ID_DERECHA, ListaDeTabla::onCmdMueve),
    FXMAPFUNC(SEL_COMMAND, ListaDeTabla::ID_ORDENDELSERVIDOR, ListaDeTabla::onCmdOrdenDelServidor),
    FXMAPFUNC(SEL_COMMAND, ListaDeTabla::ID_COPIA, ListaDeTabla::onCmdCopia),
    FXMAPFUNC(SEL_KEYPRESS, 0, ListaDeTabla::onKeyPress),
    FXMAPFUNC(SEL_CLIPBOARD_REQUEST, 0, ListaDeTabla::onClipboardRequest),
};
FXIMPLEMENT(ListaDeTabla, FXIconList, ListaDeTablaMap, ARRAYNUMBER(ListaDeTablaMap))

namespace {

constexpr FXint margen = 4;
constexpr FXint anchoMayor = 320;
constexpr int filasQueSeMiden = 300;

/// A line of the list; its data is the row of the table.
class Linea : public FXIconItem {
 public:
  explicit Linea(int fila) : FXIconItem(FXString::null, nullptr, nullptr, Dato(fila)) {}

  static void* Dato(int fila) { return reinterpret_cast<void*>(static_cast<FXival>(fila)); }
  int Fila() const { return static_cast<int>(reinterpret_cast<FXival>(data)); }

  FXint getWidth(const FXIconList*) const override { return 1; }
  FXint getHeight(const FXIconList* lista) const override {
    return lista->getFont()->getFontHeight() + margen;
  }

 protected:
  FXint hitItem(const FXIconList*, FXint, FXint, FXint, FXint) const override { return 2; }
  void drawDetails(const FXIconList* lista, FXDC& dc, FXint x, FXint y, FXint ancho,
                   FXint alto) const override;
};

void Linea::drawDetails(const FXIconList* lista, FXDC& dc, FXint x, FXint y, FXint ancho, FXint alto) const {
  const auto* const de = static_cast<const ListaDeTabla*>(lista);
  const FXHeader* const encabezado = lista->getHeader();
  if (isSelected()) {
    dc.setForeground(lista->getSelBackColor());
    dc.fillRectangle(x, y, ancho, alto);
  }
  if (hasFocus()) dc.drawFocusRectangle(x + 1, y + 1, ancho - 2, alto - 2);
  dc.setForeground(isSelected() ? lista->getSelTextColor() : lista->getTextColor());
  const FXFont* const letra = lista->getFont();
  const FXint base = y + (alto - letra->getFontHeight()) / 2 + letra->getFontAscent();
  const std::vector<int> columnas = de->Columnas();
  for (size_t i = 0; i < columnas.size(); ++i) {
    const FXint campo = encabezado->getItemSize(static_cast<FXint>(i));
    const FXString texto = de->Recortado(de->Datos().Celda(Fila(), columnas[i]), campo - 2 * margen);
    const bool aLaDerecha = de->Datos().Columnas()[columnas[i]].tipo == Tabla::Numero;
    dc.drawText(aLaDerecha ? x + campo - margen - letra->getTextWidth(texto) : x + margen, base, texto);
    x += campo;
  }
}

}  // namespace

ListaDeTabla::ListaDeTabla(FXComposite* padre, FXObject* destino, FXSelector mensaje, FXuint opciones)
    : FXIconList(padre, destino, mensaje, ICONLIST_DETAILED | ICONLIST_EXTENDEDSELECT | opciones),
      menu(new FXMenuPane(this)) {
  new FXMenuCommand(menu, "Mover a la &izquierda", nullptr, this, ID_IZQUIERDA);
  new FXMenuCommand(menu, "Mover a la &derecha", nullptr, this, ID_DERECHA);
  new FXMenuCommand(menu, "&Orden del servidor", nullptr, this, ID_ORDENDELSERVIDOR);
}

ListaDeTabla::~ListaDeTabla() { delete menu; }

void ListaDeTabla::Pon(Tabla nueva, const FXString& disposicion) {
  tabla = std::move(nueva);
  tabla.Rehace();
  PonEncabezados(disposicion);
  Muestra(-1);
}

void ListaDeTabla::Renueva(Tabla nueva) {
  const int orden = tabla.Orden();
  const bool descendente = tabla.Descendente();
  nueva.TomaFiltro(tabla);
  tabla = std::move(nueva);
  tabla.Ordena(orden, descendente);
  Muestra(-1);
}

void ListaDeTabla::Filtra(const FXString& texto) {
  const int actual = FilaActual();
  tabla.Filtra(texto.text());
  Muestra(actual);
}

void ListaDeTabla::Ordena(int columna) {
  const int actual = FilaActual();
  tabla.Ordena(columna, columna >= 0 && columna == tabla.Orden() && !tabla.Descendente());
  MuestraOrden();
  Muestra(actual);
}

/// Has that many lines. Appended one by one they would move the list at each.
void ListaDeTabla::PonLineas(FXint lineas) {
  const FXint antes = getNumItems();
  if (0 <= current && current < antes) items[current]->setFocus(FALSE);
  current = anchor = extent = cursor = viewable = -1;
  for (FXint i = lineas; i < antes; ++i) delete items[i];
  items.no(lineas);
  for (FXint i = antes; i < lineas; ++i) items[i] = new Linea(0);
}

/// One line for each row that is shown; `filaActual` stays the current one if it is among them.
void ListaDeTabla::Muestra(int filaActual) {
  const int lineas = tabla.Visibles();
  killSelection();
  PonLineas(lineas);
  int actual = lineas > 0 ? 0 : -1;
  for (int i = 0; i < lineas; ++i) {
    const int fila = tabla.Fila(i);
    items[i]->setData(Linea::Dato(fila));
    if (fila == filaActual) actual = i;
  }
  setCurrentItem(actual);
  if (actual >= 0) {
    setAnchorItem(actual);
    selectItem(actual);
    makeItemVisible(actual);
  }
  recalc();
  update();
}

FXint ListaDeTabla::AnchoDeColumna(int columna) const {
  FXint ancho = font->getTextWidth(tabla.Columnas()[columna].titulo.c_str()) + 24;  // with the arrow
  const int filas = std::min(tabla.Filas(), filasQueSeMiden);
  for (int fila = 0; fila < filas && ancho < anchoMayor; ++fila) {
    const char* const celda = tabla.Celda(fila, columna);
    ancho = std::max(ancho, font->getTextWidth(celda, std::min<FXint>(strlen(celda), 200)) + 3 * margen);
  }
  return std::min(ancho, anchoMayor);
}

/// The headings; a column that `disposicion` does not know comes behind those that it does.
void ListaDeTabla::PonEncabezados(const FXString& disposicion) {
  while (getNumHeaders() > 0) removeHeader(0);
  if (id() != 0) font->create();
  std::vector<bool> puesta(tabla.NumColumnas());
  const auto pon = [&](int columna, int ancho) {
    puesta[columna] = true;
    appendHeader(tabla.Columnas()[columna].titulo.c_str(), nullptr, ancho);
    header->setItemData(getNumHeaders() - 1, Linea::Dato(columna));
  };
  int columna = 0, ancho = 0, usado = 0;
  for (const char* resto = disposicion.text(); sscanf(resto, "%d:%d%n", &columna, &ancho, &usado) == 2;
       resto += usado) {
    if (columna >= 0 && columna < tabla.NumColumnas() && !puesta[columna])
      pon(columna, std::clamp(ancho, 10, 2000));
  }
  for (columna = 0; columna < tabla.NumColumnas(); ++columna)
    if (!puesta[columna]) pon(columna, AnchoDeColumna(columna));
  MuestraOrden();
}

void ListaDeTabla::MuestraOrden() {
  const std::vector<int> columnas = Columnas();
  for (size_t i = 0; i < columnas.size(); ++i)
    header->setArrowDir(static_cast<FXint>(i),
                        columnas[i] == tabla.Orden() ? FXbool(tabla.Descendente()) : FXbool(MAYBE));
}

std::vector<int> ListaDeTabla::Columnas() const {
  std::vector<int> columnas(header->getNumItems());
  for (size_t i = 0; i < columnas.size(); ++i)
    columnas[i] = static_cast<int>(reinterpret_cast<FXival>(header->getItemData(static_cast<FXint>(i))));
  return columnas;
}

FXString ListaDeTabla::Disposicion() const {
  FXString texto;
  const std::vector<int> columnas = Columnas();
  for (size_t i = 0; i < columnas.size(); ++i)
    texto += FXStringFormat("%d:%d ", columnas[i], header->getItemSize(static_cast<FXint>(i)));
  return texto.trimEnd();
}

int ListaDeTabla::FilaActual() const {
  return current < 0 || current >= tabla.Visibles() ? -1 : tabla.Fila(current);
}

FXString ListaDeTabla::Recortado(const char* celda, FXint ancho) const {
  FXString texto(celda, static_cast<FXint>(std::min<size_t>(strlen(celda), 500)));
  texto.substitute("\n", " ").substitute("\t", " ").substitute("\r", " ");
  if (font->getTextWidth(texto) <= ancho) return texto;
  FXint fin = texto.length();
  while (fin > 0 && font->getTextWidth(texto.text(), fin) + font->getTextWidth("…") > ancho)
    fin = texto.dec(fin);
  return texto.left(fin) + "…";
}

long ListaDeTabla::onEncabezado(FXObject*, FXSelector, void* cual) {
  Ordena(Columnas()[reinterpret_cast<FXival>(cual)]);
  return 1;
}

long ListaDeTabla::onMenuDeColumna(FXObject*, FXSelector, void* evento) {
  const auto* const de = static_cast<const FXEvent*>(evento);
  columnaDelMenu = header->getItemAt(de->win_x);
  if (columnaDelMenu < 0 || columnaDelMenu >= getNumHeaders()) return 1;
  menu->create();
  menu->popup(nullptr, de->root_x, de->root_y);
  getApp()->runModalWhileShown(menu);
  return 1;
}

void ListaDeTabla::Mueve(FXint una, bool aLaDerecha) {
  const FXint otra = una + (aLaDerecha ? 1 : -1);
  if (una < 0 || otra < 0 || una >= getNumHeaders() || otra >= getNumHeaders()) return;
  const FXString texto = header->getItemText(una);
  void* const dato = header->getItemData(una);
  const FXint ancho = header->getItemSize(una);
  header->setItemText(una, header->getItemText(otra));
  header->setItemData(una, header->getItemData(otra));
  header->setItemSize(una, header->getItemSize(otra));
  header->setItemText(otra, texto);
  header->setItemData(otra, dato);
  header->setItemSize(otra, ancho);
  MuestraOrden();
  update();
}

long ListaDeTabla::onCmdMueve(FXObject*, FXSelector sel, void*) {
  Mueve(columnaDelMenu, FXSELID(sel) == ID_DERECHA);
  return 1;
}

long ListaDeTabla::onCmdOrdenDelServidor(FXObject*, FXSelector, void*) {
  Ordena(-1);
  return 1;
}

long ListaDeTabla::onKeyPress(FXObject* emisor, FXSelector sel, void* evento) {
  const auto* const tecla = static_cast<const FXEvent*>(evento);
  if ((tecla->state & CONTROLMASK) != 0 && (tecla->code == KEY_c || tecla->code == KEY_C))
    return onCmdCopia(this, FXSEL(SEL_COMMAND, ID_COPIA), nullptr);
  if (tecla->code == KEY_Return || tecla->code == KEY_KP_Enter)
    return target != nullptr ? target->tryHandle(this, FXSEL(SEL_DOUBLECLICKED, message), nullptr) : 1;
  return FXIconList::onKeyPress(emisor, sel, evento);
}

long ListaDeTabla::onCmdCopia(FXObject*, FXSelector, void*) {
  std::vector<int> elegidas;
  for (FXint i = 0; i < getNumItems(); ++i)
    if (isItemSelected(i)) elegidas.push_back(i);
  copiado = tabla.Tabulado(elegidas, Columnas()).c_str();
  const FXDragType tipos[] = {stringType, utf8Type};
  acquireClipboard(tipos, ARRAYNUMBER(tipos));
  return 1;
}

long ListaDeTabla::onClipboardRequest(FXObject* emisor, FXSelector sel, void* evento) {
  if (FXIconList::onClipboardRequest(emisor, sel, evento)) return 1;
  const FXDragType pedido = static_cast<const FXEvent*>(evento)->target;
  if (pedido != stringType && pedido != utf8Type) return 0;
  setDNDData(FROM_CLIPBOARD, pedido, copiado);
  return 1;
}
