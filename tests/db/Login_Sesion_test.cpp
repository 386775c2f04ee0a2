// From the password to the open session, against a real server: the statements, the boxes, the traces and
// what each failure leaves behind.
#include <fxkeys.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>

#include "app/sesion.h"
#include "db/Apertura.h"
#include "db/Catalogo.h"
#include "db/Login_Window.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"
#include "tests/support/Salida.h"
#include "tests/support/Servidor.h"
#include "widgets/TextoAcotado.h"

namespace pruebas {
namespace {

constexpr char Seccion[] = "SETTINGS";
constexpr char ErrorEnValidacion[] = "Error en Validación";
constexpr char SinConexion[] = "No hay conexión con el servidor.";
constexpr char Bloqueada[] =
    "El sistema ha bloqueado la cuenta\n"
    "Por que se ha introducido erroneamenta la contraseña mas de 3 veces";
constexpr char YaConectado[] = "Tu usuario ya esta conectado ";
constexpr char VersionDiferente[] =
    "La Version de la BD es diferente a tu Versión del Programa\n\n"
    "Favor de Actualizar tu Versión del Programa";
constexpr char FechaDiferente[] = "La fecha de TU computadora NO COINCIDE con la del SERVIDOR";

constexpr char SelectDeEmpresa[] =
    "select "
    "sucid,nombrecaja,gerente,presidenteadmon,contador,direccioncaja,contadorsucursal,niveloperaciones,"
    "lineasiniciales,calculaisrinversion,inversionexenta,porcentajeisrinversion,ccpresidente,"
    "ccvicepresidente,"
    "ccoficial,ccanalista,ccsecretario,bonificaenpagopuntual,porcentajebonifica,preguntaperiodo,sabana,iva,"
    "reciboconquery,altasucursales,cobrardiainicial,diasanualesprestamo,diasanualesinversion,diasanualesmov,"
    "devengamoratorio,tomaintervalo,impresoracaja,impresorareporte,reporteslaser,ordenaval,lineasfinales,"
    "rtrim(version),retirareciprocidad,nivel,modificarinversion,formatopoliza,formatocuenta,ciudadmexid,"
    "foliopdf,"
    "retirainteresinversion,poride,ideexento,modificatasas,interesamortiza,comisionacreditos,"
    "porcentajecomision,"
    "nconcurrencias,diaspagoinversion,periodopagoinversion,abonointeres,manejochequegrupal,"
    "manejopagoamortizacion,"
    "usomultisucursal,manejopagoseguro,manejoplazoinversion,manejocargosprestamo,cortecajaagrupado,"
    "clientesocio,"
    "pggrupodefault from empresa where empresaid=1;";

// Which statement of the login is which.
enum Posicion : size_t {
  Begin,
  SetConfig,
  Commit,
  Empresa,
  Sesiones,
  Fecha,
  Caduca,
  CobroIVA,
  Parametro,
  Cache
};

const Textos sentenciasDeAdriana = {
    "BEGIN;",
    "select set_config(cast('search_path' as varchar),                                              "
    "cast('      public, norte' as varchar),                                                "
    "cast('f' as bool));        ",
    "COMMIT;",
    SelectDeEmpresa,
    "select count(usename) from pg_stat_activity where usename='adriana';",
    "select serverdate('" + std::string(today().AsChar()) + "');",
    "select to_char(valuntil,'DD-MM-YYYY') from pg_user where usename='adriana'",
    "select fechacobroiva();",
    "SELECT * FROM spsparametro('adriana');",
};

std::string Bienvenida(const std::string& caducidad = "", const std::string& login = "adriana") {
  return "Bienvenido " + login + " tu contraseña es valida hasta el " + caducidad + " ";
}

/// A step of the script: a password and "&Aceptar".
std::function<void(FXDialogBox*)> Entra(const std::string& clave = BaseDatos::Clave) {
  return [clave](FXDialogBox* login) {
    Escribe(login, "Password:", clave);
    Pulsa(Boton(login, "&Aceptar"));
  };
}

bool Empieza(const std::string& texto, const std::string& principio) {
  return texto.compare(0, principio.size(), principio) == 0;
}
bool Contiene(const std::string& texto, const std::string& parte) {
  return texto.find(parte) != std::string::npos;
}

/// A box breaks a long line behind a blank.
std::string EnUnaLinea(std::string texto) {
  texto.erase(std::remove(texto.begin(), texto.end(), '\n'), texto.end());
  return texto;
}

/// The value of a setting as another program would find it on disk.
std::string EnDisco(const char* llave) {
  FXRegistry disco("corvena", "Tolvara");
  disco.read();
  return disco.readStringEntry(Seccion, llave, "nada");
}

class LoginTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { comun_ = new BaseDatos; }
  static void TearDownTestSuite() {
    delete comun_;
    comun_ = nullptr;
  }

