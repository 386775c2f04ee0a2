#include "catalogs/people/cUsuario.h"

#include <gtest/gtest.h>

#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

TEST(cUsuario, ElLoginSigueLaReglaDelCambio) {
  ExigeReglaDelTexto<cUsuario>({"UsuarioID", &cUsuario::setUsuarioID, &cUsuario::getUsuarioID, 20});
}

cUsuario Usuario(const char* login) {
  cUsuario usuario;
  usuario.setUsuarioID(login);
  return usuario;
}

class cUsuarioTest : public ConSucursal {
 protected:
  void SetUp() override { cUsuario::Permisos.clear(); }
  void TearDown() override { cUsuario::Permisos.clear(); }

  Tabla EnServidor(const std::string& login) {
    return base_.Filas(
        "select permisomoduloid, clavemodulo, usuarioid, permiso, descrimodulo"
        " from norte.permisomodulo join norte.modulo using (clavemodulo) where usuarioid = '" +
        login + "' order by clavemodulo");
  }
  /// The map as a table; a flag that is set shows.
  static Tabla EnMapa() {
    Tabla tabla;
    for (const auto& [renglon, p] : cUsuario::Permisos) {
      EXPECT_EQ(renglon, static_cast<int>(tabla.size()));
      tabla.push_back({std::to_string(p.getPermisoModuloID()), p.getClaveModulo(), p.getUsuarioID(),
                       p.getPermiso(),
                       p.getDescripcionModulo() + std::string(p.getDataChanged() ? " cambiado" : "") +
                           (p.IsNew() ? " nuevo" : "") + (p.Deleted() ? " borrado" : "")});
    }
    return tabla;
  }
  static cPermisosModulos& Renglon(const std::string& modulo) {
    for (auto& [renglon, permiso] : cUsuario::Permisos) {
      if (rtrim(permiso.getClaveModulo()) == modulo) return permiso;
    }
    throw std::runtime_error("no hay renglón del módulo " + modulo);
  }
  std::string Letra(const std::string& login, const std::string& modulo) {
    return base_.Valor("select permiso from norte.permisomodulo where usuarioid = '" + login +
                       "' and clavemodulo = '" + modulo + "'");
  }

 private:
  static std::string rtrim(std::string texto) { return texto.erase(texto.find_last_not_of(' ') + 1); }
};

TEST_F(cUsuarioTest, LeePermisosTomaLosRenglonesDelUsuarioEnSuOrden) {
  Espia espia;
  Salida salida;
  Usuario("braulio").LeePermisos();
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spspermisosmodulos('braulio');"});
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_GT(EnMapa().size(), 1u);
  EXPECT_EQ(EnMapa(), EnServidor("braulio"));
}

TEST_F(cUsuarioTest, LeerAOtroUsuarioDejaSoloLosSuyosDesdeElCero) {
  base_.Ejecuta("delete from norte.permisomodulo where usuarioid = 'camila' and clavemodulo > '0205'");
  Usuario("braulio").LeePermisos();
  Renglon("0203").setPermiso("N");
  Usuario("camila").LeePermisos();
  EXPECT_EQ(EnMapa(), EnServidor("camila"));
  EXPECT_LT(EnMapa().size(), EnServidor("braulio").size());
  Usuario("nadie").LeePermisos();
  EXPECT_TRUE(cUsuario::Permisos.empty());
}

TEST_F(cUsuarioTest, UnaLecturaQueFallaSeLanzaYDejaElMapaVacio) {
  const std::pair<Falla, std::string> casos[] = {{falla::Error("No"), "ERROR:  No\n"}, {falla::Nula(), ""}};
  for (const auto& [mala, texto] : casos) {
    Usuario("braulio").LeePermisos();
    Espia espia;
    espia.En(0, mala);
    EXPECT_EQ(Lanzado([] { Usuario("braulio").LeePermisos(); }), texto);
    EXPECT_TRUE(cUsuario::Permisos.empty());
  }
}

