#include "catalogs/people/generarfc.h"

#include <iostream>

#include "db/Conexion.h"
#include "db/Engine.h"
#include "framework/Sentencia.h"

std::optional<std::string> GeneraRfc(const char* paterno, const char* materno, const char* nombre,
                                     const char* fechaNacimiento) {
  const Sentencia sql("select * from generarfc('%s','%s','%s','%s');", paterno, materno, nombre,
                      fechaNacimiento);
  std::cout << "Query==" << sql.Texto() << std::endl;
  Ejecuta(sql);
  std::optional<std::string> rfc;
  if (PQntuples(res) > 0) rfc = Celda(0, 0);
  LiberaResultado();
  return rfc;
}
