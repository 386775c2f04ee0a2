#include "catalogs/people/cGarantia.h"

#include <gtest/gtest.h>

#include "app/sesion.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

using G = cGarantia;
using Operacion = void (G::*)();

std::string Estado(const G& g) {
  return std::to_string(g.getGarantiaID()) + "|" + std::to_string(g.getSolicitudPrestamoID()) + "|" +
         std::to_string(g.getPrestamoID()) + "|" + std::to_string(g.getGarantiaBienID()) + "|" +
         g.getNoHip() + "|" + g.getFolio() + "|" + g.getFechaRegistro().AsChar() + "|" +
         g.getFechaVencimiento().AsChar() + "|" + g.getDescripcion() +
         (g.getDataChanged() ? " cambiada" : "") + (g.IsNew() ? " nueva" : "");
}

const char* const Vacia = "0|0|0|0|||1900-01-01|1900-01-01|";

G Llena(long solicitud, long prestamo, long bien) {
  return G(9, solicitud, prestamo, bien, "H1", "F2", date(5, 3, 2006), date(17, 11, 2007), "Casa", true,
           true);
}
const char* const TextosDeLlena = "|H1|F2|2006-03-05|2007-11-17|Casa";
const char* const Valores = ",'H1','F2','2006-03-05','2007-11-17','Casa');";

const Operacion escrituras[] = {&G::AddNew, &G::Update, &G::Delete};
const Operacion todas[] = {&G::AddNew, &G::Update, &G::Delete, &G::FindPorPrestamo, &G::FindPorSolicitud};

// Without a server.

TEST(cGarantia, RecienHechaEstaVaciaYSinBanderas) { EXPECT_EQ(Estado(G()), Vacia); }

TEST(cGarantia, CopiarLlevaTodoYClearLoVacia) {
  const std::string estado = std::string("9|3|4|5") + TextosDeLlena + " cambiada nueva";
  G original = Llena(3, 4, 5);
  G porAsignacion, porCopy;
  porAsignacion = original;
  porCopy.Copy(original);
  EXPECT_EQ(Estado(original), estado);
  EXPECT_EQ(Estado(G(original)), estado);
  EXPECT_EQ(Estado(porAsignacion), estado);
  EXPECT_EQ(Estado(porCopy), estado);
  original.Clear();
  EXPECT_EQ(Estado(original), Vacia);
}

