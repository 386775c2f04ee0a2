#include "tests/support/Pantalla.h"

#include <FXPNGImage.h>
#include <fcntl.h>
#include <unistd.h>

#include <cctype>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "app/Aplicacion.h"
#include "app/Traductor.h"
#include "tests/support/Proceso.h"

namespace pruebas {
namespace {

// Starts the X server, which chooses its number itself and writes it into the pipe, perhaps after complaints
// about numbers that are taken; answers the number.
std::string AbrePantalla() {
  int tubo[2];
  if (pipe2(tubo, O_CLOEXEC) < 0) throw std::runtime_error("pipe2");
  const Orden orden{
      {"Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"}};
  static const Hijo servidor(orden, tubo[1], SIGTERM);
  close(tubo[1]);
  FILE* const dicho = fdopen(tubo[0], "r");
  std::string todo;
  for (char linea[256]; std::fgets(linea, sizeof linea, dicho);) {
    todo += linea;
    if (std::isdigit(static_cast<unsigned char>(*linea))) {
      std::fclose(dicho);
      return std::to_string(std::atoi(linea));
    }
  }
  throw std::runtime_error("Xvfb no arranca: " + todo);
}

FXApp* NuevaApp() {
  static const CarpetaTemporal casa;
  setenv("HOME", casa.Ruta().c_str(), 1);
  setenv("DISPLAY", (":" + AbrePantalla()).c_str(), 1);
  FXApp* const app = new Aplicacion;
  delete app->getTranslator();
  app->setTranslator(new Traductor(app));
  static char programa[] = "corvena";
  static char* argumentos[] = {programa, nullptr};  // the toolkit keeps them
  int cuantos = 1;
  app->init(cuantos, argumentos);
  app->create();
  return app;
}

}  // namespace

FXApp& App() {
  static FXApp* const app = NuevaApp();
  return *app;
}

void SinAjustes() { App().reg().clear(); }

void Foto(const std::string& archivo, FXWindow* ventana) {
  FXWindow* const modelo = ventana ? ventana : App().getRootWindow();
  App().runWhileEvents();
  App().repaint();
  App().flush(TRUE);
  FXPNGImage imagen(&App(), nullptr, 0, modelo->getWidth(), modelo->getHeight());
  imagen.create();
  {
    FXDCWindow lienzo(&imagen);
    lienzo.clipChildren(FALSE);
    lienzo.drawArea(modelo, 0, 0, modelo->getWidth(), modelo->getHeight(), 0, 0);
  }
  imagen.restore();
  FXFileStream salida;
  if (!salida.open(archivo.c_str(), FXStreamSave) || !imagen.savePixels(salida)) {
    throw std::runtime_error("no se puede escribir " + archivo);
  }
}

}  // namespace pruebas
