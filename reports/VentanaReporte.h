// What the dialogs share that ask the server for a report and show it: a box of fields that ends with the
// option of all branches, three buttons, and the preview.
//
// A dialog `class X_Window : public VentanaReporte<X_Window>` builds its rows into `matriz`, then ends with
// Arma, and states (open to `friend VentanaReporte`):
//
//   static constexpr const char* archivo   what it writes
//   void Genera()                          writes it
//
// and the commands of its first button (onCmdImprime) and of the button beside its first field. Its message
// map is mapaDeReporte.
#pragma once

#include <fx.h>

#include <iostream>

#include "db/Engine.h"
#include "framework/Campos.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "reports/Preview_Window.h"
#include "widgets/Boton.h"

template <class Ventana>
class VentanaReporte : public FXDialogBox {
 public:
  enum {
    ID_IMPRIME = FXDialogBox::ID_LAST,
    ID_CONSULTA,
    ID_ELIGE,  // the button beside the first field
    ID_SALIR,
    ID_LAST,
  };

  /// &Consulta: writes the report and shows it.
  long onCmdConsulta(FXObject*, FXSelector, void*);
  /// Refuses a close request from outside.
  long onCmdQuit(FXObject*, FXSelector, void*) { return 1; }

  /// The user can type at once.
  void create() override {
    FXDialogBox::create();
    primero->setFocus();
  }

 protected:
  VentanaReporte() {}
  VentanaReporte(FXWindow* duenio, const char* titulo);

  /// The last row and the buttons, the first of which reads `imprime`. `campo` is where the user begins.
  void Arma(const char* imprime, FXTextField* campo);

  /// Executes a statement, its answer in `res`. A failure is not looked at: it has no rows.
  static void EjecutaTrazando(const char* sql) {
    std::cout << sql << std::endl;
    Ejecuta(sql);
  }

  bool Consolidado() const { return consolidado->getCheck() != FALSE; }

  FXMatrix* matriz = nullptr;

 private:
  void Boton(FXComposite* padre, const char* texto, FXIcon* dibujo, FXSelector mensaje, FXuint opciones = 0);

  FXHorizontalFrame* cuerpo = nullptr;
  FXCheckButton* consolidado = nullptr;
  FXTextField* primero = nullptr;
};

/// The message map of such a dialog, in which the button beside the first field runs `elige`.
template <class Ventana, long (Ventana::*elige)(FXObject*, FXSelector, void*)>
constexpr typename Ventana::FXMapEntry mapaDeReporte[] = {
    FXMAPFUNC(SEL_COMMAND, Ventana::ID_IMPRIME, Ventana::onCmdImprime),
    FXMAPFUNC(SEL_COMMAND, Ventana::ID_CONSULTA, Ventana::onCmdConsulta),
    {FXSEL(SEL_COMMAND, Ventana::ID_ELIGE), FXSEL(SEL_COMMAND, Ventana::ID_ELIGE), elige},
    FXMAPFUNC(SEL_CLOSE, 0, Ventana::onCmdQuit),
    FXMAPFUNC(SEL_SIGNAL, Ventana::ID_SALIR, Ventana::onCmdQuit),
};

template <class Ventana>
VentanaReporte<Ventana>::VentanaReporte(FXWindow* duenio, const char* titulo)
    : FXDialogBox(duenio, titulo, DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE, 0, 0, 0, 0, 0, 0, 0, 0, 4, 4),
      cuerpo(new FXHorizontalFrame(this, LAYOUT_FILL_X | LAYOUT_FILL_Y)) {
  auto* columna = new FXVerticalFrame(cuerpo, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  auto* grupo = new FXGroupBox(columna, FXString::null, FRAME_GROOVE | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  matriz = new FXMatrix(grupo, 2, MATRIX_BY_COLUMNS | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4, 2, 2);
}

template <class Ventana>
void VentanaReporte<Ventana>::Arma(const char* imprime, FXTextField* campo) {
  primero = campo;
  consolidado = campoCasilla(matriz, "CONSOLIDADO:");
  auto* botones = new FXVerticalFrame(cuerpo, LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4, 0, 0);
  Boton(botones, imprime, nullptr, ID_IMPRIME, BUTTON_DEFAULT);
  Boton(botones, "&Consulta", icono(getApp(), iconos::find_icon), ID_CONSULTA, BUTTON_DEFAULT);
  Boton(botones, "&Cerrar", icono(getApp(), iconos::cerrar_icon), ID_CANCEL, LAYOUT_SIDE_BOTTOM);
}

template <class Ventana>
void VentanaReporte<Ventana>::Boton(FXComposite* padre, const char* texto, FXIcon* dibujo, FXSelector mensaje,
                                    FXuint opciones) {
  NuevoBoton(padre, texto, dibujo, this, mensaje, LAYOUT_FILL_X | opciones);
}

template <class Ventana>
long VentanaReporte<Ventana>::onCmdConsulta(FXObject*, FXSelector, void*) {
  getApp()->beginWaitCursor();
  static_cast<Ventana*>(this)->Genera();
  getApp()->endWaitCursor();
  Preview_Window(this, Ventana::archivo).execute(PLACEMENT_SCREEN);
  return 1;
}
