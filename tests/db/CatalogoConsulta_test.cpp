// The look-ups of the cache, and its small questions to the server.
#include <gtest/gtest.h>

#include "app/sesion.h"
#include "db/Catalogo.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

/// A chart and states of loans put into the cache by hand.
class ConsultaTest : public testing::Test {
 protected:
  ConsultaTest() {
    Catalogo::Catalogo_Ctas = {{0, De("1000", "C", "Activo")},
                               {1, De("1101    ", "A", "Caja")},
                               {2, De("1102", "A", "Bancos")},
                               {3, De("1102", "C", "Bancos otra vez")}};
    Catalogo::Estados_Credito = {{0, cEstados_Credito("VEN", "Vencido", false, false)},
                                 {1, cEstados_Credito("A  ", "Alta", false, false)}};
    Catalogo::TipoMovimiento = {{0, Movimiento("AH", "Ahorro")},
                                {1, Movimiento("M ", "Menores")},
                                {2, Movimiento("AH", "Ahorro otra vez")}};
    Catalogo::TipoInversiones = {{0, Inversion("028", "A 28 días")},
                                 {1, Inversion("C", "Creciente")},
                                 {2, Inversion("028", "A 28 días otra vez")}};
  }
  ~ConsultaTest() override {
    Catalogo::Catalogo_Ctas.clear();
    Catalogo::Estados_Credito.clear();
    Catalogo::TipoMovimiento.clear();
    Catalogo::TipoInversiones.clear();
  }

  static cCatalogo_Ctas De(const char* numero, const char* tipo, const char* nombre) {
    return cCatalogo_Ctas(numero, "", "1", nombre, tipo, "", date(), date(), "D", 0, 0, 0, 0, false, false);
  }
  static cTipoMovimiento Movimiento(const char* clave, const char* descripcion) {
    cTipoMovimiento movimiento;
    movimiento.setTipoMovimientoID(clave);
    movimiento.setDescTipoMovimiento(descripcion);
    return movimiento;
  }
  static cTipoInversion Inversion(const char* clave, const char* descripcion) {
    cTipoInversion inversion;
    inversion.setTipoInversionID(clave);
    inversion.setDescTipoInversion(descripcion);
    return inversion;
  }
};

TEST_F(ConsultaTest, UnaCuentaEsAfectableSiEsDeTipoAOSiNoEstaEnElCatalogo) {
  const std::pair<const char*, bool> tabla[] = {
      {"1000", false}, {"1101    ", true}, {"1102", true}, {"9999", true},
      {"", true},      {"1000 ", true},    {"100", true},
  };
  Espia espia;
  for (const auto& [cuenta, afectable] : tabla) EXPECT_EQ(catalogo.EsAfectable(cuenta), afectable) << cuenta;
  EXPECT_TRUE(espia.Sentencias().empty());
}

TEST_F(ConsultaTest, SinCatalogoDeCuentasTodasSonAfectables) {
  Catalogo::Catalogo_Ctas.clear();
  EXPECT_TRUE(catalogo.EsAfectable("1000"));
}

TEST_F(ConsultaTest, UnaConsultaDaLaPrimeraFilaDeEsaClaveOUnRegistroVacio) {
  const std::pair<const char*, const char*> cuentas[] = {
      {"1000", "Activo"}, {"1101    ", "Caja"}, {"1102", "Bancos"}, {"1101", ""}, {"1000 ", ""}, {"", ""}};
  const std::pair<const char*, const char*> estados[] = {
      {"VEN", "Vencido"}, {"A  ", "Alta"}, {"A", ""}, {"VEN ", ""}, {"", ""}};
  const std::pair<const char*, const char*> movimientos[] = {
      {"AH", "Ahorro"}, {"M ", "Menores"}, {"M", ""}, {"AH ", ""}, {"", ""}};
  const std::pair<const char*, const char*> inversiones[] = {
      {"028", "A 28 días"}, {"C  ", "Creciente"}, {"C", ""}, {"28", ""}, {"", ""}};
  Espia espia;
  for (const auto& [clave, nombre] : cuentas)
    EXPECT_STREQ(catalogo.Cuenta(clave).getCuentaNombre(), nombre) << clave;
  for (const auto& [clave, descripcion] : estados)
    EXPECT_STREQ(catalogo.EstadoCredito(clave).getDescripcionEdoCredito(), descripcion) << clave;
  for (const auto& [clave, descripcion] : movimientos)
    EXPECT_STREQ(catalogo.TipoMovi(clave).getDescTipoMovimiento(), descripcion) << clave;
  for (const auto& [clave, descripcion] : inversiones)
    EXPECT_STREQ(catalogo.TipoInversion(clave).getDescTipoInversion(), descripcion) << clave;
  EXPECT_TRUE(espia.Sentencias().empty());
}

TEST_F(ConsultaTest, LoConsultadoEsUnaCopia) {
  cCatalogo_Ctas cuenta = catalogo.Cuenta("1000");
  cuenta.setCuentaNombre("Otro");
  EXPECT_STREQ(Catalogo::Catalogo_Ctas[0].getCuentaNombre(), "Activo");
  Catalogo::Catalogo_Ctas.clear();
  EXPECT_STREQ(cuenta.getCuentaNombre(), "Otro");
}

// Questions to a server with functions of the test's own.

