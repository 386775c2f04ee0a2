#include "framework/Registro.h"

#include <gtest/gtest.h>

#include <climits>

#include "app/sesion.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

/// A record with one column of each type and an integer key that the server assigns; it traces everything.
class cPieza : public Registro<cPieza> {
 public:
  cPieza() { Clear(); }

  void setPiezaID(int valor) { Pon(PiezaID, valor); }
  void setNombre(const char* valor) { Pon(Nombre, valor); }
  void setRellena(const char* valor) { PonRellenado(Rellena, 3, valor); }
  void setLimitada(const char* valor) { PonLimitado(Limitada, 5, valor); }
  void setLargo(long valor) { Pon(Largo, valor); }
  void setFlotante(float valor) { Pon(Flotante, valor); }
  void setDoble(double valor) { Pon(Doble, valor); }
  void setDia(const date& valor) { Pon(Dia, valor); }

  int getPiezaID() const { return PiezaID; }
  const char* getNombre() const { return Nombre; }
  const char* getRellena() const { return Rellena; }
  const char* getLimitada() const { return Limitada; }
  long getLargo() const { return Largo; }
  float getFlotante() const { return Flotante; }
  double getDoble() const { return Doble; }
  const date& getDia() const { return Dia; }

  bool Check() {
    if (Nombre[0] == '\0') Lanza("Falta el nombre");
    return true;
  }

 private:
  friend Registro<cPieza>;
  static constexpr unsigned trazas = TrazaAddNew | TrazaUpdate | TrazaDelete | TrazaFind;

  auto Columnas() { return std::tie(PiezaID, Largo, Nombre, Rellena, Limitada, Flotante, Doble, Dia); }
  int Clave() const { return PiezaID; }
  void AlInsertar() { TomaClave(PiezaID); }

  Sentencia SqlAddNew() const { return Sentencia("select spipieza('%s');", Nombre); }
  Sentencia SqlUpdate() const { return Sentencia("select spupieza(%i,'%s');", PiezaID, Nombre); }
  Sentencia SqlDelete() const { return Sentencia("SELECT spdpieza(%i);", PiezaID); }
  Sentencia SqlFind() const { return Sentencia("SELECT * FROM spspieza(%i);", PiezaID); }

  char Nombre[9];
  int PiezaID;
  char Rellena[6];
  char Limitada[9];
  long Largo;
  float Flotante;
  double Doble;
  date Dia;
};

/// A record that is saved with two statements, and that lists its columns in the order of its members too.
class cDoble : public Registro<cDoble> {
 public:
  template <class... Valores>
  explicit cDoble(const char* clave, Valores... valores) {
    TomaMiembros(clave, valores...);
  }

  bool Check() { return true; }
  std::string Estado() const {
    return std::string(DobleID) + "|" + Letra + "|" + std::to_string(Valor) +
           (dataChanged ? " cambiada" : "") + (isNew ? " nueva" : "");
  }

 private:
  friend Registro<cDoble>;
  static constexpr unsigned trazas = TrazaAddNew;

  auto Columnas() { return std::tie(DobleID, Valor, Letra); }
  auto Miembros() { return std::tie(DobleID, Letra, Valor); }
  const char* Clave() const { return DobleID; }
  void AlInsertar() { EjecutaEscritura("select 'segunda del alta'", false); }
  void AlCambiar() { EjecutaEscritura("select 'segunda del cambio'", true); }

  Sentencia SqlAddNew() const { return Sentencia("select 'alta'"); }
  Sentencia SqlUpdate() const { return Sentencia("select 'cambio'"); }

  char DobleID[4];
  char Letra[2];
  float Valor;
};

std::string Estado(const cPieza& p) {
  return std::to_string(p.getPiezaID()) + "|" + std::to_string(p.getLargo()) + "|" + p.getNombre() + "|" +
         p.getRellena() + "|" + p.getLimitada() + "|" + std::to_string(p.getFlotante()) + "|" +
         std::to_string(p.getDoble()) + "|" + p.getDia().AsChar() + (p.getDataChanged() ? " cambiada" : "") +
         (p.IsNew() ? " nueva" : "");
}

const char* const Vacia = "0|0||||0.000000|0.000000|1900-01-01";

// Without a server.

TEST(Registro, ClearVaciaCadaTipoDeColumna) { EXPECT_EQ(Estado(cPieza()), Vacia); }

