#include "catalogs/people/cBien.h"

#include <gtest/gtest.h>

#include "app/sesion.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

using B = cBien;

/// All columns in the order of the server's answer, and the three flags.
std::string Estado(const B& b) {
  std::string estado = std::to_string(b.getBienID()) + "|" + std::to_string(b.getSujetoID());
  for (const char* texto :
       {b.getPropietario(), b.getDescriBien(), b.getCaracteristicas(), b.getRegistroPublico()})
    estado += std::string("|") + texto;
  for (const float valor : {b.getValorComercial(), b.getValorFiscal(), b.getValorCatastro()})
    estado += "|" + std::to_string(valor);
  return estado + "|" + b.getDatosHipoteca() + "|" + std::to_string(b.getRelacionGarantia()) + "|" +
         b.getAdjudicado() + "|" + b.getFechaAdjudicado().AsChar() + (b.getDataChanged() ? " cambiado" : "") +
         (b.IsNew() ? " nuevo" : "") + (b.Deleted() ? " borrado" : "");
}

const char* const Vacio = "0|0|||||0.000000|0.000000|0.000000||0.000000||1900-01-01";

/// A good of person 1 with a value of its own in each column.
B Lleno(const char* adjudicado = "S", long id = 9) {
  return B(id, 1, "Ana", "Casa", "grande", "foja 7", 100.5f, 80.25f, 65, "libre", 1.5f, adjudicado,
           date(5, 3, 2006), true, true, false);
}
const char* const HastaAdjudicado =
    "|1|Ana|Casa|grande|foja 7|100.500000|80.250000|65.000000|libre|1.500000|";
const char* const Valores =
    "1,'Ana','Casa','grande','foja 7',100.500000,80.250000,65.000000,'libre',1.500000,'";

// Without a server.

TEST(cBien, RecienHechoEstaVacioYSinBanderas) {
  EXPECT_EQ(Estado(B()), Vacio);
  EXPECT_STREQ(B().clase(), "Bien");
}

TEST(cBien, CopiarLlevaLasTresBanderasYClearLasQuita) {
  B original = Lleno();
  original.setDeleted(true);
  const std::string estado = std::string("9") + HastaAdjudicado + "S|2006-03-05 cambiado nuevo borrado";
  B porAsignacion, porCopy;
  porAsignacion = original;
  porCopy.Copy(original);
  EXPECT_EQ(Estado(original), estado);
  EXPECT_EQ(Estado(B(original)), estado);
  EXPECT_EQ(Estado(porAsignacion), estado);
  EXPECT_EQ(Estado(porCopy), estado);
  original.Clear();
  EXPECT_EQ(Estado(original), Vacio);
}

TEST(cBien, CadaBanderaDelConstructorVaPorSuLado) {
  const auto hecho = [](bool cambiado, bool nuevo, bool borrado) {
    return Estado(B(0, 0, "", "", "", "", 0, 0, 0, "", 0, "", date(), cambiado, nuevo, borrado));
  };
  EXPECT_EQ(hecho(true, false, false), std::string(Vacio) + " cambiado");
  EXPECT_EQ(hecho(false, true, false), std::string(Vacio) + " nuevo");
  EXPECT_EQ(hecho(false, false, true), std::string(Vacio) + " borrado");
}

