// What a long line to the server costs: how many statements the login, the opening of each form, a save, a
// search and a deletion take, and how many seconds on lines of so many milliseconds there and back. Prints a
// table, as it stands in docs/escala.md; there is no bare side and no limit.
#include <fx.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/Caja.h"
#include "app/sesion.h"
#include "bench/Medida.h"
#include "catalogs/simple/Monedas_Window.h"
#include "db/Apertura.h"
#include "db/Login_Window.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"
#include "tests/support/Proceso.h"
#include "tests/support/Servidor.h"
#include "tests/support/Ventana.h"

namespace {

using namespace pruebas;

constexpr int Demoras[] = {0, 20, 50, 100};  // milliseconds there and back

const struct {
  const char* que;
  FXuint opcion;
} Formas[] = {
    {"Monedas", Caja::ID_MONEDAS},
    {"Bancos", Caja::ID_BANCOS},
    {"Usuarios", Caja::ID_USUARIOS},
    {"Tipos de movimiento", Caja::ID_TIPOMOVIMIENTO},
    {"Tipos de préstamo", Caja::ID_TIPOPRESTAMOS},
    {"Tipos de garantía", Caja::ID_TIPOGARANTIA},
    {"Estados del crédito", Caja::ID_ESTADOSCREDITO},
    {"Finalidades", Caja::ID_FINALIDADES},
    {"Tipos de movimiento de bancos", Caja::ID_TIPOMOVIBANCOS},
    {"Tipos de inversión", Caja::ID_TIPOINVERSION},
    {"Estados", Caja::ID_ESTADOSMEX},
    {"Ciudades", Caja::ID_CIUDADESMEX},
    {"Módulos", Caja::ID_MODULOS},
    {"Tipos de socio", Caja::ID_TIPOSOCIOS},
    {"Fórmulas", Caja::ID_CALCULOS},
    {"Tipos de usuario", Caja::ID_TIPOUSUARIOS},
    {"Promociones", Caja::ID_TIPOPROMOCION},
    {"Tasas", Caja::ID_TASA},
    {"INPC", Caja::ID_INPC},
    {"UDIS", Caja::ID_UDIS},
    {"Recargos", Caja::ID_RECARGOS},
    {"Motivos de baja", Caja::ID_MOTIVOBAJA},
    {"Reporte de personas", Caja::ID_SUJETO},
    {"Días inhábiles", Caja::ID_INABILES},
    {"Grupos", Caja::ID_GRUPOS},
    {"Ocupaciones", Caja::ID_OCUPACIONES},
    {"Conceptos de scoring", Caja::ID_CONCEPTOSCORING},
    {"Tasas variables", Caja::ID_TASAINTERES},
    {"Tipos de tasa variable", Caja::ID_TIPOTASAINTERES},
};

/// A line of its own to the server of the run.
class Linea {
 public:
  Linea(const std::string& puerto, int demora) {
    int tubo[2];
    if (pipe(tubo) != 0) throw std::runtime_error("sin tubo");
    proceso_.emplace(
        Orden{{"python3", (Raiz() / "bench" / "retraso.py").string(), puerto, std::to_string(demora)}},
        tubo[1], SIGTERM);
    close(tubo[1]);
    FILE* const dicho = fdopen(tubo[0], "r");
    char numero[16] = "";
    if (std::fgets(numero, sizeof numero, dicho) == nullptr) throw std::runtime_error("sin línea");
    std::fclose(dicho);
    puerto_ = std::to_string(std::atoi(numero));
  }
  const std::string& puerto() const { return puerto_; }

 private:
  std::optional<Hijo> proceso_;
  std::string puerto_;
};

/// What is done, in order, with its statements and its seconds on each line.
class Cuadricula {
 public:
  void Anota(const std::string& que, size_t sentencias, double segundos) {
    if (renglones_.find(que) == renglones_.end()) orden_.push_back(que);
    Renglon& renglon = renglones_[que];
    renglon.sentencias = sentencias;
    renglon.segundos.push_back(segundos);
  }
  void Escribe() const {
    std::printf("| Qué | Sentencias |");
    for (const int demora : Demoras) std::printf(" %d ms |", demora);
    std::printf("\n|---|---|");
    for (size_t i = 0; i < std::size(Demoras); ++i) std::printf("---|");
    std::printf("\n");
    for (const std::string& que : orden_) {
      const Renglon& renglon = renglones_.at(que);
      std::printf("| %s | %zu |", que.c_str(), renglon.sentencias);
      for (const double segundos : renglon.segundos) std::printf(" %.2f |", segundos);
      std::printf("\n");
    }
  }

