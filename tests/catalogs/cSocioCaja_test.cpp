#include "catalogs/people/cSocioCaja.h"

#include <gtest/gtest.h>

#include "tests/support/Registros.h"

namespace pruebas {
namespace {

std::string Estado(const cSocioCaja& s) {
  return std::to_string(s.getSocioID()) + "|" + s.getClaveSocioInt() + "|" + s.getPaterno() + "|" +
         s.getMaterno() + "|" + s.getNombre() + "|" + s.getEstatus();
}

TEST(cSocioCaja, RecienHechoEstaVacio) { EXPECT_EQ(Estado(cSocioCaja()), "0|||||"); }

TEST(cSocioCaja, ElConstructorTomaLasColumnasEnElOrdenDeLaRespuesta) {
  cSocioCaja socio(70'000'000'000, "K7", "Pérez", "Paz", "Ana", "Activo");
  EXPECT_EQ(Estado(socio), "70000000000|K7|Pérez|Paz|Ana|Activo");
  cSocioCaja porAsignacion, porCopy;
  porAsignacion = socio;
  porCopy.Copy(socio);
  EXPECT_EQ(Estado(cSocioCaja(socio)), Estado(socio));
  EXPECT_EQ(Estado(porAsignacion), Estado(socio));
  EXPECT_EQ(Estado(porCopy), Estado(socio));
  socio.Clear();
  EXPECT_EQ(Estado(socio), "0|||||");
}

TEST(cSocioCaja, CadaTextoSeCortaAlAnchoYEnLetraEntera) {
  const ColumnaDeTexto<cSocioCaja> tabla[] = {
      {"ClaveSocioInt", &cSocioCaja::setClaveSocioInt, &cSocioCaja::getClaveSocioInt, 15},
      {"Paterno", &cSocioCaja::setPaterno, &cSocioCaja::getPaterno, 20},
      {"Materno", &cSocioCaja::setMaterno, &cSocioCaja::getMaterno, 20},
      {"Nombre", &cSocioCaja::setNombre, &cSocioCaja::getNombre, 40},
      {"Estatus", &cSocioCaja::setEstatus, &cSocioCaja::getEstatus, 32},
  };
  for (const auto& columna : tabla) {
    SCOPED_TRACE(columna.nombre);
    cSocioCaja socio;
    (socio.*columna.pon)("a");
    EXPECT_STREQ((socio.*columna.da)(), "a");
    (socio.*columna.pon)(std::string(5000, 'x').c_str());
    EXPECT_EQ((socio.*columna.da)(), std::string(columna.bytes, 'x'));
    (socio.*columna.pon)(TextoAcentuado().c_str());
    EXPECT_EQ((socio.*columna.da)(), AcentuadoHasta(columna.bytes));
  }
}

class cSocioCajaTest : public ConBaseVacia {};

TEST_F(cSocioCajaTest, FillTomaCadaColumnaDeSuLugar) {
  const std::pair<std::string, std::string> tabla[] = {
      {"5, 'K5', 'Pérez', 'Paz', 'Ana', 'Activo'", "5|K5|Pérez|Paz|Ana|Activo"},
      {"null, null, null, null, null, null", "0|||||"},
      {"5, 'K5'", "5|K5||||"},
      {"'t', repeat('x',5000), repeat('x',5000), repeat('x',5000), repeat('x',5000), repeat('x',5000)",
       "0|" + std::string(15, 'x') + "|" + std::string(20, 'x') + "|" + std::string(20, 'x') + "|" +
           std::string(40, 'x') + "|" + std::string(32, 'x')},
  };
  for (const auto& [valores, estado] : tabla) {
    SCOPED_TRACE(valores);
    Ejecuta(("select " + valores).c_str());
    cSocioCaja socio(1, "a", "b", "c", "d", "e");
    socio.Fill(0);
    EXPECT_EQ(Estado(socio), estado);
  }
}

}  // namespace
}  // namespace pruebas
