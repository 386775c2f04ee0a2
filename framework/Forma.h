// What every form shares: the five commands on the record of its catalogue, written once. Its body is
// framework/CuerpoDeForma.h.
//
// A form `class X_Window : public Forma<X_Window, Base>`, Base being FXMDIChild or FXDialogBox, states its
// title and size, its rows of fields, its message map (MAPA_FORMA), and (open to `friend Forma`):
//
//   auto& Actual()          the global record on which the form works, which outlives it
//   auto& Filas()           the cached container that the list shows: a map keyed by row, or a `lista`
//   void Relee()            the load of that catalogue
//   void Prepara()          the loads that its combo boxes need, if any, and what they offer then
//   auto Datos()            std::tuple of Liga(member, getter, setter) for every field in the order of the
//                           screen, the key first; where it has several fields, camposDeClave of them
//
// The header of a form declares that record, and behind it the text into which its rows are written, where
// they go by way of one (EnBorrador). A form without &Buscar names SinBuscar as the third argument. A form
// that differs in a step defines that step itself under the same name: calls go down to the form. Its
// constructor builds in this order: ArmaLista (or ArmaSinLista), ArmaGrupo with its rows (as often as there
// are groups), ArmaBotones, and Abre (a child form) or Comienza (a dialog). catalogs/simple/Grupo_Window.cpp
// is the model of a child form, Modulo_Window.cpp of a dialog.
#pragma once

#include <fx.h>

#include <iostream>
#include <tuple>
#include <type_traits>
#include <utility>

#include "app/sesion.h"
#include "framework/Campos.h"
#include "framework/CuerpoDeForma.h"
#include "framework/Filas.h"
#include "icons/iconos.h"
#include "widgets/TextoAcotado.h"
#include "widgets/cajas.h"

/// Passes the member of a field to a setter of the record; a number narrows to what the setter takes.
template <class Registro, class Clase, class Argumento, class Valor>
void Pasa(Registro& registro, void (Clase::*set)(Argumento), const Valor& valor) {
  if constexpr (std::is_same_v<Valor, FXString>) {
    (registro.*set)(valor.text());
  } else {
    (registro.*set)(static_cast<Argumento>(valor));
  }
}

/// A field of a form with the getter and the setter of its column.
template <class Dato, class Get, class Set>
struct Ligado {
  Dato& dato;
  Get get;
  Set set;
};
template <class Dato, class Get, class Set>
Ligado<Dato, Get, Set> Liga(Dato& dato, Get get, Set set) {
  return {dato, get, set};
}

enum Busqueda { ConBuscar, SinBuscar };

template <class Ventana, class Base, Busqueda busqueda = ConBuscar>
class Forma : public Base, protected CuerpoDeForma {
 public:
  using Marco = Base;

  /// One after the other in the order of the message map; a form without &Buscar has no ID_FIND. A form with
  /// messages of its own numbers them from ID_LISTA + 1, with an ID_SALIR of its own behind them.
  enum {
    ID_AGREGAR = Base::ID_LAST,
    ID_FIND,
    ID_CLEAR = busqueda == ConBuscar ? ID_FIND + 1 : ID_FIND,
    ID_BORRAR,
    ID_LISTA,
    ID_SALIR,
    ID_LAST,
  };

  /// &Aceptar, the one command that saves: asks, and inserts a new record or updates a known one. Nothing
  /// happens when no field was changed.
  long onCmdAgregar(FXObject*, FXSelector, void*);
  /// &Buscar: shows the row with the key in the key's field.
  long onCmdFind(FXObject*, FXSelector, void*);
  /// &Nuevo: blanks the window for a new record.
  long onCmdClear(FXObject*, FXSelector, void*);
  /// &Borrar: asks, and deletes the row with the key in the key's field.
  long onCmdBorrar(FXObject*, FXSelector, void*);
  /// A row chosen in the list becomes the record.
  long onCmdLista(FXObject*, FXSelector, void*);
  /// The user can type at once.
  void create() override {
    Base::create();
    Yo().EnfocaClave();
  }
  /// Closing asks nothing and saves nothing.
  long onCmdQuit(FXObject*, FXSelector, void*) { return 1; }

  /// Rereads the catalogue from the server and lists it. Throws what the load throws.
  long Load();
  /// Record to window.
  void Read();
  /// Window to record, field by field.
  void Update();
  /// Blanks the window; the record stays as it is.
  void Clear();

