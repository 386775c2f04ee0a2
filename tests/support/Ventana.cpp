#include "tests/support/Ventana.h"

#include <fxkeys.h>

#include <algorithm>
#include <stdexcept>

#include "tests/support/Pantalla.h"
#include "tests/support/Reloj.h"

namespace pruebas {
namespace {

// The toolkit keeps the place of the "&" to itself.
template <class T>
struct ConLugar : T {
  static FXint De(const T* pieza) { return pieza->*(&ConLugar::hotoff); }
};

template <class T>
std::string ConLetra(const T* pieza) {
  std::string texto = pieza->getText().text();
  const FXint lugar = ConLugar<T>::De(pieza);
  if (lugar >= 0) texto.insert(static_cast<size_t>(lugar), "&");
  return texto;
}

template <class T>
bool Dice(const T* pieza, const std::string& rotulo) {
  return rotulo == (rotulo.find('&') == std::string::npos ? pieza->getText().text() : Rotulo(pieza));
}

template <class T>
T* Primera(const std::vector<T*>& piezas, const std::string& rotulo) {
  for (T* pieza : piezas) {
    if (Dice(pieza, rotulo)) return pieza;
  }
  return nullptr;
}

// Nothing but a label: buttons of all kinds derive from it.
bool EsEtiqueta(const FXLabel* pieza) { return pieza->getMetaClass() == FXMETACLASS(FXLabel); }

struct Suceso : FXEvent {
  explicit Suceso(FXuint tipo, FXint x = 0, FXint y = 0) : FXEvent() {
    type = tipo;
    win_x = last_x = click_x = x;
    win_y = last_y = click_y = y;
    click_count = 1;
    code = LEFTBUTTON;
    click_button = LEFTBUTTON;
  }
};

void Refresca() { App().forceRefresh(); }

/// Handles what the X server has sent so far. Left alone it piles up over the tests of a program, and the
/// toolkit searches the whole pile at every event.
void Desahoga() {
  while (App().peekEvent()) App().runOneEvent(FALSE);
}

void ExigeUsable(FXWindow* pieza) {
  if (!Usable(pieza))
    throw std::runtime_error(std::string("un usuario no alcanza este ") + pieza->getClassName());
}

void Clic(FXWindow* pieza, FXint x, FXint y, FXint veces = 1) {
  Suceso baja(SEL_LEFTBUTTONPRESS, x, y);
  Suceso sube(SEL_LEFTBUTTONRELEASE, x, y);
  baja.click_count = sube.click_count = veces;
  pieza->handle(&App(), FXSEL(SEL_LEFTBUTTONPRESS, 0), &baja);
  pieza->handle(&App(), FXSEL(SEL_LEFTBUTTONRELEASE, 0), &sube);
  Refresca();
}

void Teclea(FXWindow* ventana, FXuint codigo, FXuint estado, const FXString& texto) {
  for (const FXuint tipo : {FXuint{SEL_KEYPRESS}, FXuint{SEL_KEYRELEASE}}) {
    Suceso suceso(tipo);
    suceso.code = static_cast<FXint>(codigo);
    suceso.state = static_cast<FXint>(estado);
    suceso.text = texto;
    ventana->handle(&App(), FXSEL(tipo, 0), &suceso);
  }
}

}  // namespace

std::string Rotulo(const FXLabel* pieza) { return ConLetra(pieza); }
std::string Rotulo(const FXMenuCaption* pieza) { return ConLetra(pieza); }

Textos Etiquetas(FXWindow* raiz) {
  Textos textos;
  for (const FXLabel* pieza : Todos<FXLabel>(raiz)) {
    if (EsEtiqueta(pieza)) textos.push_back(Rotulo(pieza));
  }
  return textos;
}

Textos Botones(FXWindow* raiz) {
  Textos textos;
  for (const FXButton* pieza : Todos<FXButton>(raiz)) textos.push_back(Rotulo(pieza));
  return textos;
}

void NoHallado(FXWindow* raiz, const std::string& que) {
  std::string mensaje = std::string("en este ") + raiz->getClassName() + " no hay " + que + "; dice:";
  for (const FXLabel* pieza : Todos<FXLabel>(raiz)) mensaje += " \"" + Rotulo(pieza) + '"';
  throw std::runtime_error(mensaje);
}

FXButton* Boton(FXWindow* raiz, const std::string& rotulo) {
  if (FXButton* boton = Primera(Todos<FXButton>(raiz), rotulo)) return boton;
  NoHallado(raiz, "botón " + rotulo);
}

FXGroupBox* Grupo(FXWindow* raiz, const std::string& titulo) {
  for (FXGroupBox* grupo : Todos<FXGroupBox>(raiz)) {
    if (titulo == grupo->getText().text()) return grupo;
  }
  NoHallado(raiz, "grupo " + titulo);
}

FXList* Lista(FXWindow* raiz, size_t cual) {
  const std::vector<FXList*> listas = Todos<FXList>(raiz);
  if (cual < listas.size()) return listas[cual];
  NoHallado(raiz, "lista número " + std::to_string(cual));
}

FXMenuCommand* Opcion(FXWindow* duena, const std::string& rotulo) {
  for (FXMenuPane* panel : Todos<FXMenuPane>(App().getRootWindow())) {
    if (panel->getOwner() != duena) continue;
    if (FXMenuCommand* opcion = Primera(Todos<FXMenuCommand>(panel), rotulo)) return opcion;
  }
  NoHallado(duena, "opción de menú " + rotulo);
}

FXWindow* PiezaJuntoA(FXWindow* raiz, const std::string& etiqueta, size_t cual) {
  for (FXLabel* pieza : Todos<FXLabel>(raiz)) {
    if (EsEtiqueta(pieza) && Dice(pieza, etiqueta) && pieza->getNext() && cual-- == 0)
      return pieza->getNext();
  }
  NoHallado(raiz, "nada junto a " + etiqueta);
}

std::string Leido(FXWindow* raiz, const std::string& etiqueta, size_t cual) {
  return CampoJuntoA(raiz, etiqueta, cual)->getText().text();
}

bool Usable(FXWindow* pieza) {
  FXWindow* const marco = pieza->getShell();
  for (FXWindow* w = pieza; w && w != marco; w = w->getParent()) {
    if (!w->shown()) return false;
  }
  return pieza->isEnabled() && pieza->id() != 0;
}

void Pulsa(FXWindow* pieza) {
  if (auto* opcion = dynamic_cast<FXMenuCommand*>(pieza)) {
    if (!opcion->isEnabled()) ExigeUsable(pieza);
    opcion->handle(&App(), FXSEL(SEL_COMMAND, FXWindow::ID_ACCEL), nullptr);
    return Refresca();
  }
  ExigeUsable(pieza);
  Clic(pieza, pieza->getWidth() / 2, pieza->getHeight() / 2);
}

void Escribe(FXWindow* campo, const std::string& texto) {
  Tecla(campo, KEY_a, CONTROLMASK);
  FXWindow* const ventana = campo->getShell();
  Teclea(ventana, KEY_Delete, 0, "");
  const FXString teclas(texto.c_str());
  for (FXint i = 0; i < teclas.length(); i = teclas.inc(i)) {
    const FXwchar letra = teclas.wc(i);
    if (letra == '\n') {
      Teclea(ventana, KEY_Return, 0, "\r");
    } else {
      Teclea(ventana, letra, 0,
             teclas.mid(i, teclas.inc(i) - i));  // the keys of Latin-1 are numbered like it
    }
  }
  Refresca();
}

void Escribe(FXWindow* raiz, const std::string& etiqueta, const std::string& texto) {
  Escribe(CampoJuntoA(raiz, etiqueta), texto);
}

void Tecla(FXWindow* pieza, FXuint codigo, FXuint estado, const std::string& texto) {
  ExigeUsable(pieza);
  pieza->setFocus();
  Teclea(pieza->getShell(), codigo, estado, texto.c_str());
  Refresca();
}

void EligeRenglon(FXList* lista, FXint renglon) {
  ExigeUsable(lista);
  lista->makeItemVisible(renglon);
  FXint y = lista->getYPosition();
  for (FXint i = 0; i < renglon; ++i) y += lista->getItemHeight(i);
  Clic(lista, 1, y + lista->getItemHeight(renglon) / 2);
  if (!lista->isItemCurrent(renglon)) throw std::runtime_error("el clic no llegó al renglón");
}

void EligeRenglon(FXFoldingList* lista, FXFoldingItem* renglon) {
  ExigeUsable(lista);
  lista->makeItemVisible(renglon);
  FXint y = lista->getYPosition() + lista->getHeader()->getHeight();
  for (FXFoldingItem* item = lista->getFirstItem(); item != renglon && item != nullptr;
       item = item->getBelow())
    y += lista->getItemHeight(item);
  Clic(lista, lista->getWidth() / 2, y + lista->getItemHeight(renglon) / 2);
  if (!lista->isItemCurrent(renglon)) throw std::runtime_error("el clic no llegó al renglón");
}

void PulsaDosVeces(FXTable* tabla, FXint renglon, FXint columna) {
  ExigeUsable(tabla);
  tabla->makePositionVisible(renglon, columna);
  FXint x = 0;
  FXint y = 0;
  while (x < tabla->getWidth() && tabla->colAtX(x) != columna) ++x;
  while (y < tabla->getHeight() && tabla->rowAtY(y) != renglon) ++y;
  Clic(tabla, x + 2, y + 2);
  Clic(tabla, x + 2, y + 2, 2);
  if (!tabla->isItemCurrent(renglon, columna)) throw std::runtime_error("el clic no llegó a la celda");
}

void Hojea(FXWindow* raiz, FXint pagina) {
  Todos<FXTabBook>(raiz).at(0)->setCurrent(pagina, TRUE);
  Bombea();
}

void EligeOpcion(FXComboBox* combo, FXint opcion) {
  ExigeUsable(combo);
  combo->setCurrentItem(opcion, TRUE);
  Refresca();
}

void Bombea(FXuint milisegundos) {
  BombeaHasta([] { return false; }, milisegundos);
  Desahoga();
}

bool BombeaHasta(const std::function<bool()>& condicion, FXuint milisegundos) {
  constexpr FXuint Paso = 5;
  FXuint acabado = 0;
  bool cumplida = false;
  FXuint resto = milisegundos;
  Reloj reloj([&] {
    Refresca();
    cumplida = condicion();
    acabado = cumplida || resto == 0;
    const FXuint paso = std::min(Paso, resto);
    resto -= paso;
    // Also at the end: after a timer the toolkit waits for the next, or for an event that may never come.
    reloj.Inicia(paso);
  });
  reloj.Inicia(0);
  App().runUntil(acabado);
  return cumplida;
}

Area::Area()
    : ventana_(new FXMainWindow(&App(), "Pruebas", nullptr, nullptr, DECOR_ALL, 0, 0, 1000, 800)),
      cliente_(new FXMDIClient(ventana_, LAYOUT_FILL)),
      menu_(new FXMDIMenu(ventana_, cliente_)) {
  ventana_->create();
  ventana_->show();
  Bombea();
}

Area::~Area() {
  dialogos_.clear();
  delete menu_;
  delete ventana_;
  Desahoga();
}

}  // namespace pruebas
