#include "widgets/Texto.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace {

std::string Contenido(const Texto& texto) {
  char copia[64] = "sin tocar";
  EXPECT_EQ(texto.getTexto(copia), copia);
  return copia;
}

TEST(Texto, TieneSuCopiaDelOrigen) {
  char fuente[] = "hola";
  const Texto texto(fuente);
  fuente[0] = 'H';
  EXPECT_EQ(Contenido(texto), "hola");
}

TEST(Texto, ConUnLargoHaceLugarYEstaVacio) {
  for (const int n : {0, 10, -1}) EXPECT_EQ(Contenido(Texto(n)), "") << n;
}

TEST(Texto, LasCopiasSonEnteras) {
  Texto original("uno");
  const Texto copia(original);
  original.setTexto("dos");
  EXPECT_EQ(Contenido(copia), "uno");
  EXPECT_EQ(Contenido(original), "dos");
}

TEST(Texto, SetTextoCambiaElTextoYDaElArregloNuevo) {
  Texto texto;
  char* nuevo = texto.setTexto("primero");
  EXPECT_STREQ(nuevo, "primero");
  nuevo[0] = 'P';
  EXPECT_EQ(Contenido(texto), "Primero");
  EXPECT_STREQ(texto.setTexto("un texto mas largo"), "un texto mas largo");
}

TEST(Texto, SetTextoTomaUnPedazoDeSuPropioTexto) {
  Texto texto;
  const char* propio = texto.setTexto("primero");
  EXPECT_STREQ(texto.setTexto(propio + 3), "mero");
}

TEST(Texto, NadaSeLeeComoTextoVacio) {
  const Texto nulo;
  EXPECT_EQ(Contenido(nulo), "");
  EXPECT_EQ(Contenido(Texto(nulo)), "");
  EXPECT_EQ(Contenido(Texto(static_cast<const char*>(nullptr))), "");
  Texto texto("algo");
  EXPECT_EQ(texto.setTexto(nullptr), nullptr);
  EXPECT_EQ(Contenido(texto), "");
}

TEST(Texto, NoSePuedeAsignar) {
  EXPECT_FALSE(std::is_copy_assignable<Texto>::value);
  EXPECT_FALSE(std::is_move_assignable<Texto>::value);
}

}  // namespace
