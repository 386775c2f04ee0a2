// The body of a form, whatever its catalogue: the list of rows, the boxes and pages of fields, the column of
// buttons, and the size that shows them whole.
#pragma once

#include <fx.h>

#include <functional>

#include "framework/Foco.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "widgets/Boton.h"

class CuerpoDeForma {
 public:
  /// What the pieces send to their form.
  struct Mensajes {
    FXSelector aceptar;
    FXSelector buscar;  // 0 in a form without &Buscar
    FXSelector nuevo;
    FXSelector borrar;
    FXSelector lista;
    FXSelector cierre;
  };

 protected:
  CuerpoDeForma() {}
  CuerpoDeForma(FXComposite* forma, const Mensajes& mensajes) : forma(forma), mensajes(mensajes) {}

  /// The frame of the form with the list of rows on its left, `ancho` points wide.
  void ArmaLista(const char* titulo, FXint ancho = 150);
  /// The frame of a form that lists no rows.
  void ArmaSinLista();
  /// The frame of a form that lists its rows in its own way: what it gives is on the left, `ancho` points
  /// wide, and takes the list.
  FXVerticalFrame* ArmaConMarco(FXint ancho);
  /// A box in the middle; the rows of fields go into the matrix that it gives.
  FXMatrix* ArmaGrupo(const char* titulo);
  /// A book of pages below the boxes in the middle, which sends `mensaje` when another page comes up.
  FXTabBook* ArmaLibro(FXSelector mensaje);
  /// A page of it.
  static FXVerticalFrame* ArmaPagina(FXTabBook* libro, const char* titulo);
  /// The rows of fields of a box or of a page.
  static FXMatrix* ArmaMatriz(FXComposite* padre, FXint columnas = 2,
                              FXuint opciones = LAYOUT_FILL_X | LAYOUT_FILL_Y);
  /// The column of buttons on the right.
  FXGroupBox* ArmaBotones();
  /// The same without any button yet.
  FXGroupBox* ArmaColumna();
  /// &Cerrar, at the bottom of the column.
  FXButton* ArmaCerrar(FXComposite* columna);
  /// A button of the column. One whose command closes the form is a plain FXButton.
  template <class Clase = BotonDeForma>
  FXButton* Boton(FXComposite* padre, const char* texto, const unsigned char* dibujo, FXSelector mensaje,
                  FXuint opciones) {
    return NuevoBoton<Clase>(padre, texto, icono(forma->getApp(), dibujo), forma, mensaje,
                             LAYOUT_FILL_X | opciones);
  }

  /// F5 runs this.
  void AlReleer(std::function<void()> accion) { cuerpo->AlReleer(std::move(accion)); }
  /// Gives a child form that exists room in the main window, which grows with it as far as the screen allows;
  /// where that is not enough, the form fills the main window. On a screen with larger letters than usual the
  /// form takes the size that shows it whole, if its own does not.
  void Acomoda();
  /// Keeps a dialog from being wider than the screen where the letters are larger than usual.
  void Estrecha();

  FXList* lstFilas = nullptr;

 private:
  void ArmaCuerpo();
  void ArmaMedio();

  FXComposite* forma = nullptr;
  Mensajes mensajes{};
  MarcoDeForma* cuerpo = nullptr;
  FXVerticalFrame* grupos = nullptr;
};
