// What the tests of the main window share.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "app/sesion.h"
#include "db/Apertura.h"
#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"
#include "tests/support/Salida.h"
#include "tests/support/Servidor.h"
#include "tests/support/Sesion.h"

namespace pruebas {

constexpr char Seccion[] = "SETTINGS";

inline void Ajusta(const char* llave, const char* valor) {
  App().reg().writeStringEntry(Seccion, llave, valor);
}

inline void AjustaSesion() {
  Ajusta("user", "adriana");
  Ajusta("sucursal", "norte");
  Ajusta("servidor", "127.0.0.1");
  Ajusta("db", "caja");
}

/// The one widget of a kind inside `raiz`; null when there are more or none.
template <class T>
T* Unico(FXWindow* raiz) {
  const std::vector<T*> todos = Todos<T>(raiz);
  return todos.size() == 1 ? todos[0] : nullptr;
}

/// No settings and no session.
class SinSesion : public testing::Test {
 protected:
  void SetUp() override {
    SinAjustes();
    IsConectado = false;
  }
  void TearDown() override { apertura::Cierra(); }
};

/// A server whose address the settings know. The tests of a suite share the database.
class ConServidor : public SinSesion {
 protected:
  static void SetUpTestSuite() { base_ = std::make_unique<BaseDatos>(); }
  static void TearDownTestSuite() { base_.reset(); }
  void SetUp() override {
    SinSesion::SetUp();
    AjustaSesion();
    Ajusta("db", base_->nombre().c_str());
    Ajusta("puerto", Servidor::Unico().puerto().c_str());
  }
  void TearDown() override {
    SinSesion::TearDown();
    base_->MataSesiones();
  }

  inline static std::unique_ptr<BaseDatos> base_;
};

/// The same with a main window.
class ConCaja : public ConServidor {
 protected:
  /// Chooses an entry of the menu, which opens no box.
  void Escoge(const char* rotulo) {
    const Guion guion;
    Pulsa(Opcion(caja_.get(), rotulo));
  }

  /// `accion` shows the box of the refused access and no other.
  void ExigeRechazo(const std::function<void()>& accion) {
    Guion guion;
    guion.Con([this](FXDialogBox* caja) {
      EXPECT_EQ(caja->getOwner(), caja_.get());
      Pulsa(Boton(caja, "&Aceptar"));
    });
    accion();
    ASSERT_EQ(guion.Cuadros().size(), 1u);
    const Cuadro& cuadro = guion.Cuadros()[0];
    EXPECT_EQ(cuadro.clase, Clase::Error);
    EXPECT_EQ(cuadro.titulo, "Acceso NO AUTORIZADO");
    EXPECT_EQ(cuadro.texto, "No tiene acceso a la opción ...");
    EXPECT_EQ(cuadro.botones, Textos{"&Aceptar"});
  }
  void ExigeRechazo(const char* rotulo) {
    ExigeRechazo([&] { Pulsa(Opcion(caja_.get(), rotulo)); });
  }

  Salida salida_;
  const Principal caja_;
};

}  // namespace pruebas
