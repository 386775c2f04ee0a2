// A user at work, for trials in which his server goes: he adds one occupation after another; when a box tells
// him that it failed he connects again, looks in the list whether the row is there, and presses &Aceptar once
// more if not. What he typed is never typed again.
//
//   sesion_de_trabajo SERVIDOR PUERTO BASE SUCURSAL USUARIO CLAVE HOJA
//
// He works until the program is told to end (SIGTERM), and brings the row that he is at to its end. HOJA gets
// a line for each row that the program has told or shown to be saved: its text, the second since 1970, and
// how the user knew ("dicho" or "visto"). Ends with 1 when he cannot get back to work within two minutes.
#include <fx.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "app/Caja.h"
#include "app/sesion.h"
#include "catalogs/simple/Ocupacion_Window.h"
#include "db/Login_Window.h"
#include "framework/Sentencia.h"
#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"
#include "tests/support/Ventana.h"

namespace {

using namespace pruebas;
using Momento = std::chrono::steady_clock::time_point;

constexpr FXuint pausa = 700;  // milliseconds between two rows
constexpr std::chrono::seconds paciencia{120};
constexpr unsigned jornada = 3600;  // seconds; no script is longer

volatile std::sig_atomic_t terminado = 0;

class Usuario {
 public:
  Usuario(const char* usuario, const char* clave, const char* hoja)
      : usuario_(usuario), clave_(clave), hoja_(hoja), guion_(jornada) {
    guion_.EnAdelante([this](FXDialogBox* ventana) { Contesta(ventana); });
  }

  bool Trabaja() {
    if (!Conecta()) return false;
    caja_->handle(&App(), FXSEL(SEL_COMMAND, Caja::ID_OCUPACIONES), nullptr);
    forma_ = Todos<Ocupacion_Window>(caja_.get()).at(0);
    for (int n = 0; !terminado; ++n) {
      if (!Agrega(static_cast<const char*>(Sentencia("%s %06i", usuario_, n)))) return false;
      Bombea(pausa);
    }
    return true;
  }

 private:
  bool Agrega(const std::string& texto) {
    Pulsa(Boton(forma_, "&Nuevo"));
    Escribe(forma_, "Ocupacion:", texto);
    for (int vez = 0; vez < 20; ++vez) {
      fallo_ = false;
      Pulsa(Boton(forma_, "&Aceptar"));
      if (!fallo_) return Anota(texto, "dicho");
      if (!Conecta()) return false;
      if (Lista(forma_)->findItem(texto.c_str()) >= 0) return Anota(texto, "visto");
    }
    return false;
  }

  bool Anota(const std::string& texto, const char* como) {
    hoja_ << texto << " " << time(nullptr) << " " << como << std::endl;
    return true;
  }

  bool Conecta() {
    const Momento fin = std::chrono::steady_clock::now() + paciencia;
    do {
      intentada_ = false;
      caja_->handle(&App(), FXSEL(SEL_COMMAND, Caja::ID_CONECTAR), nullptr);
      if (IsConectado && PQstatus(conn) == CONNECTION_OK) return true;
      Bombea(1000);
    } while (std::chrono::steady_clock::now() < fin);
    return false;
  }

  /// The login gets the password once, and is closed when it refused; of a box, the first answer.
  void Contesta(FXDialogBox* ventana) {
    if (ventana->isMemberOf(FXMETACLASS(Login_Window))) {
      if (intentada_) return Pulsa(Boton(ventana, "&Cerrar"));
      intentada_ = true;
      pruebas::Escribe(ventana, "Password:", clave_);
      return Pulsa(Boton(ventana, "&Aceptar"));
    }
    fallo_ = fallo_ || ventana->getTitle() == "Error en Validación";
    Pulsa(Todos<FXButton>(ventana).at(0));
  }

  const char* usuario_;
  const char* clave_;
  std::ofstream hoja_;
  const Principal caja_;
  Guion guion_;
  Ocupacion_Window* forma_ = nullptr;
  bool fallo_ = false;
  bool intentada_ = false;
};

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 8) return 2;
  std::signal(SIGTERM, [](int) { terminado = 1; });
  SinAjustes();
  const std::pair<const char*, const char*> ajustes[] = {
      {"servidor", argv[1]}, {"puerto", argv[2]}, {"db", argv[3]}, {"sucursal", argv[4]}, {"user", argv[5]}};
  for (const auto& [llave, valor] : ajustes) App().reg().writeStringEntry("SETTINGS", llave, valor);
  Usuario usuario(argv[5], argv[6], argv[7]);
  const bool bien = usuario.Trabaja();
  std::_Exit(bien ? 0 : 1);  // the windows need no farewell
}
