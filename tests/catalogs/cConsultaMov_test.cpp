#include "catalogs/people/cConsultaMov.h"

#include <gtest/gtest.h>

#include "tests/support/Registros.h"

namespace pruebas {
namespace {

std::string Estado(const cConsultaMov& m) {
  std::string estado = std::string(m.getTexto1()) + "|" + m.getTexto2();
  for (int i = 0; i < 4; ++i) estado += "|" + std::to_string(m.getImporte(i));
  for (int i = 0; i < 4; ++i) estado += std::string("|") + m.getFecha(i).AsChar();
  return estado;
}

class cConsultaMovTest : public ConBaseVacia {};

TEST_F(cConsultaMovTest, FillTomaCadaColumnaDeSuLugar) {
  const std::string x(5000, 'x');
  const std::pair<std::string, std::string> tabla[] = {
      {"'uno', 'dos', '1.5', '-2.25', 3, '4e2', '2001-01-02', '03/04/2002', '2003-05-06', '2004-07-08'",
       "uno|dos|1.500000|-2.250000|3.000000|400.000000|2001-01-02|2002-04-03|2003-05-06|2004-07-08"},
      {"null, null, null, null, null, null, null, null, null, null",
       "||0.000000|0.000000|0.000000|0.000000|0000-00-00|0000-00-00|0000-00-00|0000-00-00"},
      {"'uno'", "uno||0.000000|0.000000|0.000000|0.000000|0000-00-00|0000-00-00|0000-00-00|0000-00-00"},
      {"'" + x + "', '" + x + "'",
       x.substr(0, 15) + "|" + x.substr(0, 82) +
           "|0.000000|0.000000|0.000000|0.000000|0000-00-00|0000-00-00|0000-00-00|"
           "0000-00-00"},
      {"'" + TextoAcentuado() + "', '" + TextoAcentuado() + "'",
       AcentuadoHasta(15) + "|" + AcentuadoHasta(82) +
           "|0.000000|0.000000|0.000000|0.000000|0000-00-00|0000-00-00|0000-00-00|0000-00-00"},
  };
  for (const auto& [valores, estado] : tabla) {
    SCOPED_TRACE(valores.substr(0, 60));
    Ejecuta(("select " + valores).c_str());
    cConsultaMov consulta;
    consulta.Fill(0);
    EXPECT_EQ(Estado(consulta), estado);
    cConsultaMov porAsignacion, porCopy;
    porAsignacion = consulta;
    porCopy.Copy(consulta);
    EXPECT_EQ(Estado(cConsultaMov(consulta)), estado);
    EXPECT_EQ(Estado(porAsignacion), estado);
    EXPECT_EQ(Estado(porCopy), estado);
  }
}

}  // namespace
}  // namespace pruebas
