#include "tests/support/Sesion.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "app/sesion.h"
#include "db/Engine.h"
#include "tests/support/Espia.h"

namespace pruebas {
namespace {

TEST(Sesion, AbreLaConexionDelProgramaEnSuSucursal) {
  BaseDatos base;
  for (const char* sucursal : {"norte", "sur"}) {
    SCOPED_TRACE(sucursal);
    Espia espia;
    Sesion sesion(base, "adriana", sucursal);
    EXPECT_TRUE(espia.Sentencias().empty());
    EXPECT_STREQ(glogin, "adriana");
    Ejecuta("select session_user, current_setting('search_path'), count(*) from moneda");
    EXPECT_STREQ(Celda(0, 0), "adriana");
    EXPECT_EQ(Celda(0, 1), "public, " + std::string(sucursal));
    EXPECT_STRNE(Celda(0, 2), "0");
  }
}

TEST(Sesion, DejaTodoComoAntes) {
  BaseDatos base;
  {
    Sesion sesion(base);
    engine.BeginTransaction();
    Ejecuta("select 1");
    EXPECT_NE(conn, nullptr);
  }
  EXPECT_EQ(conn, nullptr);
  EXPECT_EQ(res, nullptr);
  Sesion otra(base);
  Espia espia;
  engine.BeginTransaction();
  EXPECT_EQ(espia.Sentencias(), Textos{"BEGIN;"});
}

TEST(Sesion, RechazadaLanza) {
  BaseDatos base;
  EXPECT_THROW(Sesion(base, "adriana", "norte", "otra clave"), std::runtime_error);
  EXPECT_EQ(conn, nullptr);
}

}  // namespace
}  // namespace pruebas
