#include "tests/support/Servidor.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <random>
#include <stdexcept>

#include "tests/support/Espia.h"

namespace pruebas {
namespace {

using Respuesta = std::unique_ptr<PGresult, decltype(&PQclear)>;

constexpr const char* BaseDelServidor = "postgres";

std::string Cita(const std::string& nombre) { return '"' + nombre + '"'; }

Respuesta Pregunta(PGconn* conexion, const std::string& sql) {
  Respuesta respuesta(__real_PQexec(conexion, sql.c_str()), PQclear);
  if (PQstatus(conexion) == CONNECTION_BAD) {  // the server was restarted since: once more on a new session
    PQreset(conexion);
    respuesta.reset(__real_PQexec(conexion, sql.c_str()));
  }
  const ExecStatusType estado = PQresultStatus(respuesta.get());
  if (estado != PGRES_COMMAND_OK && estado != PGRES_TUPLES_OK && estado != PGRES_EMPTY_QUERY) {
    throw std::runtime_error(sql + "\n" + PQerrorMessage(conexion));
  }
  return respuesta;
}

Tabla TodasLasFilas(PGconn* conexion, const std::string& sql) {
  const Respuesta respuesta = Pregunta(conexion, sql);
  Tabla filas(static_cast<size_t>(PQntuples(respuesta.get())));
  for (size_t f = 0; f < filas.size(); ++f) {
    for (int c = 0; c < PQnfields(respuesta.get()); ++c) {
      filas[f].emplace_back(PQgetvalue(respuesta.get(), static_cast<int>(f), c));
    }
  }
  return filas;
}

// The cluster's own connection, for what cannot be done from inside the database that it is done to.
Tabla EnElServidor(const std::string& sql) {
  const Servidor& servidor = Servidor::Unico();
  static const Conexion conexion = servidor.Conecta(BaseDelServidor, servidor.usuario(), servidor.clave());
  return TodasLasFilas(conexion.get(), sql);
}

bool Tiene(const Textos& textos, const std::string& texto) {
  return std::find(textos.begin(), textos.end(), texto) != textos.end();
}

Textos Roles() {
  Textos roles;
  for (const auto& fila : EnElServidor("select rolname from pg_roles order by 1")) roles.push_back(fila[0]);
  return roles;
}

Textos NuevosRoles(const Textos& antes) {
  Textos nuevos = Roles();
  nuevos.erase(
      std::remove_if(nuevos.begin(), nuevos.end(), [&](const std::string& rol) { return Tiene(antes, rol); }),
      nuevos.end());
  return nuevos;
}

// The statements that give the logins back what they have now. Logins belong to the whole cluster: a test
// that retires or suspends one in its own database would do so for all that follow.
Textos EstadoDeLosLogins() {
  Textos ordenes;
  const Tabla filas = EnElServidor(
      "select format('alter role %I with %s connection limit %s password %L valid until %L;', rolname,"
      " case when rolcanlogin then 'login' else 'nologin' end, rolconnlimit, rolpassword,"
      " coalesce(rolvaliduntil::text, 'infinity')) from pg_authid where oid >= 16384 and not rolsuper"
      " union all select format('grant %I to %I;', g.rolname, m.rolname) from pg_auth_members a"
      " join pg_roles g on g.oid = a.roleid join pg_roles m on m.oid = a.member where m.oid >= 16384");
  for (const auto& fila : filas) ordenes.push_back(fila[0]);
  return ordenes;
}

// A port that nobody listens on. Another program may take it before our server does; the caller tries again.
std::string PuertoLibre() {
  static std::mt19937 azar(std::random_device{}());
  for (;;) {
    const int puerto = std::uniform_int_distribution<int>(5500, 9999)(azar);
    sockaddr_in direccion{};
    direccion.sin_family = AF_INET;
    direccion.sin_port = htons(static_cast<uint16_t>(puerto));
    direccion.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int fd = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool libre = bind(fd, reinterpret_cast<sockaddr*>(&direccion), sizeof direccion) == 0;
    close(fd);
    if (libre) return std::to_string(puerto);
  }
}

std::string Programa(const std::string& nombre) {
  std::string carpeta = CorreBien({{"pg_config", "--bindir"}});
  carpeta.resize(carpeta.find_last_not_of('\n') + 1);
  return carpeta + "/" + nombre;
}

std::string TextoDe(const std::filesystem::path& archivo) {
  std::ifstream entrada(archivo);
  return {std::istreambuf_iterator<char>(entrada), {}};
}

void ConstruyeCompleta(const std::string& base) {
  const Textos entorno = Servidor::Unico().Entorno(base);
  const std::string instala = Raiz() / "server" / "instala";
  const Tabla pasos = {
      {instala, "base"},
      {instala, "sucursal", "norte"},
      {instala, "sucursal", "sur"},
      {instala, "demostracion", "norte"},
      {instala, "demostracion", "sur"},
  };
  for (const auto& paso : pasos) CorreBien({paso, "", entorno});
  EnElServidor(
      std::string("do $$ declare login text; begin"
                  "  for login in select rolname from pg_roles where rolcanlogin and not rolsuper loop"
                  "    execute format('alter role %I password %L', login, '") +
      BaseDatos::Clave + "'); end loop; end $$");
}

}  // namespace

Servidor& Servidor::Unico() {
  // Never destroyed: Hijo and CarpetaTemporal see to it that nothing outlives the program.
  static Servidor* const unico = new Servidor;
  return *unico;
}

Servidor::Servidor() {
  const std::filesystem::path clave = carpeta_.Ruta() / "clave";
  std::ofstream(clave) << clave_ << '\n';
  if (geteuid() == 0) {
    const passwd* postgres = getpwnam("postgres");
    if (!postgres || chown(carpeta_.Ruta().c_str(), postgres->pw_uid, postgres->pw_gid) != 0) {
      throw std::runtime_error("no se puede dar la carpeta al usuario postgres");
    }
  }
  Orden orden{{Programa("initdb"), "--pgdata", carpeta_.Ruta() / "datos", "--username", usuario_, "--pwfile",
               clave, "--auth", "scram-sha-256", "--encoding", "UTF8", "--locale", "C.UTF-8", "--no-sync"}};
  orden.comoPostgres = true;
  CorreBien(orden);
  for (int intento = 0; intento < 10 && !proceso_; ++intento) {
    puerto_ = PuertoLibre();
    Enciende();
  }
  if (!proceso_)
    throw std::runtime_error("el servidor no arranca:\n" + TextoDe(carpeta_.Ruta() / "bitacora"));
}

void Servidor::Enciende() {
  const std::filesystem::path bitacora = carpeta_.Ruta() / "bitacora";
  const int salida = open(bitacora.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
  Orden orden{{Programa("postgres"), "-D", carpeta_.Ruta() / "datos", "-p", puerto_, "-k", carpeta_.Ruta(),
               "-c", "lc_messages=C"}};  // whatever language the client under test asks for
  for (const char* ajuste :
       {"listen_addresses=127.0.0.1", "fsync=off", "synchronous_commit=off", "full_page_writes=off",
        "autovacuum=off", "shared_buffers=32MB", "wal_level=minimal", "max_wal_senders=0"}) {
    orden.argumentos.insert(orden.argumentos.end(), {"-c", ajuste});
  }
  orden.comoPostgres = true;
  // SIGQUIT: an immediate stop. There is nothing in it that anyone would miss.
  proceso_ = std::make_unique<Hijo>(orden, salida, SIGQUIT);
  close(salida);
  while (!Responde()) {
    if (proceso_->Acabo()) return proceso_.reset();
    usleep(10'000);
  }
}

bool Servidor::Responde() const {
  const std::string donde = "host=" + host_ + " port=" + puerto_ + " dbname=postgres";
  return PQping(donde.c_str()) == PQPING_OK && !proceso_->Acabo();
}

Conexion Servidor::Conecta(const std::string& base, const std::string& usuario,
                           const std::string& clave) const {
  const char* const nombres[] = {"host", "port", "dbname", "user", "password", "client_encoding", nullptr};
  const char* const valores[] = {host_.c_str(), puerto_.c_str(), base.c_str(), usuario.c_str(),
                                 clave.c_str(), "UTF8",          nullptr};
  Conexion conexion(PQconnectdbParams(nombres, valores, 0), PQfinish);
  PQsetNoticeProcessor(
      conexion.get(), [](void*, const char*) {}, nullptr);
  return conexion;
}

Textos Servidor::Entorno(const std::string& base) const {
  return {"PGHOST=" + host_, "PGPORT=" + puerto_, "PGUSER=" + usuario_, "PGPASSWORD=" + clave_,
          "PGDATABASE=" + base};
}

void Servidor::Plantilla(const std::string& nombre,
                         const std::function<void(const std::string&)>& constructor) {
  if (Tiene(plantillas_, nombre)) return;
  EnElServidor("drop database if exists " + Cita(nombre));  // left by a constructor that failed
  EnElServidor("create database " + Cita(nombre) + " template template0");
  const Textos antes = Roles();
  constructor(nombre);
  for (const std::string& rol : NuevosRoles(antes)) rolesDePlantillas_.push_back(rol);
  logins_ = EstadoDeLosLogins();
  plantillas_.push_back(nombre);
}

void Servidor::Detiene() {
  if (proceso_) proceso_->Termina(SIGINT);  // the orderly stop, which loses nothing
  proceso_.reset();
}

void Servidor::Arranca() {
  if (!proceso_) Enciende();
  if (!proceso_)
    throw std::runtime_error("el servidor no arranca:\n" + TextoDe(carpeta_.Ruta() / "bitacora"));
}

void Servidor::Reinicia() {
  Detiene();
  Arranca();
}

BaseDatos::BaseDatos(const std::string& plantilla) : conexion_(nullptr, PQfinish) {
  Servidor& servidor = Servidor::Unico();
  if (plantilla == Vacia) servidor.Plantilla(Vacia, [](const std::string&) {});
  if (plantilla == Completa) servidor.Plantilla(Completa, ConstruyeCompleta);
  static int cuantas = 0;
  nombre_ = "prueba" + std::to_string(++cuantas);
  rolesDeAntes_ = Roles();
  EnElServidor("create database " + Cita(nombre_) + " template " + Cita(plantilla) + " strategy file_copy");
  conexion_ = Conecta();
}

BaseDatos::~BaseDatos() {
  Servidor& servidor = Servidor::Unico();
  try {
    servidor.Arranca();
    conexion_.reset();
    EnElServidor("drop database " + Cita(nombre_) + " with (force)");
    for (const std::string& rol : NuevosRoles(rolesDeAntes_)) {
      if (!Tiene(servidor.rolesDePlantillas_, rol)) EnElServidor("drop role " + Cita(rol));
    }
    const Textos ahora = EstadoDeLosLogins();
    for (const std::string& orden : servidor.logins_) {
      if (!Tiene(ahora, orden)) EnElServidor(orden);
    }
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
  }
}

void BaseDatos::Ejecuta(const std::string& sql) { Pregunta(conexion_.get(), sql); }

std::string BaseDatos::Valor(const std::string& sql) {
  const Tabla filas = Filas(sql);
  if (filas.empty() || filas[0].empty()) throw std::runtime_error(sql + "\nno da ningún valor");
  return filas[0][0];
}

Tabla BaseDatos::Filas(const std::string& sql) { return TodasLasFilas(conexion_.get(), sql); }

Conexion BaseDatos::Conecta(const std::string& usuario, const std::string& clave) const {
  return Servidor::Unico().Conecta(nombre_, usuario, clave);
}

Conexion BaseDatos::Conecta() const {
  return Conecta(Servidor::Unico().usuario(), Servidor::Unico().clave());
}

std::string BaseDatos::Instala(const Textos& argumentos, const std::string& entrada) const {
  Orden orden{{Raiz() / "server" / "instala"}, entrada, Servidor::Unico().Entorno(nombre_)};
  orden.argumentos.insert(orden.argumentos.end(), argumentos.begin(), argumentos.end());
  return CorreBien(orden);
}

void BaseDatos::Usuario(const std::string& login, const std::string& sucursal, const std::string& tipo,
                        const std::string& clave) const {
  Instala({"usuario", login, sucursal, tipo}, clave + "\n");
}

int BaseDatos::MataSesiones() {
  // The wait of pg_terminate_backend is milliseconds; false means that the session was gone by itself.
  return static_cast<int>(Filas("select pg_terminate_backend(pid, 10000) from pg_stat_activity"
                                " where datname = current_database() and pid <> pg_backend_pid()")
                              .size());
}

}  // namespace pruebas
