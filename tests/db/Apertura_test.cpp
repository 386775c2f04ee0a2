#include "db/Apertura.h"

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <cstdlib>
#include <ctime>
#include <variant>

#include "app/sesion.h"
#include "db/Engine.h"
#include "tests/support/Entorno.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

/// A text variable of the session with its width, terminator included.
struct TextoFijo {
  template <size_t N>
  TextoFijo(char (&texto)[N]) : texto(texto), ancho(N) {}
  char* texto;
  size_t ancho;
};

struct Columna {
  int numero;
  const char* nombre;
  std::variant<std::monostate, TextoFijo, int*, long*, double*> variable;
  size_t ancho = 0;  // of a text, terminator included
};

const Columna columnas[] = {
    {0, "sucid", gsucid, 5},
    {1, "nombrecaja", gnombrecaja, 81},
    {2, "gerente", gGerente, 81},
    {3, "presidenteadmon", gPresidenteAdmon, 81},
    {4, "contador", gContador, 81},
    {5, "direccioncaja", gDireccionCaja, 101},
    {6, "contadorsucursal", gContadorSucursal, 81},
    {7, "niveloperaciones", gNivelOperaciones, 81},
    {8, "lineasiniciales", &iLineasIniciales},
    {9, "calculaisrinversion", &gCalculaISRInversion},
    {10, "inversionexenta", &gInversionExenta},
    {11, "porcentajeisrinversion", &gPorcentajeISRInversion},
    {12, "ccpresidente", gccpresidente, 51},
    {13, "ccvicepresidente", gccvicepresidente, 51},
    {14, "ccoficial", gccoficial, 51},
    {15, "ccanalista", gccanalista, 51},
    {16, "ccsecretario", gccsecretario, 51},
    {17, "bonificaenpagopuntual", &gBonificaEnPagoPuntual},
    {18, "porcentajebonifica", &gPorcentajeBonifica},
    {19, "preguntaperiodo", &gPreguntaPeriodo},
    {20, "sabana", &gSabana},
    {21, "iva", &gIVA},
    {22, "reciboconquery", &gReciboConQuery},
    {23, "altasucursales", &gAltaSucursales},
    {24, "cobrardiainicial", {}},
    {25, "diasanualesprestamo", {}},
    {26, "diasanualesinversion", {}},
    {27, "diasanualesmov", {}},
    {28, "devengamoratorio", {}},
    {29, "tomaintervalo", {}},
    {30, "impresoracaja", {}},
    {31, "impresorareporte", {}},
    {32, "reporteslaser", {}},
    {33, "ordenaval", &gOrdenAval},
    {34, "lineasfinales", &iLineasFinales},
    {35, "version", gVersion, 21},
    {36, "retirareciprocidad", &gRetiraReciprocidad},
    {37, "nivel", &gNivel},
    {38, "modificarinversion", &gModificarInversion},
    {39, "formatopoliza", &gFormatoPoliza},
    {40, "formatocuenta", formatocuenta, 25},
    {41, "ciudadmexid", &gCiudadMexID},
    {42, "foliopdf", &gfoliopdf},
    {43, "retirainteresinversion", &gretirainteresinversion},
    {44, "poride", &gPorIde},
    {45, "ideexento", &gIdeExento},
    {46, "modificatasas", &gModificaTasas},
    {47, "interesamortiza", &gInteresAmortiza},
    {48, "comisionacreditos", &gComisioncredito},
    {49, "porcentajecomision", &gPorcomision},
    {50, "nconcurrencias", &gNconcurrencias},
    {51, "diaspagoinversion", &gdiaspagoinversion},
    {52, "periodopagoinversion", &gperiodopagoinversion},
    {53, "abonointeres", &gabonointeres},
    {54, "manejochequegrupal", &gManejochequegrupal},
    {55, "manejopagoamortizacion", &gManejoPagoAmortizacion},
    {56, "usomultisucursal", &gusomultisucursal},
    {57, "manejopagoseguro", &gManejoPagoSeguro},
    {58, "manejoplazoinversion", &gManejoplazoinversion},
    {59, "manejocargosprestamo", &gManejocargosprestamo},
    {60, "cortecajaagrupado", &gCortecajaagrupado},
    {61, "clientesocio", gclientesocio, 10},
    {62, "pggrupodefault", gpggrupodefault, 21},
};

