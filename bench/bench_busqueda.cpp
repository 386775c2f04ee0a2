// The search for an account, and a form full of account fields, on charts of many accounts: how they grow,
// and what they cost against the toolkit's bare widgets with the same texts in them.
#include <memory>
#include <string>
#include <vector>

#include "bench/Medida.h"
#include "catalogs/finance/Busqueda_Window.h"
#include "catalogs/finance/CampoCuenta.h"
#include "tests/support/Pantalla.h"

namespace {

constexpr int Pocas = 2000;
constexpr int Muchas = 20000;
constexpr int Campos = 28;  // accounts of the largest form
constexpr int Teclas = 20;  // at each turn: one alone is too short to measure
constexpr int Vueltas = 11;

FXWindow* Duenio() { return pruebas::App().getRootWindow(); }

void PonCarta(int cuantas) {
  Catalogo::Catalogo_Ctas.clear();
  cCatalogo_Ctas cuenta;
  for (int fila = 0; fila < cuantas; ++fila) {
    cuenta.setCuentaID((std::to_string(100000 + fila) + "-00-00-00-0000").c_str());
    cuenta.setCuentaNombre(("Depósitos de ahorro: " + std::to_string(fila)).c_str());
    Catalogo::Catalogo_Ctas.emplace(fila, cuenta);
  }
}

/// The rows of the present chart, as a list shows them.
std::vector<FXString> Textos(size_t digitos) {
  std::vector<FXString> textos;
  for (const auto& [fila, cuenta] : Catalogo::Catalogo_Ctas)
    textos.push_back(RenglonDeCuenta(cuenta, digitos, " "));
  return textos;
}

/// The search dialog with its field within reach.
struct Busqueda : Busqueda_Window {
  Busqueda() : Busqueda_Window(Duenio()) {}
  using Busqueda_Window::txtBuscar;
};

/// Its widgets, bare.
struct BusquedaLlana : FXDialogBox {
  explicit BusquedaLlana(const std::vector<FXString>& textos) : FXDialogBox(Duenio(), "", DECOR_BORDER) {
    auto* cuerpo = new FXHorizontalFrame(this, LAYOUT_FILL);
    auto* matriz = new FXMatrix(cuerpo, 3, MATRIX_BY_COLUMNS);
    for (const char* etiqueta : {"Buscar: ", "Filtro:"}) {
      new FXLabel(matriz, etiqueta);
      new FXTextField(matriz, 20);
      new FXButton(matriz, etiqueta);
    }
    auto* lista = new FXList(new FXVerticalFrame(cuerpo, LAYOUT_FILL), nullptr, 0,
                             LIST_BROWSESELECT | HSCROLLER_NEVER | LAYOUT_FIX_WIDTH, 0, 0, 350);
    lista->setNumVisible(10);
    lista->setFont(&letra);
    for (const FXString& texto : textos) lista->appendItem(texto);
  }
  FXFont letra{&pruebas::App(), "helvica", 8};
};

const std::vector<Cuentas::Fila> tabla(Campos, Cuentas::Fila{"Cuenta:"});

/// A window with the accounts of the largest form.
struct Forma : FXDialogBox {
  Forma() : FXDialogBox(Duenio(), "") {
    cuentas.Arma(new FXMatrix(this, 2, MATRIX_BY_COLUMNS), 0, Campos - 1);
  }
  Cuentas cuentas{this, 1000, 2000, tabla};
};

/// The same with bare combo boxes.
struct FormaLlana : FXDialogBox {
  FormaLlana() : FXDialogBox(Duenio(), "") {
    auto* matriz = new FXMatrix(this, 2, MATRIX_BY_COLUMNS);
    for (int campo = 0; campo < Campos; ++campo) {
      new FXLabel(matriz, "Cuenta:");
      combos.push_back(new FXComboBox(matriz, 2, nullptr, 0, COMBOBOX_STATIC));
      new FXButton(matriz, "");
    }
  }
  void Llena(const std::vector<FXString>& textos) {
    for (FXComboBox* combo : combos)
      for (const FXString& texto : textos) combo->appendItem(texto);
  }
  std::vector<FXComboBox*> combos;
};

/// Puts a window on the screen, laid out and painted.
void Muestra(FXDialogBox& ventana) {
  ventana.create();
  ventana.show(PLACEMENT_SCREEN);
  pruebas::App().runWhileEvents();
}

/// Seconds until the dialog that `abre` makes is on the screen; it is closed outside the measure.
template <class Abre>
double Apertura(Abre abre) {
  decltype(abre()) ventana;
  return medida::SegundosDeProcesador([&] {
    ventana = abre();
    Muestra(*ventana);
  });
}

double Abre() { return Apertura(std::make_unique<Busqueda>); }

double AbreDe(int cuantas) {
  PonCarta(cuantas);
  return Abre();
}

double AbreLlana(const std::vector<FXString>& textos) {
  return Apertura([&] { return std::make_unique<BusquedaLlana>(textos); });
}

/// Takes what the processor has in its caches away.
void Enfria() {
  static std::vector<char> nada(64 << 20);
  for (size_t linea = 0; linea < nada.size(); linea += 64) ++nada[linea];
}

/// Seconds of keys that only the last account answers. Each finds the chart out of the processor's caches, as
/// after the pause before a key: otherwise a small chart would stay there, and a large one could not.
double TeclaDe(int cuantas) {
  PonCarta(cuantas);
  Busqueda dialogo;
  Muestra(dialogo);
  dialogo.txtBuscar->setText(Catalogo::Catalogo_Ctas.rbegin()->second.getCuentaID());
  double segundos = 0;
  for (int tecla = 0; tecla < Teclas; ++tecla) {
    Enfria();
    segundos += medida::SegundosDeProcesador(
        [&] { dialogo.handle(dialogo.txtBuscar, FXSEL(SEL_CHANGED, Busqueda::ID_BUSCAR), nullptr); });
  }
  return segundos;
}

double Llena() {
  Forma forma;
  return medida::SegundosDeProcesador([&] { forma.cuentas.Llena(); });
}

double LlenaLlana(const std::vector<FXString>& textos) {
  FormaLlana forma;
  return medida::SegundosDeProcesador([&] { forma.Llena(textos); });
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  informe.Escribe("abrir la búsqueda de diez veces las cuentas",
                  medida::Compara(
                      Vueltas, [] { return AbreDe(Muchas); }, [] { return AbreDe(Pocas); }),
                  12);
  informe.Escribe("una tecla en diez veces las cuentas",
                  medida::Compara(
                      Vueltas, [] { return TeclaDe(Muchas); }, [] { return TeclaDe(Pocas); }),
                  12);
  for (const int cuantas : {Pocas, Muchas}) {
    PonCarta(cuantas);
    const std::vector<FXString> textos = Textos(24);
    informe.Escribe(("abrir la búsqueda de " + std::to_string(cuantas) + " cuentas").c_str(),
                    medida::Compara(Vueltas, Abre, [&] { return AbreLlana(textos); }), 1.3);
  }
  for (const int cuantas : {500, 5000, 20000}) {
    PonCarta(cuantas);
    const std::vector<FXString> textos = Textos(18);
    informe.Escribe(("llenar 28 campos con " + std::to_string(cuantas) + " cuentas").c_str(),
                    medida::Compara(Vueltas, Llena, [&] { return LlenaLlana(textos); }), 1.3);
  }
  return informe.Codigo();
}