class PreguntaTest : public ConBaseVacia {
 protected:
  void SetUp() override {
    base_.Ejecuta(
        "create function cletra(n numeric) returns text language sql as $$ select 'letra de ' || n $$;"
        "create function login(u text, p text) returns int language sql as $$ select p::int $$;"
        "create function spssociocajaf(f text) returns table (a int, b text, c text, d text, e text, f text)"
        " language sql as $$ select n, 'K' || n, 'Pérez', 'Paz', f, 'Activo' from generate_series(1, "
        "length(f)) n $$");
    Catalogo::SociosCaja.clear();
  }
  ~PreguntaTest() override { Catalogo::SociosCaja.clear(); }
};

TEST_F(PreguntaTest, LaCantidadConLetraLaEscribeElServidor) {
  Espia espia;
  Salida salida;
  char* const letra = catalogo.CantidadConLetra(1234.5);
  EXPECT_STREQ(letra, "letra de 1234.500000");
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM cletra(1234.500000);"});
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_EQ(res, nullptr);
  EXPECT_EQ(catalogo.CantidadConLetra(-0.01), letra) << "el texto dura hasta la llamada siguiente";
  EXPECT_STREQ(letra, "letra de -0.010000");
}

TEST_F(PreguntaTest, LaLetraSeCortaAlAnchoYSinRespuestaQuedaVacia) {
  const std::pair<Falla, std::string> tabla[] = {{falla::ConTextos(5000), std::string(255, 'x')},
                                                 {falla::SinFilas(), ""},
                                                 {falla::ConNulos(), ""},
                                                 {falla::Error("No"), ""},
                                                 {falla::Nula(), ""}};
  for (const auto& [falla, letra] : tabla) {
    Espia espia;
    espia.En(0, falla);
    EXPECT_EQ(catalogo.CantidadConLetra(1), letra);
  }
}

TEST_F(PreguntaTest, LoginEsCiertoSoloConUnUno) {
  const std::pair<const char*, bool> tabla[] = {
      {"1", true}, {"0", false}, {"2", false}, {"-1", false}, {"11", false}};
  for (const auto& [respuesta, entra] : tabla) {
    SCOPED_TRACE(respuesta);
    const std::string sql = std::string("select login('ana','") + respuesta + "');";
    Espia espia;
    Salida salida;
    EXPECT_EQ(catalogo.Login("ana", respuesta), entra);
    EXPECT_EQ(espia.Sentencias(), Textos{sql});
    EXPECT_EQ(salida.Lineas(), Textos{sql});
    EXPECT_EQ(res, nullptr);
  }
}

TEST_F(PreguntaTest, LoginLanzaElTextoDelServidorYSinFilasEsFalso) {
  Salida salida;
  Espia espia;
  espia.En(0, falla::Error("No"));
  espia.En(1, falla::Nula());
  espia.En(2, falla::SinFilas());
  EXPECT_EQ(Lanzado([] { catalogo.Login("ana", "1"); }), "ERROR:  No\n");
  EXPECT_EQ(Lanzado([] { catalogo.Login("ana", "1"); }), "");
  EXPECT_FALSE(catalogo.Login("ana", "1"));
  EXPECT_TRUE(Lanzado([] { catalogo.Login("a'na", "1"); }).has_value())
      << "un apóstrofo lo rechaza el servidor";
}

TEST_F(PreguntaTest, LosSociosFiltradosSustituyenATodos) {
  Salida salida;
  catalogo.LoadSociosCajaF("Ana");
  ASSERT_EQ(Catalogo::SociosCaja.size(), 3u);
  EXPECT_STREQ(Catalogo::SociosCaja[2].getClaveSocioInt(), "K3");
  EXPECT_STREQ(Catalogo::SociosCaja[2].getNombre(), "Ana");
  const std::string sql = "SELECT * FROM spssociocajaf('%s');";
  Espia espia;
  catalogo.LoadSociosCajaF("%s");
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", sql, "COMMIT;"}));
  EXPECT_EQ(salida.Lineas(), (Textos{"SELECT * FROM spssociocajaf('Ana');", sql}));
  EXPECT_EQ(Catalogo::SociosCaja.size(), 2u);
  catalogo.LoadSociosCajaF("");
  EXPECT_TRUE(Catalogo::SociosCaja.empty());
}

TEST_F(PreguntaTest, UnFiltroConApostrofoNoTraeNadaYUnBeginQueFallaLanzaSuMensaje) {
  Salida salida;
  catalogo.LoadSociosCajaF("Ana");
  EXPECT_EQ(Lanzado([] { catalogo.LoadSociosCajaF("O'Hara"); }), std::nullopt);
  EXPECT_TRUE(Catalogo::SociosCaja.empty());
  EXPECT_EQ(PQtransactionStatus(conn), PQTRANS_IDLE);
  catalogo.LoadSociosCajaF("Ana");
  Espia espia;
  espia.En(0, falla::Error("No"));
  EXPECT_EQ(Lanzado([] { catalogo.LoadSociosCajaF("Ana"); }), "Error al cargar socios de la caja.");
  EXPECT_TRUE(Catalogo::SociosCaja.empty());
  EXPECT_EQ(espia.Sentencias(), Textos{"BEGIN;"});
}

}  // namespace
}  // namespace pruebas
