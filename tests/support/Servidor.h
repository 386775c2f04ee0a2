// A real PostgreSQL for the tests.
//
// The first use starts a private cluster: temporary folder, free port below 10000 (the login's port field
// takes four digits) on 127.0.0.1, a socket, passwords asked for, durability off. It is stopped and removed
// when the test program ends, also by a crash. Each test works in a database of its own, cloned from a
// template:
//
//   BaseDatos base;                          // with the branches norte and sur
//   BaseDatos base(BaseDatos::Vacia);        // nothing in it: no role, no schema, no table of ours
//
// Nothing here goes through the program's own connection, and the statement spy sees none of it.
#pragma once

#include <libpq-fe.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/Proceso.h"
#include "tests/support/Textos.h"

namespace pruebas {

/// A connection that closes itself; `release()` it to hand it to the program's global `conn`.
using Conexion = std::unique_ptr<PGconn, decltype(&PQfinish)>;

using Tabla = std::vector<Textos>;  ///< rows of fields

/// The cluster of this test program.
class Servidor {
 public:
  /// The one cluster; started by the first call. Throws std::runtime_error when it does not come up.
  static Servidor& Unico();

  const std::string& host() const { return host_; }        ///< "127.0.0.1"
  const std::string& puerto() const { return puerto_; }    ///< four digits
  const std::string& usuario() const { return usuario_; }  ///< the superuser's login
  const std::string& clave() const { return clave_; }      ///< the superuser's password

  /// Opens a connection; never throws: test it with PQstatus. Its notices go nowhere.
  Conexion Conecta(const std::string& base, const std::string& usuario, const std::string& clave) const;

  /// PGHOST, PGPORT, PGUSER, PGPASSWORD, PGDATABASE: what a script needs to reach that database as superuser.
  Textos Entorno(const std::string& base) const;

  /// Makes the template `nombre` (a database) with `constructor`, the first time only: a second call with the
  /// same name does nothing. `constructor` gets the name of the empty database that it has to fill; logins
  /// that it creates stay.
  void Plantilla(const std::string& nombre, const std::function<void(const std::string& base)>& constructor);

  /// Stops the server: every connection breaks and none can be made. Data stays.
  void Detiene();
  /// Starts it again on the same port. Harmless when it runs.
  void Arranca();
  /// Stops and starts it.
  void Reinicia();

  Servidor(const Servidor&) = delete;
  Servidor& operator=(const Servidor&) = delete;

 private:
  Servidor();
  bool Responde() const;
  void Enciende();

  CarpetaTemporal carpeta_;
  const std::string host_ = "127.0.0.1";
  const std::string usuario_ = "dueno";
  const std::string clave_ = "clave del dueno";
  std::string puerto_;
  std::unique_ptr<Hijo> proceso_;
  Textos plantillas_;
  Textos rolesDePlantillas_;
  Textos logins_;  // what brings the logins of the templates back to what they were

  friend class BaseDatos;
};

/// A fresh database for one test, made by the constructor and dropped by the destructor together with every
/// login that was created meanwhile; the others are then what they were.
class BaseDatos {
 public:
  static constexpr const char* Vacia = "vacia";  ///< an empty database
  static constexpr const char* Completa =
      "plantilla";  ///< the reference database, branches norte and sur, with data

  static constexpr const char* Clave = "clave de prueba";  ///< password of every login of Completa

  /// Clones the template: Vacia, Completa or one made with Servidor::Plantilla. Throws std::runtime_error.
  explicit BaseDatos(const std::string& plantilla = Completa);
  ~BaseDatos();
  BaseDatos(const BaseDatos&) = delete;
  BaseDatos& operator=(const BaseDatos&) = delete;

  const std::string& nombre() const { return nombre_; }

  /// Runs statements as superuser. Throws std::runtime_error with the server's text.
  void Ejecuta(const std::string& sql);
  /// First field of the first row; "" for NULL. Throws when there is no row.
  std::string Valor(const std::string& sql);
  /// All rows, all fields as text, "" for NULL.
  Tabla Filas(const std::string& sql);

  /// A connection of a user to this database; test it with PQstatus.
  Conexion Conecta(const std::string& usuario, const std::string& clave) const;
  /// A connection of the superuser to this database.
  Conexion Conecta() const;

  /// Runs server/instala with these arguments on this database. Throws with the script's output when it
  /// fails.
  std::string Instala(const Textos& argumentos, const std::string& entrada = "") const;
  /// A user of the branch with a password, made by server/instala.
  void Usuario(const std::string& login, const std::string& sucursal, const std::string& tipo,
               const std::string& clave) const;

  /// Ends every session of this database but our own; answers how many there were. They are gone on return.
  int MataSesiones();

 private:
  std::string nombre_;
  Textos rolesDeAntes_;
  Conexion conexion_;
};

}  // namespace pruebas
