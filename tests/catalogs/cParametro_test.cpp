#include "catalogs/people/cParametro.h"

#include <gtest/gtest.h>

#include "app/sesion.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

std::string Estado(const cParametro& p) {
  return std::to_string(p.getParametroID()) + "|" + p.getUsuarioID() + "|" + p.getSerieUser() + "|" +
         p.getCuentaCaja() + "|" + p.getImpresoraCaja() + "|" + p.getImpresoraReporte() + "|" +
         std::to_string(p.getReportesLaser()) + "|" + p.getClaveSocioInt() +
         (p.getDataChanged() ? " cambiado" : "") + (p.IsNew() ? " nuevo" : "");
}

/// A record with a value of its own in each column.
cParametro Lleno() {
  cParametro parametro;
  parametro.setParametroID(9);
  parametro.setUsuarioID("braulio");
  parametro.setSerieUser("B");
  parametro.setCuentaCaja("1101-01");
  parametro.setImpresoraCaja("caja 1");
  parametro.setImpresoraReporte("reporte 1");
  parametro.setReportesLaser(1);
  parametro.setClaveSocioInt("K7");
  return parametro;
}

TEST(cParametro, RecienHechoEstaVacioYNoEsNuevo) { EXPECT_EQ(Estado(cParametro()), "0||||||0|"); }

