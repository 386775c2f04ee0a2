// What every form shares: the list of rows, the column of buttons and the five commands, written once.
//
// A form `class X_Window : public Forma<X_Window, Base>`, Base being FXMDIChild or FXDialogBox, states its
// title and size, its rows of fields, its message map, and (open to `friend Forma`):
//
//   auto& Actual()                      the global record on which the form works
//   auto& Filas()                       the cached map that the list shows, keyed by row
//   void Relee()                        the load of that catalogue
//   const char* Renglon(const Fila&)    the text of a row in the list
//   template <class V> void Clave(V v)  v(member, getter, setter) of the key
//   template <class V> void Datos(V v)  the same for every field, key included, in the order of the screen
//
// A form that differs in a step defines that step itself under the same name: calls go down to the form. Its
// constructor builds in this order: ArmaLista, ArmaGrupo with its rows (as often as there are groups),
// ArmaBotones, and Abre (a child form) or Comienza (a dialog). catalogs/simple/Monedas_Window.cpp is the
// model.
#pragma once

#include <fx.h>

#include <cstring>
#include <iostream>
#include <type_traits>

#include "app/sesion.h"
#include "framework/Campos.h"
#include "framework/Iconos.h"
#include "icons/iconos.h"
#include "widgets/cajas.h"

/// Do two keys, as their getters give them, name the same row?
inline bool MismaClave(const char* a, const char* b) { return strcmp(a, b) == 0; }
inline bool MismaClave(long a, long b) { return a == b; }

/// Passes the member of a field to a setter of the record; a number narrows to what the setter takes.
template <class Registro, class Clase, class Argumento, class Valor>
void Pasa(Registro& registro, void (Clase::*set)(Argumento), const Valor& valor) {
  if constexpr (std::is_same_v<Valor, FXString>) {
    (registro.*set)(valor.text());
  } else {
    (registro.*set)(static_cast<Argumento>(valor));
  }
}

template <class Ventana, class Base>
class Forma : public Base {
 public:
  enum {
    ID_AGREGAR = Base::ID_LAST,
    ID_FIND,
    ID_CLEAR,
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
  template <class... Argumentos>
  explicit Forma(Argumentos&&... argumentos) : Base(std::forward<Argumentos>(argumentos)...) {}
  ~Forma();

  /// The frame of the form with the list of rows on its left.
  void ArmaLista(const char* titulo);
  /// A titled box in the middle; the rows of fields go into the matrix that it gives.
  FXMatrix* ArmaGrupo(const char* titulo);
  /// The column of buttons on the right.
  void ArmaBotones();
  /// Lists the catalogue and blanks the form for a new record. A load that fails is shown and leaves an empty
  /// list.
  void Comienza();
  /// The last steps of a child form: Comienza, its line on standard output, its slot of mdiArray, which the
  /// form frees when it closes.
  void Abre(const char* traza, int ranura);

  /// Does a failed &Aceptar write "entrando a error"? A form that does hides this with true.
  static constexpr bool trazaErrores = false;

  FXList* lstFilas = nullptr;

 private:
  Ventana& Yo() { return static_cast<Ventana&>(*this); }
  FXButton* Boton(FXComposite* padre, const char* texto, const unsigned char* dibujo, FXSelector mensaje,
                  FXuint opciones);
  void TomaClave();
  void MuestraFilaDelRegistro();
  void MuestraFila(int fila);
  void Falla(const char* texto);

