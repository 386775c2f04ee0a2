// What the tests of any form by table share: one database until a test writes to it, the buttons with their
// boxes answered, and the list.
#pragma once

#include <fx.h>
#include <gtest/gtest.h>

#include <algorithm>
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

class ConMandos : public testing::Test {
 protected:
  void SetUp() override {
    if (!base_) base_ = new BaseDatos;
    sesion_.emplace(*base_);
  }
  void TearDown() override {
    sesion_.reset();
    if (escrita_) Suelta();
  }
  static void TearDownTestSuite() { Suelta(); }
  static void Suelta() {
    delete base_;
    base_ = nullptr;
  }

  Textos Renglones() {
    Textos renglones;
    for (FXint i = 0; i < Lista(forma_)->getNumItems(); ++i)
      renglones.push_back(Lista(forma_)->getItemText(i).text());
    return renglones;
  }
  std::string RenglonActual() { return Lista(forma_)->getItemText(Lista(forma_)->getCurrentItem()).text(); }

  /// Presses a button, answers the boxes that come in order, and gives their texts.
  Textos Manda(const std::string& boton, const std::vector<Respuesta>& respuestas = {}) {
    escrita_ = escrita_ || std::count(respuestas.begin(), respuestas.end(), Respuesta::Si) != 0;
    Guion guion;
    for (const Respuesta respuesta : respuestas) guion.Responde(respuesta);
    Pulsa(Boton(forma_, boton));
    cuadros_ = guion.Cuadros();
    return guion.Mensajes();
  }
  /// What a question of the form asks, when answered and captioned as it should be.
  std::string Pregunta(const std::string& boton, Respuesta respuesta) {
    const Textos dichos = Manda(boton, {respuesta});
    EXPECT_EQ(cuadros_.at(0).clase, Clase::Pregunta);
    EXPECT_EQ(cuadros_.at(0).titulo, clase_());
    return dichos.at(0);
  }
  /// The error in which a command ends after its question.
  std::string Rechazo(const std::string& boton) {
    const Textos dichos = Manda(boton, {Respuesta::Si, Respuesta::Aceptar});
    EXPECT_EQ(cuadros_.at(1).clase, Clase::Error);
    EXPECT_EQ(cuadros_.at(1).titulo, "Error en Validación");
    return dichos.at(1);
  }
  /// The statements since the last call.
  Textos Enviado() {
    const Textos sentencias = espia_.Sentencias();
    espia_.Vacia();
    return sentencias;
  }

  inline static BaseDatos* base_ = nullptr;  // one for all tests, until one of them has written to it
  bool escrita_ = false;
  std::optional<Sesion> sesion_;
  Salida salida_;
  Espia espia_;
  Area area_;
  FXWindow* forma_ = nullptr;
  const char* (*clase_)() = nullptr;  // caption of the form's questions
  std::vector<Cuadro> cuadros_;
};

}  // namespace pruebas
