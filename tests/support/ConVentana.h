// What the suites of forms stand on: the program in a session, a form in an area, its buttons pressed and the
// boxes answered that come, and what it sends meanwhile.
#pragma once

#include <fx.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Salida.h"
#include "tests/support/Servidor.h"
#include "tests/support/Sesion.h"
#include "tests/support/Ventana.h"

namespace pruebas {

/// Presses a button, answers the boxes that come in order, which `cuadros` then holds, and gives their texts.
inline Textos PulsaYResponde(FXWindow* boton, const std::vector<Respuesta>& respuestas,
                             std::vector<Cuadro>& cuadros) {
  Guion guion;
  for (const Respuesta respuesta : respuestas) guion.Responde(respuesta);
  Pulsa(boton);
  cuadros = guion.Cuadros();
  return guion.Mensajes();
}

/// A database of the test's own, and the program in a session on it.
class ConBase : public testing::Test {
 protected:
  /// A session anew, as after a lost connection.
  void Reconecta() {
    sesion_.reset();
    sesion_.emplace(base_);
  }

  BaseDatos base_;
  std::optional<Sesion> sesion_{base_};
};

/// A form on it. `V` is its class, as far as the suite needs to know it; `Donde` another fixture of the
/// session.
template <class V = FXWindow, class Donde = ConBase>
class ConVentana : public Donde {
 protected:
  void Cierra() {
    Pulsa(Boton(forma_, "&Cerrar"));
    forma_ = nullptr;
  }
  Textos Manda(FXWindow* boton, const std::vector<Respuesta>& respuestas = {}) {
    return PulsaYResponde(boton, respuestas, cuadros_);
  }
  Textos Manda(const std::string& boton, const std::vector<Respuesta>& respuestas = {}) {
    return Manda(Boton(forma_, boton), respuestas);
  }
  /// Saves, the question answered.
  Textos Acepta() { return Manda("&Aceptar", {Respuesta::Si}); }
  /// The statements since the last call.
  Textos Enviado() {
    const Textos sentencias = espia_.Sentencias();
    espia_.Vacia();
    return sentencias;
  }
  /// The rows of the list.
  Textos Renglones() {
    Textos renglones;
    for (FXint i = 0; i < pruebas::Lista(forma_)->getNumItems(); ++i)
      renglones.push_back(pruebas::Lista(forma_)->getItemText(i).text());
    return renglones;
  }
  std::string RenglonActual() {
    FXList* const lista = pruebas::Lista(forma_);
    return lista->getItemText(lista->getCurrentItem()).text();
  }

  Salida salida_;
  Espia espia_;
  Area area_;
  V* forma_ = nullptr;
  std::vector<Cuadro> cuadros_;  // of the last button
};

}  // namespace pruebas