constexpr const char* SelectDeEmpresa =
    "select "
    "sucid,nombrecaja,gerente,presidenteadmon,contador,direccioncaja,contadorsucursal,niveloperaciones,"
    "lineasiniciales,calculaisrinversion,inversionexenta,porcentajeisrinversion,ccpresidente,"
    "ccvicepresidente,"
    "ccoficial,ccanalista,ccsecretario,bonificaenpagopuntual,porcentajebonifica,preguntaperiodo,sabana,iva,"
    "reciboconquery,altasucursales,cobrardiainicial,diasanualesprestamo,diasanualesinversion,diasanualesmov,"
    "devengamoratorio,tomaintervalo,impresoracaja,impresorareporte,reporteslaser,ordenaval,lineasfinales,"
    "rtrim(version),retirareciprocidad,nivel,modificarinversion,formatopoliza,formatocuenta,ciudadmexid,"
    "foliopdf,retirainteresinversion,poride,ideexento,modificatasas,interesamortiza,comisionacreditos,"
    "porcentajecomision,nconcurrencias,diaspagoinversion,periodopagoinversion,abonointeres,"
    "manejochequegrupal,"
    "manejopagoamortizacion,usomultisucursal,manejopagoseguro,manejoplazoinversion,manejocargosprestamo,"
    "cortecajaagrupado,clientesocio,pggrupodefault from empresa where empresaid=1;";

/// What a column's variable holds, as text; "" for a column without a variable.
struct Valor {
  std::string operator()(std::monostate) const { return ""; }
  std::string operator()(const TextoFijo& v) const { return v.texto; }
  template <class Numero>
  std::string operator()(const Numero* v) const {
    return std::to_string(*v);
  }
};