 protected:
  Forma() {}
  /// Puts the keyboard into the field of the key, its text selected.
  void EnfocaClave();
  /// A child of the main window's area.
  Forma(FXMDIClient* area, FXMDIMenu* menu, const char* titulo, const FXRectangle& lugar)
      : Base(area, titulo, nullptr, menu, 0, lugar.x, lugar.y, lugar.w, lugar.h),
        CuerpoDeForma(this, DeLasPiezas(FXWindow::ID_MDI_CLOSE)) {}
  /// A dialog.
  Forma(FXWindow* duenio, const char* titulo)
      : Base(duenio, titulo, DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE),
        CuerpoDeForma(this, DeLasPiezas(FXDialogBox::ID_CANCEL)) {}
  ~Forma();

  /// The frame of a form with a list, see CuerpoDeForma; F5 rereads it.
  void ArmaLista(const char* titulo, FXint ancho = 150) {
    CuerpoDeForma::ArmaLista(titulo, ancho);
    AlReleer([this] { Relectura(); });
  }
  FXVerticalFrame* ArmaConMarco(FXint ancho) {
    FXVerticalFrame* const marco = CuerpoDeForma::ArmaConMarco(ancho);
    AlReleer([this] { Relectura(); });
    return marco;
  }
  /// Lists the catalogue and blanks the form for a new record. A load that fails is shown and leaves an empty
  /// list.
  void Comienza();
  /// What a form loads when it opens, ahead of its own catalogue; may throw what a load throws.
  void Prepara() {}
  /// The last steps of a child form: Comienza, its line on standard output, its slot of mdiArray, which the
  /// form frees when it closes.
  void Abre(const char* traza, int ranura);

  /// The text of a row in the list: its description, which is the field behind the key.
  template <class Fila>
  const char* Renglon(const Fila& fila) {
    return (fila.*std::get<1>(Yo().Datos()).get)();
  }
  /// The same by way of a form's scratch buffer, to whose width it is cut.
  template <size_t N>
  static const char* EnBorrador(char (&borrador)[N], const char* texto) {
    CopiaTexto(borrador, texto);
    return borrador;
  }

  /// What &Aceptar asks ahead of an insert, and the insert. A form with another one hides both.
  const char* PreguntaDeAlta() { return "Registrar ?"; }
  void Inserta() { Yo().Actual().AddNew(); }
  /// The current row, and one made current, by its position among `Filas`; a position out of it does nothing.
  /// A form that lists its rows in its own way hides both.
  int FilaActual() { return lstFilas->getCurrentItem(); }
  void MuestraFila(int fila);

  /// Does a failed &Aceptar write "entrando a error"? A form that does hides this with true.
  static constexpr bool trazaErrores = false;
  /// Does &Buscar make the row that it found the current one? A form that leaves the list alone hides this
  /// with false.
  static constexpr bool eligeHallado = true;
  /// Of how many fields is the key? Those of &Buscar and &Borrar. A form with more than one hides this.
  static constexpr size_t camposDeClave = 1;

  /// Do two records have the same key? By it a saved row is found again in the list. A form whose key has no
  /// field says so itself.
  template <class Registro>
  bool MismaFila(const Registro& una, const Registro& otra) {
    bool misma = false;
    ConClave(
        [&](const auto&... campo) { misma = (MismaClave((una.*campo.get)(), (otra.*campo.get)()) && ...); });
    return misma;
  }
  /// Shows what `registro` holds, and passes what the fields hold to it.
  template <class Registro>
  void Muestra(const Registro& registro) {
    CadaDato([&](const auto& campo) { campo.dato.Pon((registro.*campo.get)()); });
  }
  template <class Registro>
  void Recoge(Registro& registro) {
    CadaDato([&](const auto& campo) { Pasa(registro, campo.set, campo.dato.Valor()); });
  }
  /// Rolls back and shows a text that was thrown.
  void Falla(const char* texto);

