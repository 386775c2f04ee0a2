#include "db/Engine.h"

#include <gtest/gtest.h>

#include "app/sesion.h"
#include "catalogs/people/cParametro.h"
#include "catalogs/people/cSocioCaja.h"
#include "catalogs/simple/cMonedas.h"
#include "db/Apertura.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

class EngineTest : public ConBaseVacia {};

/// One letter per call: b begins, c commits, r rolls back, i is Inicializa.
void Recorre(Engine& registro, const std::string& llamadas) {
  for (const char llamada : llamadas) {
    if (llamada == 'b') registro.BeginTransaction();
    if (llamada == 'c') registro.CommitTransaction();
    if (llamada == 'r') registro.RollBackTransaction();
    if (llamada == 'i') registro.Inicializa();
  }
}

TEST_F(EngineTest, ElAnidamientoMandaSoloLoDeAfuera) {
  const struct {
    const char* llamadas;
    Textos sentencias;
    int profundidad;
  } tabla[] = {
      {"", {}, 0},
      {"b", {"BEGIN;"}, 1},
      {"bb", {"BEGIN;"}, 2},
      {"bc", {"BEGIN;", "COMMIT;"}, 0},
      {"bbc", {"BEGIN;"}, 1},
      {"bbcc", {"BEGIN;", "COMMIT;"}, 0},
      {"bbbcc", {"BEGIN;"}, 1},
      {"bbbccc", {"BEGIN;", "COMMIT;"}, 0},
      {"c", {"COMMIT;"}, 0},
      {"cc", {"COMMIT;", "COMMIT;"}, 0},
      {"r", {}, 0},
      {"br", {"BEGIN;", "ROLLBACK;"}, 0},
      {"bbr", {"BEGIN;", "ROLLBACK;"}, 0},
      {"bbrr", {"BEGIN;", "ROLLBACK;"}, 0},
      {"bbrc", {"BEGIN;", "ROLLBACK;", "COMMIT;"}, 0},
      {"bbcr", {"BEGIN;", "ROLLBACK;"}, 0},
      {"bbrb", {"BEGIN;", "ROLLBACK;", "BEGIN;"}, 1},
      {"i", {}, 0},
      {"bbi", {"BEGIN;"}, 0},
      {"bbib", {"BEGIN;", "BEGIN;"}, 1},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.llamadas);
    engine.Inicializa();
    Espia espia;
    Recorre(engine, fila.llamadas);
    EXPECT_EQ(espia.Sentencias(), fila.sentencias);
    EXPECT_EQ(Profundidad(), fila.profundidad);
  }
}

TEST_F(EngineTest, LaProfundidadEsUnaParaTodosLosRegistros) {
  Espia espia;
  cMonedas moneda;
  cParametro parametro;
  moneda.BeginTransaction();
  parametro.BeginTransaction();
  EXPECT_EQ(Profundidad(), 2);
  moneda.CommitTransaction();
  engine.CommitTransaction();
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "COMMIT;"}));
}

TEST_F(EngineTest, DosRegistrosReunidosEnUnoTienenUnaSolaBase) {
  class Reunido : public cParametro, public cSocioCaja {};
  Reunido reunido;
  Engine& porParametro = static_cast<cParametro&>(reunido);
  Engine& porSocio = static_cast<cSocioCaja&>(reunido);
  EXPECT_EQ(&porParametro, &porSocio);
  Espia espia;
  reunido.BeginTransaction();
  porParametro.BeginTransaction();
  porSocio.CommitTransaction();
  EXPECT_EQ(espia.Sentencias(), Textos{"BEGIN;"});
  reunido.CommitTransaction();
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "COMMIT;"}));
}

TEST_F(EngineTest, TrasUnErrorLaProfundidadEsperaAlRollback) {
  Espia espia;
  cMonedas moneda("MX", "Peso", 1, true, true);
  engine.BeginTransaction();
  EXPECT_NE(Lanzado([&] { moneda.AddNew(); }), std::nullopt);  // no such function here
  EXPECT_EQ(Profundidad(), 2);
  engine.RollBackTransaction();
  EXPECT_EQ(Profundidad(), 0);
  engine.CommitTransaction();
  EXPECT_EQ(espia.Sentencias(),
            (Textos{"BEGIN;", "select spimoneda('MX','Peso',1.000000);", "ROLLBACK;", "COMMIT;"}));
}

