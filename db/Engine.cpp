#include "db/Engine.h"

#include <iostream>
#include <string>

int Engine::miTransactionCount = 0;
int Engine::miNestedTransaction = 1;

namespace {

/// Executes a transaction command with a result of its own: a thrown server text that is still to be shown
/// points into the shared one.
void EjecutaAparte(const char* sql) { PQclear(PQexec(conn, sql)); }

/// What has become of a write whose commit was not answered.
constexpr char sinRespuesta[] =
    "No se sabe si se guardó: se perdió la conexión al confirmar.\n"
    "Conéctese otra vez con F9 y vea si está, antes de repetir.\n\n";

}  // namespace

void Ejecuta(const char* sql) { EjecutaEn(conn, sql); }

void EjecutaEn(PGconn* conexion, const char* sql) {
  PGresult* respuesta = PQexec(conexion, sql);
  PQclear(res);
  res = respuesta;
}

PGconn* ConexionDeLectura() { return bLocal ? conn : connR; }

void LiberaResultado() {
  PQclear(res);
  res = nullptr;
}

const char* Celda(int fila, int columna) {
  if (fila >= PQntuples(res) || columna >= PQnfields(res)) return "";
  return PQgetvalue(res, fila, columna);
}

void Lanza(const char* texto) { throw const_cast<char*>(texto); }

bool Rechazada() {
  const ExecStatusType estado = PQresultStatus(res);
  return estado == PGRES_NONFATAL_ERROR || estado == PGRES_FATAL_ERROR;
}

void LanzaSiRechazada() {
  if (Rechazada()) Lanza(PQresultErrorMessage(res));
}

void AbreTransaccion(const char* mensaje) {
  Ejecuta("BEGIN;");
  if (res == nullptr || PQresultStatus(res) != PGRES_COMMAND_OK)
    Lanza(mensaje != nullptr ? mensaje : PQresultErrorMessage(res));
}

void Engine::BeginTransaction() {
  if (miTransactionCount == 0) EjecutaAparte("BEGIN;");
  ++miTransactionCount;
}

void Engine::CommitTransaction() {
  if (miTransactionCount <= miNestedTransaction) {
    const bool abierta = miTransactionCount > 0;
    miTransactionCount = 0;
    Confirma(abierta);
  } else {
    --miTransactionCount;
  }
}

/// A commit that the server refuses has saved nothing; one whose answer is lost may have.
void Engine::Confirma(bool abierta) {
  const bool enLinea = PQstatus(conn) == CONNECTION_OK;
  PGresult* const respuesta = PQexec(conn, "COMMIT;");
  const bool confirmada = PQresultStatus(respuesta) == PGRES_COMMAND_OK;
  PQclear(respuesta);
  if (confirmada || !abierta || conn == nullptr) return;
  static std::string texto;  // a thrown text outlives its statement
  texto = enLinea && PQstatus(conn) == CONNECTION_BAD ? sinRespuesta : "";
  Lanza(texto.append(PQerrorMessage(conn)).c_str());
}

void Engine::RollBackTransaction() {
  if (miTransactionCount > 0) EjecutaAparte("ROLLBACK;");
  miTransactionCount = 0;
}

void Engine::Inicializa() {
  miTransactionCount = 0;
  miNestedTransaction = 1;
}

bool Engine::LeeFila(const char* sql, bool traza) { return LeeFila(sql, traza, conn); }

bool Engine::LeeFila(const char* sql, bool traza, PGconn* conexion) {
  if (traza) std::cout << sql << std::endl;
  EjecutaEn(conexion, sql);
  return PQntuples(res) > 0;
}

void Engine::EjecutaTrazando(const char* sql, bool traza) {
  if (traza) std::cout << sql << std::endl;
  Ejecuta(sql);
}

void Engine::EjecutaEscritura(const char* sql, bool traza) {
  EjecutaTrazando(sql, traza);
  LanzaSiRechazada();
}