TEST(cParametro, ElConstructorCompletoGuardaTodoTalCual) {
  EXPECT_EQ(Estado(cParametro(9, "braulio", "B", "1101-01", "caja 1", "reporte 1", 1, "K7", true, false)),
            Estado(Lleno()));
  EXPECT_EQ(Estado(cParametro(0, "", "", "", "", "", 0, "", false, true)), "0||||||0| nuevo");
  const std::string largo(200, 'x');
  const char* const x = largo.c_str();
  EXPECT_EQ(Estado(cParametro(70'000'000'000, x, x, x, x, x, -1, x, false, false)),
            "70000000000|" + std::string(20, 'x') + "|xx|" + std::string(24, 'x') + "|" +
                std::string(50, 'x') + "|" + std::string(51, 'x') + "|-1|" + std::string(15, 'x'));
}

TEST(cParametro, CadaColumnaSigueLaReglaDelCambio) {
  const ColumnaDeTexto<cParametro> tabla[] = {
      {"UsuarioID", &cParametro::setUsuarioID, &cParametro::getUsuarioID, 20},
      {"SerieUser", &cParametro::setSerieUser, &cParametro::getSerieUser, 2},
      {"CuentaCaja", &cParametro::setCuentaCaja, &cParametro::getCuentaCaja, 24},
      {"ImpresoraCaja", &cParametro::setImpresoraCaja, &cParametro::getImpresoraCaja, 50},
      {"ImpresoraReporte", &cParametro::setImpresoraReporte, &cParametro::getImpresoraReporte, 51},
      {"ClaveSocioInt", &cParametro::setClaveSocioInt, &cParametro::getClaveSocioInt, 15},
  };
  for (const auto& columna : tabla) ExigeReglaDelTexto(columna);
  ExigeReglaDelNumero<cParametro, long>(&cParametro::setParametroID, &cParametro::getParametroID,
                                        70'000'000'000);
  ExigeReglaDelNumero<cParametro, int>(&cParametro::setReportesLaser, &cParametro::getReportesLaser, 1);
}

TEST(cParametro, UnaSerieDeDosLetrasCabe) {
  cParametro parametro;
  parametro.setSerieUser("AB");
  EXPECT_STREQ(parametro.getSerieUser(), "AB");
}

TEST(cParametro, CopiarLlevaTodoYClearLoVacia) {
  cParametro original = Lleno();
  original.setIsNew(true);
  const std::string estado = "9|braulio|B|1101-01|caja 1|reporte 1|1|K7 cambiado nuevo";
  EXPECT_EQ(Estado(original), estado);
  cParametro porAsignacion, porCopy;
  porAsignacion = original;
  porCopy.Copy(original);
  EXPECT_EQ(Estado(cParametro(original)), estado);
  EXPECT_EQ(Estado(porAsignacion), estado);
  EXPECT_EQ(Estado(porCopy), estado);
  original.Clear();
  EXPECT_EQ(Estado(original), "0||||||0|");
}

TEST(cParametro, CheckSiempreDiceQueSi) {
  EXPECT_TRUE(cParametro().Check());
  EXPECT_TRUE(Lleno().Check());
}

class cParametroTest : public ConSucursal {
 protected:
  Tabla EnServidor(const std::string& usuario) {
    return base_.Filas(
        "select serieuser, rtrim(cuentacaja), impresoracaja, impresorareporte, reporteslaser, clavesocioint"
        " from norte.parametro where usuarioid = '" +
        usuario + "'");
  }
};

const char* const Valores = "('braulio','B','1101-01','caja 1','reporte 1',1,'K7');";

TEST_F(cParametroTest, CadaOperacionMandaLoSuyoYSoloUpdateYFindTrazan) {
  const std::string alta = std::string("select spiparametro") + Valores,
                    cambio = std::string("select spuparametro") + Valores;
  const struct {
    const char* nombre;
    void (*operacion)(cParametro&);
    std::string sentencia;
    bool escribe;
    Textos trazas;
  } tabla[] = {
      {"Delete", [](cParametro& p) { p.Delete(); }, "SELECT spdparametro('braulio');", true, {}},
      {"AddNew", [](cParametro& p) { p.AddNew(); }, alta, true, {}},
      {"Update", [](cParametro& p) { p.Update(); }, cambio, true, {cambio}},
      {"Find",
       [](cParametro& p) { p.Find(); },
       "SELECT * FROM spsparametro('braulio');",
       false,
       {"SELECT * FROM spsparametro('braulio');", "leyendo parametros", "B", "1101-01                 "}},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.nombre);
    cParametro parametro = Lleno();
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { fila.operacion(parametro); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(),
              fila.escribe ? (Textos{"BEGIN;", fila.sentencia, "COMMIT;"}) : Textos{fila.sentencia});
    EXPECT_EQ(salida.Lineas(), fila.trazas);
    EXPECT_EQ(parametro.getDataChanged(), std::string(fila.nombre) == "Delete");
    EXPECT_EQ(EnServidor("braulio").empty(), std::string(fila.nombre) == "Delete");
  }
  EXPECT_EQ(EnServidor("braulio"), (Tabla{{"B", "1101-01", "caja 1", "reporte 1", "1", "K7"}}));
}

TEST_F(cParametroTest, FindTomaCadaColumnaDeSuLugar) {
  base_.Ejecuta(
      "update norte.parametro set parametroid = 77, cuentacaja = '1101', clavesocioint = 'K1'"
      " where usuarioid = 'braulio'");
  cParametro parametro;
  parametro.setUsuarioID("braulio");
  Salida salida;
  parametro.Find();
  EXPECT_EQ(Estado(parametro), "77|braulio|B|1101                    |caja|reportes|1|K1");
}

TEST_F(cParametroTest, UnLoginSinParametrosEsNuevoYConservaLoQueTenia) {
  base_.Ejecuta("delete from norte.parametro where usuarioid = 'braulio'");
  cParametro parametro = Lleno();
  const std::string antes = Estado(parametro);
  Salida salida;
  parametro.Find();
  EXPECT_EQ(Estado(parametro), antes + " nuevo");
  EXPECT_EQ(salida.Lineas(), Textos{"SELECT * FROM spsparametro('braulio');"});
}

TEST_F(cParametroTest, SinLoginFindYDeleteNoHacenNada) {
  cParametro parametro;
  parametro.setParametroID(9);  // not the key
  Espia espia;
  Salida salida;
  parametro.Find();
  parametro.Delete();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_FALSE(parametro.IsNew());
}

TEST_F(cParametroTest, SinCambiosNoSeMandaNada) {
  cParametro parametro = Lleno();
  parametro.setDataChanged(false);
  Espia espia;
  Salida salida;
  parametro.AddNew();
  parametro.Update();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(cParametroTest, UnRechazoSeLanzaYConservaLasBanderas) {
  for (const auto operacion : {&cParametro::AddNew, &cParametro::Update, &cParametro::Delete}) {
    cParametro parametro = Lleno();
    Espia espia;
    espia.En(1, falla::Error("No"));
    Salida salida;
    EXPECT_EQ(Lanzado([&] { (parametro.*operacion)(); }), "ERROR:  No\n");
    EXPECT_TRUE(parametro.getDataChanged());
    EXPECT_EQ(Profundidad(), 1);
    engine.RollBackTransaction();
  }
}

TEST_F(cParametroTest, UnaRespuestaCualquieraSeEntiende) {
  const struct {
    const char* caso;
    Falla falla;
    std::string estado;
  } tabla[] = {
      {"una columna", falla::Recortada(1),
       "2|||||"
       "|0|"},
      {"nulos", falla::ConNulos(), "0||||||0|"},
      {"textos largos", falla::ConTextos(5000),
       "0|" + std::string(20, 'x') + "|xx|" + std::string(24, 'x') + "|" + std::string(50, 'x') + "|" +
           std::string(51, 'x') + "|0|" + std::string(15, 'x')},
  };
  base_.Ejecuta(
      "update norte.parametro set parametroid = 2000 where parametroid = 2;"
      "update norte.parametro set parametroid = 2 where usuarioid = 'braulio'");
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.caso);
    cParametro parametro;
    parametro.setUsuarioID("braulio");
    Espia espia;
    espia.En(0, fila.falla);
    Salida salida;
    parametro.Find();
    EXPECT_EQ(Estado(parametro), fila.estado);
  }
}

TEST_F(cParametroTest, LaSerieDiceElNombreDeQuienLaTiene) {
  const struct {
    const char* serie;
    const char* sentencia;
    const char* nombre;
  } tabla[] = {
      {"B", "select nombreusuario('B');", "braulio"}, {"A", "select nombreusuario('A');", "adriana"},
      {"Z", "select nombreusuario('Z');", ""},        {"", "select nombreusuario('');", ""},
      {"ABCD", "select nombreusuario('AB');", ""},    {"éé", "select nombreusuario('é');", ""},
      {"B1", "select nombreusuario('B1');", ""},
  };
  cParametro parametro;
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.serie);
    Espia espia;
    Salida salida;
    EXPECT_STREQ(parametro.getNombreUsuario(fila.serie), fila.nombre);
    EXPECT_EQ(espia.Sentencias(), Textos{fila.sentencia});
    EXPECT_EQ(salida.Texto(), "");
    EXPECT_NE(res, nullptr);  // left uncleared
  }
}

TEST_F(cParametroTest, ElNombreCabeEn80BytesYDuraHastaLaSiguiente) {
  cParametro parametro;
  const char* const nombre = parametro.getNombreUsuario("B");
  {
    Espia espia;
    espia.En(0, falla::ConTextos(5000));
    EXPECT_EQ(parametro.getNombreUsuario("A"), std::string(80, 'x'));
    EXPECT_EQ(nombre, std::string(80, 'x'));
  }
  parametro.Clear();  // which does not touch it
  EXPECT_EQ(nombre, std::string(80, 'x'));
  Espia espia;
  espia.En(0, falla::Error("No"));
  espia.En(1, falla::Nula());
  EXPECT_EQ(Lanzado([&] { parametro.getNombreUsuario("A"); }), "ERROR:  No\n");
  EXPECT_EQ(Lanzado([&] { parametro.getNombreUsuario("A"); }), "");
  EXPECT_EQ(nombre, std::string(80, 'x'));
}

}  // namespace
}  // namespace pruebas
