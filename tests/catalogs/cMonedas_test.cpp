#include "catalogs/simple/cMonedas.h"

#include <gtest/gtest.h>

#include "app/sesion.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

/// All columns and both flags, as one text to compare.
std::string Estado(const cMonedas& m) {
  return std::string("[") + m.getMonedaID() + "|" + m.getMonedaDescri() + "|" +
         std::to_string(m.getMonedaValor()) + "]" + (m.getDataChanged() ? " cambiada" : "") +
         (m.IsNew() ? " nueva" : "");
}

// Without a server.

TEST(cMonedas, RecienHechaEstaVaciaYNoEsNueva) {
  const cMonedas moneda;
  EXPECT_EQ(Estado(moneda), "[||0.000000]");
  EXPECT_STREQ(moneda.clase(), "Moneda");
}

TEST(cMonedas, ElConstructorCompletoGuardaTodoTalCual) {
  EXPECT_EQ(Estado(cMonedas("A", "Euro", 2.5f, true, false)), "[A|Euro|2.500000] cambiada");
  EXPECT_EQ(Estado(cMonedas("", "", -1, false, true)), "[||-1.000000] nueva");
  EXPECT_EQ(Estado(cMonedas("ABC", TextoAcentuado().c_str(), 0, false, false)),
            "[AB|" + AcentuadoHasta(31) + "|0.000000]");
}

TEST(cMonedas, CopiarLlevaColumnasYBanderas) {
  const cMonedas original("EU", "Euro", 18.5f, true, true);
  cMonedas por_copia, por_asignacion, por_copy;
  EXPECT_EQ(Estado(cMonedas(original)), Estado(original));
  EXPECT_EQ(&(por_asignacion = original), &por_asignacion);
  EXPECT_EQ(Estado(por_asignacion), Estado(original));
  por_copy.Copy(original);
  EXPECT_EQ(Estado(por_copy), Estado(original));
  por_copy.setMonedaDescri("Otra");
  EXPECT_STREQ(original.getMonedaDescri(), "Euro");
}

TEST(cMonedas, ClearVaciaTodoYQuitaLasBanderas) {
  cMonedas moneda("EU", "Euro", 18.5f, true, true);
  moneda.Clear();
  EXPECT_EQ(Estado(moneda), "[||0.000000]");
}

TEST(cMonedas, LasBanderasSePonenYSeLeenSinMas) {
  cMonedas moneda;
  moneda.setDataChanged(true);
  EXPECT_EQ(Estado(moneda), "[||0.000000] cambiada");
  moneda.setIsNew(true);
  moneda.setDataChanged(false);
  EXPECT_EQ(Estado(moneda), "[||0.000000] nueva");
  moneda.setIsNew(false);
  EXPECT_EQ(Estado(moneda), "[||0.000000]");
}

TEST(cMonedas, LaClaveSeRellenaADosYSeComparaComoSeDio) {
  const struct {
    const char* antes;
    std::string valor;
    const char* queda;
    bool cambia;
  } tabla[] = {
      {"", "", "", false},
      {"", "A", "A ", true},
      {"A ", "A", "A ", true},
      {"A ", "A ", "A ", false},
      {"MX", "MX", "MX", false},
      {"MX", "US", "US", true},
      {"MX", "", "  ", true},
      {"  ", "", "  ", true},
      {"MX", "MXN", "MX", true},
      {"", "ñ", "ñ", true},
      {"", "éé", "é", true},
      {"", "aé", "a", true},
      {"", std::string(5000, 'x'), "xx", true},
      {"", "%s", "%s", true},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(std::string(fila.antes) + " -> " + fila.valor.substr(0, 10));
    cMonedas moneda(fila.antes, "", 0, false, false);
    moneda.setMonedaID(fila.valor.c_str());
    EXPECT_STREQ(moneda.getMonedaID(), fila.queda);
    EXPECT_EQ(moneda.getDataChanged(), fila.cambia);
  }
}

TEST(cMonedas, LaDescripcionYElValorSiguenLaReglaDelCambio) {
  ExigeReglaDelTexto<cMonedas>({"descripción", &cMonedas::setMonedaDescri, &cMonedas::getMonedaDescri, 31});
  ExigeReglaDelNumero<cMonedas, float>(&cMonedas::setMonedaValor, &cMonedas::getMonedaValor, 2.5f);
}

