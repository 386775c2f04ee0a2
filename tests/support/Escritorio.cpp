#include "tests/support/Escritorio.h"

#include <unistd.h>

#include <stdexcept>

#include "tests/support/Pantalla.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

const Textos entorno = {"LC_ALL=C.UTF-8"};  // in which xdotool reads what it types

Orden DelEscritorio(Textos argumentos) { return {std::move(argumentos), {}, entorno}; }

/// Runs xdotool while the program goes on. A key that closes a box ends the loop of events that waits for it
/// here.
void Mueve(Textos argumentos) {
  argumentos.insert(argumentos.begin(), "xdotool");
  Hijo xdotool(DelEscritorio(std::move(argumentos)), STDERR_FILENO, SIGTERM);
  bool acabo = BombeaHasta([&] { return xdotool.Acabo(); });
  for (int vuelta = 0; !acabo && vuelta < 1000; ++vuelta) {
    usleep(10000);
    acabo = xdotool.Acabo();
  }
  if (!acabo) throw std::runtime_error("xdotool no termina");
  Bombea(150);
}

}  // namespace

Escritorio::Escritorio()
    : administrador_((App(), DelEscritorio({"openbox", "--sm-disable"})), STDERR_FILENO, SIGTERM) {
  if (!BombeaHasta([] { return Corre(DelEscritorio({"xdotool", "get_num_desktops"})).codigo == 0; }))
    throw std::runtime_error("openbox no arranca");
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
