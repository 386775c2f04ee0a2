#include "tests/support/Sesion.h"

#include <stdexcept>

#include "app/sesion.h"
#include "db/Engine.h"
#include "tests/support/Espia.h"
#include "widgets/TextoAcotado.h"

namespace pruebas {

Sesion::Sesion(const BaseDatos& base, const std::string& usuario, const std::string& sucursal,
               const std::string& clave) {
  Conexion nueva = base.Conecta(usuario, clave);
  const std::string sql = "set search_path to public, " + sucursal;
  PGresult* respuesta = __real_PQexec(nueva.get(), sql.c_str());
  const bool abierta = PQresultStatus(respuesta) == PGRES_COMMAND_OK;
  PQclear(respuesta);
  if (!abierta) throw std::runtime_error(PQerrorMessage(nueva.get()));
  CopiaTexto(glogin, usuario.c_str());
  engine.Inicializa();
  conn = nueva.release();
}

Sesion::~Sesion() {
  LiberaResultado();
  PQfinish(conn);
  conn = nullptr;
}

}  // namespace pruebas