  void SetUp() override {
    SinAjustes();
    std::filesystem::remove(std::filesystem::path(getenv("HOME")) / ".foxrc" / "Tolvara" / "corvena");
    Ajusta(*comun_);
    IsConectado = false;
    Catalogo::Monedas.clear();
  }
  void TearDown() override {
    apertura::Cierra();
    comun_->MataSesiones();
  }

  /// A column of adriana's working parameters.
  static std::string DeAdriana(const std::string& columna) {
    return comun_->Valor("select " + columna + " from norte.parametro where usuarioid = 'adriana'");
  }
  static size_t MonedasDeLaBase() { return std::stoul(comun_->Valor("select count(*) from norte.moneda")); }

  /// The settings under which the dialog opens.
  static void Ajusta(const BaseDatos& base, const char* usuario = "adriana", const char* sucursal = "norte") {
    Ajusta("user", usuario);
    Ajusta("sucursal", sucursal);
    Ajusta("servidor", Servidor::Unico().host().c_str());
    Ajusta("puerto", Servidor::Unico().puerto().c_str());
    Ajusta("db", base.nombre().c_str());
  }
  static void Ajusta(const char* llave, const char* valor) {
    App().reg().writeStringEntry(Seccion, llave, valor);
  }

  /// Runs the dialog; true when it ends with a session.
  bool Corre() { return Login_Window(principal_.get()).execute(PLACEMENT_SCREEN) == 1; }

  /// A login that goes through.
  bool Pasa() {
    Guion guion;
    guion.Con(Entra());
    guion.Responde(Respuesta::Aceptar);
    return Corre() && IsConectado;
  }

  /// An attempt with one box, after which the dialog stands and is closed; answers that box.
  Cuadro Rechazo(const std::string& clave = BaseDatos::Clave) {
    Guion guion;
    guion.Con(Entra(clave));
    guion.Responde(Respuesta::Aceptar);
    guion.Responde("&Cerrar");
    EXPECT_FALSE(Corre());
    EXPECT_FALSE(IsConectado);
    return guion.Ultimo();
  }

