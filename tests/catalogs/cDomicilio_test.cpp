#include "catalogs/people/cDomicilio.h"

#include <gtest/gtest.h>

#include <climits>

#include "app/sesion.h"
#include "tests/catalogs/Personas.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

using D = cDomicilio;

/// An address of person 7 with a value of its own in each column.
D Lleno(long id = 9) {
  return D(id, 3, 7, "Reforma", "12", "B", "Centro", 45000, "El Espejismo", "55 0000 0001", 21, true, true);
}
const char* const ColumnasDeLleno = "|3|7|Reforma|12|B|Centro|45000|El Espejismo|55 0000 0001|21";
const char* const Valores = "3,7,'Reforma','12','B','Centro',45000,'El Espejismo','55 0000 0001',21);";
const char* const Vacio = "0|0|0|||||0|||0";

// Without a server.

TEST(cDomicilio, RecienHechoEstaVacioYSinBanderas) { EXPECT_EQ(Estado(D()), Vacio); }

TEST(cDomicilio, CopiarLlevaTodoYClearLoVacia) {
  const std::string estado = std::string("9") + ColumnasDeLleno + " cambiado nuevo";
  D original = Lleno();
  D porAsignacion, porCopy;
  porAsignacion = original;
  porCopy.Copy(original);
  EXPECT_EQ(Estado(original), estado);
  EXPECT_EQ(Estado(D(original)), estado);
  EXPECT_EQ(Estado(porAsignacion), estado);
  EXPECT_EQ(Estado(porCopy), estado);
  original.Clear();
  EXPECT_EQ(Estado(original), Vacio);
}

