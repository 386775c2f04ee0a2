// Opening the form of the types of loan on small and large charts of accounts: against the toolkit's bare
// combo boxes filled with the same texts, and how it grows.
#include <memory>
#include <string>
#include <vector>

#include "bench/Cuentas.h"
#include "bench/Medida.h"
#include "catalogs/finance/TipoPrestamo_Window.h"
#include "db/Engine.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Servidor.h"

namespace {

constexpr int Cuantas[] = {500, 5000, 20000};
constexpr int Vueltas = 11;

/// A main window with an area for child forms.
struct Ventana : FXMainWindow {
  Ventana() : FXMainWindow(&pruebas::App(), "Medida", nullptr, nullptr, DECOR_ALL, 0, 0, 900, 600) {
    create();
    show();
  }
  ~Ventana() override { delete menu; }
  FXMDIClient* const area = new FXMDIClient(this, LAYOUT_FILL);
  FXMDIMenu* const menu = new FXMDIMenu(this, area);
};

/// A child form of nothing but combo boxes, on pages and in the letters of the form's.
struct Llana : FXMDIChild {
  Llana(FXMDIClient* area, FXMDIMenu* menu, const std::vector<FXString>& textos)
      : FXMDIChild(area, "Cuentas", nullptr, menu, 0, 0, 0, 815, 450) {
    constexpr int paginas = 4;
    auto* libro = new FXTabBook(this, nullptr, 0, LAYOUT_FILL);
    for (int pagina = 0; pagina < paginas; ++pagina) {
      new FXTabItem(libro, "Cuentas");
      auto* columna = new FXVerticalFrame(libro, FRAME_RAISED);
      for (int campo = 0; campo < TipoPrestamo_Window::NumCuentas / paginas; ++campo) {
        letras.push_back(ComboLlano(columna, textos));
      }
    }
    create();
  }
  std::vector<std::unique_ptr<FXFont>> letras;
};

/// Seconds until the child form that `abre` makes is on the screen; it is closed outside the measure.
template <class Abre>
double Apertura(Abre abre) {
  Ventana ventana;
  return medida::SegundosDeProcesador([&] {
    abre(ventana)->show();
    pruebas::App().runWhileEvents();
  });
}

double Abre() {
  return Apertura([](Ventana& ventana) { return new TipoPrestamo_Window(ventana.area, ventana.menu); });
}

double AbreDe(int cuantas) {
  PonCarta(cuantas);
  return Abre();
}

double AbreLlana(const std::vector<FXString>& textos) {
  return Apertura([&](Ventana& ventana) { return new Llana(ventana.area, ventana.menu, textos); });
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  std::cout.setstate(std::ios::failbit);  // what the form traces
  pruebas::BaseDatos base;
  const pruebas::Conexion conexion = base.Conecta();
  conn = conexion.get();
  Ejecuta("set search_path to norte");
  catalogo.LoadTipoMovimiento();
  catalogo.LoadFinalidades();
  catalogo.LoadCalculos();

  for (const int cuantas : Cuantas) {
    PonCarta(cuantas);
    const std::vector<FXString> textos = Textos();
    informe.Escribe(("abrir los tipos de préstamo con " + std::to_string(cuantas) + " cuentas").c_str(),
                    medida::Compara(Vueltas, Abre, [&] { return AbreLlana(textos); }), 1.3);
  }
  informe.Escribe("abrirlos con cuatro veces las cuentas",
                  medida::Compara(
                      Vueltas, [] { return AbreDe(Cuantas[2]); }, [] { return AbreDe(Cuantas[1]); }),
                  4.8);
  return informe.Codigo();
}