  Salida salida_;
  Principal principal_;
  static BaseDatos* comun_;
};

BaseDatos* LoginTest::comun_ = nullptr;

TEST_F(LoginTest, MandaSusSentenciasEnOrdenYLlenaElCache) {
  Espia espia;
  ASSERT_TRUE(Pasa());
  Textos todas = espia.Sentencias();
  ASSERT_GT(todas.size(), sentenciasDeAdriana.size());
  const auto frontera = todas.begin() + static_cast<long>(sentenciasDeAdriana.size());
  EXPECT_EQ(Textos(todas.begin(), frontera), sentenciasDeAdriana);
  EXPECT_EQ(Catalogo::Monedas.size(), MonedasDeLaBase());
  // What follows is the whole cache and nothing else.
  espia.Vacia();
  catalogo.setLoad(false);
  catalogo.Load();
  EXPECT_EQ(Textos(frontera, todas.end()), espia.Sentencias());
}

TEST_F(LoginTest, CadaEntradaVuelveALeerElCache) {
  ASSERT_TRUE(Pasa());
  Catalogo::Monedas.clear();
  ASSERT_TRUE(Catalogo::bLoad);
  apertura::Cierra();
  ASSERT_TRUE(Pasa());
  EXPECT_EQ(Catalogo::Monedas.size(), MonedasDeLaBase());
}

TEST_F(LoginTest, EscribeSusTrazas) {
  ASSERT_TRUE(Pasa());
  const Textos trazas = salida_.Lineas();
  const Textos esperadas = {
      SelectDeEmpresa,
      "Formato Cuenta 9999-99-99-99-9999",
      "CiudadMexID de default " + comun_->Valor("select ciudadmexid from norte.empresa"),
      "Recibo query==0",
      "nombre de la cajaCaja Solidaria Valle de Ensueño, S.C. de A.P. de R.L. de C.V.",
      "formatopoliza==1",
      "Query==1",
      "Fecha==",
      "SELECT * FROM spsparametro('adriana');",
      "leyendo parametros",
      DeAdriana("serieuser"),
      DeAdriana("cuentacaja"),
      "0",
      "1      ",
  };
  ASSERT_GT(trazas.size(), esperadas.size());
  EXPECT_EQ(Textos(trazas.begin(), trazas.begin() + static_cast<long>(esperadas.size())), esperadas);
}

TEST_F(LoginTest, DejaLasVariablesDeLaSesion) {
  ASSERT_TRUE(Pasa());
  EXPECT_STREQ(glogin, "adriana");
  EXPECT_STREQ(gsucursal, "norte");
  EXPECT_STREQ(gSchema, "norte");
  EXPECT_EQ(gHost, Servidor::Unico().host());
  EXPECT_STREQ(gPort, "3000");
  EXPECT_EQ(gDbname, comun_->nombre());
  EXPECT_EQ(serie_user, DeAdriana("serieuser"));
  EXPECT_EQ(gcuentacaja, DeAdriana("cuentacaja"));
  EXPECT_EQ(gImpresoraCaja, DeAdriana("impresoracaja"));
  EXPECT_EQ(gImpresoraReporte, DeAdriana("impresorareporte"));
  EXPECT_EQ(std::to_string(gReportesLaser), DeAdriana("reporteslaser"));
  EXPECT_STREQ(gLetraChicaLaser, "\033(10U\033&k2S");
  EXPECT_STREQ(gFechaCobroIVA.AsChar(), "2010-01-01");
  EXPECT_STREQ(gsucid, "0001");
  EXPECT_EQ(gNconcurrencias, 3);
  EXPECT_STREQ(gVersion, "0.0.7");
}

TEST_F(LoginTest, LaSucursalEscogidaEsElEsquema) {
  Ajusta(*comun_, "adriana", "sur");
  ASSERT_TRUE(Pasa());
  EXPECT_STREQ(gSchema, "sur");
  EXPECT_STREQ(gsucid, "0002");
}

TEST_F(LoginTest, UnUsuarioSinParametrosQuedaSinEllos) {
  BaseDatos base;
  base.Ejecuta("delete from norte.parametro where usuarioid = 'adriana'");
  Ajusta(base);
  ASSERT_TRUE(Pasa());
  EXPECT_STREQ(serie_user, "");
  EXPECT_STREQ(gImpresoraCaja, "");
  EXPECT_EQ(gReportesLaser, 0);
}

TEST_F(LoginTest, SaludaConLaCaducidadDeLaContrasena) {
  for (const auto& [hasta, dicho] : {std::pair{"2031-12-24", "24-12-2031"}, {"infinity", ""}}) {
    comun_->Ejecuta("alter role adriana valid until '" + std::string(hasta) + "'");
    Guion guion;
    guion.Con(Entra());
    guion.Responde(Respuesta::Aceptar);
    EXPECT_TRUE(Corre());
    EXPECT_EQ(guion.Ultimo().clase, Clase::Informacion);
    EXPECT_EQ(guion.Ultimo().titulo, "Validando usuario");
    EXPECT_EQ(guion.Ultimo().texto, Bienvenida(dicho));
    apertura::Cierra();
  }
}

TEST_F(LoginTest, UnaContrasenaCaducadaSeRechaza) {
  comun_->Ejecuta("alter role adriana valid until '2001-01-01'");
  EXPECT_TRUE(Contiene(EnUnaLinea(Rechazo().texto), "password authentication failed"));
  comun_->Ejecuta("alter role adriana valid until 'infinity'");
}

TEST_F(LoginTest, LaContrasenaViajaTalComoSeEscribe) {
  const std::string rara = "ñÑ%s%n'\"\\ {}áéíóúüßç";
  comun_->Ejecuta("alter role braulio password E'ñÑ%s%n''\"\\\\ {}áéíóúüßç'");
  Ajusta(*comun_, "braulio");
  Guion guion;
  guion.Con(Entra(rara + "lo que pasa de veinte"));
  guion.Responde(Respuesta::Aceptar);
  EXPECT_TRUE(Corre());
  comun_->Ejecuta(std::string("alter role braulio password '") + BaseDatos::Clave + "'");
}

TEST_F(LoginTest, LaContrasenaNoSeGuarda) {
  ASSERT_TRUE(Pasa());
  const std::string archivo = CorreBien({{"cat", std::string(getenv("HOME")) + "/.foxrc/Tolvara/corvena"}});
  EXPECT_TRUE(Contiene(archivo, "adriana"));
  EXPECT_FALSE(Contiene(archivo, BaseDatos::Clave));
}

TEST_F(LoginTest, EnterEnLaContrasenaAcepta) {
  Guion guion;
  guion.Con([](FXDialogBox* login) { Escribe(login, "Password:", std::string(BaseDatos::Clave) + "\n"); });
  guion.Responde(Respuesta::Aceptar);
  EXPECT_TRUE(Corre());
}

TEST_F(LoginTest, EscapeEsCerrar) {
  Guion guion;
  guion.Con([](FXDialogBox* login) { Tecla(CampoJuntoA(login, "Password:"), KEY_Escape); });
  EXPECT_FALSE(Corre());
  EXPECT_FALSE(IsConectado);
  EXPECT_EQ(salida_.Texto(), "");
}

TEST_F(LoginTest, ValeLoEscritoEnTodosLosCampos) {
  SinAjustes();
  Guion guion;
  guion.Con([](FXDialogBox* login) {
    Pulsa(Boton(login, "Opciones >>"));
    Escribe(login, "Login:", "braulio");  // without Enter
    Escribe(login, "Sucursal:", "norte");
    Escribe(login, "Servidor:", Servidor::Unico().host());
    Escribe(login, "Puerto:", Servidor::Unico().puerto());
    Escribe(login, "DB:", comun_->nombre());
    Entra()(login);
  });
  guion.Responde(Respuesta::Aceptar);
  ASSERT_TRUE(Corre());
  EXPECT_STREQ(PQport(conn), Servidor::Unico().puerto().c_str());
  EXPECT_STREQ(PQuser(conn), "braulio");
  EXPECT_STREQ(gPort, "3000");
  EXPECT_EQ(EnDisco("user"), "braulio");
  EXPECT_EQ(EnDisco("sucursal"), "norte");
  EXPECT_EQ(EnDisco("servidor"), Servidor::Unico().host());
  EXPECT_EQ(EnDisco("puerto"), Servidor::Unico().puerto());
  EXPECT_EQ(EnDisco("db"), comun_->nombre());
}

TEST_F(LoginTest, UserdbSobreviveAUnaEntrada) {
  Ajusta("userdb", "quien sabe");
  ASSERT_TRUE(Pasa());
  EXPECT_STREQ(App().reg().readStringEntry(Seccion, "userdb", ""), "quien sabe");
  EXPECT_EQ(EnDisco("userdb"), "quien sabe");
}

TEST_F(LoginTest, LosAvisosDelServidorQuedanYSeEscriben) {
  BaseDatos base;
  base.Ejecuta(
      "create or replace function norte.fechacobroiva() returns date language plpgsql as"
      " $$ begin raise notice 'buenos días %%s'; return '2012-02-03'; end $$");
  Ajusta(base);
  CopiaTexto(gsMsgServidor, "de antes");
  ASSERT_TRUE(Pasa());
  EXPECT_STREQ(gsMsgServidor, "NOTICE:  buenos días %s\n");
  EXPECT_TRUE(Contiene(salida_.Texto(), "NOTICE:  buenos días %s\n\n"));
  EXPECT_STREQ(gFechaCobroIVA.AsChar(), "2012-02-03");
}

TEST_F(LoginTest, UnaEntradaVaciaElAvisoAnterior) {
  CopiaTexto(gsMsgServidor, "de antes");
  ASSERT_TRUE(Pasa());
  EXPECT_STREQ(gsMsgServidor, "");
}

// Refusals at the connection.

TEST_F(LoginTest, ElRechazoDelServidorSeMuestraYSeTraza) {
  Guion guion;
  guion.Con(Entra("otra clave"));
  guion.Responde(Respuesta::Aceptar);
  guion.Responde("&Cerrar");
  EXPECT_FALSE(Corre());
  EXPECT_EQ(guion.Ultimo().clase, Clase::Error);
  EXPECT_EQ(guion.Ultimo().titulo, ErrorEnValidacion);
  const std::string mensaje = PQerrorMessage(conn);
  EXPECT_TRUE(Contiene(mensaje, "FATAL:  password authentication failed for user \"adriana\"")) << mensaje;
  EXPECT_EQ(EnUnaLinea(guion.Ultimo().texto), EnUnaLinea(mensaje));
  EXPECT_EQ(salida_.Texto(), "En el catch:" + mensaje + "\nIncremento intentos invalidos\n");
  EXPECT_EQ(PQstatus(conn), CONNECTION_BAD);
  EXPECT_STREQ(glogin, "adriana");
  EXPECT_EQ(EnDisco("user"), "nada");
}

TEST_F(LoginTest, UnServidorQueNoDejaConectarSeMuestra) {
  const struct {
    const char* llave;
    const char* valor;
    const char* motivo;
  } casos[] = {
      {"user", "nadie", "password authentication failed for user \"nadie\""},
      {"user", "o'brien; %n%s", "password authentication failed for user \"o'brien; %n%s\""},
      {"db", "no hay tal base", "database \"no hay tal base\" does not exist"},
      {"puerto", "1", "Conexión rehusada"},
      {"puerto", "0", "número de puerto no válido: «0»"},
      {"puerto", "99x", "valor entero «99x» no válido"},
      {"servidor", "127.0.0.2", "Conexión rehusada"},
      {"servidor", "/no/existe", "No existe el fichero o el directorio"},
  };
  for (const auto& [llave, valor, motivo] : casos) {
    SCOPED_TRACE(std::string(llave) + " = " + valor);
    Ajusta(*comun_);
    Ajusta(llave, valor);
    const Cuadro cuadro = Rechazo();
    EXPECT_EQ(cuadro.titulo, ErrorEnValidacion);
    EXPECT_TRUE(Contiene(EnUnaLinea(cuadro.texto), motivo)) << cuadro.texto;
  }
}

TEST_F(LoginTest, SinServidorHayUnaCajaYDespuesSePuedeEntrar) {
  Servidor::Unico().Detiene();
  EXPECT_TRUE(Contiene(EnUnaLinea(Rechazo().texto), "Conexión rehusada"));
  Servidor::Unico().Arranca();
  EXPECT_TRUE(Pasa());
}

TEST_F(LoginTest, ALaQuintaSeBloqueaLaCuenta) {
  Guion guion;
  for (int vez = 0; vez < 4; ++vez) {
    guion.Con(Entra("mala clave"));
    guion.Responde(Respuesta::Aceptar);
  }
  guion.Con(Entra());  // the right one comes too late
  guion.Responde(Respuesta::Aceptar);
  Espia espia;
  EXPECT_TRUE(Corre());  // the dialog closes by itself
  EXPECT_TRUE(espia.Sentencias().empty());
  const Textos mensajes = guion.Mensajes();
  ASSERT_EQ(mensajes.size(), 5u);
  for (int vez = 0; vez < 4; ++vez)
    EXPECT_TRUE(
        Contiene(EnUnaLinea(mensajes.at(static_cast<size_t>(vez))), "password authentication failed"));
  EXPECT_EQ(mensajes.at(4), Bloqueada);
  EXPECT_EQ(guion.Ultimo().titulo, "CUENTA BLOQUEDA");
  EXPECT_EQ(guion.Ultimo().clase, Clase::Error);
  EXPECT_EQ(conn, nullptr);
  EXPECT_FALSE(IsConectado);
  EXPECT_EQ(EnDisco("user"), "nada");
}

TEST_F(LoginTest, UnDialogoNuevoOlvidaElBloqueo) {
  {
    Guion guion;
    for (int vez = 0; vez < 5; ++vez) {
      guion.Con(Entra("mala clave"));
      guion.Responde(Respuesta::Aceptar);
    }
    Corre();
  }
  EXPECT_TRUE(Pasa());
}

// Refusals by a rule of the session.

class LoginReglaTest : public LoginTest {
 protected:
  void SetUp() override {
    LoginTest::SetUp();
    Ajusta(base_);
  }
  void TearDown() override {
    apertura::Cierra();
    base_.MataSesiones();
  }

