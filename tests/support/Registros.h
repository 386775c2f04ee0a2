// What the tests of records, cache and engine share.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

#include "app/sesion.h"
#include "db/Engine.h"
#include "tests/support/Servidor.h"
#include "tests/support/Sesion.h"

namespace pruebas {

/// The text that `accion` throws as a char*; nothing if it throws nothing.
template <class Accion>
std::optional<std::string> Lanzado(Accion accion) {
  try {
    accion();
  } catch (char* texto) {
    return texto;
  }
  return std::nullopt;
}

/// How deep the transactions of the process are nested.
inline int Profundidad() {
  struct Visible : Engine {
    static int Cuenta() { return miTransactionCount; }
  };
  return Visible::Cuenta();
}

/// The program connected to the branch norte of the reference database, as a user with every right.
class ConSucursal : public testing::Test {
 protected:
  BaseDatos base_;
  Sesion sesion_{base_};
};

/// While it lives the session's connection is the second one, and the first is closed: only what reads on the
/// reading connection finds anything.
class SegundaConexion {
 public:
  SegundaConexion() { Cambia(); }
  ~SegundaConexion() { Cambia(); }
  SegundaConexion(const SegundaConexion&) = delete;
  SegundaConexion& operator=(const SegundaConexion&) = delete;

 private:
  static void Cambia() {
    std::swap(conn, connR);
    bLocal = !bLocal;
  }
};

/// Takes away what the demonstration hangs on the currencies of norte, so that any of them can be deleted.
inline void SueltaMonedas(BaseDatos& base) {
  base.Ejecuta("truncate norte.depreciacion, norte.activo cascade");
}

/// The program connected, as superuser, to a database of its own with nothing in it.
class ConBaseVacia : public testing::Test {
 protected:
  BaseDatos base_{BaseDatos::Vacia};
  Sesion sesion_{base_, Servidor::Unico().usuario(), "public", Servidor::Unico().clave()};
};

/// "x" and then accented letters of two bytes each, far too many for any column: whatever the width, a blind
/// cut splits a letter in every second one.
inline std::string TextoAcentuado(size_t letras = 5000) {
  std::string texto = "x";
  for (size_t i = 1; i < letras; ++i) texto += "é";
  return texto;
}

/// What a column of `bytes` bytes, its terminator apart, keeps of TextoAcentuado.
inline std::string AcentuadoHasta(size_t bytes) { return TextoAcentuado(1 + (bytes - 1) / 2); }

/// A text column of the record `R`: its setter, its getter, and how many bytes it holds.
template <class R>
struct ColumnaDeTexto {
  const char* nombre;
  void (R::*pon)(const char*);
  const char* (R::*da)() const;
  size_t bytes;
};

/// The dirty rule of a setter that stores its text as it stands, and its bounds.
template <class R>
void ExigeReglaDelTexto(const ColumnaDeTexto<R>& columna) {
  SCOPED_TRACE(columna.nombre);
  const auto cambia = [&](R& registro, const std::string& valor) {
    registro.setDataChanged(false);
    (registro.*columna.pon)(valor.c_str());
    return registro.getDataChanged();
  };
  R registro;
  EXPECT_STREQ((registro.*columna.da)(), "");
  EXPECT_FALSE(cambia(registro, "")) << "el mismo valor";
  EXPECT_TRUE(cambia(registro, "a"));
  EXPECT_STREQ((registro.*columna.da)(), "a");
  EXPECT_FALSE(cambia(registro, "a")) << "el mismo valor";
  EXPECT_TRUE(cambia(registro, ""));
  EXPECT_STREQ((registro.*columna.da)(), "");
  EXPECT_TRUE(cambia(registro, std::string(5000, 'x')));
  EXPECT_EQ((registro.*columna.da)(), std::string(columna.bytes, 'x'));
  EXPECT_EQ(cambia(registro, TextoAcentuado()), columna.bytes > 1);
  EXPECT_EQ((registro.*columna.da)(), AcentuadoHasta(columna.bytes));
  EXPECT_FALSE(registro.IsNew());
}

/// The same for a number.
template <class R, class Numero>
void ExigeReglaDelNumero(void (R::*pon)(Numero), Numero (R::*da)() const, Numero valor) {
  R registro;
  EXPECT_EQ((registro.*da)(), Numero());
  (registro.*pon)(Numero());
  EXPECT_FALSE(registro.getDataChanged()) << "el mismo valor";
  (registro.*pon)(valor);
  EXPECT_TRUE(registro.getDataChanged());
  EXPECT_EQ((registro.*da)(), valor);
  registro.setDataChanged(false);
  (registro.*pon)(valor);
  EXPECT_FALSE(registro.getDataChanged()) << "el mismo valor";
}

}  // namespace pruebas