TEST(cMonedas, CheckLanzaLaPrimeraReglaRota) {
  const struct {
    const char* id;
    const char* descri;
    float valor;
    std::optional<std::string> mensaje;
  } tabla[] = {
      {"", "", -1, "No se especifico la clave"},
      {"", "Peso", 1, "No se especifico la clave"},
      {"MX", "", -1, "No ha especificado la descripción"},
      {"MX", "", 1, "No ha especificado la descripción"},
      {"MX", "Peso", -1, "El valor de la moneda no puede ser negativo"},
      {"MX", "Peso", -0.01f, "El valor de la moneda no puede ser negativo"},
      {"MX", "Peso", 0, std::nullopt},
      {"MX", "Peso", 1, std::nullopt},
      {"  ", " ", 1, std::nullopt},
  };
  for (const auto& fila : tabla) {
    cMonedas moneda(fila.id, fila.descri, fila.valor, false, false);
    EXPECT_EQ(Lanzado([&] { EXPECT_TRUE(moneda.Check()); }), fila.mensaje) << Estado(moneda);
  }
}

TEST(cMonedas, UnaClaveVaciadaSonDosBlancosQueCheckNoVe) {
  cMonedas moneda("MX", "Peso", 1, false, false);
  moneda.setMonedaID("");
  EXPECT_STREQ(moneda.getMonedaID(), "  ");
  EXPECT_EQ(Lanzado([&] { moneda.Check(); }), std::nullopt);
}

// Against the reference database.

class cMonedasTest : public ConSucursal {
 protected:
  /// The rows with that key, as the server holds them: key, description, value.
  Tabla EnServidor(const std::string& clave) {
    return base_.Filas("select monedaid, monedadescri, monedavalor from norte.moneda where monedaid = '" +
                       clave + "'");
  }
};

using Operacion = void (*)(cMonedas&);
const struct {
  const char* nombre;
  Operacion operacion;
  const char* sentencia;
  bool escribe;
} operaciones[] = {
    {"AddNew", [](cMonedas& m) { m.AddNew(); }, "select spimoneda('MX','Peso',1.500000);", true},
    {"Update", [](cMonedas& m) { m.Update(); }, "select spumoneda('MX','Peso',1.500000);", true},
    {"Delete", [](cMonedas& m) { m.Delete(); }, "SELECT spdmoneda('MX');", true},
    {"Find", [](cMonedas& m) { m.Find(); }, "SELECT * FROM spsmoneda('MX');", false},
};

TEST_F(cMonedasTest, CadaOperacionMandaLoSuyoYSoloUpdateTraza) {
  SueltaMonedas(base_);
  for (const auto& fila : operaciones) {
    SCOPED_TRACE(fila.nombre);
    base_.Ejecuta("delete from norte.moneda where monedaid = 'MX'");
    if (fila.operacion != operaciones[0].operacion)
      base_.Ejecuta("insert into norte.moneda values ('MX', 1, 'Peso')");
    cMonedas moneda("MX", "Peso", 1.5f, true, true);
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { fila.operacion(moneda); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(),
              fila.escribe ? (Textos{"BEGIN;", fila.sentencia, "COMMIT;"}) : Textos{fila.sentencia});
    EXPECT_EQ(salida.Lineas(), std::string(fila.nombre) == "Update" ? Textos{fila.sentencia} : Textos{});
    EXPECT_EQ(Profundidad(), 0);
  }
}