  /// One attempt that shows `cajas` boxes and leaves the dialog open, repeated; then, if `bloqueo`, one that
  /// locks.
  void Repite(int veces, int cajas, bool bloqueo) {
    Guion guion;
    for (int vez = 0; vez < veces; ++vez) {
      guion.Con(Entra());
      for (int caja = 0; caja < cajas; ++caja) guion.Responde(Respuesta::Aceptar);
    }
    if (bloqueo) {
      guion.Con(Entra());
      guion.Responde(Respuesta::Aceptar);
    } else {
      guion.Responde("&Cerrar");
    }
    Corre();
    mensajes_ = guion.Mensajes();
    ASSERT_EQ(mensajes_.size(), static_cast<size_t>(veces * cajas + (bloqueo ? 1 : 0)));
    if (bloqueo) {
      EXPECT_EQ(mensajes_.back(), Bloqueada);
    }
    for (const Cuadro& cuadro : guion.Cuadros()) {
      if (cuadro.clase == Clase::Error && cuadro.texto != Bloqueada) {
        EXPECT_EQ(cuadro.titulo, ErrorEnValidacion);
      }
    }
    EXPECT_FALSE(IsConectado);
  }

  std::string SesionesDeAdriana() {
    return base_.Valor(
        "select count(*) from pg_stat_activity where usename = 'adriana' and datname = current_database()");
  }

