#include "tests/support/Espia.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

#include "tests/support/Servidor.h"

namespace pruebas {
namespace {

using PResultado = std::unique_ptr<PGresult, decltype(&PQclear)>;

class EspiaTest : public testing::Test {
 protected:
  PResultado Manda(const char* sql) { return {PQexec(sesion_.get(), sql), PQclear}; }
  ExecStatusType Estado(const char* sql) { return PQresultStatus(Manda(sql).get()); }

  void SetUp() override { base_.Ejecuta("create table t(n int)"); }

  BaseDatos base_{BaseDatos::Vacia};
  Conexion sesion_ = base_.Conecta();
};

TEST_F(EspiaTest, AnotaCadaSentenciaConSuEstado) {
  Espia espia;
  Manda("BEGIN;");
  Manda("select 1");
  Manda("select mal");
  Manda("COMMIT;");
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "select 1", "select mal", "COMMIT;"}));
  ASSERT_EQ(espia.Historia().size(), 4u);
  EXPECT_EQ(espia.Historia()[0].estado, PGRES_COMMAND_OK);
  EXPECT_EQ(espia.Historia()[1].estado, PGRES_TUPLES_OK);
  EXPECT_EQ(espia.Historia()[2].estado, PGRES_FATAL_ERROR);
  EXPECT_EQ(espia.Cuantas("select"), 2u);
}

TEST_F(EspiaTest, SoloOyeMientrasVive) {
  Manda("select 'antes'");
  {
    Espia espia;
    EXPECT_TRUE(espia.Sentencias().empty());
    espia.En(0, falla::Nula());
  }
  EXPECT_EQ(Estado("select 1"), PGRES_TUPLES_OK);
}

TEST_F(EspiaTest, NoVeLoDelBancoDePruebas) {
  Espia espia;
  espia.Cuando("", falla::Nula());
  EXPECT_EQ(base_.Valor("select 1"), "1");
  EXPECT_TRUE(espia.Sentencias().empty());
}

TEST_F(EspiaTest, EstropeaSoloLaSenalada) {
  Espia espia;
  espia.En(1, falla::Nula());
  EXPECT_EQ(Estado("select 1"), PGRES_TUPLES_OK);
  EXPECT_EQ(Manda("insert into t values (1)"), nullptr);
  EXPECT_EQ(Estado("select 1"), PGRES_TUPLES_OK);
  EXPECT_EQ(base_.Valor("select count(*) from t"), "0");
}

TEST_F(EspiaTest, EstropeaPorTextoCadaVez) {
  Espia espia;
  espia.Cuando("dos", falla::Nula());
  EXPECT_EQ(Estado("select 'uno'"), PGRES_TUPLES_OK);
  EXPECT_EQ(Manda("select 'dos'"), nullptr);
  EXPECT_EQ(Manda("select 'dos'"), nullptr);
}

TEST_F(EspiaTest, VaciaEmpiezaACeroYOlvidaLasFallas) {
  Espia espia;
  espia.Cuando("1", falla::Nula());
  Manda("select 1");
  espia.Vacia();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(Estado("select 1"), PGRES_TUPLES_OK);
  espia.Vacia();
  espia.En(0, falla::Nula());
  EXPECT_EQ(Manda("select 1"), nullptr);
}

TEST_F(EspiaTest, ErrorTraeElTextoYRompeLaTransaccion) {
  Espia espia;
  Manda("BEGIN;");
  espia.En(1, falla::Error("No 'se' puede al 100% $$"));
  const PResultado respuesta = Manda("insert into t values (1)");
  EXPECT_EQ(PQresultStatus(respuesta.get()), PGRES_FATAL_ERROR);
  EXPECT_STREQ(PQresultErrorMessage(respuesta.get()), "ERROR:  No 'se' puede al 100% $$\n");
  EXPECT_EQ(PQtransactionStatus(sesion_.get()), PQTRANS_INERROR);
  Manda("ROLLBACK;");
  EXPECT_EQ(Estado("select 1"), PGRES_TUPLES_OK);
}