TEST_F(cMonedasTest, LasBanderasQuedanSegunElDesenlace) {
  SueltaMonedas(base_);
  const Falla bien = __real_PQexec;
  const struct {
    const char* caso;
    Operacion operacion;
    Falla falla;
    bool lanza;
    const char* estado;
  } tabla[] = {
      {"AddNew", operaciones[0].operacion, falla::SinFilas(), false, "[MX|Peso|1.500000]"},
      {"AddNew refused", operaciones[0].operacion, falla::Error("No"), true,
       "[MX|Peso|1.500000] cambiada nueva"},
      {"Update", operaciones[1].operacion, bien, false, "[MX|Peso|1.500000]"},
      {"Update refused", operaciones[1].operacion, falla::Error("No"), true,
       "[MX|Peso|1.500000] cambiada nueva"},
      {"Update without an answer", operaciones[1].operacion, falla::Nula(), true,
       "[MX|Peso|1.500000] cambiada nueva"},
      {"Delete", operaciones[2].operacion, bien, false, "[MX|Peso|1.500000] cambiada nueva"},
      {"Delete refused", operaciones[2].operacion, falla::Error("No"), true,
       "[MX|Peso|1.500000] cambiada nueva"},
      {"Find", operaciones[3].operacion, bien, false, "[MX|Peso mexicano|1.000000]"},
      {"Find of nothing", operaciones[3].operacion, falla::SinFilas(), false,
       "[MX|Peso|1.500000] cambiada nueva"},
      {"Find refused", operaciones[3].operacion, falla::Error("No"), false,
       "[MX|Peso|1.500000] cambiada nueva"},
      {"Find without an answer", operaciones[3].operacion, falla::Nula(), false,
       "[MX|Peso|1.500000] cambiada nueva"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.caso);
    base_.Ejecuta("delete from norte.moneda where monedaid = 'MX'");
    if (fila.operacion != operaciones[0].operacion)
      base_.Ejecuta("insert into norte.moneda values ('MX', 1, 'Peso mexicano')");
    cMonedas moneda("MX", "Peso", 1.5f, true, true);
    Espia espia;
    espia.Cuando("moneda", fila.falla);
    Salida salida;
    EXPECT_EQ(Lanzado([&] { fila.operacion(moneda); }).has_value(), fila.lanza);
    EXPECT_EQ(Estado(moneda), fila.estado);
    EXPECT_EQ(Profundidad(), fila.lanza ? 1 : 0);
    engine.RollBackTransaction();
  }
}

TEST_F(cMonedasTest, UpdateRechazadoLoTrazaYNadieMas) {
  for (const auto& fila : operaciones) {
    SCOPED_TRACE(fila.nombre);
    for (const auto& falla : {falla::Error("No"), falla::Nula()}) {
      Espia espia;
      espia.Cuando("moneda", falla);
      cMonedas moneda("MX", "Peso", 1.5f, true, true);
      Salida salida;
      const auto texto = Lanzado([&] { fila.operacion(moneda); });
      EXPECT_EQ(texto.has_value(), fila.escribe);
      const bool update = std::string(fila.nombre) == "Update";
      EXPECT_EQ(salida.Lineas(), update ? (Textos{fila.sentencia, "entrando a error"}) : Textos{});
      engine.RollBackTransaction();
    }
  }
}

