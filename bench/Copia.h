// Forms opened beside bare windows: the same widgets made anew straight with the toolkit, from a look at a
// form that stands.
#pragma once

#include <fx.h>

#include <functional>
#include <memory>

#include "bench/Medida.h"
#include "tests/support/Pantalla.h"

/// Where forms open.
struct Escenario {
  Escenario() {
    ventana->create();
    ventana->show(PLACEMENT_SCREEN);
  }

  FXMainWindow* ventana =
      new FXMainWindow(&pruebas::App(), "Formas", nullptr, nullptr, DECOR_ALL, 0, 0, 1000, 800);
  FXMDIClient* area = new FXMDIClient(ventana, LAYOUT_FILL);
  FXMDIMenu* menu = new FXMDIMenu(ventana, area);
};

using LlenaLista = std::function<void(FXList*)>;

/// The bare window like `modelo`, one at a time: its frames, labels, buttons, fields, lists, pages and grids
/// in their styles, letters and drawings. Combo boxes, trees and grids come with the rows of the model's, a
/// list as `llena` fills it. It is created, with the keyboard in its first field as in every form: a user who
/// can type at once has an input context of the X server made for that field, whoever builds the window.
FXComposite* AbreLlana(Escenario& escenario, FXComposite* modelo, const LlenaLista& llena);

/// Processor time until the window that `abre` gives stands, laid out and up to date, that many times; each
/// is closed outside the measure, and what the server told about it is heard and painted there, or the queue
/// of that would grow and be what is measured. `mide` may be another clock, as medida::Segundos.
template <class Abridor, class Reloj>
double Aperturas(int veces, Abridor abre, Reloj mide) {
  double segundos = 0;
  while (veces-- > 0) {
    std::unique_ptr<FXComposite> ventana;
    segundos += mide([&] {
      ventana.reset(abre());
      ventana->create();
      ventana->show();
      ventana->layout();
      pruebas::App().forceRefresh();
    });
    ventana.reset();
    pruebas::App().runWhileEvents();
    pruebas::App().repaint();
  }
  return segundos;
}
template <class Abridor>
double Aperturas(int veces, Abridor abre) {
  return Aperturas(veces, abre, [](auto obra) { return medida::SegundosDeProcesador(obra); });
}