  BaseDatos base_;
  Textos mensajes_;
};

TEST_F(LoginReglaTest, ConUnaConcurrenciaLaSegundaSesionSeRechaza) {
  base_.Ejecuta("update norte.empresa set nconcurrencias = 1");
  const Conexion otra = base_.Conecta("adriana", BaseDatos::Clave);
  Repite(1, 1, false);
  EXPECT_EQ(mensajes_, Textos{YaConectado});
  EXPECT_EQ(conn, nullptr);
  EXPECT_EQ(EnDisco("user"), "adriana");  // the settings have been written all the same
  EXPECT_STREQ(gsucursal, "norte");
}

TEST_F(LoginReglaTest, DemasiadasSesionesNoCuentanComoIntento) {
  base_.Ejecuta("update norte.empresa set nconcurrencias = 0");
  Espia espia;
  Repite(6, 1, false);
  EXPECT_EQ(mensajes_, Textos(6, YaConectado));
  EXPECT_EQ(espia.Sentencias().at(espia.Sentencias().size() - 1),
            sentenciasDeAdriana[Sesiones]);  // and nothing after it
}

TEST_F(LoginReglaTest, ConDosConcurrenciasPasaLaSegundaYNoLaTercera) {
  base_.Ejecuta("update norte.empresa set nconcurrencias = 2");
  const Conexion una = base_.Conecta("adriana", BaseDatos::Clave);
  ASSERT_TRUE(Pasa());
  const Conexion dos(conn, PQfinish);
  conn = nullptr;
  Repite(1, 1, false);
  EXPECT_EQ(mensajes_, Textos{YaConectado});
}

TEST_F(LoginReglaTest, OtraVersionDelProgramaSeRechazaYCuentaPorLaFallaQueSigue) {
  base_.Ejecuta("update norte.empresa set version = '0.0.8'");
  Espia espia;
  Repite(4, 2, true);
  for (size_t vez = 0; vez < 4; ++vez) {
    EXPECT_EQ(mensajes_.at(2 * vez), VersionDiferente);
    EXPECT_EQ(mensajes_.at(2 * vez + 1), SinConexion);
  }
  EXPECT_EQ(espia.Sentencias().at(Fecha), sentenciasDeAdriana[Fecha]);  // goes on, on the closed connection
  EXPECT_EQ(conn, nullptr);
  EXPECT_EQ(EnDisco("user"), "adriana");
}

TEST_F(LoginReglaTest, LaVersionSeComparaLetraPorLetra) {
  for (const char* version : {"0.0.7a", "0.0", ""}) {
    SCOPED_TRACE(version);
    base_.Ejecuta("update norte.empresa set version = '" + std::string(version) + "'");
    Repite(1, 2, false);
    EXPECT_EQ(mensajes_, (Textos{VersionDiferente, SinConexion}));
  }
  base_.Ejecuta("update norte.empresa set version = '0.0.7               '");
  EXPECT_TRUE(Pasa());
}

TEST_F(LoginReglaTest, OtraFechaSeRechazaYCuentaPorLaFallaQueSigue) {
  base_.Ejecuta(
      "create or replace function norte.serverdate(dia text) returns integer language sql return 0");
  Espia espia;
  Repite(4, 2, true);
  for (size_t vez = 0; vez < 4; ++vez) {
    EXPECT_EQ(mensajes_.at(2 * vez), FechaDiferente);
    EXPECT_EQ(mensajes_.at(2 * vez + 1), SinConexion);
  }
  EXPECT_EQ(espia.Sentencias().at(Caduca), sentenciasDeAdriana[Caduca]);
  EXPECT_EQ(conn, nullptr);
}

TEST_F(LoginReglaTest, LoLanzadoCuentaComoIntento) {
  base_.Ejecuta("revoke select on norte.empresa from sucursal_norte");
  Repite(4, 1, true);
  for (size_t vez = 0; vez < 4; ++vez)
    EXPECT_EQ(mensajes_.at(vez), "ERROR:  permission denied for table empresa\n");
}

TEST_F(LoginReglaTest, MientrasLaCajaDelBloqueoEsperaNoQuedaNingunaSesion) {
  base_.Ejecuta("revoke select on norte.empresa from sucursal_norte");
  Guion guion;
  for (int vez = 0; vez < 4; ++vez) {
    guion.Con(Entra());
    guion.Con([&](FXDialogBox* caja) {
      EXPECT_NE(SesionesDeAdriana(), "0");  // refused by the branch, not by the server
      Pulsa(Boton(caja, "&Aceptar"));
    });
  }
  guion.Con(Entra());
  guion.Con([&](FXDialogBox* caja) {
    EXPECT_EQ(guion.Ultimo().texto, Bloqueada);
    EXPECT_EQ(conn, nullptr);
    EXPECT_TRUE(BombeaHasta([&] { return SesionesDeAdriana() == "0"; }, 5000));
    Pulsa(Boton(caja, "&Aceptar"));
  });
  Corre();
}

TEST_F(LoginReglaTest, ElBloqueoDejaLaSesionQueSeAbrioAntes) {
  ASSERT_TRUE(Pasa());
  Guion guion;
  for (int vez = 0; vez < 5; ++vez) {
    guion.Con(Entra("mala clave"));
    guion.Con([&, vez](FXDialogBox* caja) {
      EXPECT_EQ(IsConectado, vez < 4);  // cleared ahead of the last box
      Pulsa(Boton(caja, "&Aceptar"));
    });
  }
  Corre();
  EXPECT_EQ(guion.Ultimo().texto, Bloqueada);
  EXPECT_EQ(SesionesDeAdriana(), "1");
}

// Bad branches.

TEST_F(LoginReglaTest, UnaSucursalQueNoSirveSeRechaza) {
  base_.Ejecuta("create schema vacio; grant usage on schema vacio to public");
  const struct {
    const char* sucursal;
    const char* texto;
  } casos[] = {
      {"vacio", "ERROR:  relation \"empresa\" does not exist"},
      {"noexiste", "ERROR:  relation \"empresa\" does not exist"},
      {"", "ERROR:  invalid value for parameter \"search_path\""},
      {"norte'", "ERROR:  syntax error at or near"},
      {"%s%n", "ERROR:  relation \"empresa\" does not exist"},
  };
  for (const auto& [sucursal, texto] : casos) {
    SCOPED_TRACE(sucursal);
    Ajusta("sucursal", sucursal);
    Guion guion;
    guion.Con(Entra());
    guion.Responde(Respuesta::Aceptar);
    guion.Responde("&Cerrar");
    EXPECT_FALSE(Corre());
    EXPECT_TRUE(Empieza(guion.Ultimo().texto, texto)) << guion.Ultimo().texto;
    EXPECT_STREQ(gsucursal, sucursal);
    apertura::Cierra();
  }
}

/// A branch whose `empresa` is any table: a copy of the true one without its rules.
void EmpresaSuelta(BaseDatos& base) {
  base.Ejecuta(
      "create table suelta as select * from norte.empresa; drop table norte.empresa cascade;"
      "alter table suelta set schema norte; alter table norte.suelta rename to empresa;"
      "grant select on norte.empresa to sucursal_norte;"
      "create or replace function norte.fechacobroiva() returns date language sql return null::date;"
      "grant execute on function norte.fechacobroiva to sucursal_norte");
}

TEST_F(LoginReglaTest, UnaEmpresaSinRenglonSeRechaza) {
  EmpresaSuelta(base_);
  base_.Ejecuta("delete from norte.empresa");
  Repite(4, 1, true);
  for (size_t vez = 0; vez < 4; ++vez)
    EXPECT_EQ(mensajes_.at(vez), "La sucursal no tiene los parámetros de la institución.");
}

TEST_F(LoginReglaTest, UnaEmpresaDeNulosNoAdmiteSesiones) {
  EmpresaSuelta(base_);
  ASSERT_TRUE(Pasa());
  ASSERT_STRNE(gnombrecaja, "");
  apertura::Cierra();
  base_.Ejecuta("delete from norte.empresa; insert into norte.empresa (empresaid) values (1)");
  Repite(1, 1, false);
  EXPECT_EQ(mensajes_, Textos{YaConectado});
  EXPECT_STREQ(gnombrecaja, "");
  EXPECT_STREQ(gVersion, "");
  EXPECT_EQ(gIVA, 0);
}

TEST_F(LoginReglaTest, TextosDeCincoMilLetrasSeCortanYSeEntra) {
  EmpresaSuelta(base_);
  const std::string textos[] = {"sucid",        "nombrecaja",       "gerente",          "presidenteadmon",
                                "contador",     "direccioncaja",    "contadorsucursal", "niveloperaciones",
                                "ccpresidente", "ccvicepresidente", "ccoficial",        "ccanalista",
                                "ccsecretario", "formatocuenta",    "clientesocio",     "pggrupodefault"};
  for (const std::string& columna : textos) {
    base_.Ejecuta("alter table norte.empresa alter " + columna + " type text; update norte.empresa set " +
                  columna + " = 'x' || repeat('ñ', 4999)");
  }
  ASSERT_TRUE(Pasa());
  const auto cortado = [](size_t bytes) {
    std::string texto = "x";
    while (texto.size() + 2 <= bytes) texto += "ñ";
    return texto;
  };
  EXPECT_EQ(gsucid, cortado(4));
  EXPECT_EQ(gnombrecaja, cortado(80));
  EXPECT_EQ(gDireccionCaja, cortado(100));
  EXPECT_EQ(gccsecretario, cortado(50));
  EXPECT_EQ(formatocuenta, cortado(24));
  EXPECT_EQ(gclientesocio, cortado(9));
  EXPECT_EQ(gpggrupodefault, cortado(20));
}

TEST_F(LoginReglaTest, UnaVersionDeCincoMilLetrasEsOtraVersion) {
  EmpresaSuelta(base_);
  base_.Ejecuta(
      "alter table norte.empresa alter version type text; update norte.empresa set version = repeat('0.0.7', "
      "1000)");
  Repite(1, 2, false);
  EXPECT_EQ(mensajes_, (Textos{VersionDiferente, SinConexion}));
}

// A failure at every statement, each followed by an attempt of the same dialog that goes through.

/// What a failure shows beside the greeting: nothing (the login goes on), one box, too many sessions, or the
/// box of the date and one more.
enum Efecto : char { Sigue = '.', Caja1 = 'x', Lleno = 's', FechaMala = 'f' };

class LoginFallaTest : public LoginReglaTest {
 protected:
  void SetUp() override {
    LoginReglaTest::SetUp();
    base_.Ejecuta(
        "update norte.empresa set nconcurrencias = 1000");  // the sessions cut here take a while to go
  }

