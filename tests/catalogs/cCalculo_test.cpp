#include "catalogs/finance/cCalculo.h"

#include <gtest/gtest.h>

#include "app/sesion.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

using C = cCalculo;

/// All columns in the order of the members, and both flags.
std::string Estado(const C& c) {
  std::string estado = std::to_string(c.getCalculoID()) + "|" + c.getDescripcionCalculo();
  for (const float cifra :
       {c.getSaldoInsoluto(), static_cast<float>(c.getDias()), c.getTasaIntNormal(), c.getTasaIntMoratorio()})
    estado += "|" + std::to_string(cifra);
  return estado + "|" + c.getFormula() + (c.getDataChanged() ? " cambiada" : "") +
         (c.IsNew() ? " nueva" : "");
}

const char* const Vacia = "0||0.000000|0.000000|0.000000|0.000000|";

C Completa() { return C(7, "Prueba", 2.5f, 3, 4.5f, 5.5f, "Dias * 2", true, true); }

// Without a server.

TEST(cCalculo, ElConstructorCompletoGuardaTodoTalCualYClearLoVacia) {
  C formula = Completa();
  const char* const llena = "7|Prueba|2.500000|3.000000|4.500000|5.500000|Dias * 2 cambiada nueva";
  EXPECT_EQ(Estado(formula), llena);
  C copiada;
  copiada.Copy(formula);
  EXPECT_EQ(Estado(copiada), llena);
  formula.Clear();
  EXPECT_EQ(Estado(formula), Vacia);
  EXPECT_EQ(Estado(C()), Vacia);
  EXPECT_STREQ(formula.clase(), "Calculo");
}

TEST(cCalculo, CadaColumnaSigueLaReglaDelCambio) {
  ExigeReglaDelTexto<C>({"DescripcionCalculo", &C::setDescripcionCalculo, &C::getDescripcionCalculo, 43});
  ExigeReglaDelTexto<C>({"Formula", &C::setFormula, &C::getFormula, 255});
  ExigeReglaDelNumero<C, long>(&C::setCalculoID, &C::getCalculoID, 5000000000L);
  ExigeReglaDelNumero<C, float>(&C::setSaldoInsoluto, &C::getSaldoInsoluto, 0.01f);
  ExigeReglaDelNumero<C, long>(&C::setDias, &C::getDias, 5000000000L);
  ExigeReglaDelNumero<C, float>(&C::setTasaIntNormal, &C::getTasaIntNormal, -1);
  ExigeReglaDelNumero<C, float>(&C::setTasaIntMoratorio, &C::getTasaIntMoratorio, 1e30f);
}

TEST(cCalculo, CheckLanzaLaPrimeraReglaRota) {
  const struct {
    const char *descripcion, *formula;
    std::optional<std::string> mensaje;
  } tabla[] = {
      {"", "", "No se especifico el calculo"},
      {"", "1", "No se especifico el calculo"},
      {"Prueba", "", "No se especifico la formula"},
      {"Prueba", "1", std::nullopt},
      {" ", " ", std::nullopt},
  };
  for (const auto& fila : tabla) {
    C formula(0, fila.descripcion, -1, -1, -1, -1, fila.formula, false, false);
    EXPECT_EQ(Lanzado([&] { EXPECT_TRUE(formula.Check()); }), fila.mensaje) << fila.descripcion;
  }
}

// Against the reference database.

class cCalculoTest : public ConSucursal {
 protected:
  Tabla EnServidor(long id) {
    return base_.Filas("select descripcioncalculo, formula from norte.calculo where calculoid = " +
                       std::to_string(id));
  }
  static C Leida(long id) {
    C formula;
    formula.setCalculoID(id);
    formula.Find();
    return formula;
  }
};

