#include "tests/support/Escritorio.h"

#include <unistd.h>

#include <stdexcept>

#include "tests/support/Pantalla.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

const Textos entorno = {"LC_ALL=C.UTF-8"};  // in which xdotool reads what it types

Orden DelEscritorio(Textos argumentos) { return {std::move(argumentos), {}, entorno}; }

/// Runs xdotool while the program goes on.
void Mueve(Textos argumentos) {
  argumentos.insert(argumentos.begin(), "xdotool");
  Hijo xdotool(DelEscritorio(std::move(argumentos)), STDERR_FILENO, SIGTERM);
  // A key that closes a box ends the loop that runs here, too.
  bool acabo = BombeaHasta([&] { return xdotool.Acabo(); });
  for (int veces = 0; !acabo && veces < 200; ++veces) {
    usleep(50000);
    acabo = xdotool.Acabo();
  }
  if (!acabo) throw std::runtime_error("xdotool no termina");
  Bombea(150);
}

}  // namespace

Escritorio::Escritorio()
    : administrador_((App(), DelEscritorio({"openbox", "--sm-disable"})), STDERR_FILENO, SIGTERM) {
  for (int veces = 0; Corre(DelEscritorio({"xdotool", "get_num_desktops"})).codigo != 0; ++veces) {
    if (veces == 200) throw std::runtime_error("openbox no arranca");
    usleep(50000);
  }
}

void Escritorio::Activa(FXWindow* ventana) { Mueve({"windowactivate", std::to_string(ventana->id())}); }

size_t Escritorio::Teclea(const Textos& teclas) {
  Textos argumentos = {"key", "--delay", "40"};
  argumentos.insert(argumentos.end(), teclas.begin(), teclas.end());
  Mueve(argumentos);
  return teclas.size();
}

size_t Escritorio::Escribe(const std::string& texto) {
  Mueve({"type", "--delay", "40", "--", texto});
  return static_cast<size_t>(FXString(texto.c_str()).count());
}

}  // namespace pruebas