/// A value that no other column has, and that a variable of that type holds whole.
struct ValorPropio {
  int numero;
  std::string operator()(const TextoFijo&) const { return "ñ" + std::to_string(numero); }
  std::string operator()(const double*) const { return std::to_string(numero + 0.25); }
  std::string operator()(const long*) const { return std::to_string(70'000'000'000 + numero); }
  std::string operator()(const int*) const { return std::to_string(7'000 + numero); }
  std::string operator()(std::monostate) const { return std::to_string(7'000 + numero); }
};

/// What a variable holds when its column says nothing.
struct Nada {
  std::string operator()(std::monostate) const { return ""; }
  std::string operator()(const TextoFijo&) const { return ""; }
  std::string operator()(const double*) const { return "0.000000"; }
  template <class Entero>
  std::string operator()(const Entero*) const {
    return "0";
  }
};

std::string ValorDe(const Columna& c) { return std::visit(Valor(), c.variable); }
std::string PropioDe(const Columna& c) { return std::visit(ValorPropio{c.numero}, c.variable); }
std::string NadaDe(const Columna& c) { return std::visit(Nada(), c.variable); }
bool EsTexto(const Columna& c) { return std::holds_alternative<TextoFijo>(c.variable); }
bool SinVariable(const Columna& c) { return std::holds_alternative<std::monostate>(c.variable); }

/// An institution whose columns take any text, with a value of its own in each.
class EmpresaTest : public ConBaseVacia {
 protected:
  void SetUp() override {
    std::string tabla = "create table empresa (empresaid int", fila = "insert into empresa values (1";
    for (const Columna& c : columnas) {
      tabla += std::string(", ") + c.nombre + " text";
      fila += ", '" + PropioDe(c) + "'";
    }
    base_.Ejecuta(tabla + ")");
    base_.Ejecuta(fila + ")");
  }

  void Pon(const Columna& c, const std::string& valor) {
    base_.Ejecuta(std::string("update empresa set ") + c.nombre + " = '" + valor + "'");
  }

  void Lee() {
    Salida salida;
    apertura::LeeEmpresa();
  }
};

TEST_F(EmpresaTest, CadaColumnaLlegaASuVariable) {
  Lee();
  for (const Columna& c : columnas) {
    if (SinVariable(c)) continue;
    EXPECT_EQ(ValorDe(c), PropioDe(c)) << c.numero << " " << c.nombre;
  }
}

TEST_F(EmpresaTest, LasColumnasSinVariableNoTocanLosParametrosDelUsuario) {
  strcpy(gImpresoraCaja, "caja");
  strcpy(gImpresoraReporte, "reporte");
  gReportesLaser = 1;
  Lee();
  EXPECT_STREQ(gImpresoraCaja, "caja");
  EXPECT_STREQ(gImpresoraReporte, "reporte");
  EXPECT_EQ(gReportesLaser, 1);
}

TEST_F(EmpresaTest, MandaSuSelectTalCual) {
  Espia espia;
  Lee();
  EXPECT_EQ(espia.Sentencias(), Textos{SelectDeEmpresa});
  EXPECT_EQ(res, nullptr);
}

TEST_F(EmpresaTest, DejaSusTrazasEnOrden) {
  Salida salida;
  apertura::LeeEmpresa();
  EXPECT_EQ(salida.Lineas(),
            (Textos{SelectDeEmpresa, "Formato Cuenta ñ40", "CiudadMexID de default 70000000041",
                    "Recibo query==7022", "nombre de la cajañ1", "formatopoliza==7039"}));
}

TEST_F(EmpresaTest, UnNumeroSeLeeHastaDondeEsNumero) {
  const struct {
    const char* valor;
    const char* entero;
    const char* real;
  } tabla[] = {
      {"t", "0", "0.000000"},     {"f", "0", "0.000000"},    {"", "0", "0.000000"},
      {"12", "12", "12.000000"},  {"-7", "-7", "-7.000000"}, {"3.75", "3", "3.750000"},
      {"12x", "12", "12.000000"}, {" 5", "5", "5.000000"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.valor);
    for (const Columna& c : columnas) {
      if (!EsTexto(c)) Pon(c, fila.valor);
    }
    Lee();
    for (const Columna& c : columnas) {
      if (EsTexto(c) || SinVariable(c)) continue;
      const bool real = std::holds_alternative<double*>(c.variable);
      EXPECT_EQ(ValorDe(c), real ? fila.real : fila.entero) << c.numero << " " << c.nombre;
    }
  }
}

TEST_F(EmpresaTest, NuloEnTodasLasColumnasSonTextosVaciosYCeros) {
  Lee();
  for (const Columna& c : columnas) base_.Ejecuta(std::string("update empresa set ") + c.nombre + " = null");
  Lee();
  for (const Columna& c : columnas) EXPECT_EQ(ValorDe(c), NadaDe(c)) << c.numero << " " << c.nombre;
}

TEST_F(EmpresaTest, UnTextoLargoSeCortaAlAnchoYEnLetraEntera) {
  for (const bool acentuado : {false, true}) {
    SCOPED_TRACE(acentuado);
    for (const Columna& c : columnas) {
      if (EsTexto(c)) Pon(c, acentuado ? TextoAcentuado() : std::string(5000, 'z'));
    }
    Lee();
    for (const Columna& c : columnas) {
      if (!EsTexto(c)) {
        EXPECT_TRUE(SinVariable(c) || ValorDe(c) == PropioDe(c)) << "pisada: " << c.numero << " " << c.nombre;
        continue;
      }
      EXPECT_EQ(std::get<TextoFijo>(c.variable).ancho, c.ancho) << c.nombre;
      EXPECT_EQ(ValorDe(c), acentuado ? AcentuadoHasta(c.ancho - 1) : std::string(c.ancho - 1, 'z'))
          << c.nombre;
    }
  }
}

TEST_F(EmpresaTest, LasColumnasQueFaltanSeLeenVacias) {
  for (const int presentes : {1, 24, 33, 35, 62}) {
    SCOPED_TRACE(presentes);
    Lee();
    Espia espia;
    espia.En(0, falla::Recortada(presentes));
    Lee();
    for (const Columna& c : columnas) {
      if (SinVariable(c)) continue;
      EXPECT_EQ(ValorDe(c), c.numero < presentes ? PropioDe(c) : NadaDe(c)) << c.numero << " " << c.nombre;
    }
  }
}

TEST_F(EmpresaTest, LaVersionLlegaSinBlancosAlFinal) {
  Pon(columnas[35], "0.0.7             ");
  Lee();
  EXPECT_STREQ(gVersion, "0.0.7");
  EXPECT_STREQ(gVersion, Version);
}

TEST_F(EmpresaTest, SinRenglonEsUnRechazoYNoTocaNada) {
  Lee();
  base_.Ejecuta("delete from empresa");
  Salida salida;
  EXPECT_EQ(Lanzado(apertura::LeeEmpresa), "La sucursal no tiene los parámetros de la institución.");
  EXPECT_STREQ(gsucid, "ñ0");
  base_.Ejecuta("insert into empresa (empresaid) values (2)");  // only the row number 1 counts
  EXPECT_EQ(Lanzado(apertura::LeeEmpresa), "La sucursal no tiene los parámetros de la institución.");
}

TEST_F(EmpresaTest, UnaRespuestaRechazadaLanzaElTextoDelServidor) {
  Lee();
  Espia espia;
  espia.En(0, falla::Error("Sin permiso"));
  espia.En(1, falla::Nula());
  Salida salida;
  EXPECT_EQ(Lanzado(apertura::LeeEmpresa), "ERROR:  Sin permiso\n");
  EXPECT_EQ(Lanzado(apertura::LeeEmpresa), "");
  EXPECT_STREQ(gsucid, "ñ0");
  EXPECT_EQ(salida.Lineas(), (Textos{SelectDeEmpresa, SelectDeEmpresa}));
}

// The statements that open a session, each on its own.

class AperturaTest : public ConBaseVacia {
 protected:
  /// A stored function that answers `valor`, an expression of SQL, as a text.
  void Funcion(const std::string& firma, const std::string& valor) {
    base_.Ejecuta("create or replace function " + firma + " returns text language sql as $$ select cast(" +
                  valor + " as text) $$");
  }
};

std::string SetConfig(const std::string& sucursal) {
  return "select set_config(cast('search_path' as varchar),                                              "
         "cast('      public, " +
         sucursal +
         "' as varchar),                                                cast('f' as bool));        ";
}

TEST_F(AperturaTest, FijaEsquemaMandaTresSentencias) {
  base_.Ejecuta("create schema norte");
  Espia espia;
  Salida salida;
  apertura::FijaEsquema("norte");
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", SetConfig("norte"), "COMMIT;"}));
  for (const auto& sentencia : espia.Historia())
    EXPECT_LE(sentencia.estado, PGRES_TUPLES_OK) << sentencia.texto;
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_EQ(res, nullptr);
  EXPECT_STREQ(gsucursal, "norte");
  Ejecuta("select current_schemas(false)");
  EXPECT_STREQ(Celda(0, 0), "{public,norte}");  // it lasts beyond the transaction
}

TEST_F(AperturaTest, UnEsquemaQueNoExisteSeDescubreAlLeerLaEmpresa) {
  apertura::FijaEsquema("ninguna");
  EXPECT_STREQ(gsucursal, "ninguna");
  Salida salida;
  EXPECT_EQ(Lanzado(apertura::LeeEmpresa).value_or("").substr(0, 42),
            "ERROR:  relation \"empresa\" does not exist\n");
}

TEST_F(AperturaTest, FijaEsquemaSeDetieneEnLaSentenciaQueFalla) {
  const struct {
    size_t posicion;
    Falla falla;
    std::optional<std::string> texto;
    size_t sentencias;
    const char* sucursal;
  } tabla[] = {
      {0, falla::Error("No abre"), "ERROR:  No abre\n", 1, "antes"},
      {0, falla::Nula(), "", 1, "antes"},
      {1, falla::Error("No fija"), "ERROR:  No fija\n", 2, "norte"},
      {1, falla::Nula(), "", 2, "norte"},
      {2, falla::Error("No cierra"), std::nullopt, 3, "norte"},
      {2, falla::Nula(), std::nullopt, 3, "norte"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.posicion);
    strcpy(gsucursal, "antes");
    Espia espia;
    espia.En(fila.posicion, fila.falla);
    EXPECT_EQ(Lanzado([] { apertura::FijaEsquema("norte"); }), fila.texto);
    EXPECT_EQ(espia.Sentencias().size(), fila.sentencias);
    EXPECT_STREQ(gsucursal, fila.sucursal);
    Ejecuta("ROLLBACK;");
  }
}

TEST_F(AperturaTest, UnaSucursalConComillaEsUnRechazoDelServidor) {
  EXPECT_NE(Lanzado([] { apertura::FijaEsquema("nor'te"); }).value_or("").find("syntax error"),
            std::string::npos);
}

TEST_F(AperturaTest, UnaSucursalLargaSeGuardaCortadaYViajaEntera) {
  const std::string larga(5000, 's');
  Espia espia;
  Lanzado([&] { apertura::FijaEsquema(larga.c_str()); });
  EXPECT_EQ(gsucursal, std::string(79, 's'));
  EXPECT_EQ(espia.Cuantas(larga), 1u);
}

TEST_F(AperturaTest, CuentaLasSesionesDelUsuarioConLaPropia) {
  base_.Ejecuta("create role cajera login password 'c'; create role otra login password 'c'");
  strcpy(glogin, "cajera");
  const std::string select = "select count(usename) from pg_stat_activity where usename='cajera';";
  std::vector<Conexion> abiertas;
  for (const int sesiones : {1, 2, 3}) {
    abiertas.push_back(base_.Conecta("cajera", "c"));
    abiertas.push_back(base_.Conecta("otra", "c"));
    Espia espia;
    Salida salida;
    EXPECT_EQ(apertura::SesionesAbiertas(), sesiones);
    EXPECT_EQ(espia.Sentencias(), Textos{select});
    EXPECT_EQ(salida.Texto(), "Query==" + std::to_string(sesiones) + "\n");
    EXPECT_EQ(res, nullptr);
  }
}

TEST_F(AperturaTest, UnaCuentaDeSesionesQueFallaEsCero) {
  for (const auto& [caso, falla] : {std::pair<const char*, Falla>{"error", falla::Error("No")},
                                    {"nula", falla::Nula()},
                                    {"sin filas", falla::SinFilas()},
                                    {"nulos", falla::ConNulos()},
                                    {"corta", falla::Recortada(0)}}) {
    SCOPED_TRACE(caso);
    Espia espia;
    espia.En(0, falla);
    Salida salida;
    EXPECT_EQ(apertura::SesionesAbiertas(), 0);
    EXPECT_EQ(salida.Texto(), "Query==0\n");
  }
}

std::string Hoy() {
  const time_t ahora = time(nullptr);
  char texto[11];
  strftime(texto, sizeof texto, "%Y-%m-%d", localtime(&ahora));
  return texto;
}

TEST_F(AperturaTest, LaFechaCoincideSiElServidorNoContestaCero) {
  const std::pair<const char*, bool> tabla[] = {{"1", true},     {"-1", true},   {"5", true},   {"0", false},
                                                {"null", false}, {"'t'", false}, {"'f'", false}};
  for (const auto& [valor, coincide] : tabla) {
    SCOPED_TRACE(valor);
    Funcion("serverdate(text)", valor);
    Espia espia;
    Salida salida;
    const std::string antes = Hoy();
    EXPECT_EQ(apertura::FechaCoincide(), coincide);
    const std::string despues = Hoy();
    ASSERT_EQ(espia.Sentencias().size(), 1u);
    const std::string sentencia = espia.Sentencias()[0];
    EXPECT_TRUE(sentencia == "select serverdate('" + antes + "');" ||
                sentencia == "select serverdate('" + despues + "');")
        << sentencia;
    EXPECT_EQ(salida.Texto(), "");
    EXPECT_EQ(res, nullptr);
  }
}

TEST_F(AperturaTest, LaCaducidadEsLaDelServidor) {
  base_.Ejecuta("create role eterna login; create role breve login valid until '2031-05-07 12:00'");
  const std::pair<const char*, const char*> tabla[] = {
      {"breve", "07-05-2031"}, {"eterna", ""}, {"nadie", ""}};
  for (const auto& [usuario, fecha] : tabla) {
    SCOPED_TRACE(usuario);
    strcpy(glogin, usuario);
    Espia espia;
    Salida salida;
    EXPECT_EQ(apertura::Caducidad(), fecha);
    EXPECT_EQ(espia.Sentencias(),
              Textos{"select to_char(valuntil,'DD-MM-YYYY') from pg_user where usename='" +
                     std::string(usuario) + "'"});
    EXPECT_EQ(salida.Texto(), "Fecha==" + std::string(fecha) + "\n");
  }
}

TEST_F(AperturaTest, LaFechaDeCobroDeIVASeGuarda) {
  const std::pair<const char*, const char*> tabla[] = {
      {"'2010-03-15'", "15/03/2010"}, {"'15/03/2010'", "15/03/2010"}, {"''", " "}, {"null", " "}};
  for (const auto& [valor, pantalla] : tabla) {
    SCOPED_TRACE(valor);
    Funcion("fechacobroiva()", valor);
    Espia espia;
    Salida salida;
    apertura::LeeFechaCobroIVA();
    EXPECT_STREQ(gFechaCobroIVA.AsDMY(), pantalla);
    EXPECT_EQ(espia.Sentencias(), Textos{"select fechacobroiva();"});
    EXPECT_EQ(salida.Texto(), "");
  }
}

TEST_F(AperturaTest, UnPasoRechazadoLanzaElTextoDelServidor) {
  const std::pair<const char*, void (*)()> pasos[] = {
      {"fecha", [] { apertura::FechaCoincide(); }},
      {"caducidad", [] { apertura::Caducidad(); }},
      {"IVA", apertura::LeeFechaCobroIVA},
  };
  gFechaCobroIVA = date(1, 2, 2003);
  Salida salida;
  for (const auto& [nombre, paso] : pasos) {
    SCOPED_TRACE(nombre);
    Espia espia;
    espia.En(0, falla::Error("No 100%"));
    espia.En(1, falla::Nula());
    espia.En(2, falla::CorteAntes());
    EXPECT_EQ(Lanzado(paso), "ERROR:  No 100%\n");
    EXPECT_EQ(Lanzado(paso), "");
    EXPECT_NE(Lanzado(paso).value_or(""), "");
    PQreset(conn);
  }
  EXPECT_STREQ(gFechaCobroIVA.AsChar(), "2003-02-01");
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(AperturaTest, LosParametrosDelUsuarioPasanALaSesion) {
  base_.Ejecuta(
      "create function spsparametro(login text) returns table (i bigint, u text, s text, c text, ic text, ir "
      "text,"
      " l int, k text) language sql as $$ select 9, login, 'S1', '1101-01', 'láser 1', 'láser 2', 1, 'K7'"
      " where login = 'cajera' $$");
  strcpy(glogin, "cajera");
  Espia espia;
  {
    Salida salida;
    apertura::LeeParametros();
    EXPECT_EQ(salida.Lineas(),
              (Textos{"SELECT * FROM spsparametro('cajera');", "leyendo parametros", "S1", "1101-01"}));
  }
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spsparametro('cajera');"});
  EXPECT_STREQ(serie_user, "S1");
  EXPECT_STREQ(gcuentacaja, "1101-01");
  EXPECT_STREQ(gImpresoraCaja, "láser 1");
  EXPECT_STREQ(gImpresoraReporte, "láser 2");
  EXPECT_EQ(gReportesLaser, 1);
  EXPECT_STREQ(gLetraChicaLaser, "\x1b(10U\x1b&k2S");

  strcpy(glogin, "nadie");
  Salida salida;
  apertura::LeeParametros();
  EXPECT_STREQ(serie_user, "");
  EXPECT_STREQ(gcuentacaja, "");
  EXPECT_STREQ(gImpresoraCaja, "");
  EXPECT_STREQ(gImpresoraReporte, "");
  EXPECT_EQ(gReportesLaser, 0);
  EXPECT_EQ(salida.Lineas(), Textos{"SELECT * FROM spsparametro('nadie');"});
}

// The whole sequence against the reference database.

TEST(Apertura, ContraLaBaseDeReferenciaTodoPasa) {
  BaseDatos base;
  Sesion sesion(base, "adriana", "public");
  Salida salida;
  for (const std::string sucursal : {"norte", "sur"}) {
    SCOPED_TRACE(sucursal);
    apertura::FijaEsquema(sucursal.c_str());
    apertura::LeeEmpresa();
    EXPECT_STREQ(gsucid, sucursal == "norte" ? "0001" : "0002");
    EXPECT_STREQ(gVersion, Version);
    EXPECT_EQ(gNconcurrencias, 3);
    EXPECT_DOUBLE_EQ(gInversionExenta, 198031.80);
    EXPECT_EQ(apertura::SesionesAbiertas(), 1);
    EXPECT_TRUE(apertura::FechaCoincide());
    EXPECT_EQ(apertura::Caducidad(), "");
    apertura::LeeFechaCobroIVA();
    EXPECT_STREQ(gFechaCobroIVA.AsChar(), "2010-01-01");
    apertura::LeeParametros();
    EXPECT_STREQ(serie_user, "A");
    EXPECT_STREQ(gImpresoraCaja, "caja");
    EXPECT_STREQ(gImpresoraReporte, "reportes");
    EXPECT_EQ(gReportesLaser, 1);
  }
}

TEST(Apertura, UnCorteEnCualquierSentenciaSeAtrapaEnLaSiguiente) {
  BaseDatos base;
  const auto abre = [] {
    apertura::FijaEsquema("norte");
    apertura::LeeEmpresa();
    apertura::SesionesAbiertas();
    apertura::FechaCoincide();
    apertura::Caducidad();
    apertura::LeeFechaCobroIVA();
    apertura::LeeParametros();
  };
  constexpr size_t Ultima = 8;  // the one that tests no status
  for (const auto& corte : {falla::CorteAntes, falla::CorteDespues}) {
    for (size_t posicion = 0; posicion <= Ultima; ++posicion) {
      SCOPED_TRACE(posicion);
      Sesion sesion(base, "adriana", "public");
      Espia espia;
      espia.En(posicion, corte());
      Salida salida;
      EXPECT_EQ(Lanzado(abre).has_value(), posicion < Ultima);
      EXPECT_LE(espia.Sentencias().size(), posicion + 2);
      EXPECT_EQ(PQstatus(conn), CONNECTION_BAD);
    }
  }
}

// The connection itself.

class ConexionTest : public testing::Test {
 protected:
  bool Conecta(const std::string& usuario, const std::string& clave) {
    return Conecta(usuario, clave, base_.nombre());
  }
  bool Conecta(const std::string& usuario, const std::string& clave, const std::string& base) {
    return apertura::Conecta(servidor_.host().c_str(), servidor_.puerto().c_str(), base.c_str(),
                             usuario.c_str(), clave.c_str());
  }

  void SetUp() override { base_.Ejecuta("create role cajera login password 'clave de 20 letras!!'"); }
  void TearDown() override {
    apertura::Cierra();
    LiberaResultado();
  }

  Servidor& servidor_ = Servidor::Unico();
  BaseDatos base_{BaseDatos::Vacia};
};

TEST_F(ConexionTest, LaClaveEsLaDelServidorConSusVeinteLetras) {
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
  EXPECT_EQ(PQstatus(conn), CONNECTION_OK);
  EXPECT_FALSE(Conecta("cajera", "clave de 20 letras!"));
}

TEST_F(ConexionTest, NoMandaNingunaSentencia) {
  Espia espia;
  Salida salida;
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(ConexionTest, CadaRechazoDiceSuMotivo) {
  const struct {
    const char* caso;
    std::function<bool()> conecta;
    std::string motivo;
  } tabla[] = {
      {"clave", [&] { return Conecta("cajera", "otra"); },
       "password authentication failed for user \"cajera\""},
      {"usuario", [&] { return Conecta("nadie", "x"); }, "password authentication failed for user \"nadie\""},
      {"base", [&] { return Conecta("cajera", "clave de 20 letras!!", "nada"); },
       "database \"nada\" does not exist"},
      {"puerto", [] { return apertura::Conecta("127.0.0.1", "1", "b", "u", "c"); }, "Conexión rehusada"},
      {"puerto de letras", [] { return apertura::Conecta("127.0.0.1", "xx", "b", "u", "c"); },
       "valor entero «xx» no válido"},
      {"servidor", [] { return apertura::Conecta("no.existe.invalid", "5432", "b", "u", "c"); },
       "no.existe.invalid"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.caso);
    EXPECT_FALSE(fila.conecta());
    EXPECT_NE(conn, nullptr);
    EXPECT_EQ(PQstatus(conn), CONNECTION_BAD);
    EXPECT_NE(apertura::MotivoDelRechazo().find(fila.motivo), std::string::npos)
        << apertura::MotivoDelRechazo();
  }
}

TEST_F(ConexionTest, ElServidorDetenidoEsUnRechazo) {
  servidor_.Detiene();
  EXPECT_FALSE(Conecta("cajera", "clave de 20 letras!!"));
  EXPECT_NE(apertura::MotivoDelRechazo(), "");
  servidor_.Arranca();
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
}

TEST_F(ConexionTest, ElMotivoEmpiezaEnElSaltoDeLineaAntesDeFATAL) {
  EXPECT_FALSE(Conecta("nadie\nFATAL:  de nombre", "x"));
  EXPECT_EQ(apertura::MotivoDelRechazo(), "\nFATAL:  de nombre\"\n");
  EXPECT_FALSE(Conecta("nadie", "x"));
  EXPECT_EQ(apertura::MotivoDelRechazo(), PQerrorMessage(conn));
}

TEST_F(ConexionTest, ElMotivoCabeEn511BytesYTerminaEnLetraEntera) {
  EXPECT_FALSE(apertura::Conecta(std::string(2000, 'h').c_str(), "5432", "b", "u", "c"));
  EXPECT_EQ(apertura::MotivoDelRechazo(), std::string(PQerrorMessage(conn)).substr(0, 511));
  for (const char* inicio : {"", "x"}) {
    std::string nombre = inicio;
    for (int i = 0; i < 1000; ++i) nombre += "ñ";
    EXPECT_FALSE(apertura::Conecta(nombre.c_str(), "5432", "b", "u", "c"));
    const std::string motivo = apertura::MotivoDelRechazo();
    EXPECT_EQ(motivo, std::string(PQerrorMessage(conn)).substr(0, motivo.size()));
    EXPECT_EQ(motivo.substr(motivo.size() - 2), "ñ");
    EXPECT_GE(motivo.size(), 510u);
    EXPECT_LE(motivo.size(), 511u);
  }
}

TEST_F(ConexionTest, SinConexionElMotivoEsElDeLaBiblioteca) {
  EXPECT_EQ(conn, nullptr);
  EXPECT_EQ(apertura::MotivoDelRechazo(), PQerrorMessage(nullptr));
}

TEST_F(ConexionTest, HablaUTF8YEsperaDiezSegundosSalvoQueElEntornoDigaOtraCosa) {
  const auto valor = [](const char* variable) {
    return std::string(getenv(variable) ? getenv(variable) : "ninguno");
  };
  unsetenv("PGCLIENTENCODING");
  unsetenv("PGCONNECT_TIMEOUT");
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
  EXPECT_STREQ(PQparameterStatus(conn, "client_encoding"), "UTF8");
  EXPECT_EQ(valor("PGCONNECT_TIMEOUT"), "10");
  setenv("PGCLIENTENCODING", "LATIN1", 1);
  setenv("PGCONNECT_TIMEOUT", "3", 1);
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
  EXPECT_STREQ(PQparameterStatus(conn, "client_encoding"), "LATIN1");
  EXPECT_EQ(valor("PGCONNECT_TIMEOUT"), "3");
  unsetenv("PGCLIENTENCODING");
  unsetenv("PGCONNECT_TIMEOUT");
}

TEST_F(ConexionTest, DeVariosServidoresTomaElQueEscribe) {
  const auto conecta = [&](const char* servidores) {
    return apertura::Conecta(servidores, servidor_.puerto().c_str(), base_.nombre().c_str(), "cajera",
                             "clave de 20 letras!!");
  };
  const Variable sinDecir("PGTARGETSESSIONATTRS", nullptr);
  EXPECT_TRUE(conecta("127.0.0.3,127.0.0.2,127.0.0.1"));  // nobody listens on the first two
  base_.Ejecuta("alter role cajera set default_transaction_read_only = on");
  EXPECT_FALSE(conecta("127.0.0.1,127.0.0.2"));
  EXPECT_NE(apertura::MotivoDelRechazo().find("solo lectura"), std::string::npos)
      << apertura::MotivoDelRechazo();
  const Variable cualquiera("PGTARGETSESSIONATTRS", "prefer-standby");
  EXPECT_TRUE(conecta("127.0.0.1,127.0.0.2"));
}

TEST_F(ConexionTest, UnServidorQueSeFueSinAvisarSeSueltaEnMedioMinuto) {
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
  const auto ajuste = [](int nivel, int opcion) {
    int valor = -1;
    socklen_t largo = sizeof valor;
    getsockopt(PQsocket(conn), nivel, opcion, &valor, &largo);
    return valor;
  };
  EXPECT_EQ(ajuste(SOL_SOCKET, SO_KEEPALIVE), 1);
  EXPECT_EQ(ajuste(IPPROTO_TCP, TCP_USER_TIMEOUT), 30000);
  EXPECT_EQ(ajuste(IPPROTO_TCP, TCP_KEEPIDLE) +
                ajuste(IPPROTO_TCP, TCP_KEEPINTVL) * ajuste(IPPROTO_TCP, TCP_KEEPCNT),
            30);
}

TEST_F(ConexionTest, UnaPerdidaSeNotaSinPreguntarNada) {
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
  Espia espia;
  EXPECT_FALSE(apertura::SePerdio());
  base_.MataSesiones();
  EXPECT_TRUE(BombeaHasta(apertura::SePerdio));
  EXPECT_TRUE(espia.Sentencias().empty());
  apertura::Cierra();
  EXPECT_FALSE(apertura::SePerdio());
}

TEST_F(ConexionTest, ElErrorDeUnaFuncionLlegaSinSuContexto) {
  base_.Ejecuta(
      "create function falla() returns int language plpgsql as $$ begin raise exception 'No'; end $$");
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
  Ejecuta("select falla()");
  EXPECT_EQ(Lanzado(LanzaSiRechazada), "ERROR:  No\n");
}

TEST_F(ConexionTest, LaSesionQueUnNuevoIntentoDejaSigueAbierta) {
  const std::string cuantas = "select count(*) from pg_stat_activity where usename = 'cajera'";
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
  EXPECT_EQ(base_.Valor(cuantas), "2");
  EXPECT_FALSE(Conecta("cajera", "otra"));
  EXPECT_FALSE(Conecta("cajera", "otra"));  // a handle that never opened is closed
  EXPECT_EQ(base_.Valor(cuantas), "2");
}

TEST_F(ConexionTest, CerradaEsNulaYTodoLoDemasFallaSinRomperse) {
  EXPECT_TRUE(Conecta("cajera", "clave de 20 letras!!"));
  apertura::Cierra();
  EXPECT_EQ(conn, nullptr);
  apertura::Cierra();
  EXPECT_EQ(conn, nullptr);
  Salida salida;
  EXPECT_EQ(Lanzado([] { apertura::FijaEsquema("norte"); }), "");
  EXPECT_EQ(Lanzado(apertura::LeeEmpresa), "");
  EXPECT_EQ(apertura::SesionesAbiertas(), 0);
  EXPECT_EQ(Lanzado([] { apertura::FechaCoincide(); }), "");
  EXPECT_EQ(Lanzado([] { apertura::Caducidad(); }), "");
  EXPECT_EQ(Lanzado(apertura::LeeFechaCobroIVA), "");
  EXPECT_EQ(Lanzado(apertura::LeeParametros), std::nullopt);
}

}  // namespace
}  // namespace pruebas
