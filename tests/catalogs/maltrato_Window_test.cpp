// Every window that takes text, in the hands of a careless user. A window that is made later is one row here.
#include <gtest/gtest.h>

#include "app/sesion.h"
#include "catalogs/finance/Calculo_Window.h"
#include "catalogs/finance/TipoInversion_Window.h"
#include "catalogs/finance/TipoMovimiento_Window.h"
#include "catalogs/people/CiudadMex_Window.h"
#include "catalogs/people/EstadoMex_Window.h"
#include "catalogs/simple/Asesor_Window.h"
#include "catalogs/simple/ClasificacionCredito_Window.h"
#include "catalogs/simple/ConceptoScoring_Window.h"
#include "catalogs/simple/Estados_Credito_Window.h"
#include "catalogs/simple/Finalidades_Window.h"
#include "catalogs/simple/Grupo_Window.h"
#include "catalogs/simple/Modulo_Window.h"
#include "catalogs/simple/Monedas_Window.h"
#include "catalogs/simple/MotivoBaja_Window.h"
#include "catalogs/simple/Ocupacion_Window.h"
#include "catalogs/simple/TipoMoviBanco_Window.h"
#include "catalogs/simple/TipoSocio_Window.h"
#include "catalogs/simple/TipoUsuario_Window.h"
#include "catalogs/simple/Tipo_Garantia_Window.h"
#include "tests/support/Maltrato.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

struct Ventana {
  const char* nombre;
  FXWindow* (*abre)(Area& area);
};

template <class V>
Ventana De(const char* nombre) {
  return {nombre, [](Area& area) -> FXWindow* { return area.Abre<V>(); }};
}
#define VENTANA(V) De<V>(#V)

const Ventana ventanas[] = {
    VENTANA(Monedas_Window),
    VENTANA(Tipo_Garantia_Window),
    VENTANA(Estados_Credito_Window),
    VENTANA(Finalidades_Window),
    VENTANA(Modulo_Window),
    VENTANA(TipoUsuario_Window),
    VENTANA(TipoSocio_Window),
    VENTANA(TipoMoviBanco_Window),
    VENTANA(Asesor_Window),
    VENTANA(MotivoBaja_Window),
    VENTANA(ClasificacionCredito_Window),
    VENTANA(Grupo_Window),
    VENTANA(Ocupacion_Window),
    VENTANA(ConceptoScoring_Window),
    VENTANA(Calculo_Window),
    VENTANA(TipoMovimiento_Window),
    VENTANA(TipoInversion_Window),
    VENTANA(EstadoMex_Window),
    VENTANA(CiudadMex_Window),
};

class Maltratadas : public ConSucursal, public testing::WithParamInterface<Ventana> {
 protected:
  /// All that the fields of the window hold.
  std::string Contenido() {
    Bombea();
    std::string todo;
    for (const FXTextField* campo : Todos<FXTextField>(ventana_)) todo += campo->getText().text();
    for (const FXText* parrafo : Todos<FXText>(ventana_)) todo += parrafo->getText().text();
    return todo;
  }

  Salida salida_;
  Area area_;
  FXWindow* ventana_ = GetParam().abre(area_);
};

INSTANTIATE_TEST_SUITE_P(, Maltratadas, testing::ValuesIn(ventanas),
                         [](const auto& info) { return info.param.nombre; });

TEST_P(Maltratadas, AguantaYSigueSirviendo) {
  const std::string vacia = Contenido();
  EXPECT_FALSE(Maltrata(ventana_).empty());
  EXPECT_EQ(Profundidad(), 0);
  Pulsa(Boton(ventana_, "&Nuevo"));
  EXPECT_EQ(Contenido(), vacia);
  EligeRenglon(Lista(ventana_), 0);
  EXPECT_NE(Contenido(), vacia);
  Area otra;
  EXPECT_EQ(Lista(GetParam().abre(otra))->getNumItems(), Lista(ventana_)->getNumItems());
}

TEST_P(Maltratadas, AguantaSinConexion) {
  PQfinish(conn);
  conn = nullptr;
  EXPECT_FALSE(Maltrata(ventana_).empty());
  EXPECT_EQ(Profundidad(), 0);
}

}  // namespace
}  // namespace pruebas
