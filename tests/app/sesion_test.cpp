#include "app/sesion.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <type_traits>

#include "app/Caja.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

/// A text of the session: its width, terminator included, and what it says before the first login.
struct Texto {
  template <size_t N>
  Texto(const char* nombre, const char (&texto)[N], size_t ancho, const char* inicial = "")
      : nombre(nombre), texto(texto), tamano(N), ancho(ancho), inicial(inicial) {}
  const char* nombre;
  const char* texto;
  size_t tamano;
  size_t ancho;
  const char* inicial;
};

const Texto textos[] = {
    {"Version", Version, 21, "0.0.7"},
    {"gsMsgServidor", gsMsgServidor, 512},
    {"glogin", glogin, 21},
    {"gsucursal", gsucursal, 80},
    {"gSchema", gSchema, 31},
    {"gHost", gHost, 51},
    {"gPort", gPort, 6},
    {"gDbname", gDbname, 31},
    {"serie_user", serie_user, 3},
    {"gcuentacaja", gcuentacaja, 25},
    {"gImpresoraCaja", gImpresoraCaja, 51},
    {"gImpresoraReporte", gImpresoraReporte, 51},
    {"gLetraChicaLaser", gLetraChicaLaser, 51},
    {"gsucid", gsucid, 5},
    {"gnombrecaja", gnombrecaja, 81},
    {"gGerente", gGerente, 81},
    {"gPresidenteAdmon", gPresidenteAdmon, 81},
    {"gContador", gContador, 81},
    {"gDireccionCaja", gDireccionCaja, 101},
    {"gContadorSucursal", gContadorSucursal, 81},
    {"gNivelOperaciones", gNivelOperaciones, 81},
    {"gccpresidente", gccpresidente, 51},
    {"gccvicepresidente", gccvicepresidente, 51},
    {"gccoficial", gccoficial, 51},
    {"gccanalista", gccanalista, 51},
    {"gccsecretario", gccsecretario, 51},
    {"gVersion", gVersion, 21},
    {"formatocuenta", formatocuenta, 25},
    {"gclientesocio", gclientesocio, 10},
    {"gpggrupodefault", gpggrupodefault, 21},
};

TEST(sesion, CadaTextoTieneSuAncho) {
  for (const Texto& t : textos) EXPECT_EQ(t.tamano, t.ancho) << t.nombre;
}

/// What a program that has just started does not find as it should.
std::string FallasAlArrancar() {
  std::string fallas;
  const auto exige = [&](bool cumple, const std::string& nombre) {
    if (!cumple) fallas += nombre + "\n";
  };
  for (const Texto& t : textos) exige(strcmp(t.texto, t.inicial) == 0, t.nombre);
  exige(conn == nullptr, "conn");
  exige(connR == nullptr, "connR");
  exige(res == nullptr, "res");
  exige(bLocal, "bLocal");
  exige(!IsConectado, "IsConectado");
  exige(!IsEditable, "IsEditable");
  exige(strcmp(sleft, "     ") == 0, "sleft");
  exige(tmplong == 0, "tmplong");
  exige(RanurasMdi == 100, "RanurasMdi");
  for (const bool ranura : mdiArray) exige(!ranura, "mdiArray");
  for (const auto& [nombre, fecha] :
       {std::pair("gFecha", &gFecha), std::pair("gFechaCobroIVA", &gFechaCobroIVA)})
    exige(strcmp(fecha->AsChar(), "1900-01-01") == 0 && strcmp(fecha->AsDMY(), "01/01/1900") == 0, nombre);
  return fallas;
}

static_assert(std::is_same_v<decltype(sleft), char*>);

/// What was there when only the objects with a priority had been built.
struct Vistazo {
  Vistazo()
      : fechas(strcmp(gFecha.AsChar(), "1900-01-01") == 0 &&
               strcmp(gFechaCobroIVA.AsChar(), "1900-01-01") == 0),
        ventanas(FXMetaClass::getMetaClassFromName("Caja") != nullptr) {}
  bool fechas;
  bool ventanas;
};
[[gnu::init_priority(65000)]] const Vistazo alComienzo;

TEST(sesion, SusObjetosSeConstruyenAntesQueLosRegistrosDeLasVentanas) {
  EXPECT_TRUE(alComienzo.fechas);
  EXPECT_FALSE(alComienzo.ventanas);
  EXPECT_EQ(FXMetaClass::getMetaClassFromName("Caja"), &Caja::metaClass);
}

// In a process of its own: here other tests may have opened a session already.
TEST(sesionDeathTest, AlArrancarNoHaySesion) {
  EXPECT_EXIT(
      {
        const std::string fallas = FallasAlArrancar();
        fputs(fallas.c_str(), stderr);
        _Exit(fallas.empty() ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST(sesion, LaRanuraCienTieneSuPropioLugar) {
  gCalculaISRInversion = 0;
  mdiArray[100] = true;
  EXPECT_EQ(gCalculaISRInversion, 0);
  mdiArray[100] = false;
}

TEST(sesion, UnAvisoSeGuardaYSeTraza) {
  for (const char* aviso : {"AVISO:  hola\n", "", "100% %s %n"}) {
    Salida salida;
    msgservidor(nullptr, aviso);
    EXPECT_STREQ(gsMsgServidor, aviso);
    EXPECT_EQ(salida.Texto(), std::string(aviso) + "\n");
  }
}

TEST(sesion, UnAvisoLargoSeGuardaCortadoEnLetraEnteraYSeTrazaEntero) {
  Salida salida;
  msgservidor(nullptr, TextoAcentuado().c_str());
  EXPECT_EQ(gsMsgServidor, AcentuadoHasta(511));
  EXPECT_EQ(salida.Texto(), TextoAcentuado() + "\n");
}

}  // namespace
}  // namespace pruebas
