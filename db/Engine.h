// The road of every statement to the server: one connection, one shared result, nested transactions.
//
// A statement is executed into the shared `res` (db/Conexion.h). The result of the statement before it is
// released by the next one, so a path may leave it behind. Failures travel as a thrown char*: a server text,
// which points into `res` and is valid until the next statement or clear, or a text of the program.
//
// A question to the server:
//
//   Ejecuta("SELECT count(*) FROM moneda;");
//   LanzaSiRechazada();                          // where the caller has to know; a read otherwise goes on
//   const int cuantas = atoi(Celda(0, 0));       // "" when there is no such row or column
//   LiberaResultado();                           // the text of a cell ends with its result
//
// A write of a class that derives from Engine, and what the form that started it does when it is refused:
//
//   Escribe(Sentencia("select spdmoneda('%s');", clave), false);        // BEGIN; select ...; COMMIT;
//
//   try {
//     registro.Delete();
//   } catch (char* texto) {
//     registro.RollBackTransaction();            // leaves `res`, into which `texto` points
//     cajaError(this, "Error en Validación", texto);
//   }
//
// Writes nest: one that runs in the answer of another (`alResponder`) is part of its transaction.
#pragma once

#include "db/Conexion.h"

/// Executes `sql` on the session's connection; its answer is in `res` (null when the connection is closed).
void Ejecuta(const char* sql);
/// The same on another connection.
void EjecutaEn(PGconn* conexion, const char* sql);

/// The connection of the reads that could use the second one: the session's while `bLocal` is true.
PGconn* ConexionDeLectura();

/// Clears the shared result and leaves it null.
void LiberaResultado();

/// The field of the shared result as text; "" for NULL and for a row or column that the answer does not have.
const char* Celda(int fila, int columna);

/// Throws `texto` as the plain char* that the forms catch.
[[noreturn]] void Lanza(const char* texto);

/// Did the server refuse the last statement (status 6 or 7)? A null result counts as refused.
bool Rechazada();

/// Throws the server's text if the last statement was refused; the text is empty for a null result.
void LanzaSiRechazada();

/// Opens a transaction around a load: executes "BEGIN;" and throws `mensaje`, or the server's text when it is
/// null, if the answer is not that of an executed command. The result is left in `res`.
void AbreTransaccion(const char* mensaje);

/// Base of the record classes; has no data of its own. The transaction depth is one for the whole process, so
/// a record that begins a transaction inside another record's transaction nests in it.
class Engine {
 public:
  Engine() {}

  /// Sends "BEGIN;" at depth 0; one level deeper in every case.
  void BeginTransaction();

  /// Sends "COMMIT;" from the outermost level, and also when nothing is open; one level up otherwise. Throws
  /// when an open transaction was not confirmed: the server's refusal, or a text that begins with "No se sabe
  /// si se guardó: " when the connection broke before the answer came. The depth is 0 then.
  void CommitTransaction();

  /// Sends "ROLLBACK;" if anything is open and resets the depth to 0. Leaves `res` as it is, so that a thrown
  /// server text can still be shown.
  void RollBackTransaction();

  /// Always true; does not look at the connection.
  bool Connected() { return true; }

  /// Resets the depth; sends nothing.
  void Inicializa();

 protected:
  /// The write: begin, trace, execute, throw on a refusal (the transaction then stays open for the catching
  /// form to roll back), `alResponder` with the answer in `res`, clear, commit.
  template <class AlResponder>
  void Escribe(const char* sql, bool traza, AlResponder alResponder) {
    BeginTransaction();
    EjecutaEscritura(sql, traza);
    alResponder();
    LiberaResultado();
    CommitTransaction();
  }

  /// The same without a look at the answer.
  void Escribe(const char* sql, bool traza) {
    Escribe(sql, traza, [] {});
  }

  /// One more statement of a write: trace, execute, throw on a refusal.
  void EjecutaEscritura(const char* sql, bool traza);

  /// The write whose refusal passes in silence: begin, trace, execute, `alResponder` with the answer in
  /// `res`, clear, commit. A refused statement leaves nothing to commit.
  template <class AlResponder>
  void EscribeCallada(const char* sql, bool traza, AlResponder alResponder) {
    BeginTransaction();
    EjecutaTrazando(sql, traza);
    alResponder();
    LiberaResultado();
    CommitTransaction();
  }

  /// The same without a look at the answer.
  void EscribeCallada(const char* sql, bool traza) {
    EscribeCallada(sql, traza, [] {});
  }

  /// The single-row read: trace and execute. True if a row came, which the caller fills from and then clears;
  /// without a row the result stays uncleared. The status is not looked at.
  bool LeeFila(const char* sql, bool traza);
  bool LeeFila(const char* sql, bool traza, PGconn* conexion);

  static int miTransactionCount;
  static int miNestedTransaction;

 private:
  static void Confirma(bool abierta);
  void EjecutaTrazando(const char* sql, bool traza);
};

/// Engine as the virtual base of the records that others are built on.
class EngineVirtual : public virtual Engine {};