TEST_F(cMonedasTest, UpdateQueNoPasaCheckNoTrazaNada) {
  cMonedas moneda("MX", "", 1, true, false);
  Espia espia;
  Salida salida;
  EXPECT_EQ(Lanzado([&] { moneda.Update(); }), "No ha especificado la descripción");
  EXPECT_EQ(Lanzado([&] { moneda.AddNew(); }), "No ha especificado la descripción");
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(cMonedasTest, SinCambiosNoSeMandaNiSeRevisaNada) {
  cMonedas moneda("", "", -1, false, true);
  Espia espia;
  moneda.AddNew();
  moneda.Update();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_TRUE(moneda.IsNew());
}

TEST_F(cMonedasTest, PonerLosMismosValoresNoEsUnCambio) {
  cMonedas moneda;
  moneda.setMonedaID("MX");
  moneda.Find();
  ASSERT_FALSE(moneda.IsNew());
  const cMonedas igual = moneda;
  moneda.setMonedaID(igual.getMonedaID());
  moneda.setMonedaDescri(igual.getMonedaDescri());
  moneda.setMonedaValor(igual.getMonedaValor());
  Espia espia;
  moneda.Update();
  moneda.AddNew();
  EXPECT_TRUE(espia.Sentencias().empty());
}

TEST_F(cMonedasTest, SinClaveFindYDeleteNoHacenNada) {
  for (const bool nueva : {false, true}) {
    for (const bool cambiada : {false, true}) {
      cMonedas moneda("", "Peso", 1, cambiada, nueva);
      const std::string antes = Estado(moneda);
      Espia espia;
      moneda.Find();
      moneda.Delete();
      EXPECT_TRUE(espia.Sentencias().empty());
      EXPECT_EQ(Estado(moneda), antes);
      EXPECT_EQ(Profundidad(), 0);
    }
  }
}

TEST_F(cMonedasTest, UnaClaveDeUnaLetraViajaConSuBlanco) {
  cMonedas moneda;
  moneda.setMonedaID("A");
  moneda.setMonedaDescri("Austral");
  moneda.setMonedaValor(2);
  Espia espia;
  moneda.AddNew();
  EXPECT_EQ(espia.Cuantas("select spimoneda('A ','Austral',2.000000);"), 1u);
  EXPECT_EQ(EnServidor("A "), (Tabla{{"A ", "Austral", "2.000000"}}));
  cMonedas leida;
  leida.setMonedaID("A");
  leida.Find();
  EXPECT_EQ(Estado(leida), "[A |Austral|2.000000]");
}

TEST_F(cMonedasTest, LaVidaDeUnaMoneda) {
  Salida salida;
  cMonedas moneda;
  moneda.setMonedaID("ZZ");
  moneda.Find();
  EXPECT_EQ(Estado(moneda), "[ZZ||0.000000] cambiada nueva");
  moneda.setMonedaDescri("Zloty");
  moneda.setMonedaValor(4.5f);
  moneda.AddNew();
  EXPECT_EQ(Estado(moneda), "[ZZ|Zloty|4.500000]");
  EXPECT_EQ(EnServidor("ZZ"), (Tabla{{"ZZ", "Zloty", "4.500000"}}));
  moneda.setMonedaValor(4.25f);
  moneda.Update();
  EXPECT_EQ(EnServidor("ZZ"), (Tabla{{"ZZ", "Zloty", "4.250000"}}));
  moneda.Delete();
  EXPECT_TRUE(EnServidor("ZZ").empty());
  moneda.Find();
  EXPECT_EQ(Estado(moneda), "[ZZ|Zloty|4.250000] nueva");
}

TEST_F(cMonedasTest, FindTomaLaPrimeraFilaYSueltaElResultadoSoloSiLaHay) {
  base_.Ejecuta(
      "drop function norte.spsmoneda(text); create function norte.spsmoneda(text) returns table (a text, b "
      "text,"
      " c text) language sql as $$ select * from (values ('MX', '1', 'uno'), ('US', '2', 'dos')) v"
      " where $1 = 'MX' $$; grant execute on function norte.spsmoneda(text) to public");
  cMonedas moneda("MX", "", 0, true, true);
  moneda.Find();
  EXPECT_EQ(Estado(moneda), "[MX|uno|1.000000]");
  EXPECT_EQ(res, nullptr);
  cMonedas otra("US", "", 0, false, false);
  otra.Find();
  EXPECT_TRUE(otra.IsNew());
  EXPECT_NE(res, nullptr);
}

TEST_F(cMonedasTest, FindEntiendeCualquierRespuesta) {
  const struct {
    const char* caso;
    Falla falla;
    std::string estado;
  } tabla[] = {
      {"sin columnas", falla::Recortada(0), "[MX|Peso|1.500000] cambiada nueva"},
      {"una columna", falla::Recortada(1), "[MX||0.000000]"},
      {"dos columnas", falla::Recortada(2), "[MX||1.000000]"},
      {"nulos", falla::ConNulos(), "[||0.000000]"},
      {"textos largos", falla::ConTextos(5000), "[xx|" + std::string(31, 'x') + "|0.000000]"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.caso);
    cMonedas moneda("MX", "Peso", 1.5f, true, true);
    Espia espia;
    espia.En(0, fila.falla);
    moneda.Find();
    EXPECT_EQ(Estado(moneda), fila.estado);
  }
}

TEST_F(cMonedasTest, UnUpdateDeUnRenglonQueYaNoEstaTerminaBienSiElServidorCalla) {
  base_.Ejecuta(
      "create or replace function norte.spumoneda(clave text, descri text, valor numeric) returns void"
      " language sql as 'update norte.moneda set monedadescri = descri where monedaid = clave'"
      " security definer");
  cMonedas moneda("QQ", "Ida", 1, true, false);
  Salida salida;
  EXPECT_EQ(Lanzado([&] { moneda.Update(); }), std::nullopt);
  EXPECT_EQ(Estado(moneda), "[QQ|Ida|1.000000]");
}

TEST_F(cMonedasTest, ElServidorQueSeNiegaDejaElRegistroParaCorregirlo) {
  const struct {
    const char* caso;
    cMonedas moneda;
    Operacion operacion;
    const char* texto;
  } tabla[] = {
      {"repetida",
       {"MX", "Peso", 1, true, true},
       operaciones[0].operacion,
       "ERROR:  La moneda MX ya existe\n"},
      {"ausente",
       {"QQ", "Nada", 1, true, true},
       operaciones[1].operacion,
       "ERROR:  La moneda QQ no existe\n"},
      {"ausente",
       {"QQ", "Nada", 1, true, true},
       operaciones[2].operacion,
       "ERROR:  La moneda QQ no existe\n"},
      {"en blanco", {"  ", "Nada", 1, true, true}, operaciones[0].operacion, "ERROR:  Falta la clave\n"},
  };
  PQsetErrorContextVisibility(conn, PQSHOW_CONTEXT_NEVER);
  Salida salida;
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.caso);
    cMonedas moneda = fila.moneda;
    const Tabla antes = base_.Filas("select * from norte.moneda order by 1");
    EXPECT_EQ(Lanzado([&] { fila.operacion(moneda); }), fila.texto);
    EXPECT_EQ(Estado(moneda), Estado(fila.moneda));
    engine.RollBackTransaction();
    EXPECT_EQ(base_.Filas("select * from norte.moneda order by 1"), antes);
  }
}