  FXHorizontalFrame* cuerpo = nullptr;
  FXVerticalFrame* grupos = nullptr;
  int ranura = -1;
};

template <class Ventana, class Base>
Forma<Ventana, Base>::~Forma() {
  if (ranura >= 0) mdiArray[ranura] = false;
}

template <class Ventana, class Base>
void Forma<Ventana, Base>::ArmaLista(const char* titulo) {
  // A child form keeps the keys of its buttons to itself: in the main window's table they would take those of
  // the menu away when the form closes.
  if constexpr (std::is_base_of_v<FXMDIChild, Base>) this->setAccelTable(new FXAccelTable);
  cuerpo = new FXHorizontalFrame(this, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  auto* grupo = new FXGroupBox(cuerpo, titulo, FRAME_GROOVE | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  auto* marco = new FXVerticalFrame(grupo, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0,
                                    0, 0, 0, 0, 0, 0);
  lstFilas = new FXList(marco, this, ID_LISTA,
                        LIST_BROWSESELECT | HSCROLLER_NEVER | LAYOUT_FIX_WIDTH | LAYOUT_FILL_Y, 0, 0, 150);
  grupos = new FXVerticalFrame(cuerpo, LAYOUT_FILL_X | LAYOUT_FILL_Y);
}

template <class Ventana, class Base>
FXMatrix* Forma<Ventana, Base>::ArmaGrupo(const char* titulo) {
  auto* grupo = new FXGroupBox(grupos, titulo, FRAME_GROOVE | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  return new FXMatrix(grupo, 2, MATRIX_BY_COLUMNS | LAYOUT_FILL_X | LAYOUT_FILL_Y);
}

template <class Ventana, class Base>
void Forma<Ventana, Base>::ArmaBotones() {
  auto* columna = new FXGroupBox(cuerpo, "", LAYOUT_FILL_X | LAYOUT_FILL_Y);
  Boton(columna, "&Nuevo", iconos::nuevo_icon, ID_CLEAR, BUTTON_DEFAULT);
  Boton(columna, "&Buscar", iconos::find_icon, ID_FIND, BUTTON_DEFAULT);
  Boton(columna, "&Borrar", iconos::borrar_icon, ID_BORRAR, BUTTON_DEFAULT);
  constexpr FXSelector cierre = std::is_base_of_v<FXMDIChild, Base> ? FXSelector(FXWindow::ID_MDI_CLOSE)
                                                                    : FXSelector(FXDialogBox::ID_CANCEL);
  Boton(columna, "&Cerrar", iconos::cerrar_icon, cierre, LAYOUT_SIDE_BOTTOM);
  Boton(columna, "&Aceptar", iconos::ok_icon, ID_AGREGAR, BUTTON_DEFAULT | LAYOUT_SIDE_BOTTOM);
}

template <class Ventana, class Base>
FXButton* Forma<Ventana, Base>::Boton(FXComposite* padre, const char* texto, const unsigned char* dibujo,
                                      FXSelector mensaje, FXuint opciones) {
  return new FXButton(padre, texto, icono(this->getApp(), dibujo), this, mensaje,
                      FRAME_RAISED | FRAME_THICK | ICON_BEFORE_TEXT | LAYOUT_FILL_X | opciones);
}

template <class Ventana, class Base>
void Forma<Ventana, Base>::Comienza() {
  try {
    Yo().Load();
  } catch (char* texto) {
    Falla(texto);
  }
  Yo().Clear();
  Yo().Actual().setIsNew(true);
}

template <class Ventana, class Base>
void Forma<Ventana, Base>::Abre(const char* traza, int ranuraPropia) {
  Comienza();
  std::cout << traza << std::endl;
  this->create();
  this->setFocus();
  ranura = ranuraPropia;
  mdiArray[ranura] = true;
}

template <class Ventana, class Base>
long Forma<Ventana, Base>::Load() {
  lstFilas->clearItems();
  Yo().Relee();
  for (const auto& [fila, registro] : Yo().Filas()) lstFilas->appendItem(Yo().Renglon(registro));
  return 1;
}

template <class Ventana, class Base>
void Forma<Ventana, Base>::Read() {
  Yo().Datos([this](auto& dato, auto get, auto) { dato.Pon((Yo().Actual().*get)()); });
}

template <class Ventana, class Base>
void Forma<Ventana, Base>::Update() {
  Yo().Datos([this](auto& dato, auto, auto set) { Pasa(Yo().Actual(), set, dato.valor); });
}

template <class Ventana, class Base>
void Forma<Ventana, Base>::Clear() {
  Yo().Datos([](auto& dato, auto, auto) { dato.Pon({}); });
}

template <class Ventana, class Base>
long Forma<Ventana, Base>::onCmdClear(FXObject*, FXSelector, void*) {
  Yo().Clear();
  Yo().Actual().setIsNew(true);
  return 1;
}

template <class Ventana, class Base>
long Forma<Ventana, Base>::onCmdFind(FXObject*, FXSelector, void*) {
  auto& registro = Yo().Actual();
  TomaClave();
  registro.Find();
  if (registro.IsNew()) {
    cajaInformacion(this, registro.clase(), "Registro NO encontrado");
    Yo().Clear();
  } else {
    Yo().Read();
    MuestraFilaDelRegistro();
  }
  return 1;
}

template <class Ventana, class Base>
long Forma<Ventana, Base>::onCmdLista(FXObject*, FXSelector, void*) {
  const auto fila = Yo().Filas().find(lstFilas->getCurrentItem());
  if (fila == Yo().Filas().end()) return 0;
  Yo().Actual() = fila->second;
  Yo().Read();
  Yo().Actual().setDataChanged(false);
  return 0;
}

template <class Ventana, class Base>
long Forma<Ventana, Base>::onCmdAgregar(FXObject*, FXSelector, void*) {
  auto& registro = Yo().Actual();
  try {
    Yo().Update();
    if (!registro.getDataChanged()) return 1;
    registro.Check();
    if (registro.IsNew()) {
      if (cajaPregunta(this, registro.clase(), "Registrar ?")) {
        registro.AddNew();
        Yo().Load();
        MuestraFilaDelRegistro();
      }
    } else if (cajaPregunta(this, registro.clase(), "Guardar cambios realizados ?")) {
      registro.Update();
      const int fila = lstFilas->getCurrentItem();
      Yo().Load();
      MuestraFila(fila);
    }
  } catch (char* texto) {
    if (Ventana::trazaErrores) std::cout << "entrando a error" << std::endl;
    Falla(texto);
  }
  return 1;
}

template <class Ventana, class Base>
long Forma<Ventana, Base>::onCmdBorrar(FXObject*, FXSelector, void*) {
  auto& registro = Yo().Actual();
  try {
    TomaClave();
    registro.Find();
    Yo().Read();
    if (registro.IsNew()) {
      Yo().Clear();
    } else if (cajaPregunta(this, registro.clase(), "Borrar el registro ?")) {
      registro.Delete();
      Yo().Load();
      Yo().Clear();
      registro.setIsNew(true);
    }
  } catch (char* texto) {
    Falla(texto);
  }
  return 1;
}

/// The key's field to the record.
template <class Ventana, class Base>
void Forma<Ventana, Base>::TomaClave() {
  Yo().Clave([this](auto& dato, auto, auto set) { Pasa(Yo().Actual(), set, dato.valor); });
}

/// Makes the record's row the current one, if the list has it.
template <class Ventana, class Base>
void Forma<Ventana, Base>::MuestraFilaDelRegistro() {
  Yo().Clave([this](auto&, auto get, auto) {
    for (const auto& [fila, registro] : Yo().Filas()) {
      if (MismaClave((registro.*get)(), (Yo().Actual().*get)())) return MuestraFila(fila);
    }
  });
}

template <class Ventana, class Base>
void Forma<Ventana, Base>::MuestraFila(int fila) {
  if (fila < 0 || fila >= lstFilas->getNumItems()) return;
  lstFilas->setCurrentItem(fila);
  lstFilas->makeItemVisible(fila);
}

/// Rolls back and shows a text that was thrown.
template <class Ventana, class Base>
void Forma<Ventana, Base>::Falla(const char* texto) {
  Yo().Actual().RollBackTransaction();
  FXWindow* duenio =
      this->id() != 0 ? this : this->getOwner();  // a form under construction is not on screen yet
  cajaError(duenio, "Error en Validación", texto);
}