 private:
  static constexpr Mensajes DeLasPiezas(FXSelector cierre) {
    return {ID_AGREGAR, busqueda == ConBuscar ? FXSelector(ID_FIND) : 0, ID_CLEAR, ID_BORRAR, ID_LISTA,
            cierre};
  }
  Ventana& Yo() { return static_cast<Ventana&>(*this); }
  /// Calls `accion` with the fields of the key.
  template <class Accion>
  void ConClave(Accion accion) {
    ConPrimeros(accion, std::make_index_sequence<Ventana::camposDeClave>());
  }
  template <class Accion, size_t... cuales>
  void ConPrimeros(Accion accion, std::index_sequence<cuales...>) {
    const auto datos = Yo().Datos();
    accion(std::get<cuales>(datos)...);
  }
  template <class Accion>
  void CadaDato(Accion accion) {
    std::apply([&](const auto&... ligado) { (accion(ligado), ...); }, Yo().Datos());
  }
  void Relectura();
  void TomaClave();
  void MuestraFilaDelRegistro();

  int ranura = -1;
};

template <class Ventana, class Base, Busqueda busqueda>
Forma<Ventana, Base, busqueda>::~Forma() {
  if (ranura >= 0) mdiArray[ranura] = false;
}

template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::Comienza() {
  try {
    Yo().Prepara();
    Yo().Load();
  } catch (char* texto) {
    Falla(texto);
  }
  Yo().Clear();
  Yo().Actual().setIsNew(true);
  if constexpr (std::is_same_v<Base, FXDialogBox>) Estrecha();
}

template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::Abre(const char* traza, int ranuraPropia) {
  Comienza();
  std::cout << traza << std::endl;
  this->create();
  Acomoda();
  this->setFocus();
  ranura = ranuraPropia;
  mdiArray[ranura] = true;
}

template <class Ventana, class Base, Busqueda busqueda>
long Forma<Ventana, Base, busqueda>::Load() {
  lstFilas->clearItems();
  Yo().Relee();
  CadaFila(Yo().Filas(), [this](int, const auto& fila) { lstFilas->appendItem(Yo().Renglon(fila)); });
  return 1;
}

/// Rereads the list, whose current row stays where it is found again. Fields and record are left alone.
template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::Relectura() {
  const FXint fila = lstFilas != nullptr ? lstFilas->getCurrentItem() : -1;
  const FXString texto = fila >= 0 ? lstFilas->getItemText(fila) : FXString::null;
  try {
    Yo().Load();
    if (fila >= 0) MuestraFila(lstFilas->findItem(texto, fila));
  } catch (char* error) {
    Yo().Falla(error);
  }
}

template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::Read() {
  Muestra(Yo().Actual());
}

template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::Update() {
  Recoge(Yo().Actual());
}

template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::Clear() {
  CadaDato([](const auto& campo) { campo.dato.Vacia(); });
}

template <class Ventana, class Base, Busqueda busqueda>
long Forma<Ventana, Base, busqueda>::onCmdClear(FXObject*, FXSelector, void*) {
  Yo().Clear();
  Yo().Actual().setIsNew(true);
  Yo().EnfocaClave();
  return 1;
}

template <class Ventana, class Base, Busqueda busqueda>
long Forma<Ventana, Base, busqueda>::onCmdFind(FXObject*, FXSelector, void*) {
  auto& registro = Yo().Actual();
  TomaClave();
  registro.Find();
  if (registro.IsNew()) {
    cajaInformacion(this, registro.clase(), "Registro NO encontrado");
    Yo().Clear();
    Yo().EnfocaClave();
  } else {
    Yo().Read();
    if (Ventana::eligeHallado) MuestraFilaDelRegistro();
  }
  return 1;
}

template <class Ventana, class Base, Busqueda busqueda>
long Forma<Ventana, Base, busqueda>::onCmdLista(FXObject*, FXSelector, void*) {
  if (!CopiaFila(Yo().Filas(), lstFilas->getCurrentItem(), Yo().Actual())) return 0;
  Yo().Read();
  Yo().Actual().setDataChanged(false);
  return 0;
}

template <class Ventana, class Base, Busqueda busqueda>
long Forma<Ventana, Base, busqueda>::onCmdAgregar(FXObject*, FXSelector, void*) {
  auto& registro = Yo().Actual();
  try {
    Yo().Update();
    if (!registro.getDataChanged()) return 1;
    registro.Check();
    if (registro.IsNew()) {
      if (cajaPregunta(this, registro.clase(), Yo().PreguntaDeAlta())) {
        Yo().Inserta();
        Yo().Load();
        MuestraFilaDelRegistro();
      }
    } else if (cajaPregunta(this, registro.clase(), "Guardar cambios realizados ?")) {
      registro.Update();
      const int fila = Yo().FilaActual();
      Yo().Load();
      Yo().MuestraFila(fila);
    }
  } catch (char* texto) {
    if (Ventana::trazaErrores) std::cout << "entrando a error" << std::endl;
    Falla(texto);
  }
  return 1;
}