TEST_F(EngineTest, ElTextoLanzadoSigueLegibleTrasElRollback) {
  engine.BeginTransaction();
  try {
    Ejecuta("select no_existe()");
    LanzaSiRechazada();
    FAIL() << "no lanzó";
  } catch (char* texto) {
    engine.RollBackTransaction();
    EXPECT_NE(std::string(texto).find("function no_existe() does not exist"), std::string::npos);
    EXPECT_EQ(texto, PQresultErrorMessage(res));
  }
}

TEST_F(EngineTest, UnCommitDeMasDejaSoloElAvisoDelServidor) {
  PQsetNoticeProcessor(conn, msgservidor, nullptr);
  Salida salida;
  engine.CommitTransaction();
  EXPECT_STREQ(gsMsgServidor, "WARNING:  there is no transaction in progress\n");
  EXPECT_EQ(salida.Texto(), "WARNING:  there is no transaction in progress\n\n");
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(EngineTest, UnCommitSinRespuestaSeDiceSiHabiaAlgoQueConfirmar) {
  constexpr char sinSaber[] =
      "No se sabe si se guardó: se perdió la conexión al confirmar.\n"
      "Conéctese otra vez con F9 y vea si está, antes de repetir.\n\n";
  base_.Ejecuta("create table t(n int)");
  const struct {
    const char* caso;
    std::string antes;  // calls ahead of the commit
    Falla falla;
    std::string empieza;  // what is thrown; "" for nothing
    const char* filas;
  } tabla[] = {
      {"rechazado", "b", falla::Error("No"), "ERROR:  No", "0"},
      {"cortado antes", "b", falla::CorteAntes(), sinSaber, "0"},
      {"cortado después", "b", falla::CorteDespues(), sinSaber, "1"},
      {"de adentro", "bb", falla::CorteAntes(), "", "0"},
      {"de más, rechazado", "", falla::Error("No"), "", "1"},
      {"de más, cortado", "", falla::CorteAntes(), "", "1"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.caso);
    base_.Ejecuta("truncate t");
    apertura::Cierra();
    conn = base_.Conecta().release();
    engine.Inicializa();
    Recorre(engine, fila.antes);
    Ejecuta("insert into t values (1)");
    LiberaResultado();
    {
      Espia espia;
      espia.Cuando("COMMIT;", fila.falla);
      const auto lanzado = Lanzado([] { engine.CommitTransaction(); });
      EXPECT_EQ(lanzado.has_value(), !fila.empieza.empty());
      EXPECT_EQ(lanzado.value_or("").substr(0, fila.empieza.size()), fila.empieza);
      EXPECT_GT(lanzado.value_or("y el motivo").size(), fila.empieza.size());
      if (lanzado) {
        EXPECT_EQ(Profundidad(), 0);
      }
    }
    apertura::Cierra();  // with whatever is still open
    EXPECT_EQ(base_.Valor("select count(*) from t"), fila.filas);
  }
}

TEST_F(EngineTest, UnaEscrituraCalladaEnUnaConexionPerdidaNoPasaPorGuardada) {
  class Callada : public Engine {
   public:
    void Guarda() { EscribeCallada("insert into t values (1)", false); }
  } registro;
  base_.MataSesiones();
  Ejecuta("select 1");
  const std::string lanzado = Lanzado([&] { registro.Guarda(); }).value_or("");
  EXPECT_NE(lanzado, "");
  EXPECT_EQ(lanzado.find("No se sabe"), std::string::npos) << "nothing was sent";
}

TEST_F(EngineTest, LosCambiosEntranConElCommitDeAfuera) {
  base_.Ejecuta("create table t(n int)");
  Recorre(engine, "bb");
  Ejecuta("insert into t values (1)");
  Recorre(engine, "c");
  EXPECT_EQ(base_.Valor("select count(*) from t"), "0");
  Recorre(engine, "c");
  EXPECT_EQ(base_.Valor("select count(*) from t"), "1");
  Recorre(engine, "bb");
  Ejecuta("insert into t values (2)");
  Recorre(engine, "rc");
  EXPECT_EQ(base_.Valor("select count(*) from t"), "1");
}

TEST_F(EngineTest, ConnectedDiceQueSiSinMirar) {
  EXPECT_TRUE(engine.Connected());
  base_.MataSesiones();
  Ejecuta("select 1");
  EXPECT_TRUE(engine.Connected());
  EXPECT_TRUE(Rechazada());
}

TEST_F(EngineTest, RechazadaEsElEstadoDeError) {
  const std::pair<const char*, bool> tabla[] = {
      {"select 1", false}, {"select 1 where false", false},
      {"BEGIN;", false},   {"ROLLBACK;", false},
      {"", false},         {"select mal", true},
      {"null", true},
  };
  for (const auto& [sql, rechazada] : tabla) {
    SCOPED_TRACE(sql);
    Ejecuta(sql);
    EXPECT_EQ(Rechazada(), rechazada);
    EXPECT_EQ(Lanzado(LanzaSiRechazada).has_value(), rechazada);
  }
}

TEST_F(EngineTest, UnResultadoNuloEsUnRechazoSinTexto) {
  Espia espia;
  espia.En(0, falla::Nula());
  Ejecuta("select 1");
  EXPECT_EQ(res, nullptr);
  EXPECT_TRUE(Rechazada());
  EXPECT_EQ(Lanzado(LanzaSiRechazada), "");
}

TEST_F(EngineTest, SinConexionTodoFallaDeModoOrdinario) {
  PQfinish(conn);
  conn = nullptr;
  Ejecuta("select 1");
  EXPECT_EQ(res, nullptr);
  EXPECT_STREQ(Celda(0, 0), "");
  EXPECT_EQ(Lanzado(LanzaSiRechazada), "");
  EXPECT_EQ(Lanzado([] { AbreTransaccion("No se abre"); }), "No se abre");
  EXPECT_EQ(Lanzado([] { AbreTransaccion(nullptr); }), "");
  Espia espia;
  Recorre(engine, "bbccrcbr");
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "COMMIT;", "COMMIT;", "BEGIN;", "ROLLBACK;"}));
}

