// The statement spy: what does the program really send to the server, and what if the server fails just
// there?
//
// Test programs are linked with `-Wl,--wrap=PQexec`. While an Espia lives, every PQexec of the program is
// recorded, and those that it was told to spoil get another answer:
//
//   Espia espia;
//   espia.En(1, falla::CorteAntes());              // the second statement from now on finds the line dead
//   espia.Cuando("spimoneda", falla::Error("No"));  // every statement that contains the text
//   EXPECT_THROW(moneda.AddNew(), char*);
//   EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "select spimoneda(...);"}));
#pragma once

#include <libpq-fe.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/Textos.h"

/// The library's own PQexec, as the linker's --wrap names it: sends without being seen.
extern "C" PGresult* __real_PQexec(PGconn* conexion, const char* sentencia);

namespace pruebas {

/// Answers a statement in the server's place; the result belongs to the caller of PQexec.
using Falla = std::function<PGresult*(PGconn* conexion, const char* sentencia)>;

/// The ways in which an answer can be bad. Those that spoil an answer send the statement first, so its effect
/// on the server is real; a statement that yields no row gets one, so that the garbage is looked at.
namespace falla {
/// No answer at all: a null result. The statement is not sent.
Falla Nula();
/// The server refuses: PQresultErrorMessage is "ERROR:  <texto>" and a line break. The statement is not sent,
/// but an open transaction is broken as by any refused statement.
Falla Error(const std::string& texto);
/// The right answer without any row.
Falla SinFilas();
/// The right answer with its first `columnas` columns only.
Falla Recortada(int columnas);
/// The right answer with NULL in every field.
Falla ConNulos();
/// The right answer with the same text, of `largo` characters, in every field.
Falla ConTextos(int largo = 5000);
/// The connection breaks before the statement is sent: the server never sees it.
Falla CorteAntes();
/// The connection breaks when the server has carried the statement out: its answer is lost.
Falla CorteDespues();
}  // namespace falla

/// A statement and what came back: the status of its answer, PGRES_FATAL_ERROR for none.
struct SentenciaVista {
  std::string texto;
  ExecStatusType estado;
};

/// Listens from its construction to its destruction. One at a time: a second one throws std::logic_error.
class Espia {
 public:
  Espia();
  ~Espia();
  Espia(const Espia&) = delete;
  Espia& operator=(const Espia&) = delete;

  /// Spoils the statement number `n`, counted from 0 since the construction or the last Vacia.
  void En(size_t n, Falla falla);
  /// Spoils every statement that contains `texto`. The first rule that fits is the one that counts, En ahead.
  void Cuando(const std::string& texto, Falla falla);

  /// The texts of all statements, in order.
  Textos Sentencias() const;
  /// The same with the status of each answer.
  const std::vector<SentenciaVista>& Historia() const { return historia_; }
  /// How many statements contain `texto`.
  size_t Cuantas(const std::string& texto) const;
  /// Forgets statements and failures, and counts from 0 again.
  void Vacia();

  /// The hook behind PQexec; not for tests.
  PGresult* Atiende(PGconn* conexion, const char* sentencia);

 private:
  Falla Elige(const std::string& sentencia) const;

  std::vector<SentenciaVista> historia_;
  std::vector<std::pair<size_t, Falla>> porNumero_;
  std::vector<std::pair<std::string, Falla>> porTexto_;
};

}  // namespace pruebas
