#include "db/Apertura.h"

#include <libintl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <variant>
#include <vector>

#include "app/sesion.h"
#include "catalogs/people/cParametro.h"
#include "db/Engine.h"
#include "framework/Sentencia.h"
#include "widgets/TextoAcotado.h"

namespace {

/// A fixed text of the session with its width in bytes.
struct TextoDeSesion {
  template <size_t N>
  TextoDeSesion(char (&texto)[N]) : texto(texto), ancho(N) {}
  char* texto;
  size_t ancho;
};

/// A column of the institution's row and the session variable that takes it. The conversion follows from the
/// type of the variable; a column without one is fetched and left.
struct ColumnaDeEmpresa {
  const char* columna;
  std::variant<std::monostate, TextoDeSesion, int*, long*, double*> variable;
};

const ColumnaDeEmpresa columnasDeEmpresa[] = {
    {"sucid", gsucid},
    {"nombrecaja", gnombrecaja},
    {"gerente", gGerente},
    {"presidenteadmon", gPresidenteAdmon},
    {"contador", gContador},
    {"direccioncaja", gDireccionCaja},
    {"contadorsucursal", gContadorSucursal},
    {"niveloperaciones", gNivelOperaciones},
    {"lineasiniciales", &iLineasIniciales},
    {"calculaisrinversion", &gCalculaISRInversion},
    {"inversionexenta", &gInversionExenta},
    {"porcentajeisrinversion", &gPorcentajeISRInversion},
    {"ccpresidente", gccpresidente},
    {"ccvicepresidente", gccvicepresidente},
    {"ccoficial", gccoficial},
    {"ccanalista", gccanalista},
    {"ccsecretario", gccsecretario},
    {"bonificaenpagopuntual", &gBonificaEnPagoPuntual},
    {"porcentajebonifica", &gPorcentajeBonifica},
    {"preguntaperiodo", &gPreguntaPeriodo},
    {"sabana", &gSabana},
    {"iva", &gIVA},
    {"reciboconquery", &gReciboConQuery},
    {"altasucursales", &gAltaSucursales},
    {"cobrardiainicial", {}},
    {"diasanualesprestamo", {}},
    {"diasanualesinversion", {}},
    {"diasanualesmov", {}},
    {"devengamoratorio", {}},
    {"tomaintervalo", {}},
    {"impresoracaja", {}},
    {"impresorareporte", {}},
    {"reporteslaser", {}},
    {"ordenaval", &gOrdenAval},
    {"lineasfinales", &iLineasFinales},
    {"rtrim(version)", gVersion},
    {"retirareciprocidad", &gRetiraReciprocidad},
    {"nivel", &gNivel},
    {"modificarinversion", &gModificarInversion},
    {"formatopoliza", &gFormatoPoliza},
    {"formatocuenta", formatocuenta},
    {"ciudadmexid", &gCiudadMexID},
    {"foliopdf", &gfoliopdf},
    {"retirainteresinversion", &gretirainteresinversion},
    {"poride", &gPorIde},
    {"ideexento", &gIdeExento},
    {"modificatasas", &gModificaTasas},
    {"interesamortiza", &gInteresAmortiza},
    {"comisionacreditos", &gComisioncredito},
    {"porcentajecomision", &gPorcomision},
    {"nconcurrencias", &gNconcurrencias},
    {"diaspagoinversion", &gdiaspagoinversion},
    {"periodopagoinversion", &gperiodopagoinversion},
    {"abonointeres", &gabonointeres},
    {"manejochequegrupal", &gManejochequegrupal},
    {"manejopagoamortizacion", &gManejoPagoAmortizacion},
    {"usomultisucursal", &gusomultisucursal},
    {"manejopagoseguro", &gManejoPagoSeguro},
    {"manejoplazoinversion", &gManejoplazoinversion},
    {"manejocargosprestamo", &gManejocargosprestamo},
    {"cortecajaagrupado", &gCortecajaagrupado},
    {"clientesocio", gclientesocio},
    {"pggrupodefault", gpggrupodefault},
};

/// Stores a field of the server into the session variable of its column.
struct Guardador {
  const char* valor;
  void operator()(std::monostate) const {}
  void operator()(const TextoDeSesion& destino) const { CopiaAcotada(destino.texto, destino.ancho, valor); }
  void operator()(int* destino) const { *destino = atoi(valor); }
  void operator()(long* destino) const { *destino = atol(valor); }
  void operator()(double* destino) const { *destino = atof(valor); }
};

std::string SelectDeEmpresa() {
  std::string sql = "select ";
  for (const ColumnaDeEmpresa& c : columnasDeEmpresa) sql.append(c.columna).append(",");
  sql.back() = ' ';
  return sql + "from empresa where empresaid=1;";
}

/// Connections that a further login has left open. They outlive every other static object.
std::vector<PGconn*>& Abiertas(bool sesion) {
  static auto& sesiones = *new std::vector<PGconn*>;
  static auto& intentos = *new std::vector<PGconn*>;  // connected, and refused afterwards
  return sesion ? sesiones : intentos;
}

/// Lets go of a former handle. An open connection stays open until the process ends: a further login does not
/// close it.
void Abandona(PGconn* anterior) {
  if (PQstatus(anterior) == CONNECTION_OK) {
    Abiertas(IsConectado).push_back(anterior);
  } else {
    PQfinish(anterior);
  }
}

/// The library tells in Spanish why there is no connection, where its translation is installed. Translations
/// need a locale that has a name, and are asked for in the encoding of the program.
void PideEspanol() {
  setenv("LANGUAGE", "es", 0);
  const std::string mensajes = setlocale(LC_MESSAGES, nullptr);
  if (mensajes == "C" || mensajes == "POSIX") setlocale(LC_MESSAGES, "C.UTF-8");
  const std::string dominio = "libpq5-" + std::to_string(PQlibVersion() / 10000);
  bind_textdomain_codeset(dominio.c_str(), "UTF-8");
  bind_textdomain_codeset("libc", "UTF-8");  // whose words for a failed call it quotes
}

/// A server that has gone without a word is given up within half a minute. On a socket of this machine there
/// is nothing to set.
void VigilaLinea() {
  constexpr struct {
    int nivel, opcion, valor;  // seconds, times, or milliseconds
  } ajustes[] = {
      {SOL_SOCKET, SO_KEEPALIVE, 1}, {IPPROTO_TCP, TCP_KEEPIDLE, 10},        {IPPROTO_TCP, TCP_KEEPINTVL, 5},
      {IPPROTO_TCP, TCP_KEEPCNT, 4}, {IPPROTO_TCP, TCP_USER_TIMEOUT, 30000},
  };
  for (const auto& ajuste : ajustes)
    setsockopt(PQsocket(conn), ajuste.nivel, ajuste.opcion, &ajuste.valor, sizeof ajuste.valor);
}

/// Executes `sql` and answers its first field; throws when it is refused.
std::string Campo(const char* sql) {
  Ejecuta(sql);
  LanzaSiRechazada();
  std::string valor = Celda(0, 0);
  LiberaResultado();
  return valor;
}

}  // namespace

