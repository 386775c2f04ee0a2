// The field that picks a row of another catalogue, on formulas (a number as key) and movement types (a text):
// what it offers, and what a choice, a record and &Nuevo leave in it.
#include "framework/CampoFila.h"

#include <gtest/gtest.h>

#include "catalogs/Posiciones.h"
#include "framework/Campos.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

cCalculo Formula(long id, const char* descripcion) {
  return cCalculo(id, descripcion, 0, 0, 0, 0, "0", false, false);
}

cTipoMovimiento Movimiento(const char* id, const char* descripcion) {
  cTipoMovimiento movimiento;
  movimiento.setTipoMovimientoID(id);
  movimiento.setDescTipoMovimiento(descripcion);
  return movimiento;
}

class CampoFilaTest : public testing::Test {
 protected:
  void SetUp() override {
    Catalogo::Calculos = {{0, Formula(7, "siete")}, {1, Formula(9, "nueve")}, {2, Formula(4, "cuatro")}};
    Catalogo::TipoMovimiento = {{0, Movimiento("AH", "Ahorro")}, {1, Movimiento("Q", "Otro")}};
    ventana_ = new FXMainWindow(&App(), "Campos", nullptr, nullptr, DECOR_ALL, 0, 0, 600, 300);
    auto* const matriz = new FXMatrix(ventana_, 2, MATRIX_BY_COLUMNS);
    formula_.combo = campoCombo(matriz, "Formula:", 5);
    formula_.Llena(&cCalculo::getDescripcionCalculo);
    movimiento_.combo = campoCombo(matriz, "Mov.:", 5);
    movimiento_.Llena([](const cTipoMovimiento& fila) {
      return FXString(fila.getTipoMovimientoID()) + " " + fila.getDescTipoMovimiento();
    });
    formula_.Vacia();  // as a form does when it opens
    movimiento_.Vacia();
    ventana_->create();
    ventana_->show(PLACEMENT_SCREEN);
    Bombea();
  }
  void TearDown() override {
    delete ventana_;
    Catalogo::Calculos.clear();
    Catalogo::TipoMovimiento.clear();
  }

  /// A choice of the user, with what the form's handler does about it.
  template <class Dato>
  void Elige(Dato& dato, FXint opcion) {
    EligeOpcion(dato.combo, opcion);
    EXPECT_EQ(dato.Elige(), 1);
  }

  FXMainWindow* ventana_ = nullptr;
  DatoFila<Catalogo::Calculos, &cCalculo::getCalculoID, FindCalculo> formula_;
  DatoFila<Catalogo::TipoMovimiento, &cTipoMovimiento::getTipoMovimientoID, FindTipoMovimiento> movimiento_;
};

TEST_F(CampoFilaTest, OfreceTodosLosRenglonesEnSuOrden) {
  ASSERT_EQ(formula_.combo->getNumItems(), 3);
  EXPECT_EQ(formula_.combo->getItemText(0), "siete");
  EXPECT_EQ(formula_.combo->getItemText(2), "cuatro");
  EXPECT_EQ(movimiento_.combo->getItemText(1), "Q  Otro");
  EXPECT_EQ(formula_.combo->getCurrentItem(), -1);
  EXPECT_EQ(formula_.Valor(), 0);
  EXPECT_EQ(movimiento_.Valor(), "");
}

TEST_F(CampoFilaTest, ElegirUnRenglonDaSuClave) {
  Elige(formula_, 2);
  EXPECT_EQ(formula_.Valor(), 4);
  Elige(movimiento_, 1);
  EXPECT_EQ(movimiento_.Valor(), "Q ");
}

TEST_F(CampoFilaTest, UnaClaveMuestraSuRenglonYUnaDesconocidaElPrimero) {
  for (const auto& [clave, renglon] : {std::pair(9L, 1), {4L, 2}, {7L, 0}, {0L, 0}, {99L, 0}, {-1L, 0}}) {
    formula_.Pon(clave);
    EXPECT_EQ(formula_.combo->getCurrentItem(), renglon) << clave;
    EXPECT_EQ(formula_.Valor(), clave);
  }
  for (const auto& [clave, renglon] : {std::pair("Q ", 1), {"AH", 0}, {"Q", 0}, {"", 0}, {"ZZ", 0}}) {
    movimiento_.Pon(clave);
    EXPECT_EQ(movimiento_.combo->getCurrentItem(), renglon) << clave;
    EXPECT_EQ(movimiento_.Valor(), clave);
  }
}

TEST_F(CampoFilaTest, SinNadaNoMuestraRenglonNiVale) {
  formula_.Pon(9);
  formula_.Vacia();
  EXPECT_EQ(formula_.combo->getCurrentItem(), -1);
  EXPECT_EQ(formula_.Valor(), 0);
  movimiento_.Pon("Q ");
  movimiento_.Vacia();
  EXPECT_EQ(movimiento_.combo->getCurrentItem(), -1);
  EXPECT_EQ(movimiento_.Valor(), "");
}

TEST_F(CampoFilaTest, SinRenglonesNoMuestraNingunoYConservaLaClave) {
  Catalogo::Calculos.clear();
  formula_.combo->clearItems();
  formula_.Pon(9);
  EXPECT_EQ(formula_.combo->getCurrentItem(), -1);
  EXPECT_EQ(formula_.Valor(), 9);
}

TEST_F(CampoFilaTest, UnRenglonQueYaNoExisteDejaLaClave) {
  formula_.Pon(7);
  Catalogo::Calculos.erase(2);
  Elige(formula_, 2);
  EXPECT_EQ(formula_.Valor(), 7);
  Catalogo::Calculos = {
      {0, Formula(1, "uno")}, {1, Formula(2, "dos")}, {2, Formula(3, "tres")}, {3, Formula(8, "ocho")}};
  formula_.Pon(8);  // the combo box does not reach it
  EXPECT_EQ(formula_.combo->getCurrentItem(), -1);
  EXPECT_EQ(formula_.Valor(), 8);
}

}  // namespace
}  // namespace pruebas