TEST(Registro, CadaTipoSigueLaReglaDelCambio) {
  ExigeReglaDelTexto<cPieza>({"nombre", &cPieza::setNombre, &cPieza::getNombre, 8});
  ExigeReglaDelNumero<cPieza, int>(&cPieza::setPiezaID, &cPieza::getPiezaID, -3);
  ExigeReglaDelNumero<cPieza, long>(&cPieza::setLargo, &cPieza::getLargo, LONG_MAX);
  ExigeReglaDelNumero<cPieza, float>(&cPieza::setFlotante, &cPieza::getFlotante, -0.01f);
  ExigeReglaDelNumero<cPieza, double>(&cPieza::setDoble, &cPieza::getDoble, 1e-300);
}

TEST(Registro, ElFormatoDeUnTextoSeAplicaTrasCompararloComoSeDio) {
  const struct {
    const char* valor;
    const char* rellena;  // width 3 of 5 bytes
    bool cambiaRellena;
    const char* limitada;  // 5 of 8 bytes
    bool cambiaLimitada;
  } tabla[] = {
      {"", "", false, "", false},           {"a", "a  ", true, "a", true},
      {"abc", "abc", true, "abc", true},    {"abcdefghi", "abcde", true, "abcde", true},
      {"é", "é ", true, "é", true},         {"ééé", "éé", true, "éé", true},
      {"%d%n", "%d%n", true, "%d%n", true},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.valor);
    cPieza rellena, limitada;
    rellena.setRellena(fila.valor);
    EXPECT_STREQ(rellena.getRellena(), fila.rellena);
    EXPECT_EQ(rellena.getDataChanged(), fila.cambiaRellena);
    limitada.setLimitada(fila.valor);
    EXPECT_STREQ(limitada.getLimitada(), fila.limitada);
    EXPECT_EQ(limitada.getDataChanged(), fila.cambiaLimitada);
  }
  cPieza pieza;
  pieza.setRellena("a");
  pieza.setLimitada("abcdef");
  pieza.setDataChanged(false);
  pieza.setRellena("a  ");
  pieza.setLimitada("abcde");
  EXPECT_FALSE(pieza.getDataChanged());
  pieza.setRellena("a");
  EXPECT_TRUE(pieza.getDataChanged());
  pieza.setDataChanged(false);
  pieza.setLimitada("abcdef");
  EXPECT_TRUE(pieza.getDataChanged());
}

TEST(Registro, UnaFechaCambiaConSusTresNumeros) {
  const date fechas[] = {date(),
                         date(15, 3, 2006),
                         date(14, 3, 2006),
                         date(15, 4, 2006),
                         date(15, 3, 2007),
                         date(31, 2, 2026),
                         date(30, 2, 2026),
                         date(""),
                         date("xx"),
                         date(0, 13, -5)};
  for (const date& antes : fechas) {
    for (const date& nueva : fechas) {
      SCOPED_TRACE(std::string(antes.AsChar()) + " -> " + nueva.AsChar());
      cPieza pieza;
      pieza.setDia(antes);
      pieza.setDataChanged(false);
      pieza.setDia(nueva);
      EXPECT_EQ(pieza.getDataChanged(), std::string(antes.AsChar()) != nueva.AsChar());
      EXPECT_STREQ(pieza.getDia().AsChar(), nueva.AsChar());
    }
  }
}

TEST(Registro, EnUnaListaSoloCuentaLaClave) {
  const struct {
    int clave, otra;
    bool mayor;
  } tabla[] = {{1, 2, false}, {2, 1, true}, {1, 1, false}, {-1, 0, false}, {INT_MAX, INT_MIN, true}};
  for (const auto& fila : tabla) {
    cPieza pieza, otra;
    pieza.setPiezaID(fila.clave);
    pieza.setNombre("z");
    otra.setPiezaID(fila.otra);
    otra.setNombre("a");
    EXPECT_EQ(pieza > otra, fila.mayor);
    EXPECT_EQ(pieza <= otra, !fila.mayor);
  }
}

// Against stored functions of the test's own.

class RegistroTest : public ConBaseVacia {
 protected:
  void SetUp() override {
    base_.Ejecuta(
        "create table pieza (piezaid serial, largo bigint, nombre text, rellena text, limitada text, "
        "flotante real,"
        "                    doble float8, dia date);"
        "create function spipieza(n text) returns int language sql as"
        "  'insert into pieza (nombre) values (n) returning piezaid';"
        "create function spupieza(i int, n text) returns void language sql as"
        "  'update pieza set nombre = n where piezaid = i';"
        "create function spdpieza(i int) returns void language sql as 'delete from pieza where piezaid = i';"
        "create function spspieza(i int) returns table (a int, b bigint, c text, d text, e text, f real, g "
        "float8,"
        "                                               h date) language sql as"
        "  'select piezaid, largo, nombre, rellena, limitada, flotante, doble, dia from pieza where piezaid "
        "= i';"
        "insert into pieza values (default, 70000000000, 'uno', 'r', 'l', 1.5, 2.25, '2006-03-15')");
  }
};