TEST_F(EngineTest, CeldaFueraDeLaRespuestaEsVacia) {
  PQsetNoticeProcessor(conn, msgservidor, nullptr);  // libpq complains there of a field that is not there
  Ejecuta("select 'uno', null from generate_series(0, 1)");
  const struct {
    int fila, columna;
    const char* valor;
  } tabla[] = {{0, 0, "uno"}, {1, 0, "uno"}, {0, 1, ""}, {0, 2, ""}, {2, 0, ""}, {5000, 5000, ""}};
  Salida salida;
  for (const auto& fila : tabla)
    EXPECT_STREQ(Celda(fila.fila, fila.columna), fila.valor) << fila.fila << fila.columna;
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(EngineTest, LiberarDejaElResultadoNuloYPuedeRepetirse) {
  Ejecuta("select 1");
  ASSERT_NE(res, nullptr);
  LiberaResultado();
  EXPECT_EQ(res, nullptr);
  LiberaResultado();
  EXPECT_EQ(res, nullptr);
}

TEST_F(EngineTest, AbrirLaTransaccionExigeUnaOrdenCumplida) {
  const struct {
    const char* caso;
    Falla falla;
    const char* textoDelServidor;
  } tabla[] = {
      {"nula", falla::Nula(), ""},
      {"error", falla::Error("No"), "ERROR:  No\n"},
      {"filas", [](PGconn* c, const char*) { return __real_PQexec(c, "select 1"); }, ""},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.caso);
    Espia espia;
    espia.Cuando("BEGIN;", fila.falla);
    EXPECT_EQ(Lanzado([] { AbreTransaccion("Error al cargar."); }), "Error al cargar.");
    EXPECT_EQ(Lanzado([] { AbreTransaccion(nullptr); }), fila.textoDelServidor);
  }
  EXPECT_EQ(Lanzado([] { AbreTransaccion("Error al cargar."); }), std::nullopt);
  EXPECT_EQ(PQresultStatus(res), PGRES_COMMAND_OK);
}

TEST_F(EngineTest, UnaConexionPerdidaEsElRechazoDeLaSiguiente) {
  base_.MataSesiones();
  Ejecuta("select 1");
  EXPECT_NE(Lanzado(LanzaSiRechazada).value_or(""), "");
  EXPECT_EQ(PQntuples(res), 0);
}

}  // namespace
}  // namespace pruebas
