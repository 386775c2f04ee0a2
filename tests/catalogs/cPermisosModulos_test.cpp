#include "catalogs/people/cPermisosModulos.h"

#include <gtest/gtest.h>

#include "app/sesion.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

std::string Estado(const cPermisosModulos& p) {
  return std::to_string(p.getPermisoModuloID()) + "|" + p.getClaveModulo() + "|" + p.getUsuarioID() + "|" +
         p.getPermiso() + "|" + p.getDescripcionModulo() + (p.getDataChanged() ? " cambiado" : "") +
         (p.IsNew() ? " nuevo" : "") + (p.Deleted() ? " borrado" : "");
}

TEST(cPermisosModulos, RecienHechoEstaVacioYSinBanderas) { EXPECT_EQ(Estado(cPermisosModulos()), "0||||"); }

TEST(cPermisosModulos, CopiarLlevaLasTresBanderasYClearNoTocaLaDeBorrado) {
  const cPermisosModulos original(70'000'000'000, "0203", "ana", "S", "Monedas", true, true, true);
  const std::string estado = "70000000000|0203|ana|S|Monedas cambiado nuevo borrado";
  EXPECT_EQ(Estado(original), estado);
  cPermisosModulos porAsignacion, porCopy;
  porAsignacion = original;
  porCopy.Copy(original);
  EXPECT_EQ(Estado(cPermisosModulos(original)), estado);
  EXPECT_EQ(Estado(porAsignacion), estado);
  EXPECT_EQ(Estado(porCopy), estado);
  porCopy.Clear();
  EXPECT_EQ(Estado(porCopy), "0|||| borrado");
  porCopy.setDeleted(false);
  EXPECT_EQ(Estado(porCopy), "0||||");
}

TEST(cPermisosModulos, CadaBanderaDelConstructorVaPorSuLado) {
  EXPECT_EQ(Estado(cPermisosModulos(1, "", "", "", "", true, false, false)), "1|||| cambiado");
  EXPECT_EQ(Estado(cPermisosModulos(1, "", "", "", "", false, true, false)), "1|||| nuevo");
  EXPECT_EQ(Estado(cPermisosModulos(1, "", "", "", "", false, false, true)), "1|||| borrado");
}

TEST(cPermisosModulos, CadaColumnaSigueLaReglaDelCambio) {
  using P = cPermisosModulos;
  const ColumnaDeTexto<P> tabla[] = {
      {"ClaveModulo", &P::setClaveModulo, &P::getClaveModulo, 10},
      {"UsuarioID", &P::setUsuarioID, &P::getUsuarioID, 20},
      {"Permiso", &P::setPermiso, &P::getPermiso, 1},
      {"DescripcionModulo", &P::setDescripcionModulo, &P::getDescripcionModulo, 80},
  };
  for (const auto& columna : tabla) ExigeReglaDelTexto(columna);
  ExigeReglaDelNumero<P, long>(&P::setPermisoModuloID, &P::getPermisoModuloID, 70'000'000'000);
}

TEST(cPermisosModulos, CheckSiempreDiceQueSi) { EXPECT_TRUE(cPermisosModulos().Check()); }

class cPermisosModulosTest : public ConSucursal {
 protected:
  std::string ID(const std::string& usuario, const std::string& modulo) {
    return base_.Valor("select permisomoduloid from norte.permisomodulo where usuarioid = '" + usuario +
                       "' and clavemodulo = '" + modulo + "'");
  }
  std::string Letra(const std::string& usuario, const std::string& modulo) {
    return base_.Valor("select permiso from norte.permisomodulo where usuarioid = '" + usuario +
                       "' and clavemodulo = '" + modulo + "'");
  }
  void PonLetra(const std::string& letra) {
    base_.Ejecuta("update norte.permisomodulo set permiso = '" + letra +
                  "' where usuarioid = 'braulio'"
                  " and clavemodulo = '0203'");
  }
  static bool Pregunta(cPermisosModulos& permiso, const char* usuario, const char* modulo) {
    Salida salida;
    return permiso.Acceso(usuario, modulo);
  }
};

TEST_F(cPermisosModulosTest, SoloLaLetraNMayusculaNiega) {
  const std::pair<const char*, bool> tabla[] = {
      {"S", true}, {"N", false}, {"n", true}, {"", true}, {"X", true}};
  cPermisosModulos permiso;
  for (const auto& [letra, concede] : tabla) {
    SCOPED_TRACE(letra);
    PonLetra(letra);
    EXPECT_EQ(Pregunta(permiso, "braulio", "0203"), concede);
    EXPECT_STREQ(permiso.getPermiso(), letra);
    EXPECT_FALSE(permiso.IsNew());
  }
}

TEST_F(cPermisosModulosTest, SinRenglonSeNiegaComoConN) {
  const std::pair<const char*, const char*> tabla[] = {
      {"braulio", "9999"}, {"nadie", "0203"},    {"", ""},
      {"braulio", "020"},  {"bra'ulio", "0203"}, {"braulio", "%"}};
  for (const auto& [usuario, modulo] : tabla) {
    SCOPED_TRACE(std::string(usuario) + " " + modulo);
    cPermisosModulos permiso(7, "0102", "ana", "S", "d", true, false, true);
    EXPECT_FALSE(Pregunta(permiso, usuario, modulo));
    EXPECT_EQ(Estado(permiso), "7|0102|ana|S|d cambiado nuevo borrado");
  }
}

TEST_F(cPermisosModulosTest, PreguntarMandaYTrazaUnaSentenciaCadaVez) {
  cPermisosModulos permiso(7, "0102", "ana", "S", "d", true, true, true);
  Espia espia;
  Salida salida;
  const std::string pregunta = "SELECT * FROM spspermisomodulo('braulio','0203');";
  for (const size_t veces : {1u, 2u, 3u}) {
    PonLetra(veces == 2 ? "N" : "S");  // nothing is kept from one question to the next
    EXPECT_EQ(permiso.Acceso("braulio", "0203"), veces != 2);
    EXPECT_EQ(espia.Sentencias(), Textos(veces, pregunta));
    EXPECT_EQ(salida.Lineas(), Textos(veces, pregunta));
  }
  EXPECT_EQ(Estado(permiso), ID("braulio", "0203") + "|0203      |braulio|S|Monedas");
  EXPECT_EQ(res, nullptr);
}

TEST_F(cPermisosModulosTest, UnaPreguntaQueFallaNiegaSinDecirNada) {
  const std::pair<const char*, Falla> tabla[] = {
      {"error", falla::Error("No")},         {"nula", falla::Nula()},
      {"sin filas", falla::SinFilas()},      {"corte antes", falla::CorteAntes()},
      {"en la línea muerta", __real_PQexec},
  };
  for (const auto& [caso, falla] : tabla) {
    SCOPED_TRACE(caso);
    cPermisosModulos permiso;
    Espia espia;
    espia.En(0, falla);
    EXPECT_FALSE(Pregunta(permiso, "adriana", "0203"));
    EXPECT_TRUE(permiso.IsNew());
  }
  PQfinish(conn);
  conn = nullptr;
  cPermisosModulos permiso;
  EXPECT_FALSE(Pregunta(permiso, "adriana", "0203"));
}

TEST_F(cPermisosModulosTest, UnaRespuestaCualquieraSeLeeColumnaPorColumna) {
  const struct {
    const char* caso;
    Falla falla;
    bool concede;
    std::string estado;
  } tabla[] = {
      {"tres columnas", falla::Recortada(3), true, ID("adriana", "0203") + "|0203      |adriana||"},
      {"nulos", falla::ConNulos(), true, "0||||"},
      {"textos largos", falla::ConTextos(5000), true,
       "0|xxxxxxxxxx|" + std::string(20, 'x') + "|x|" + std::string(80, 'x')},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.caso);
    cPermisosModulos permiso;
    Espia espia;
    espia.En(0, fila.falla);
    EXPECT_EQ(Pregunta(permiso, "adriana", "0203"), fila.concede);
    EXPECT_EQ(Estado(permiso), fila.estado);
  }
}

TEST_F(cPermisosModulosTest, ElRegistroGlobalPreguntaIgual) {
  EXPECT_TRUE(Pregunta(permite, "adriana", "0203"));
  EXPECT_FALSE(Pregunta(permite, "camila", "0203"));
}

TEST_F(cPermisosModulosTest, CadaOperacionMandaLoSuyoSinTraza) {
  const std::string id = ID("braulio", "0203");
  const cPermisosModulos original(std::stol(id), "0203", "braulio", "N", "Monedas", true, true, true);
  const struct {
    const char* nombre;
    void (*operacion)(cPermisosModulos&);
    std::string sentencia;
    bool escribe;
    const char* banderas;
  } tabla[] = {
      {"Find", [](cPermisosModulos& p) { p.Find(); }, "SELECT * FROM spspermisosmodulos(" + id + ");", false,
       ""},
      {"Update", [](cPermisosModulos& p) { p.Update(); },
       "select spupermisomodulo(" + id + ",'0203','braulio','N');", true, " borrado"},
      {"Delete", [](cPermisosModulos& p) { p.Delete(); }, "SELECT spdpermisosmodulos(" + id + ");", true,
       " cambiado nuevo borrado"},
      {"AddNew", [](cPermisosModulos& p) { p.AddNew(); }, "select spipermisomodulo('0203','braulio','N');",
       true, " borrado"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.nombre);
    cPermisosModulos permiso = original;
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { fila.operacion(permiso); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(),
              fila.escribe ? (Textos{"BEGIN;", fila.sentencia, "COMMIT;"}) : Textos{fila.sentencia});
    EXPECT_EQ(salida.Texto(), "");
    const std::string estado = Estado(permiso);
    EXPECT_EQ(estado.substr(estado.find("Monedas") + 7), fila.banderas);
    if (std::string(fila.nombre) == "Update") {
      EXPECT_EQ(Letra("braulio", "0203"), "N");
    }
    if (std::string(fila.nombre) == "AddNew") {
      EXPECT_EQ(std::to_string(permiso.getPermisoModuloID()), ID("braulio", "0203"));
    }
  }
  EXPECT_NE(ID("braulio", "0203"), id) << "se borró y se dio de alta otra vez";
}

TEST_F(cPermisosModulosTest, SinIdentificadorFindYDeleteNoHacenNada) {
  cPermisosModulos permiso(0, "0203", "braulio", "S", "d", true, false, false);
  Espia espia;
  permiso.Find();
  permiso.Delete();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(Estado(permiso), "0|0203|braulio|S|d cambiado");
}

TEST_F(cPermisosModulosTest, FindDeUnIdentificadorQueNoEstaSoloMarcaNuevo) {
  cPermisosModulos permiso(999999, "0203", "braulio", "S", "d", true, false, true);
  permiso.Find();
  EXPECT_EQ(Estado(permiso), "999999|0203|braulio|S|d cambiado nuevo borrado");
  EXPECT_NE(res, nullptr);  // left uncleared
}

TEST_F(cPermisosModulosTest, SoloElRenglonTocadoLlegaAlServidor) {
  cPermisosModulos permiso;
  permiso.setPermisoModuloID(std::stol(ID("braulio", "0203")));
  permiso.Find();
  Espia espia;
  permiso.setPermiso("S");  // as it is
  permiso.Update();
  EXPECT_TRUE(espia.Sentencias().empty());
  permiso.setPermiso("N");
  permiso.Update();
  permiso.Update();
  EXPECT_EQ(espia.Cuantas("spupermisomodulo"), 1u);
  EXPECT_EQ(Letra("braulio", "0203"), "N");
}

TEST_F(cPermisosModulosTest, UnRechazoSeLanzaYConservaLasBanderas) {
  for (const auto operacion :
       {&cPermisosModulos::AddNew, &cPermisosModulos::Update, &cPermisosModulos::Delete}) {
    cPermisosModulos permiso(7, "0203", "braulio", "N", "d", true, true, true);
    Espia espia;
    espia.En(1, falla::Error("No"));
    EXPECT_EQ(Lanzado([&] { (permiso.*operacion)(); }), "ERROR:  No\n");
    EXPECT_EQ(Estado(permiso), "7|0203|braulio|N|d cambiado nuevo borrado");
    EXPECT_EQ(Profundidad(), 1);
    engine.RollBackTransaction();
  }
  EXPECT_EQ(Letra("braulio", "0203"), "S");
}

TEST_F(cPermisosModulosTest, ElAltaSinRespuestaConservaElIdentificador) {
  base_.Ejecuta("delete from norte.permisomodulo where usuarioid = 'braulio' and clavemodulo = '0203'");
  cPermisosModulos permiso(7, "0203", "braulio", "S", "d", true, true, false);
  Espia espia;
  espia.En(1, falla::SinFilas());
  permiso.AddNew();
  EXPECT_EQ(permiso.getPermisoModuloID(), 7);
}

}  // namespace
}  // namespace pruebas