TEST_F(cUsuarioTest, SoloElRenglonTocadoLlegaAlServidor) {
  Usuario("braulio").LeePermisos();
  Espia espia;
  Usuario("braulio").GuardaPermisos();
  EXPECT_EQ(espia.Sentencias(), Textos{});

  cPermisosModulos& monedas = Renglon("0203");
  monedas.setPermiso("N");
  Usuario("braulio").GuardaPermisos();
  EXPECT_EQ(espia.Sentencias(),
            (Textos{"BEGIN;",
                    "select spupermisomodulo(" + std::to_string(monedas.getPermisoModuloID()) +
                        ",'0203      ','braulio','N');",
                    "COMMIT;"}));
  EXPECT_EQ(Letra("braulio", "0203"), "N");
  EXPECT_FALSE(monedas.getDataChanged());

  espia.Vacia();
  Usuario("braulio").GuardaPermisos();  // clean again
  EXPECT_EQ(espia.Sentencias(), Textos{});
}

TEST_F(cUsuarioTest, CadaRenglonSeEscribeComoDicenSusBanderasEnElOrdenDeLasLlaves) {
  base_.Ejecuta("delete from norte.permisomodulo where usuarioid = 'braulio' and clavemodulo = '0204'");
  Usuario("braulio").LeePermisos();
  const std::string borrado = std::to_string(Renglon("0203").getPermisoModuloID()),
                    cambiado = std::to_string(Renglon("0102").getPermisoModuloID());
  cUsuario::Permisos = {{2, Renglon("0203")},
                        {7, cPermisosModulos(0, "0204", "otro", "S", "Bancos", true, true, true)},
                        {9, Renglon("0102")}};
  cUsuario::Permisos[2].setPermiso("N");  // of no account: it goes
  cUsuario::Permisos[2].setDeleted(true);
  cUsuario::Permisos[9].setPermiso("N");

  engine.BeginTransaction();
  Espia espia;
  Salida salida;
  Usuario("braulio").GuardaPermisos();
  engine.CommitTransaction();
  EXPECT_EQ(
      espia.Sentencias(),
      (Textos{"SELECT spdpermisosmodulos(" + borrado + ");", "select spipermisomodulo('0204','braulio','S');",
              "select spupermisomodulo(" + cambiado + ",'0102      ','braulio','N');", "COMMIT;"}));
  EXPECT_EQ(salida.Texto(), "");

  EXPECT_EQ(base_.Filas("select 1 from norte.permisomodulo where permisomoduloid = " + borrado), Tabla{});
  EXPECT_EQ(Letra("braulio", "0204"), "S");
  EXPECT_EQ(Letra("braulio", "0102"), "N");
  const cPermisosModulos& nuevo = cUsuario::Permisos.at(7);
  EXPECT_STREQ(nuevo.getUsuarioID(), "braulio");
  EXPECT_NE(nuevo.getPermisoModuloID(), 0);
  EXPECT_FALSE(nuevo.IsNew() || nuevo.getDataChanged());
  EXPECT_TRUE(cUsuario::Permisos.at(2).Deleted());
}

TEST_F(cUsuarioTest, UnRechazoSeLanzaYElRenglonQuedaComoEstaba) {
  Usuario("braulio").LeePermisos();
  cUsuario::Permisos = {{0, Renglon("0102")},
                        {1, cPermisosModulos(0, "0203", "otro", "S", "", true, true, false)},
                        {2, Renglon("0203")}};
  cUsuario::Permisos[0].setPermiso("N");
  cUsuario::Permisos[2].setPermiso("N");
  Espia espia;
  EXPECT_EQ(Lanzado([] { Usuario("braulio").GuardaPermisos(); }).value_or("").substr(0, 6), "ERROR:");
  EXPECT_EQ(espia.Cuantas("permisomodulo("), 2u);  // the third one was not reached
  EXPECT_EQ(Profundidad(), 1);
  engine.RollBackTransaction();
  EXPECT_FALSE(cUsuario::Permisos[0].getDataChanged());
  EXPECT_STREQ(cUsuario::Permisos[1].getUsuarioID(), "otro");
  EXPECT_TRUE(cUsuario::Permisos[1].IsNew());
  EXPECT_TRUE(cUsuario::Permisos[2].getDataChanged());
}

}  // namespace
}  // namespace pruebas
