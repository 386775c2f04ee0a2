#include "operaciones/Consulta.h"

#include <iostream>

#include "app/sesion.h"
#include "db/Engine.h"

std::string Literal(const FXString& texto) {
  char* const literal = PQescapeLiteral(conn, texto.text(), texto.length());
  if (literal == nullptr) return "''";
  const std::string copia = literal;
  PQfreemem(literal);
  return copia;
}

void Consulta(const std::string& sql) {
  std::cout << sql << std::endl;
  Ejecuta(sql.c_str());
  LanzaSiRechazada();
}
