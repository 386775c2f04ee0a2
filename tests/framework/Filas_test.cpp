// The rows of a cached container by their position: the same from a map and from a sorted list.
#include "framework/Filas.h"

#include <gtest/gtest.h>

#include <vector>

namespace pruebas {
namespace {

struct Fila {
  int clave = 0;
  bool operator>(const Fila& otra) const { return clave > otra.clave; }
  bool operator<=(const Fila& otra) const { return clave <= otra.clave; }
};

template <class Filas>
class FilasTest : public testing::Test {
 protected:
  void Pon(std::map<int, Fila>& filas, int clave) {
    filas.emplace(static_cast<int>(filas.size()), Fila{clave});
  }
  void Pon(lista<Fila>& filas, int clave) { filas.Insertar(Fila{clave}); }

  Filas filas_;
};

using Contenedores = testing::Types<std::map<int, Fila>, lista<Fila>>;
TYPED_TEST_SUITE(FilasTest, Contenedores);

TYPED_TEST(FilasTest, CadaFilaVaDeLaPrimeraALaUltima) {
  for (const int clave : {10, 20, 30}) this->Pon(this->filas_, clave);
  for (int vez = 0; vez < 2; ++vez) {
    std::vector<std::pair<int, int>> vistas;
    CadaFila(this->filas_,
             [&](int posicion, const Fila& fila) { vistas.emplace_back(posicion, fila.clave); });
    EXPECT_EQ(vistas, (std::vector<std::pair<int, int>>{{0, 10}, {1, 20}, {2, 30}}));
  }
}

TYPED_TEST(FilasTest, VaciasNoTienenFilas) {
  CadaFila(this->filas_, [](int, const Fila&) { ADD_FAILURE(); });
  Fila fila{7};
  EXPECT_FALSE(CopiaFila(this->filas_, 0, fila));
  EXPECT_EQ(fila.clave, 7);
}

TEST(MismaClave, UnaFechaEsLaMismaPorSusTresNumerosAunqueNoExista) {
  for (const char* dia : {"2026-02-28", "2026-02-31", ""}) EXPECT_TRUE(MismaClave(date(dia), date(dia)));
  for (const char* otro : {"2026-02-27", "2026-03-28", "2027-02-28", "2026-02-31"})
    EXPECT_FALSE(MismaClave(date("2026-02-28"), date(otro)));
}

TYPED_TEST(FilasTest, UnaPosicionFueraNoCopiaNada) {
  for (const int clave : {10, 20, 30}) this->Pon(this->filas_, clave);
  for (const int posicion : {-1, 3, 1000}) {
    Fila fila{7};
    EXPECT_FALSE(CopiaFila(this->filas_, posicion, fila)) << posicion;
    EXPECT_EQ(fila.clave, 7);
  }
  for (const int posicion : {2, 0, 1}) {
    Fila fila;
    EXPECT_TRUE(CopiaFila(this->filas_, posicion, fila));
    EXPECT_EQ(fila.clave, 10 * (posicion + 1));
  }
}

}  // namespace
}  // namespace pruebas
