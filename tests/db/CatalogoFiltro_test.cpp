// The loads of the cache that take a filter.
#include <gtest/gtest.h>

#include "app/sesion.h"
#include "db/Catalogo.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

class FiltroTest : public ConSucursal {};

TEST_F(FiltroTest, LasPersonasFiltradasSustituyenATodasYLaSentenciaSeTraza) {
  const std::string sql = "SELECT * FROM spssujetos('ximena quimera');";
  const Tabla filas = base_.Filas(
      "select sujetoid, paterno, materno, nombre, rfc, curp, edad, fechanacimiento from norte.sujeto"
      " where nombre = 'Ximena' and paterno = 'Quimera' order by materno, sujetoid");
  ASSERT_GT(filas.size(), 0u);
  Salida salida;
  catalogo.LoadSujetos("a");
  ASSERT_GT(Catalogo::Sujetos.size(), filas.size());
  Espia espia;
  catalogo.LoadSujetos("ximena quimera");
  EXPECT_EQ(espia.Sentencias(), Textos{sql});
  EXPECT_EQ(salida.Lineas(), (Textos{"SELECT * FROM spssujetos('a');", sql}));
  ASSERT_EQ(Catalogo::Sujetos.size(), filas.size());
  for (size_t i = 0; i < filas.size(); ++i) {
    const cSujeto& persona = Catalogo::Sujetos[static_cast<int>(i)];
    EXPECT_EQ((Textos{std::to_string(persona.getSujetoID()), persona.getPaterno(), persona.getMaterno(),
                      persona.getNombre(), persona.getRfc(), persona.getCurp(),
                      std::to_string(persona.getEdad()), persona.getFechaNacimiento().AsChar()}),
              filas[i]);
  }
  EXPECT_EQ(res, nullptr);
}

}  // namespace
}  // namespace pruebas