 private:
  struct Renglon {
    size_t sentencias = 0;
    std::vector<double> segundos;
  };
  std::vector<std::string> orden_;
  std::map<std::string, Renglon> renglones_;
};

/// A session on one line, from the login to the deletion of what it added.
class Jornada {
 public:
  Jornada(Cuadricula& tabla, const BaseDatos& base, const std::string& puerto) : tabla_(tabla) {
    const std::pair<const char*, std::string> ajustes[] = {{"user", "adriana"},
                                                           {"sucursal", "norte"},
                                                           {"servidor", "127.0.0.1"},
                                                           {"db", base.nombre()},
                                                           {"puerto", puerto}};
    for (const auto& [llave, valor] : ajustes) App().reg().writeStringEntry("SETTINGS", llave, valor.c_str());
    guion_.EnAdelante([this](FXDialogBox* ventana) { Contesta(ventana); });
  }
  ~Jornada() { apertura::Cierra(); }

  void Recorre() {
    Manda(Caja::ID_CONECTAR);
    for (const auto& [que, opcion] : Formas) {
      que_ = que;
      dialogo_ = false;
      espia_.Vacia();
      reloj_ = Ahora();
      Manda(opcion);
      if (!dialogo_) Anota();
      for (FXMDIChild* hija : Todos<FXMDIChild>(caja_.get())) {
        if (opcion == Caja::ID_MONEDAS) Trabaja(hija);
        hija->close();
        Bombea();
      }
    }
  }

 private:
  void Manda(FXuint mensaje) { caja_->handle(&App(), FXSEL(SEL_COMMAND, mensaje), nullptr); }
  void Mide(const char* que, const std::function<void()>& obra) {
    espia_.Vacia();
    const double segundos = medida::Segundos(obra);
    tabla_.Anota(que, espia_.Sentencias().size(), segundos);
  }
  /// A currency is added, found and deleted.
  void Trabaja(FXWindow* forma) {
    Escribe(forma, "Moneda:", "RX");
    Escribe(forma, "Descripción:", "De lejos");
    static int valor = 0;  // the form remembers what it saved last, and saves nothing else
    Escribe(forma, "Valor :", std::to_string(++valor));
    Mide("*Guardar una moneda*", [&] { Pulsa(Boton(forma, "&Aceptar")); });
    Mide("*Buscarla*", [&] { Pulsa(Boton(forma, "&Buscar")); });
    Mide("*Borrarla*", [&] { Pulsa(Boton(forma, "&Borrar")); });
  }
  void Contesta(FXDialogBox* ventana) {
    if (ventana->isMemberOf(FXMETACLASS(Login_Window))) {
      Escribe(ventana, "Password:", BaseDatos::Clave);
      Mide("*Entrar al sistema*", [&] { Pulsa(Boton(ventana, "&Aceptar")); });
      return;
    }
    if (dynamic_cast<FXMessageBox*>(ventana) == nullptr && Todos<FXButton>(ventana).size() > 2) {
      Anota();
      dialogo_ = true;
      ventana->handle(ventana, FXSEL(SEL_COMMAND, FXDialogBox::ID_CANCEL), nullptr);
      return;
    }
    Pulsa(Todos<FXButton>(ventana).at(0));
  }
  /// What was opened last stands now.
  void Anota() { tabla_.Anota(que_, espia_.Sentencias().size(), Ahora() - reloj_); }
  static double Ahora() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
  }

  Cuadricula& tabla_;
  Espia espia_;
  const Principal caja_;
  Guion guion_{600};
  std::string que_;
  double reloj_ = 0;
  bool dialogo_ = false;
};

}  // namespace

int main() {
  App();
  BaseDatos base;
  Cuadricula tabla;
  std::cout.setstate(std::ios::failbit);  // the traces
  for (const int demora : Demoras) {
    const Linea linea(Servidor::Unico().puerto(), demora);
    Jornada(tabla, base, linea.puerto()).Recorre();
  }
  tabla.Escribe();
}