namespace apertura {

void Cierra() {
  PQfinish(conn);
  conn = nullptr;
}

void CierraIntentos() {
  Cierra();
  for (PGconn* intento : Abiertas(false)) PQfinish(intento);
  Abiertas(false).clear();
}

bool Conecta(const char* servidor, const char* puerto, const char* db, const char* usuario,
             const char* password) {
  setenv("PGCLIENTENCODING", "UTF8", 0);
  setenv("PGCONNECT_TIMEOUT", "10", 0);
  setenv("PGTARGETSESSIONATTRS", "read-write", 0);
  PideEspanol();
  Abandona(conn);
  conn = PQsetdbLogin(servidor, puerto, nullptr, nullptr, db, usuario, password);
  PQsetErrorContextVisibility(conn, PQSHOW_CONTEXT_NEVER);
  if (PQstatus(conn) == CONNECTION_BAD) return false;
  VigilaLinea();
  return true;
}

bool SePerdio() {
  if (PQstatus(conn) == CONNECTION_OK) PQconsumeInput(conn);
  return conn != nullptr && PQstatus(conn) == CONNECTION_BAD;
}

std::string MotivoDelRechazo() {
  const char* mensaje = PQerrorMessage(conn);
  const char* motivo = strstr(mensaje, "\nFATAL");
  char acotado[512];
  CopiaTexto(acotado, motivo != nullptr ? motivo : mensaje);
  return acotado;
}

void FijaEsquema(const char* sucursal) {
  AbreTransaccion(nullptr);
  CopiaTexto(gsucursal, sucursal);
  const Sentencia ruta("%s, %s", "public", sucursal);
  Ejecuta(
      Sentencia("select set_config(cast('search_path' as varchar),"
                "                                              cast('      %s' as varchar),"
                "                                                cast('f' as bool));        ",
                static_cast<const char*>(ruta)));
  LanzaSiRechazada();
  Ejecuta("COMMIT;");
  LiberaResultado();
}

void LeeEmpresa() {
  const std::string sql = SelectDeEmpresa();
  std::cout << sql << std::endl;
  Ejecuta(sql.c_str());
  LanzaSiRechazada();
  if (PQntuples(res) == 0) Lanza("La sucursal no tiene los parámetros de la institución.");
  int columna = 0;
  for (const ColumnaDeEmpresa& c : columnasDeEmpresa) {
    std::visit(Guardador{Celda(0, columna++)}, c.variable);
    if (strcmp(c.columna, "formatocuenta") == 0) std::cout << "Formato Cuenta " << formatocuenta << std::endl;
  }
  std::cout << "CiudadMexID de default " << gCiudadMexID << std::endl;
  LiberaResultado();
  std::cout << "Recibo query==" << gReciboConQuery << std::endl
            << "nombre de la caja" << gnombrecaja << std::endl
            << "formatopoliza==" << gFormatoPoliza << std::endl;
}

int SesionesAbiertas() {
  Ejecuta(Sentencia("select count(usename) from pg_stat_activity where usename='%s';", glogin));
  const int sesiones = atoi(Celda(0, 0));
  LiberaResultado();
  std::cout << "Query==" << sesiones << std::endl;
  return sesiones;
}

bool FechaCoincide() {
  return atoi(Campo(Sentencia("select serverdate('%.10s');", today().AsChar())).c_str()) != 0;
}

std::string Caducidad() {
  const std::string fecha =
      Campo(Sentencia("select to_char(valuntil,'DD-MM-YYYY') from pg_user where usename='%s'", glogin));
  std::cout << "Fecha==" << fecha << std::endl;
  return fecha;
}

void LeeFechaCobroIVA() { gFechaCobroIVA = date(Campo("select fechacobroiva();").c_str()); }

void LeeParametros() {
  cParametro parametro;
  parametro.setUsuarioID(glogin);
  parametro.Find();
  CopiaTexto(serie_user, parametro.getSerieUser());
  CopiaTexto(gcuentacaja, parametro.getCuentaCaja());
  CopiaTexto(gImpresoraCaja, parametro.getImpresoraCaja());
  CopiaTexto(gImpresoraReporte, parametro.getImpresoraReporte());
  gReportesLaser = parametro.getReportesLaser();
  CopiaTexto(gLetraChicaLaser, "\033(10U\033&k2S");
}

}  // namespace apertura
