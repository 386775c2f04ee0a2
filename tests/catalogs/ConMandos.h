// What the tests of any form by table share: one database until a test writes to it, the buttons with their
// boxes answered, and the list.
#pragma once

#include <fx.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/ConVentana.h"

namespace pruebas {

/// One database for all tests, until one of them has written to it.
class ConBaseDeTodos : public testing::Test {
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

  inline static BaseDatos* base_ = nullptr;
  bool escrita_ = false;
  std::optional<Sesion> sesion_;
};

class ConMandos : public ConVentana<FXWindow, ConBaseDeTodos> {
 protected:
  /// A question answered with yes may have written.
  Textos Manda(const std::string& boton, const std::vector<Respuesta>& respuestas = {}) {
    escrita_ = escrita_ || std::count(respuestas.begin(), respuestas.end(), Respuesta::Si) != 0;
    return ConVentana::Manda(boton, respuestas);
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

  const char* (*clase_)() = nullptr;  // caption of the form's questions
};

}  // namespace pruebas