TEST(cDomicilio, CadaColumnaSigueLaReglaDelCambio) {
  const ColumnaDeTexto<D> tabla[] = {
      {"Calle", &D::setCalle, &D::getCalle, 40},
      {"Numero_Ext", &D::setNumero_Ext, &D::getNumero_Ext, 15},
      {"Numero_Int", &D::setNumero_Int, &D::getNumero_Int, 15},
      {"Colonia", &D::setColonia, &D::getColonia, 30},
      {"Comunidad", &D::setComunidad, &D::getComunidad, 50},
      {"TelDomicilio", &D::setTelDomicilio, &D::getTelDomicilio, 20},
  };
  for (const auto& columna : tabla) ExigeReglaDelTexto(columna);
  ExigeReglaDelNumero<D, long>(&D::setDomicilioID, &D::getDomicilioID, LONG_MAX);
  ExigeReglaDelNumero<D, int>(&D::setCiudadMexID, &D::getCiudadMexID, -3);
  ExigeReglaDelNumero<D, long>(&D::setSujetoID, &D::getSujetoID, 70'000'000'000);
  ExigeReglaDelNumero<D, long>(&D::setCodPostal, &D::getCodPostal, 45000);
  ExigeReglaDelNumero<D, long>(&D::setColoniaID, &D::getColoniaID, LONG_MIN);
}

TEST(cDomicilio, CheckSiempreDiceQueSiYTraza) {
  Salida salida;
  EXPECT_TRUE(D().Check());
  EXPECT_TRUE(Lleno().Check());
  EXPECT_EQ(salida.Lineas(), TrazaDeCheck(0) + TrazaDeCheck(3));
}

// Against the reference database.

class cDomicilioTest : public ConSucursal {
 protected:
  cDomicilioTest() { base_.Ejecuta("delete from norte.domicilio where sujetoid = 7"); }

  /// The address of person 7 on the server; its key ahead.
  Tabla EnServidor() { return base_.Filas("select * from norte.domicilio where sujetoid = 7"); }
  Textos FilaDeLleno(const std::string& id) {
    return {id, "3", "7", "Reforma", "12", "B", "Centro", "45000", "El Espejismo", "55 0000 0001", "21"};
  }

  /// Inserts Lleno and answers it, with the key that the server gave it.
  D Guardado() {
    Salida salida;
    D domicilio = Lleno();
    domicilio.AddNew();
    return domicilio;
  }
};

/// What a refused or unanswered statement comes back with.
const std::pair<const char*, Falla> rechazos[] = {{"error", falla::Error("No")}, {"nula", falla::Nula()}};

TEST_F(cDomicilioTest, ElAltaTomaLaClaveDelServidorYTrazaCadaPaso) {
  const std::string alta = std::string("SELECT spidomicilio(") + Valores;
  D domicilio = Lleno();
  Espia espia;
  Salida salida;
  EXPECT_EQ(Lanzado([&] { domicilio.AddNew(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", alta, "COMMIT;"}));
  ASSERT_EQ(EnServidor().size(), 1u);
  const std::string id = EnServidor()[0][0];
  EXPECT_NE(id, "9");
  EXPECT_EQ(EnServidor()[0], FilaDeLleno(id));
  EXPECT_EQ(Estado(domicilio), id + ColumnasDeLleno);
  EXPECT_EQ(salida.Lineas(), (TrazaDeCheck(3) + Textos{alta, "Domicilio==" + id, "Domicilio==" + id}));
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(cDomicilioTest, UnCambioReescribeElRenglonYTrazaLaCalleDosVeces) {
  D domicilio = Guardado();
  const std::string id = std::to_string(domicilio.getDomicilioID());
  const std::string cambio = "SELECT spudomicilio(" + id + ",4,7,'Juárez','1','2','Sur',45001,'c','t',22);";
  domicilio = D(domicilio.getDomicilioID(), 4, 7, "Juárez", "1", "2", "Sur", 45001, "c", "t", 22, true, true);
  Espia espia;
  Salida salida;
  EXPECT_EQ(Lanzado([&] { domicilio.Update(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", cambio, "COMMIT;"}));
  EXPECT_EQ(salida.Lineas(),
            (Textos(2, "domicilio La Calle es : Juárez") + TrazaDeCheck(4) + Textos{cambio}));
  EXPECT_EQ(EnServidor(), (Tabla{{id, "4", "7", "Juárez", "1", "2", "Sur", "45001", "c", "t", "22"}}));
  EXPECT_EQ(Estado(domicilio), id + "|4|7|Juárez|1|2|Sur|45001|c|t|22");
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(cDomicilioTest, SinCambiosSoloQuedanLasTrazas) {
  D domicilio = Lleno();
  domicilio.setDataChanged(false);
  Espia espia;
  Salida salida;
  domicilio.AddNew();
  domicilio.Update();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(salida.Lineas(), (Textos{"Domicilio==9"} + Textos(2, "domicilio La Calle es : Reforma")));
  EXPECT_TRUE(domicilio.IsNew());
}

TEST_F(cDomicilioTest, UnRechazoDeCualquierEscrituraPasaEnSilencio) {
  const struct {
    const char* nombre;
    void (D::*operacion)();
    const char* banderas;
  } tabla[] = {
      {"AddNew", &D::AddNew, ""}, {"Update", &D::Update, ""}, {"Delete", &D::Delete, " cambiado nuevo"}};
  for (const auto& fila : tabla) {
    for (const auto& [caso, falla] : rechazos) {
      SCOPED_TRACE(std::string(fila.nombre) + " " + caso);
      D domicilio = Lleno();
      Espia espia;
      espia.En(1, falla);
      Salida salida;
      EXPECT_EQ(Lanzado([&] { (domicilio.*fila.operacion)(); }), std::nullopt);
      EXPECT_EQ(espia.Sentencias().size(), 3u);
      EXPECT_EQ(espia.Sentencias().back(), "COMMIT;");
      EXPECT_EQ(Estado(domicilio), std::string("9") + ColumnasDeLleno + fila.banderas);
      EXPECT_EQ(Profundidad(), 0);
      EXPECT_EQ(res, nullptr);
    }
  }
}

TEST_F(cDomicilioTest, SinConexionNadieDiceNada) {
  PQfinish(conn);
  conn = nullptr;
  Salida salida;
  for (const auto operacion : {&D::AddNew, &D::Update, &D::Delete, &D::Find, &D::FindDomicilioSujeto}) {
    D domicilio = Lleno();
    EXPECT_EQ(Lanzado([&] { (domicilio.*operacion)(); }), std::nullopt);
    EXPECT_EQ(domicilio.getDomicilioID(), 9);
  }
}

TEST_F(cDomicilioTest, UnaCalleConApostrofoSePierdeEnSilencio) {
  D domicilio = Lleno();
  domicilio.setCalle("O'Higgins");
  Salida salida;
  EXPECT_EQ(Lanzado([&] { domicilio.AddNew(); }), std::nullopt);
  EXPECT_TRUE(EnServidor().empty());
  EXPECT_EQ(domicilio.getDomicilioID(), 9);
  EXPECT_EQ(PQtransactionStatus(conn), PQTRANS_IDLE);
}

TEST_F(cDomicilioTest, UnDomicilioQueNoSeEncontroSaleConClaveCero) {
  D domicilio = Lleno(0);
  Espia espia;
  Salida salida;
  domicilio.Update();
  EXPECT_EQ(espia.Cuantas(std::string("SELECT spudomicilio(0,") + Valores), 1u);
  EXPECT_EQ(domicilio.getDomicilioID(), 0);
}

TEST_F(cDomicilioTest, UnAltaSinFilasConservaLaClave) {
  D domicilio = Lleno();
  Espia espia;
  espia.En(1, falla::SinFilas());
  Salida salida;
  domicilio.AddNew();
  EXPECT_EQ(domicilio.getDomicilioID(), 9);
  EXPECT_FALSE(domicilio.getDataChanged());
}

TEST_F(cDomicilioTest, DeleteMandaLoSuyoSinTrazaYConservaElRegistro) {
  D domicilio = Guardado();
  const std::string estado = Estado(domicilio);
  Espia espia;
  Salida salida;
  domicilio.Delete();
  EXPECT_EQ(espia.Sentencias(),
            (Textos{"BEGIN;", "SELECT spdomicilio(" + std::to_string(domicilio.getDomicilioID()) + ");",
                    "COMMIT;"}));
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_EQ(Estado(domicilio), estado);
  EXPECT_TRUE(EnServidor().empty());
}

TEST_F(cDomicilioTest, FindYFindDomicilioSujetoTomanCadaColumnaDeSuLugar) {
  const D guardado = Guardado();
  const std::string clave = std::to_string(guardado.getDomicilioID());
  const std::string porPersona = "SELECT * FROM spsdomiciliosujeto(7);";
  const struct {
    void (D::*busca)();
    std::string sentencia;
    Textos traza;
  } tabla[] = {{&D::Find, "SELECT * FROM spsdomicilio(" + clave + ");", {}},
               {&D::FindDomicilioSujeto, porPersona, {porPersona}}};
  for (const auto& fila : tabla) {
    D domicilio;
    domicilio.setDomicilioID(guardado.getDomicilioID());
    domicilio.setSujetoID(7);
    domicilio.setIsNew(true);
    Espia espia;
    Salida salida;
    (domicilio.*fila.busca)();
    EXPECT_EQ(espia.Sentencias(), Textos{fila.sentencia});
    EXPECT_EQ(salida.Lineas(), fila.traza);
    EXPECT_EQ(Estado(domicilio), clave + ColumnasDeLleno);
    EXPECT_EQ(res, nullptr);
  }
}

TEST_F(cDomicilioTest, LoQueNoEstaSoloQuedaMarcadoComoNuevo) {
  Salida salida;
  for (const auto busca : {&D::Find, &D::FindDomicilioSujeto}) {
    D domicilio = Lleno(999999);
    domicilio.setIsNew(false);
    (domicilio.*busca)();
    EXPECT_EQ(Estado(domicilio), std::string("999999") + ColumnasDeLleno + " cambiado nuevo");
    EXPECT_NE(res, nullptr);  // left uncleared
  }
}

TEST_F(cDomicilioTest, CadaBusquedaYElBorradoTienenSuGuarda) {
  const struct {
    long clave;
    bool busca, buscaPorPersona, borra;
  } tabla[] = {{0, false, false, false}, {-1, false, true, true}, {1, true, true, true}};
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.clave);
    Espia espia;
    Salida salida;
    const auto manda = [&](void (D::*operacion)()) {
      D domicilio;
      domicilio.setDomicilioID(fila.clave);
      domicilio.setSujetoID(fila.clave);
      espia.Vacia();
      (domicilio.*operacion)();
      return !espia.Sentencias().empty();
    };
    EXPECT_EQ(manda(&D::Find), fila.busca);
    EXPECT_EQ(manda(&D::FindDomicilioSujeto), fila.buscaPorPersona);
    EXPECT_EQ(manda(&D::Delete), fila.borra);
  }
}

TEST_F(cDomicilioTest, FindLeeDeLaSegundaConexionSiLaSesionNoEsLocal) {
  const D guardado = Guardado();
  SegundaConexion segunda;
  Salida salida;
  D domicilio;
  domicilio.setDomicilioID(guardado.getDomicilioID());
  domicilio.Find();
  EXPECT_STREQ(domicilio.getCalle(), "Reforma");
  domicilio.FindDomicilioSujeto();
  EXPECT_TRUE(domicilio.IsNew()) << "la busca por persona va siempre por la primera";
}

TEST_F(cDomicilioTest, UnaRespuestaCualquieraSeEntiende) {
  const auto x = [](size_t n) { return std::string(n, 'x'); };
  const std::pair<Falla, std::string> tabla[] = {
      {falla::Recortada(3), "1|0|40|||||0|||0"},
      {falla::ConNulos(), Vacio},
      {falla::ConTextos(5000),
       "0|0|0|" + x(40) + "|" + x(15) + "|" + x(15) + "|" + x(30) + "|0|" + x(50) + "|" + x(20) + "|0"},
  };
  base_.Ejecuta("update norte.domicilio set ciudadmexid = null where domicilioid = 1");
  for (const auto& [falla, estado] : tabla) {
    SCOPED_TRACE(estado);
    D domicilio = Lleno(1);
    Espia espia;
    espia.En(0, falla);
    domicilio.Find();
    EXPECT_EQ(Estado(domicilio), estado);
  }
}

}  // namespace
}  // namespace pruebas
