#include "tests/support/Guion.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <stdexcept>

#include "tests/support/Pantalla.h"

namespace FX {
// The pictures of the toolkit's message boxes: in its library, though in none of its headers.
extern const unsigned char erroricon[];
extern const unsigned char warningicon[];
extern const unsigned char questionicon[];
extern const unsigned char infoicon[];
}  // namespace FX

namespace pruebas {
namespace {

constexpr FXuint EntreMiradas = 5;  // milliseconds

// What the alarm says. Filled beforehand, since its handler may not do more than write and end.
char despedida[512];

void Anota(const std::string& donde) {
  const testing::TestInfo* prueba = testing::UnitTest::GetInstance()->current_test_info();
  std::snprintf(despedida, sizeof despedida, "\nGuion: tiempo agotado en %s.%s, %s\n",
                prueba ? prueba->test_suite_name() : "", prueba ? prueba->name() : "", donde.c_str());
}

void SeAcabo(int) {
  if (write(STDERR_FILENO, despedida, std::strlen(despedida)) < 0) _exit(1);
  std::abort();
}

// The labels under which an answer stands in boxes and dialogs, the usual one first.
const std::map<Respuesta, Textos>& Rotulos() {
  static const std::map<Respuesta, Textos> rotulos = {
      {Respuesta::Aceptar, {"Aceptar", "OK"}},
      {Respuesta::Si, {"Sí"}},
      {Respuesta::No, {"No"}},
      {Respuesta::Cancelar, {"Cancelar", "Cerrar"}},
  };
  return rotulos;
}

bool MismaImagen(FXIcon* uno, FXIcon* otro) {
  uno->restore();
  otro->restore();
  return uno->getWidth() == otro->getWidth() && uno->getHeight() == otro->getHeight() &&
         std::equal(uno->getData(), uno->getData() + uno->getWidth() * uno->getHeight(), otro->getData());
}

Clase ClaseDe(FXIcon* icono) {
  const std::pair<Clase, const unsigned char*> imagenes[] = {{Clase::Error, FX::erroricon},
                                                             {Clase::Aviso, FX::warningicon},
                                                             {Clase::Pregunta, FX::questionicon},
                                                             {Clase::Informacion, FX::infoicon}};
  for (const auto& [clase, imagen] : imagenes) {
    FXGIFIcon modelo(&App(), imagen);
    modelo.create();
    if (MismaImagen(icono, &modelo)) return clase;
  }
  return Clase::Dialogo;
}

Cuadro Retrato(FXDialogBox* ventana) {
  Cuadro cuadro;
  cuadro.titulo = ventana->getTitle().text();
  cuadro.botones = Botones(ventana);
  for (const std::string& texto : Etiquetas(ventana)) {
    if (!texto.empty()) cuadro.texto += (cuadro.texto.empty() ? "" : "\n") + texto;
  }
  if (!dynamic_cast<FXMessageBox*>(ventana)) return cuadro;
  for (const FXLabel* pieza : Todos<FXLabel>(ventana)) {
    if (pieza->getIcon()) cuadro.clase = ClaseDe(pieza->getIcon());
  }
  for (const FXText* largo : Todos<FXText>(ventana)) cuadro.texto += largo->getText().text();
  return cuadro;
}

void Despide(FXDialogBox* ventana) {
  ventana->handle(&App(), FXSEL(SEL_COMMAND, FXDialogBox::ID_CANCEL), nullptr);
}

bool hayGuion = false;

}  // namespace

Guion::Guion(unsigned segundos) : reloj_([this] { Mira(); }) {
  if (hayGuion) throw std::logic_error("ya hay un guion");
  hayGuion = true;
  Anota("sin ninguna ventana");
  std::signal(SIGALRM, SeAcabo);
  alarm(segundos);
  reloj_.Inicia(EntreMiradas);
}

Guion::~Guion() {
  alarm(0);
  hayGuion = false;
  if (!pasos_.empty()) ADD_FAILURE() << "al guion le sobran " << pasos_.size() << " pasos";
}

void Guion::Responde(Respuesta respuesta) {
  Con([respuesta](FXDialogBox* ventana) {
    for (const std::string& rotulo : Rotulos().at(respuesta)) {
      for (FXButton* boton : Todos<FXButton>(ventana)) {
        if (rotulo == boton->getText().text()) return Pulsa(boton);
      }
    }
    NoHallado(ventana, "esa respuesta");
  });
}

void Guion::Responde(const std::string& rotulo) {
  Con([rotulo](FXDialogBox* ventana) { Pulsa(Boton(ventana, rotulo)); });
}

void Guion::Con(std::function<void(FXDialogBox*)> accion) { pasos_.push_back(std::move(accion)); }

void Guion::EnAdelante(std::function<void(FXDialogBox*)> accion) { paraLasDemas_ = std::move(accion); }

Cuadro Guion::Ultimo() const {
  const auto ultimo = std::find_if(cuadros_.rbegin(), cuadros_.rend(),
                                   [](const Cuadro& cuadro) { return cuadro.clase != Clase::Dialogo; });
  return ultimo == cuadros_.rend() ? Cuadro{} : *ultimo;
}

Textos Guion::Mensajes() const {
  Textos mensajes;
  for (const Cuadro& cuadro : cuadros_) {
    if (cuadro.clase != Clase::Dialogo) mensajes.push_back(cuadro.texto);
  }
  return mensajes;
}

void Guion::Mira() {
  reloj_.Inicia(EntreMiradas);  // first of all: a step can open further windows before it returns
  auto* const ventana = dynamic_cast<FXDialogBox*>(App().getModalWindow());
  if (!ventana || std::count(atendidos_.begin(), atendidos_.end(), ventana) != 0) return;
  atendidos_.push_back(ventana);
  Atiende(ventana);
  atendidos_.pop_back();
}

void Guion::Atiende(FXDialogBox* ventana) {
  cuadros_.push_back(Retrato(ventana));
  const std::string senas = '"' + cuadros_.back().titulo + "\": \"" + cuadros_.back().texto + '"';
  Anota("última ventana " + senas);
  if (pasos_.empty() && !paraLasDemas_) {
    ADD_FAILURE() << "ventana sin respuesta en el guion, " << senas;
    return Despide(ventana);
  }
  Paso paso = paraLasDemas_;
  if (!pasos_.empty()) {
    paso = pasos_.front();
    pasos_.pop_front();
  }
  try {
    paso(ventana);
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
    Despide(ventana);
  }
}

}  // namespace pruebas