TEST_F(cCalculoTest, LaVidaDeUnaFormulaMandaSoloSusSentenciasYNoTrazaNada) {
  Salida salida;
  Espia espia;
  C formula = Completa();
  EXPECT_EQ(Lanzado([&] { formula.AddNew(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "select spicalculo('Prueba','Dias * 2');", "COMMIT;"}));
  const long id = formula.getCalculoID();
  const std::string clave = std::to_string(id);
  EXPECT_EQ(base_.Valor("select max(calculoid) from norte.calculo"), clave) << "la clave la da el servidor";
  EXPECT_EQ(Estado(formula), clave + "|Prueba|2.500000|3.000000|4.500000|5.500000|Dias * 2");

  formula.setDescripcionCalculo("Otra");
  formula.setFormula("Dias * 3");
  espia.Vacia();
  EXPECT_EQ(Lanzado([&] { formula.Update(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias(),
            (Textos{"BEGIN;", "select spucalculo(" + clave + ",'Otra','Dias * 3');", "COMMIT;"}));
  EXPECT_EQ(EnServidor(id), (Tabla{{"Otra", "Dias * 3"}}));

  base_.Ejecuta(
      "update norte.calculo set saldoinsoluto = 2, dias = 3, tasaintnormal = 4, tasaintmoratorio = 5"
      " where calculoid = " +
      clave);
  espia.Vacia();
  EXPECT_EQ(Estado(Leida(id)), clave + "|Otra|2.000000|3.000000|4.000000|5.000000|Dias * 3");
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spscalculo(" + clave + ");"});

  espia.Vacia();
  EXPECT_EQ(Lanzado([&] { formula.Delete(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "SELECT spdcalculo(" + clave + ");", "COMMIT;"}));
  EXPECT_TRUE(EnServidor(id).empty());
  EXPECT_TRUE(Leida(id).IsNew());
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(cCalculoTest, ElSaldoEsElDeLaUltimaColumna) {
  Ejecuta(
      "select 1, 'dos', 3, 4, 5.5, 6.5, 'siete', 8 union all select null, null, 3, null, null, null, null, "
      "null");
  C formula = Completa();
  formula.Fill(0);
  EXPECT_EQ(Estado(formula), "1|dos|8.000000|4.000000|5.500000|6.500000|siete");
  formula.Fill(1);
  EXPECT_EQ(Estado(formula), Vacia);
}

TEST(cCalculo, UnRechazoOUnCorteSeLanzanYConservanLoEscrito) {
  BaseDatos base;
  for (const auto operacion : {&C::AddNew, &C::Update, &C::Delete}) {
    for (const Falla& falla : {falla::Error("No"), falla::CorteAntes(), falla::CorteDespues()}) {
      Sesion sesion(base);
      C formula = Completa();
      Espia espia;
      espia.En(1, falla);
      EXPECT_TRUE(Lanzado([&] { (formula.*operacion)(); }).has_value());
      EXPECT_EQ(Estado(formula), Estado(Completa()));
      EXPECT_EQ(espia.Sentencias().size(), 2u);
      EXPECT_EQ(Profundidad(), 1);
      engine.RollBackTransaction();
      EXPECT_EQ(base.Valor("select count(*) from norte.calculo where descripcioncalculo = 'Prueba'"), "0");
    }
  }
}

TEST_F(cCalculoTest, UnApostrofoOUnaClaveQueNoExisteLosRechazaElServidor) {
  C formula = Completa();
  formula.setDescripcionCalculo("O'Hara");
  EXPECT_NE(Lanzado([&] { formula.AddNew(); }).value_or("").find("Hara"), std::string::npos);
  engine.RollBackTransaction();
  formula.setDescripcionCalculo("Prueba");
  formula.setCalculoID(999);
  EXPECT_NE(Lanzado([&] { formula.Update(); }).value_or("").find("La fórmula número 999 no existe"),
            std::string::npos);
}

TEST_F(cCalculoTest, SinClaveNoSeBuscaNiSeBorraYSinCambiosNoSeEscribe) {
  C vacia;
  Espia espia;
  vacia.Find();
  vacia.Delete();
  vacia.AddNew();
  vacia.Update();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(Estado(vacia), Vacia);
}

TEST_F(cCalculoTest, UnaFormulaEnUsoNoSeBorraYOtroNombreNoCambiaQuienLaUsa) {
  const std::string usada = base_.Valor("select min(calculonormalid) from norte.tipoprestamo");
  C formula = Leida(std::stol(usada));
  EXPECT_NE(Lanzado([&] { formula.Delete(); }).value_or("").find("No se puede borrar la fórmula"),
            std::string::npos);
  engine.RollBackTransaction();
  formula.setDescripcionCalculo("Con otro nombre");
  EXPECT_EQ(Lanzado([&] { formula.Update(); }), std::nullopt);
  EXPECT_EQ(base_.Valor("select min(calculonormalid) from norte.tipoprestamo"), usada);
}

}  // namespace
}  // namespace pruebas