TEST_F(EspiaTest, LasRespuestasEstropeadasConservanLaForma) {
  constexpr const char* Dos = "select 7 as n, 'x' as t from generate_series(1, 2)";
  constexpr const char* Ninguna = "select 7 as n, 'x' as t where false";
  Espia espia;
  espia.En(0, falla::SinFilas());
  espia.En(1, falla::Recortada(1));
  espia.En(2, falla::ConNulos());
  espia.En(3, falla::ConTextos(5000));
  espia.En(4, falla::ConNulos());
  espia.En(5, falla::Recortada(0));

  PResultado respuesta = Manda(Dos);
  EXPECT_EQ(PQresultStatus(respuesta.get()), PGRES_TUPLES_OK);
  EXPECT_EQ(PQntuples(respuesta.get()), 0);
  EXPECT_EQ(PQnfields(respuesta.get()), 2);

  respuesta = Manda(Dos);
  EXPECT_EQ(PQntuples(respuesta.get()), 2);
  EXPECT_EQ(PQnfields(respuesta.get()), 1);
  EXPECT_STREQ(PQgetvalue(respuesta.get(), 1, 0), "7");

  respuesta = Manda(Dos);
  EXPECT_EQ(PQntuples(respuesta.get()), 2);
  EXPECT_STREQ(PQfname(respuesta.get(), 1), "t");
  EXPECT_TRUE(PQgetisnull(respuesta.get(), 1, 1));
  EXPECT_STREQ(PQgetvalue(respuesta.get(), 1, 1), "");

  respuesta = Manda(Dos);
  EXPECT_EQ(PQgetvalue(respuesta.get(), 1, 1), std::string(5000, 'x'));
  EXPECT_EQ(PQgetlength(respuesta.get(), 0, 0), 5000);

  respuesta = Manda(Ninguna);
  EXPECT_EQ(PQntuples(respuesta.get()), 1);
  EXPECT_TRUE(PQgetisnull(respuesta.get(), 0, 0));

  respuesta = Manda(Dos);
  EXPECT_EQ(PQresultStatus(respuesta.get()), PGRES_TUPLES_OK);
  EXPECT_EQ(PQnfields(respuesta.get()), 0);
}

TEST_F(EspiaTest, UnaSentenciaSinColumnasNoSeEstropea) {
  Espia espia;
  espia.En(0, falla::ConNulos());
  EXPECT_EQ(Estado("insert into t values (1)"), PGRES_COMMAND_OK);
  EXPECT_EQ(base_.Valor("select count(*) from t"), "1");
}

struct Corte {
  Falla (*falla)();
  const char* filas;
};

TEST_F(EspiaTest, UnCorteRompeLaConexionAntesODespues) {
  for (const Corte& corte : {Corte{falla::CorteAntes, "0"}, Corte{falla::CorteDespues, "1"}}) {
    SCOPED_TRACE(corte.filas);
    base_.Ejecuta("truncate t");
    sesion_ = base_.Conecta();
    Espia espia;
    espia.En(0, corte.falla());
    const PResultado respuesta = Manda("insert into t values (1)");
    EXPECT_EQ(PQresultStatus(respuesta.get()), PGRES_FATAL_ERROR);
    EXPECT_NE(std::string(PQresultErrorMessage(respuesta.get())), "");
    EXPECT_EQ(PQstatus(sesion_.get()), CONNECTION_BAD);
    EXPECT_EQ(Estado("select 1"), PGRES_FATAL_ERROR);
    EXPECT_EQ(espia.Sentencias().size(), 2u);
    EXPECT_EQ(base_.Valor("select count(*) from t"), corte.filas);
  }
}

TEST_F(EspiaTest, UnCorteAMediaTransaccionNoDejaNada) {
  Espia espia;
  espia.En(1, falla::CorteDespues());
  Manda("BEGIN;");
  Manda("insert into t values (1)");
  EXPECT_EQ(Estado("COMMIT;"), PGRES_FATAL_ERROR);
  EXPECT_EQ(base_.Valor("select count(*) from t"), "0");
}

TEST(Espia, TodasLasFallasAguantanUnaConexionNula) {
  const std::pair<const char*, Falla> fallas[] = {
      {"Nula", falla::Nula()},
      {"Error", falla::Error("x")},
      {"SinFilas", falla::SinFilas()},
      {"Recortada", falla::Recortada(1)},
      {"ConNulos", falla::ConNulos()},
      {"ConTextos", falla::ConTextos()},
      {"CorteAntes", falla::CorteAntes()},
      {"CorteDespues", falla::CorteDespues()},
  };
  for (const auto& [nombre, falla] : fallas) {
    SCOPED_TRACE(nombre);
    Espia espia;
    espia.En(0, falla);
    EXPECT_EQ(PQexec(nullptr, "select 1"), nullptr);
    EXPECT_EQ(espia.Sentencias(), Textos{"select 1"});
  }
}

TEST(Espia, SoloHayUno) {
  Espia espia;
  EXPECT_THROW(Espia(), std::logic_error);
  PQexec(nullptr, "select 1");
  EXPECT_EQ(espia.Cuantas("select 1"), 1u);
}

}  // namespace
}  // namespace pruebas
