#include "tests/support/Cortes.h"

#include <gtest/gtest.h>

#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

void ExigeDentro(const FXWindow* pieza) {
  const FXWindow* const marco = pieza->getParent();
  EXPECT_GE(pieza->getX(), 0);
  EXPECT_GE(pieza->getY(), 0);
  EXPECT_LE(pieza->getX() + pieza->getWidth(), marco->getWidth());
  EXPECT_LE(pieza->getY() + pieza->getHeight(), marco->getHeight());
}

}  // namespace

void ExigeNadaCortado(FXWindow* forma) {
  for (FXGroupBox* caja : Todos<FXGroupBox>(forma)) {
    SCOPED_TRACE(caja->getText().text());
    EXPECT_GE(caja->getHeight(), caja->getDefaultHeight());
    for (FXWindow* pieza : Todos<FXWindow>(caja)) {
      if (dynamic_cast<FXScrollArea*>(pieza->getParent()) != nullptr) continue;
      const auto* const etiqueta = dynamic_cast<FXLabel*>(pieza);
      SCOPED_TRACE(etiqueta != nullptr ? etiqueta->getText().text() : pieza->getClassName());
      ExigeDentro(pieza);
      if (etiqueta == nullptr) continue;
      EXPECT_GE(pieza->getWidth(), pieza->getDefaultWidth());
      EXPECT_GE(pieza->getHeight(), pieza->getDefaultHeight());
    }
  }
}

}  // namespace pruebas
