// An open session of the program without its login dialog: what a test of a record, the cache or a form
// starts from.
#pragma once

#include <string>

#include "tests/support/Servidor.h"

namespace pruebas {

/// Opens the global `conn` as that user, with the branch in front of the search path and the transaction
/// depth at 0, and sets `glogin`. Nothing of it is seen by the statement spy. The destructor clears `res`,
/// closes `conn` (also when the test has put another one there) and leaves both null. Throws
/// std::runtime_error when the server refuses.
///
/// The users of BaseDatos::Completa are the demonstration's: adriana (ADM, every right, both branches),
/// braulio (CAJ) and camila (CON, no right at all) in norte, efrain (GER) and dario (CAJ) in sur;
/// BaseDatos::Clave is the password of all.
class Sesion {
 public:
  explicit Sesion(const BaseDatos& base, const std::string& usuario = "adriana",
                  const std::string& sucursal = "norte", const std::string& clave = BaseDatos::Clave);
  ~Sesion();
  Sesion(const Sesion&) = delete;
  Sesion& operator=(const Sesion&) = delete;
};

}  // namespace pruebas