TEST_F(RegistroTest, FindLlenaCadaColumnaPorSuLugarEnLaRespuesta) {
  cPieza pieza;
  pieza.setPiezaID(1);
  Salida salida;
  pieza.Find();
  EXPECT_EQ(Estado(pieza), "1|70000000000|uno|r|l|1.500000|2.250000|2006-03-15");
}

TEST_F(RegistroTest, FillConvierteLoQueVenga) {
  const struct {
    const char* valores;
    std::string estado;
  } tabla[] = {
      {"null,null,null,null,null,null,null,null", "0|0||||0.000000|0.000000|0000-00-00"},
      {"'t','x','t','t','t','t','t','t'", "0|0|t|t|t|0.000000|0.000000|0000-00-00"},
      {"' 7x','-9 ','','','','1e2','-.5','15/03/2006'", "7|-9||||100.000000|-0.500000|2006-03-15"},
      {"1", "1|0||||0.000000|0.000000|0000-00-00"},
      {"'','',repeat('n',5000),repeat('n',5000),repeat('n',5000),'','',repeat('9',5000)",
       "0|0|nnnnnnnn|nnnnn|nnnnnnnn|0.000000|0.000000|"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.valores);
    Ejecuta(("select " + std::string(fila.valores)).c_str());
    cPieza pieza;
    pieza.setDataChanged(true);
    pieza.setIsNew(true);
    const PGresult* antes = res;
    pieza.Fill(0);
    EXPECT_EQ(Estado(pieza).substr(0, fila.estado.size()), fila.estado);
    EXPECT_FALSE(pieza.getDataChanged());
    EXPECT_FALSE(pieza.IsNew());
    EXPECT_EQ(res, antes) << "el resultado es de quien llama";
  }
}

TEST_F(RegistroTest, UnaFilaQueNoEstaSeLeeVacia) {
  Ejecuta("select 1");
  cPieza pieza;
  pieza.setNombre("algo");
  pieza.Fill(5);
  EXPECT_EQ(Estado(pieza), "0|0||||0.000000|0.000000|0000-00-00");
  LiberaResultado();
  pieza.Fill(0);
  EXPECT_STREQ(pieza.getNombre(), "");
}

TEST_F(RegistroTest, CadaOperacionTrazaAntesDeMandar) {
  const struct {
    const char* nombre;
    void (*operacion)(cPieza&);
    const char* sentencia;
  } tabla[] = {
      {"AddNew", [](cPieza& p) { p.AddNew(); }, "select spipieza('dos');"},
      {"Update", [](cPieza& p) { p.Update(); }, "select spupieza(1,'dos');"},
      {"Delete", [](cPieza& p) { p.Delete(); }, "SELECT spdpieza(1);"},
      {"Find", [](cPieza& p) { p.Find(); }, "SELECT * FROM spspieza(1);"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.nombre);
    cPieza pieza;
    pieza.setPiezaID(1);
    pieza.setNombre("dos");
    Espia espia;
    Salida salida;
    std::string trazadoAlMandar;
    espia.Cuando("pieza", [&](PGconn* c, const char* sql) {
      trazadoAlMandar = salida.Texto();
      return __real_PQexec(c, sql);
    });
    EXPECT_EQ(Lanzado([&] { fila.operacion(pieza); }), std::nullopt);
    EXPECT_EQ(trazadoAlMandar, std::string(fila.sentencia) + "\n");
    EXPECT_EQ(salida.Texto(), trazadoAlMandar);
    EXPECT_EQ(espia.Cuantas(fila.sentencia), 1u);
  }
}

TEST_F(RegistroTest, LaClaveQueElServidorAsignaSeToma) {
  const struct {
    const char* caso;
    Falla falla;
    int clave;
  } tabla[] = {
      {"asignada", __real_PQexec, 2},
      {"sin filas", falla::SinFilas(), 77},  // stays as it was
      {"nula", falla::ConNulos(), 0},
      {"de letras", falla::ConTextos(5000), 0},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.caso);
    cPieza pieza;
    pieza.setPiezaID(77);
    pieza.setNombre("dos");
    pieza.setIsNew(true);
    Espia espia;
    espia.En(1, fila.falla);
    Salida salida;
    pieza.AddNew();
    EXPECT_EQ(pieza.getPiezaID(), fila.clave);
    EXPECT_FALSE(pieza.getDataChanged());
    EXPECT_FALSE(pieza.IsNew());
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "select spipieza('dos');", "COMMIT;"}));
    EXPECT_EQ(res, nullptr);
  }
}

