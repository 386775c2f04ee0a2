// Opening the form of the depreciation types on a large chart of accounts: against the toolkit's bare combo
// boxes filled with the same texts, and how it grows.
#include <iostream>
#include <memory>
#include <vector>

#include "bench/Cuentas.h"
#include "bench/Medida.h"
#include "catalogs/assets/TipoDepreciaciones_Window.h"
#include "db/Engine.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Servidor.h"

namespace {

constexpr int Cuantas[] = {5000, 20000};
constexpr int Vueltas = 15;

/// A dialog of nothing but combo boxes.
struct Llano : FXDialogBox {
  Llano(FXWindow* duenio, const std::vector<FXString>& textos) : FXDialogBox(duenio, "Cuentas") {
    auto* columna = new FXVerticalFrame(this, LAYOUT_FILL);
    for (int campo = 0; campo < TipoDepreciaciones_Window::NumCuentas; ++campo)
      letras.push_back(ComboLlano(columna, textos));
  }
  std::vector<std::unique_ptr<FXFont>> letras;
};

/// Seconds until the dialog that `haz` makes is on the screen; it goes outside the measure.
template <class Hace>
double Apertura(Hace haz) {
  FXMainWindow duenio(&pruebas::App(), "Medida", nullptr, nullptr, DECOR_ALL, 0, 0, 900, 600);
  duenio.create();
  duenio.show();
  std::unique_ptr<FXDialogBox> dialogo;
  return medida::SegundosDeProcesador([&] {
    dialogo = haz(&duenio);
    dialogo->create();
    dialogo->show(PLACEMENT_SCREEN);
    pruebas::App().runWhileEvents();
  });
}

double Abre() {
  return Apertura([](FXWindow* duenio) { return std::make_unique<TipoDepreciaciones_Window>(duenio); });
}

double AbreDe(int cuantas) {
  PonCarta(cuantas);
  return Abre();
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  std::cout.setstate(std::ios::failbit);  // what the form traces
  pruebas::BaseDatos base;
  const pruebas::Conexion conexion = base.Conecta();
  conn = conexion.get();
  Ejecuta("set search_path to norte");

  PonCarta(Cuantas[0]);
  const std::vector<FXString> textos = Textos();
  const auto abreLlano = [&] {
    return Apertura([&](FXWindow* duenio) { return std::make_unique<Llano>(duenio, textos); });
  };
  informe.Escribe("abrir los tipos de depreciación con 5000 cuentas",
                  medida::Compara(Vueltas, Abre, abreLlano), 1.3);
  informe.Escribe("abrirlos con cuatro veces las cuentas",
                  medida::Compara(
                      Vueltas, [] { return AbreDe(Cuantas[1]); }, [] { return AbreDe(Cuantas[0]); }),
                  4.8);
  return informe.Codigo();
}