template <class Ventana, class Base, Busqueda busqueda>
long Forma<Ventana, Base, busqueda>::onCmdBorrar(FXObject*, FXSelector, void*) {
  auto& registro = Yo().Actual();
  try {
    TomaClave();
    registro.Find();
    Yo().Read();
    if (registro.IsNew()) {
      Yo().Clear();
      Yo().EnfocaClave();
    } else if (cajaPreguntaBorrar(this, registro.clase())) {
      registro.Delete();
      Yo().Load();
      Yo().Clear();
      registro.setIsNew(true);
      Yo().EnfocaClave();
    }
  } catch (char* texto) {
    Falla(texto);
  }
  return 1;
}

template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::EnfocaClave() {
  DaTeclado(std::get<0>(Yo().Datos()).dato.campo);
}

/// The fields of the key to the record.
template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::TomaClave() {
  ConClave([this](const auto&... campo) { (Pasa(Yo().Actual(), campo.set, campo.dato.Valor()), ...); });
}

/// Makes the record's row the current one, if the list has it.
template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::MuestraFilaDelRegistro() {
  int suya = -1;
  CadaFila(Yo().Filas(), [&](int posicion, const auto& fila) {
    if (suya < 0 && Yo().MismaFila(fila, Yo().Actual())) suya = posicion;
  });
  Yo().MuestraFila(suya);
}

template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::MuestraFila(int fila) {
  if (fila < 0 || fila >= lstFilas->getNumItems()) return;
  lstFilas->setCurrentItem(fila);
  lstFilas->makeItemVisible(fila);
}

template <class Ventana, class Base, Busqueda busqueda>
void Forma<Ventana, Base, busqueda>::Falla(const char* texto) {
  Yo().Actual().RollBackTransaction();
  FXWindow* duenio =
      this->id() != 0 ? this : this->getOwner();  // a form under construction is not on screen yet
  cajaError(duenio, "Error en Validación", texto);
}

/// The message map of the form `Clase` with these entries (MANDO, FXMAPFUNC), and its class record.
// clang-format off
#define MAPA_PROPIO(Clase, ...)                                           \
  FXDEFMAP(Clase) Clase##Map[] = {__VA_ARGS__};                           \
  FXIMPLEMENT(Clase, Clase::Marco, Clase##Map, ARRAYNUMBER(Clase##Map))

/// The same with the entries of every form, whose list runs `manejador`. Entries of its own follow these two
/// and stand behind the list's.
#define MAPA_FORMA(Clase, manejador, ...)                                 \
  MAPA_PROPIO(Clase,                                                      \
      MANDO(Clase, ID_AGREGAR, onCmdAgregar),                             \
      MANDO(Clase, ID_FIND, onCmdFind),                                   \
      MAPA_FORMA_RESTO(Clase, manejador, __VA_ARGS__))

/// The same for a form without &Buscar.
#define MAPA_FORMA_CORTA(Clase, manejador, ...)                           \
  MAPA_PROPIO(Clase,                                                      \
      MANDO(Clase, ID_AGREGAR, onCmdAgregar),                             \
      MAPA_FORMA_RESTO(Clase, manejador, __VA_ARGS__))

/// An entry of a map: the command `mensaje` runs `manejador`.
#define MANDO(Clase, mensaje, manejador) FXMAPFUNC(SEL_COMMAND, Clase::mensaje, Clase::manejador)

#define MAPA_FORMA_RESTO(Clase, manejador, ...)                           \
      MANDO(Clase, ID_CLEAR, onCmdClear),                                 \
      MANDO(Clase, ID_BORRAR, onCmdBorrar),                               \
      MANDO(Clase, ID_LISTA, manejador) __VA_OPT__(,)                     \
      __VA_ARGS__,                                                        \
      FXMAPFUNC(SEL_CLOSE, 0, Clase::onCmdQuit),                          \
      FXMAPFUNC(SEL_SIGNAL, Clase::ID_SALIR, Clase::onCmdQuit)
// clang-format on