TEST(cBien, CadaColumnaSigueLaReglaDelCambio) {
  const ColumnaDeTexto<B> tabla[] = {
      {"Propietario", &B::setPropietario, &B::getPropietario, 60},
      {"DescriBien", &B::setDescriBien, &B::getDescriBien, 60},
      {"Caracteristicas", &B::setCaracteristicas, &B::getCaracteristicas, 254},
      {"RegistroPublico", &B::setRegistroPublico, &B::getRegistroPublico, 254},
      {"DatosHipoteca", &B::setDatosHipoteca, &B::getDatosHipoteca, 255},
      {"Adjudicado", &B::setAdjudicado, &B::getAdjudicado, 3},
  };
  for (const auto& columna : tabla) ExigeReglaDelTexto(columna);
  ExigeReglaDelNumero<B, long>(&B::setBienID, &B::getBienID, 70'000'000'000);
  ExigeReglaDelNumero<B, long>(&B::setSujetoID, &B::getSujetoID, 80'000'000'000);
  ExigeReglaDelNumero<B, float>(&B::setValorComercial, &B::getValorComercial, -0.01f);
  ExigeReglaDelNumero<B, float>(&B::setValorFiscal, &B::getValorFiscal, 1e10f);
  ExigeReglaDelNumero<B, float>(&B::setValorCatastro, &B::getValorCatastro, 3.5f);
  ExigeReglaDelNumero<B, float>(&B::setRelacionGarantia, &B::getRelacionGarantia, 1.5f);
  B bien;
  bien.setFechaAdjudicado(date());
  bien.setDeleted(true);
  EXPECT_FALSE(bien.getDataChanged());
  bien.setFechaAdjudicado(date(5, 3, 2006));
  EXPECT_TRUE(bien.getDataChanged());
}

TEST(cBien, EnUnaListaSoloCuentaLaClave) {
  EXPECT_TRUE(Lleno("S", 10) > Lleno("S", 9));
  EXPECT_FALSE(Lleno("S", 9) > Lleno("N", 9));
  EXPECT_TRUE(Lleno("S", 9) <= Lleno("N", 9));
  EXPECT_FALSE(Lleno("S", 10) <= Lleno("S", 9));
}

TEST(cBien, CheckLanzaLaPrimeraReglaRota) {
  // Each row mends what the row before breaks.
  const struct {
    void (*compone)(B&);
    const char* mensaje;
  } tabla[] = {
      {[](B&) {}, "No ha especificado el propietario"},
      {[](B& b) { b.setPropietario("x"); }, "No ha especificado la descripción del bien"},
      {[](B& b) { b.setDescriBien("x"); }, "No ha especificado las caracteristicas"},
      {[](B& b) { b.setCaracteristicas("x"); }, "No ha registrado el registro publico"},
      {[](B& b) { b.setRegistroPublico("x"); }, "El valor comercial no puede ser negativo"},
      {[](B& b) { b.setValorComercial(0); }, "El valor fiscal no puede ser negativo"},
      {[](B& b) { b.setValorFiscal(0); }, "El valor de catastro no puede ser negativo"},
      {[](B& b) { b.setValorCatastro(0); }, "No ha especificado los datos de la hipoteca"},
      {[](B& b) { b.setDatosHipoteca("x"); }, "No ha especificado la garantia"},
      {[](B& b) { b.setRelacionGarantia(0); }, "No ha especificado el adjudicado"},
      {[](B& b) { b.setAdjudicado("S"); }, "No ha especificado la fecha de adjudicación"},
  };
  B bien(0, 0, "", "", "", "", -0.01f, -0.01f, -0.01f, "", -1, "", date(), false, false, false);
  for (const auto& fila : tabla) {
    fila.compone(bien);
    EXPECT_EQ(Lanzado([&] { bien.Check(); }), fila.mensaje);
  }
  for (const char* otra : {"N", "s", "SS"}) {
    bien.setAdjudicado(otra);
    EXPECT_EQ(Lanzado([&] { EXPECT_TRUE(bien.Check()); }), std::nullopt) << otra;
  }
  bien.setAdjudicado("S");
  bien.setFechaAdjudicado(date(2, 1, 1900));
  EXPECT_EQ(Lanzado([&] { bien.Check(); }), std::nullopt);
}

// Against the reference database.

class cBienTest : public ConSucursal {
 protected:
  Tabla EnServidor(const B& bien) {
    return base_.Filas("select * from norte.bienes where bienid = " + std::to_string(bien.getBienID()));
  }
};

TEST_F(cBienTest, LaVidaDeUnBienMandaSoloSusSentenciasSinTraza) {
  const struct {
    const char* adjudicado;
    std::string cola;   // of the statement
    std::string fecha;  // as the server keeps it
    std::string leida;  // and as it comes back
  } tabla[] = {{"S", "S','2006-03-05');", "2006-03-05", "2006-03-05"}, {"N", "N',NULL);", "", "1900-01-01"}};
  Salida salida;
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.adjudicado);
    B bien = Lleno(fila.adjudicado);
    Espia espia;
    EXPECT_EQ(Lanzado([&] { bien.AddNew(); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(),
              (Textos{"BEGIN;", "select spibienes(" + std::string(Valores) + fila.cola, "COMMIT;"}));
    const std::string id = base_.Valor("select max(bienid) from norte.bienes");
    EXPECT_EQ(Estado(bien), id + HastaAdjudicado + fila.adjudicado + "|2006-03-05");
    EXPECT_EQ(EnServidor(bien), (Tabla{{id, "1", "Ana", "Casa", "grande", "foja 7", "100.50", "80.25",
                                        "65.00", "libre", "1.500000", fila.adjudicado, fila.fecha}}));

    bien.setPropietario("Eva");
    espia.Vacia();
    EXPECT_EQ(Lanzado([&] { bien.Update(); }), std::nullopt);
    std::string cambio = "select spubienes(" + id + "," + Valores + fila.cola;
    cambio.replace(cambio.find("Ana"), 3, "Eva");
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", cambio, "COMMIT;"}));
    EXPECT_EQ(EnServidor(bien)[0][2], "Eva");

    B leido;
    leido.setBienID(bien.getBienID());
    leido.setDeleted(true);
    leido.setIsNew(true);
    espia.Vacia();
    leido.Find();
    EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spsbienes(" + id + ");"});
    std::string estado = id + HastaAdjudicado + fila.adjudicado + "|" + fila.leida;
    estado.replace(estado.find("Ana"), 3, "Eva");
    EXPECT_EQ(Estado(leido), estado);

    espia.Vacia();
    EXPECT_EQ(Lanzado([&] { bien.Delete(); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "SELECT spdbienes(" + id + ");", "COMMIT;"}));
    EXPECT_TRUE(EnServidor(bien).empty());
    bien.Find();
    EXPECT_TRUE(bien.IsNew());
  }
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(cBienTest, LeidoSinFechaNoSeAdjudicaSinDarsela) {
  B bien = Lleno("N");
  bien.AddNew();
  bien.Find();
  EXPECT_STREQ(bien.getFechaAdjudicado().AsChar(), "1900-01-01");
  bien.setAdjudicado("S");
  Espia espia;
  EXPECT_EQ(Lanzado([&] { bien.Update(); }), "No ha especificado la fecha de adjudicación");
  EXPECT_TRUE(espia.Sentencias().empty());
  bien.setFechaAdjudicado(date(5, 3, 2006));
  EXPECT_EQ(Lanzado([&] { bien.Update(); }), std::nullopt);
}

TEST_F(cBienTest, UnValorDeSimplePrecisionViajaConSuRuido) {
  B bien = Lleno();
  bien.setValorComercial(123456.78f);
  Espia espia;
  bien.AddNew();
  EXPECT_EQ(espia.Cuantas(",123456.781250,"), 1u);
}

TEST_F(cBienTest, UnRechazoSeLanzaYConservaLasBanderas) {
  for (const auto operacion : {&B::AddNew, &B::Update, &B::Delete}) {
    B bien = Lleno();
    const std::string estado = Estado(bien);
    Espia espia;
    espia.En(1, falla::Error("No"));
    EXPECT_EQ(Lanzado([&] { (bien.*operacion)(); }), "ERROR:  No\n");
    EXPECT_EQ(Estado(bien), estado);
    EXPECT_EQ(Profundidad(), 1);
    engine.RollBackTransaction();
  }
}

TEST_F(cBienTest, SinCambiosSinClaveOSinPasarCheckNadaSeManda) {
  B igual = Lleno(), malo = Lleno();
  igual.setDataChanged(false);
  malo.setPropietario("");
  B sinClave = Lleno("S", 0);
  Espia espia;
  for (const auto operacion : {&B::AddNew, &B::Update}) {
    (igual.*operacion)();
    EXPECT_EQ(Lanzado([&] { (malo.*operacion)(); }), "No ha especificado el propietario");
  }
  sinClave.Find();
  sinClave.Delete();
  EXPECT_TRUE(espia.Sentencias().empty());
}

TEST_F(cBienTest, UnaRespuestaCualquieraSeEntiende) {
  const auto x = [](size_t n) { return "|" + std::string(n, 'x'); };
  const std::string ceros = "|0.000000|0.000000|0.000000";
  const std::pair<Falla, std::string> tabla[] = {
      {falla::Recortada(2), "1000000001|"},
      {falla::ConNulos(), "0|0||||" + ceros + "||0.000000||1900-01-01"},
      {falla::ConTextos(5000),
       "0|0" + x(60) + x(60) + x(254) + x(254) + ceros + x(255) + "|0.000000" + x(3) + "|0000-00-00"},
  };
  for (const auto& [falla, estado] : tabla) {
    B bien = Lleno("S", 1'000'000'001);
    Espia espia;
    espia.En(0, falla);
    bien.Find();
    EXPECT_EQ(Estado(bien).substr(0, estado.size()), estado);
    EXPECT_FALSE(bien.IsNew());
  }
}

}  // namespace
}  // namespace pruebas