TEST(cGarantia, CadaColumnaSigueLaReglaDelCambio) {
  const ColumnaDeTexto<G> tabla[] = {{"NoHip", &G::setNoHip, &G::getNoHip, 30},
                                     {"Folio", &G::setFolio, &G::getFolio, 32},
                                     {"Descripcion", &G::setDescripcion, &G::getDescripcion, 100}};
  for (const auto& columna : tabla) ExigeReglaDelTexto(columna);
  ExigeReglaDelNumero<G, long>(&G::setGarantiaID, &G::getGarantiaID, 70'000'000'000);
  ExigeReglaDelNumero<G, long>(&G::setSolicitudPrestamoID, &G::getSolicitudPrestamoID, -1);
  ExigeReglaDelNumero<G, long>(&G::setPrestamoID, &G::getPrestamoID, 80'000'000'000);
  const struct {
    void (G::*pon)(const date&);
    const date& (G::*da)() const;
  } fechas[] = {{&G::setFechaRegistro, &G::getFechaRegistro},
                {&G::setFechaVencimiento, &G::getFechaVencimiento}};
  for (const auto& fila : fechas) {
    G garantia;
    (garantia.*fila.pon)(date());
    EXPECT_FALSE(garantia.getDataChanged()) << "el mismo valor";
    (garantia.*fila.pon)(date(5, 3, 2006));
    EXPECT_TRUE(garantia.getDataChanged());
    EXPECT_STREQ((garantia.*fila.da)().AsChar(), "2006-03-05");
  }
}

TEST(cGarantia, CheckSiempreDiceQueSi) { EXPECT_TRUE(G().Check()); }

// Against the reference database.

class cGarantiaTest : public ConSucursal {
 protected:
  Tabla EnServidor(const G& garantia) {
    return base_.Filas("select * from norte.garantia where garantiaid = " +
                       std::to_string(garantia.getGarantiaID()));
  }
  const std::string prestamo_ = base_.Valor("select max(prestamoid) from norte.prestamos");
  const std::string bien_ = base_.Valor("select max(bienid) from norte.bienes");
};

TEST_F(cGarantiaTest, LaGarantiaDeUnPrestamoMandaElBienONulo) {
  const struct { std::string bien, enviado, guardado; } tabla[] = {{bien_, bien_, bien_}, {"0", "NULL", ""}};
  Salida salida;
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.enviado);
    const std::string columnas = "NULL," + prestamo_ + "," + fila.enviado + Valores;
    G garantia = Llena(0, std::stol(prestamo_), std::stol(fila.bien));
    Espia espia;
    EXPECT_EQ(Lanzado([&] { garantia.AddNew(); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "select spigarantia(" + columnas, "COMMIT;"}));
    const std::string id = base_.Valor("select max(garantiaid) from norte.garantia");
    EXPECT_EQ(Estado(garantia), id + "|0|" + prestamo_ + "|" + fila.bien + TextosDeLlena);
    EXPECT_EQ(EnServidor(garantia),
              (Tabla{{id, "", prestamo_, fila.guardado, "H1", "F2", "2006-03-05", "2007-11-17", "Casa"}}));

    garantia.setDataChanged(true);
    espia.Vacia();
    EXPECT_EQ(Lanzado([&] { garantia.Update(); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "select spugarantia(" + id + "," + columnas, "COMMIT;"}));
    EXPECT_FALSE(garantia.getDataChanged());

    espia.Vacia();
    EXPECT_EQ(Lanzado([&] { garantia.Delete(); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "SELECT spdgarantia(" + id + ");", "COMMIT;"}));
    EXPECT_TRUE(EnServidor(garantia).empty());
  }
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(cGarantiaTest, LaGarantiaDeUnaSolicitudNoSeEscribe) {
  G garantia = Llena(3, 4, 5);
  Espia espia;
  garantia.AddNew();
  garantia.Update();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(Estado(garantia), std::string("9|3|4|5") + TextosDeLlena + " cambiada nueva");
}

TEST_F(cGarantiaTest, SinCambiosOSinClaveNadaSeManda) {
  G garantia;
  Espia espia;
  for (const Operacion operacion : todas) (garantia.*operacion)();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(Estado(garantia), Vacia);
}

TEST_F(cGarantiaTest, SeBuscaPorPrestamoYPorSolicitud) {
  base_.Ejecuta("delete from norte.garantia; insert into norte.garantia values (77, 5, " + prestamo_ + ", " +
                bien_ + ", 'H1', 'F2', '2006-03-05', '2007-11-17', 'Casa')");
  const struct {
    void (G::*busca)();
    void (G::*pon)(long);
    std::string clave;
    std::string funcion;
  } tabla[] = {{&G::FindPorPrestamo, &G::setPrestamoID, prestamo_, "spsgarantiap"},
               {&G::FindPorSolicitud, &G::setSolicitudPrestamoID, "5", "spsgarantias"}};
  Salida salida;
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.funcion);
    G garantia;
    (garantia.*fila.pon)(std::stol(fila.clave));
    garantia.setIsNew(true);
    Espia espia;
    (garantia.*fila.busca)();
    EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM " + fila.funcion + "(" + fila.clave + ");"});
    EXPECT_EQ(Estado(garantia), "77|5|" + prestamo_ + "|" + bien_ + TextosDeLlena);
    EXPECT_EQ(res, nullptr);

    G otra = Llena(0, 0, 0);
    (otra.*fila.pon)(-1);
    otra.setIsNew(false);
    (otra.*fila.busca)();
    EXPECT_TRUE(otra.IsNew());
    EXPECT_TRUE(otra.getDataChanged());
    EXPECT_EQ(otra.getGarantiaID(), 9);
    EXPECT_NE(res, nullptr);  // left uncleared
  }
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(cGarantiaTest, UnRechazoSeLanzaYConservaLasBanderas) {
  for (const Operacion operacion : escrituras) {
    G garantia = Llena(0, 4, 5);
    const std::string estado = Estado(garantia);
    Espia espia;
    espia.En(1, falla::Error("No"));
    EXPECT_EQ(Lanzado([&] { (garantia.*operacion)(); }), "ERROR:  No\n");
    EXPECT_EQ(Estado(garantia), estado);
    EXPECT_EQ(Profundidad(), 1);
    engine.RollBackTransaction();
  }
}

}  // namespace
}  // namespace pruebas
