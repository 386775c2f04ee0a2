// Every window that takes text, in the hands of a careless user. A window that is made later is one row here.
#include <gtest/gtest.h>

#include "app/sesion.h"
#include "catalogs/assets/Activo_Window.h"
#include "catalogs/assets/TipoDepreciaciones_Window.h"
#include "catalogs/finance/Banco_Window.h"
#include "catalogs/finance/Calculo_Window.h"
#include "catalogs/finance/Inabil_Window.h"
#include "catalogs/finance/Inpc_Window.h"
#include "catalogs/finance/NuevoTasa_Window.h"
#include "catalogs/finance/Recargos_Window.h"
#include "catalogs/finance/TasaInteres_Window.h"
#include "catalogs/finance/Tasa_Window.h"
#include "catalogs/finance/TipoInversion_Window.h"
#include "catalogs/finance/TipoMovimiento_Window.h"
#include "catalogs/finance/TipoPromocion_Window.h"
#include "catalogs/finance/TipoTasaInteres_Window.h"
#include "catalogs/finance/Udis_Window.h"
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
  const char* lanza;  ///< without a connection; null for a form that shows its failures
};

template <class V>
Ventana De(const char* nombre, const char* lanza = nullptr) {
  return {nombre, [](Area& area) -> FXWindow* { return area.Abre<V>(); }, lanza};
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
    VENTANA(TipoDepreciaciones_Window),
    VENTANA(Activo_Window),
    VENTANA(TipoTasaInteres_Window),
    De<TasaInteres_Window>("TasaInteres_Window", "Error al cargar catalogo de tipo tasas."),
    VENTANA(Udis_Window),
    VENTANA(Inpc_Window),
    VENTANA(Recargos_Window),
    VENTANA(Inabil_Window),
    VENTANA(Banco_Window),
    VENTANA(TipoPromocion_Window),
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
  Pulsa(Boton(ventana_, "&Nuevo"));
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
  const auto lanzado = Lanzado([&] { EXPECT_FALSE(Maltrata(ventana_).empty()); });
  EXPECT_EQ(lanzado.value_or(""), GetParam().lanza != nullptr ? GetParam().lanza : "");
  EXPECT_EQ(Profundidad(), 0);
}

/// The history of rates and its entry forms list nothing, and hardly say anything.
class TasasMaltratadas : public ConSucursal {
 protected:
  /// Of every entry form that was opened on the way, too.
  void Maltrata(FXWindow* historia) {
    pruebas::Maltrata(historia);
    const std::vector<NuevoTasa_Window*> entradas = Todos<NuevoTasa_Window>(historia->getParent());
    ASSERT_FALSE(entradas.empty());
    pruebas::Maltrata(entradas.front());
    EXPECT_EQ(Profundidad(), 0);
  }

  Salida salida_;
  Area area_;
  Tasa_Window* historia_ = area_.Abre<Tasa_Window>();
};

TEST_F(TasasMaltratadas, AguantanSinGuardarNada) {
  const char* const cuantas = "select count(*) from norte.tasa";
  const std::string antes = base_.Valor(cuantas);
  Maltrata(historia_);
  EXPECT_EQ(base_.Valor(cuantas), antes);
}

TEST_F(TasasMaltratadas, AguantanSinConexion) {
  PQfinish(conn);
  conn = nullptr;
  Maltrata(historia_);
}

}  // namespace
}  // namespace pruebas