TEST_F(cMonedasTest, LoQueSeEscribeConSignosRarosSeRechazaOLlegaIgual) {
  const struct {
    std::string descripcion;
    std::optional<std::string> guardada;  // nothing if the server refuses it
  } tabla[] = {
      {"Peso d'oro", std::nullopt},
      {"'", std::nullopt},
      {"'); delete from moneda; --", std::nullopt},
      {"100% seguro", "100% seguro"},
      {"%s%n%d%", "%s%n%d%"},
      {"a\\b", "a\\b"},
      {"\"comillas\"", "\"comillas\""},
      {"$$ ; --", "$$ ; --"},
      {TextoAcentuado(15), TextoAcentuado(15)},
      {TextoAcentuado(31), TextoAcentuado(16)},
      {TextoAcentuado().substr(1), TextoAcentuado(16).substr(1)},
  };
  const std::string total = base_.Valor("select count(*) from norte.moneda");
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.descripcion.substr(0, 40));
    cMonedas moneda;
    moneda.setMonedaID("RR");
    moneda.setMonedaDescri(fila.descripcion.c_str());
    const auto texto = Lanzado([&] { moneda.AddNew(); });
    EXPECT_EQ(texto.has_value(), !fila.guardada);
    engine.RollBackTransaction();
    if (fila.guardada) {
      EXPECT_EQ(EnServidor("RR"), (Tabla{{"RR", *fila.guardada, "0.000000"}}));
      moneda.Delete();
    }
    EXPECT_EQ(base_.Valor("select count(*) from norte.moneda"), total);
  }
}

TEST_F(cMonedasTest, ElValorViajaConElRuidoDeLaPrecisionSencilla) {
  const std::pair<float, const char*> tabla[] = {
      {20.1f, "20.100000"},          {1234.56f, "1234.560059"}, {0.1f, "0.100000"},
      {123456.78f, "123456.781250"}, {0, "0.000000"},           {16777217.0f, "16777216.000000"},
  };
  Salida salida;
  for (const auto& [valor, texto] : tabla) {
    SCOPED_TRACE(texto);
    cMonedas moneda("MX", "Peso", valor, true, false);
    Espia espia;
    moneda.Update();
    EXPECT_EQ(espia.Cuantas("select spumoneda('MX','Peso'," + std::string(texto) + ");"), 1u);
    EXPECT_EQ(base_.Valor("select monedavalor from norte.moneda where monedaid = 'MX'"), texto);
    moneda.Find();
    EXPECT_EQ(moneda.getMonedaValor(), valor);
  }
}

TEST_F(cMonedasTest, UnValorDescomunalSeRechazaSinRomperNada) {
  for (const float valor : {3.4e38f, 1e30f, 2e12f}) {
    cMonedas moneda("MX", "Peso", valor, true, false);
    Salida salida;
    EXPECT_NE(Lanzado([&] { moneda.Update(); }).value_or(""), "") << valor;
    engine.RollBackTransaction();
  }
  EXPECT_EQ(base_.Valor("select monedavalor from norte.moneda where monedaid = 'MX'"), "1.000000");
}