TEST_F(RegistroTest, LasGuardasDeFindYDeleteSonDistintas) {
  const struct {
    int clave;
    bool busca;
    bool borra;
  } tabla[] = {{0, false, false}, {-1, false, true}, {1, true, true}, {INT_MAX, true, true}};
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.clave);
    cPieza pieza;
    pieza.setPiezaID(fila.clave);
    Espia espia;
    Salida salida;
    pieza.Find();
    EXPECT_EQ(espia.Cuantas("spspieza"), fila.busca ? 1u : 0u);
    pieza.setPiezaID(fila.clave);
    espia.Vacia();
    pieza.Delete();
    EXPECT_EQ(espia.Sentencias().size(), fila.borra ? 3u : 0u);
  }
}

TEST_F(RegistroTest, CheckLanzaAntesDeCualquierSentencia) {
  cPieza pieza;
  pieza.setPiezaID(1);
  Espia espia;
  Salida salida;
  EXPECT_EQ(Lanzado([&] { pieza.AddNew(); }), "Falta el nombre");
  EXPECT_EQ(Lanzado([&] { pieza.Update(); }), "Falta el nombre");
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_TRUE(pieza.getDataChanged());
}

TEST_F(RegistroTest, UnRechazoDejaLaTransaccionAbiertaYElResultadoParaMostrarlo) {
  cPieza pieza;
  pieza.setPiezaID(1);
  pieza.setNombre("dos");
  for (const auto operacion : {&cPieza::AddNew, &cPieza::Update, &cPieza::Delete}) {
    Espia espia;
    espia.En(1, falla::Error("No se puede"));
    Salida salida;
    EXPECT_EQ(Lanzado([&] { (pieza.*operacion)(); }), "ERROR:  No se puede\n");
    EXPECT_EQ(espia.Sentencias().size(), 2u);
    EXPECT_EQ(Profundidad(), 1);
    EXPECT_STREQ(PQresultErrorMessage(res), "ERROR:  No se puede\n");
    EXPECT_TRUE(pieza.getDataChanged());
    engine.RollBackTransaction();
  }
  EXPECT_EQ(base_.Valor("select count(*) || nombre from pieza group by nombre"), "1uno");
}

// A write of two statements.

class EscrituraDobleTest : public ConBaseVacia {};

TEST(Registro, ElConstructorPuedeSeguirElOrdenDeLosMiembros) {
  EXPECT_EQ(cDoble("C", "L", 1.5f, true, false).Estado(), "C|L|1.500000 cambiada");
  EXPECT_EQ(cDoble("C", "L", 1.5f, false, true).Estado(), "C|L|1.500000 nueva");
}

TEST(Registro, ElConstructorTomaLoQueSeConvierte) {
  char clave[] = "CLAVE", letra[] = "ñ";
  EXPECT_EQ(cDoble(clave, letra, 12.5, true, false).Estado(), "CLA||12.500000 cambiada");
  EXPECT_EQ(cDoble("C", letra + 2, 5, 0, 1).Estado(), "C||5.000000 nueva");
  EXPECT_EQ(cDoble("C", "L", 7L, false, false).Estado(), "C|L|7.000000");
}

TEST_F(EscrituraDobleTest, LaSegundaSentenciaVaEnLaMismaTransaccionConSuPropiaTraza) {
  const struct {
    void (cDoble::*operacion)();
    Textos sentencias;
    Textos trazas;
  } tabla[] = {
      {&cDoble::AddNew,
       {"BEGIN;", "select 'alta'", "select 'segunda del alta'", "COMMIT;"},
       {"select 'alta'"}},
      {&cDoble::Update,
       {"BEGIN;", "select 'cambio'", "select 'segunda del cambio'", "COMMIT;"},
       {"select 'segunda del cambio'"}},
  };
  for (const auto& fila : tabla) {
    cDoble doble("C", "L", 1.5f, true, true);
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { (doble.*fila.operacion)(); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), fila.sentencias);
    EXPECT_EQ(salida.Lineas(), fila.trazas);
    EXPECT_EQ(doble.Estado(), "C|L|1.500000");
    EXPECT_EQ(res, nullptr);
  }
}

TEST_F(EscrituraDobleTest, UnRechazoDeLaSegundaSeLanzaConLaTransaccionAbierta) {
  Salida salida;
  for (const auto operacion : {&cDoble::AddNew, &cDoble::Update}) {
    cDoble doble("C", "L", 1.5f, true, true);
    Espia espia;
    espia.En(2, falla::Error("No"));
    EXPECT_EQ(Lanzado([&] { (doble.*operacion)(); }), "ERROR:  No\n");
    EXPECT_EQ(espia.Sentencias().size(), 3u);
    EXPECT_EQ(doble.Estado(), "C|L|1.500000 cambiada nueva");
    EXPECT_EQ(Profundidad(), 1);
    engine.RollBackTransaction();
  }
}

}  // namespace
}  // namespace pruebas