  void Prueba(size_t posicion, const Falla& falla, Efecto efecto) {
    std::filesystem::remove(std::filesystem::path(getenv("HOME")) / ".foxrc" / "Tolvara" / "corvena");
    Espia espia;
    Guion guion;
    Textos esperados;
    espia.En(posicion, falla);
    guion.Con(Entra());
    if (posicion > Caduca || efecto == Sigue) guion.Responde(Respuesta::Aceptar);
    const bool guardados = posicion >= Commit;
    const auto caja = [&guion, guardados] {
      guion.Con([guardados](FXDialogBox* ventana) {
        EXPECT_EQ(EnDisco("user"), guardados ? "adriana" : "nada");
        EXPECT_FALSE(IsConectado);
        Pulsa(Boton(ventana, "&Aceptar"));
      });
    };
    if (efecto != Sigue) caja();
    if (efecto == FechaMala) caja();
    if (efecto != Sigue) {
      guion.Con([&espia](FXDialogBox* login) {
        espia.Vacia();
        Entra()(login);
      });
      guion.Responde(Respuesta::Aceptar);
    }
    EXPECT_TRUE(Corre());
    EXPECT_TRUE(IsConectado);
    Textos errores;
    for (const Cuadro& cuadro : guion.Cuadros()) {
      if (cuadro.clase != Clase::Error) continue;
      EXPECT_EQ(cuadro.titulo, ErrorEnValidacion);
      EXPECT_NE(cuadro.texto, "");
      errores.push_back(cuadro.texto);
    }
    if (efecto == Lleno) {
      EXPECT_EQ(errores, Textos{YaConectado});
    }
    if (efecto == FechaMala) {
      EXPECT_EQ(errores, (Textos{FechaDiferente, SinConexion}));
    }
    if (efecto != Sigue) {
      EXPECT_EQ(Catalogo::Monedas.size(), MonedasDeLaBase());
    }
    apertura::Cierra();
  }
};

TEST_F(LoginFallaTest, LaConexionPerdidaEnCualquierSentencia) {
  Textos todas;
  {
    Espia espia;
    ASSERT_TRUE(Pasa());
    todas = espia.Sentencias();
  }
  apertura::Cierra();
  // The statements behind the last "BEGIN;" of the cache are looked at by nobody.
  const auto ultimoBegin =
      static_cast<size_t>(todas.rend() - std::find(todas.rbegin(), todas.rend(), "BEGIN;")) - 1;
  for (size_t posicion = 0; posicion < todas.size(); ++posicion) {
    SCOPED_TRACE(todas.at(posicion));
    for (const Falla& corte : {falla::CorteAntes(), falla::CorteDespues()})
      Prueba(posicion, corte, posicion <= ultimoBegin ? Caja1 : Sigue);
  }
}

TEST_F(LoginFallaTest, UnaRespuestaMalaEnCualquierSentencia) {
  const struct {
    const char* nombre;
    Falla falla;
    const char* efectos;  // from the "BEGIN;" to the load of the currencies
  } casos[] = {
      {"nula", falla::Nula(), "xx.x.xxx..x..x.."},
      {"error", falla::Error("se acabó %s %n %%"), "xxxx.xxx..x.xx.x"},
      {"sin filas", falla::SinFilas(), "...x.f.........."},
      {"una columna", falla::Recortada(1), "...s............"},
      {"nulos", falla::ConNulos(), "...s.f.........."},
      {"textos largos", falla::ConTextos(), "...s.f.........."},
  };
  for (const auto& [nombre, falla, efectos] : casos) {
    SCOPED_TRACE(nombre);
    for (size_t posicion = 0; efectos[posicion]; ++posicion) {
      SCOPED_TRACE(posicion);
      Prueba(posicion, falla, static_cast<Efecto>(efectos[posicion]));
    }
  }
}

TEST_F(LoginFallaTest, ElCacheQueNoSePuedeLeerSeDice) {
  Espia espia;
  Guion guion;
  espia.En(Cache + 1, falla::Error("no"));  // behind the stamp of the chart
  guion.Con(Entra());
  guion.Responde(Respuesta::Aceptar);
  guion.Responde(Respuesta::Aceptar);
  guion.Responde("&Cerrar");
  EXPECT_FALSE(Corre());
  EXPECT_EQ(guion.Mensajes(), (Textos{Bienvenida(), "Error al cargar catalogo de cuentas."}));
  EXPECT_FALSE(Catalogo::bLoad);
  EXPECT_FALSE(IsConectado);
}

}  // namespace
}  // namespace pruebas