TEST_F(cMonedasTest, SinConexionEscribirLanzaYBuscarNoEncuentra) {
  PQfinish(conn);
  conn = nullptr;
  Salida salida;
  for (const auto& fila : operaciones) {
    SCOPED_TRACE(fila.nombre);
    cMonedas moneda("MX", "Peso", 1.5f, true, false);
    const auto texto = Lanzado([&] { fila.operacion(moneda); });
    EXPECT_EQ(texto, fila.escribe ? std::optional<std::string>("") : std::nullopt);
    EXPECT_EQ(moneda.IsNew(), !fila.escribe);
    EXPECT_TRUE(moneda.getDataChanged());
    engine.RollBackTransaction();
  }
}

TEST_F(cMonedasTest, DentroDeOtraTransaccionSoloLaDeAfueraCierra) {
  cMonedas una("R1", "Una", 1, true, true), otra("R2", "Otra", 1, true, true);
  Espia espia;
  engine.BeginTransaction();
  una.AddNew();
  otra.AddNew();
  EXPECT_TRUE(EnServidor("R1").empty());
  engine.RollBackTransaction();
  EXPECT_TRUE(EnServidor("R2").empty());
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "select spimoneda('R1','Una',1.000000);",
                                        "select spimoneda('R2','Otra',1.000000);", "ROLLBACK;"}));
}

/// The line breaks at every place of every operation.
TEST(cMonedasCortes, NadaQuedaAMediasYElProgramaSigue) {
  enum { Antes, Despues };
  const struct {
    const char* operacion;
    size_t posicion;
    int corte;
    bool lanza;
    bool hecho;  // is the change on the server?
  } tabla[] = {
      {"AddNew", 0, Antes, true, false}, {"AddNew", 0, Despues, true, false},
      {"AddNew", 1, Antes, true, false}, {"AddNew", 1, Despues, true, false},
      {"AddNew", 2, Antes, true, false}, {"AddNew", 2, Despues, true, true},
      {"Update", 0, Antes, true, false}, {"Update", 0, Despues, true, false},
      {"Update", 1, Antes, true, false}, {"Update", 1, Despues, true, false},
      {"Update", 2, Antes, true, false}, {"Update", 2, Despues, true, true},
      {"Delete", 0, Antes, true, false}, {"Delete", 0, Despues, true, false},
      {"Delete", 1, Antes, true, false}, {"Delete", 1, Despues, true, false},
      {"Delete", 2, Antes, true, false}, {"Delete", 2, Despues, true, true},
      {"Find", 0, Antes, false, false},  {"Find", 0, Despues, false, false},
  };
  BaseDatos base;
  SueltaMonedas(base);
  for (const auto& fila : tabla) {
    SCOPED_TRACE(std::string(fila.operacion) + " " + std::to_string(fila.posicion) +
                 (fila.corte == Antes ? " antes" : " después"));
    const auto& operacion = *std::find_if(std::begin(operaciones), std::end(operaciones), [&](const auto& o) {
      return std::string(o.nombre) == fila.operacion;
    });
    base.Ejecuta("delete from norte.moneda where monedaid = 'MX'");
    const bool habia = operacion.operacion != operaciones[0].operacion;
    if (habia) base.Ejecuta("insert into norte.moneda values ('MX', 1, 'Antes')");
    const std::string todas = "select * from norte.moneda order by 1";
    const Tabla antes = base.Filas(todas);
    Sesion sesion(base);
    cMonedas moneda("MX", "Peso", 1.5f, true, true);
    Salida salida;
    {
      Espia espia;
      espia.En(fila.posicion, fila.corte == Antes ? falla::CorteAntes() : falla::CorteDespues());
      EXPECT_EQ(Lanzado([&] { operacion.operacion(moneda); }).has_value(), fila.lanza);
    }
    EXPECT_EQ(moneda.getDataChanged(),
              fila.lanza || !operacion.escribe || std::string(fila.operacion) == "Delete");
    engine.RollBackTransaction();
    EXPECT_EQ(Profundidad(), 0);
    EXPECT_EQ(base.Filas(todas) != antes, fila.hecho);
    // On the dead line everything else fails in the ordinary way.
    for (const auto& otra : operaciones) {
      cMonedas m("MX", "Peso", 1.5f, true, false);
      EXPECT_EQ(Lanzado([&] { otra.operacion(m); }).has_value(), otra.escribe) << otra.nombre;
      EXPECT_EQ(m.IsNew(), !otra.escribe) << otra.nombre;
      engine.RollBackTransaction();
    }
    EXPECT_EQ(base.Filas(todas) != antes, fila.hecho);
  }
}

}  // namespace
}  // namespace pruebas
