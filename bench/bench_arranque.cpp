// From the start of each program to its visible login, and the memory that it then has for itself, against a
// bare program of the toolkit with the same main window (ventana_llana.cpp).
#include <X11/Xlib.h>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include "bench/Medida.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Proceso.h"

namespace {

constexpr int Vueltas = 21;
constexpr int SegundosDePaciencia = 20;
constexpr useconds_t Reposo = 300'000;  // microseconds until a window that is up has been painted

/// Sees which windows come up on the private X server.
class Vigia {
 public:
  Vigia() : pantalla(XOpenDisplay(nullptr), XCloseDisplay) {
    if (!pantalla) throw std::runtime_error("no se abre la pantalla");
    XSetErrorHandler(
        [](Display*, XErrorEvent*) { return 0; });  // a window may be gone when we ask for its title
    XSelectInput(pantalla.get(), DefaultRootWindow(pantalla.get()), SubstructureNotifyMask);
    XSync(pantalla.get(), False);
  }

  /// Forgets what has come up so far.
  void Olvida() { XSync(pantalla.get(), True); }

  /// Waits until a window with the title is on the screen.
  void Espera(const std::string& titulo) {
    for (;;) {
      while (XPending(pantalla.get()) == 0) Duerme();
      XEvent suceso;
      XNextEvent(pantalla.get(), &suceso);
      if (suceso.type == MapNotify && Titulo(suceso.xmap.window) == titulo) return;
    }
  }

 private:
  void Duerme() {
    pollfd linea{ConnectionNumber(pantalla.get()), POLLIN, 0};
    if (poll(&linea, 1, SegundosDePaciencia * 1000) == 0) throw std::runtime_error("no aparece la ventana");
  }

  std::string Titulo(Window ventana) {
    char* titulo = nullptr;
    if (!XFetchName(pantalla.get(), ventana, &titulo) || titulo == nullptr) return "";
    const std::string texto = titulo;
    XFree(titulo);
    return texto;
  }

  std::unique_ptr<Display, decltype(&XCloseDisplay)> pantalla;
};

/// What a start costs.
struct Costo {
  double segundos;
  double kilobytes;
};

/// Starts the program, waits for its window, looks at its memory and ends it.
Costo Arranca(Vigia& vigia, const char* programa, const char* titulo) {
  const int nada = open("/dev/null", O_WRONLY | O_CLOEXEC);
  vigia.Olvida();
  std::unique_ptr<pruebas::Hijo> hijo;
  const double segundos = medida::Segundos([&] {
    hijo = std::make_unique<pruebas::Hijo>(pruebas::Orden{{programa}}, nada, SIGTERM);
    vigia.Espera(titulo);
  });
  close(nada);
  usleep(Reposo);
  return {segundos, medida::MemoriaPropia(hijo->pid())};
}

/// A program against the bare one; `cual` tells it from the others in what is written.
void Mide(medida::Informe& informe, Vigia& vigia, const char* programa, const std::string& cual) {
  medida::Razones tiempo, memoria;
  for (int vuelta = 0; vuelta <= Vueltas; ++vuelta) {
    const Costo nuestro = Arranca(vigia, programa, "Login");
    const Costo llano = Arranca(vigia, VENTANA_LLANA, "Tolvara V. 0.0.7a");
    if (vuelta == 0) continue;  // the first turn warms the caches and does not count
    tiempo.Anota(nuestro.segundos, llano.segundos);
    memoria.Anota(nuestro.kilobytes, llano.kilobytes);
  }
  informe.Escribe(("arranque" + cual + " hasta el login").c_str(), tiempo, 1.3);
  informe.Escribe(("memoria propia" + cual + " con el login").c_str(), memoria, 1.5);
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  // Another than the one of this build: the installed one, with the script that starts it.
  const char* const otro = getenv("TOLVARA_PROGRAMA");
  const char* const programa = otro != nullptr ? otro : CORVENA;
  pruebas::App();  // the private X server, and a home without settings
  Vigia vigia;
  Mide(informe, vigia, programa, "");
  Mide(informe, vigia, OPERACIONES, " de las operaciones");
  return informe.Codigo();
}
