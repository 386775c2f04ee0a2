// What every record class shares.
//
// A record `class cX : public Registro<cX>` states only what is its own, as private members open to
// `friend Registro<cX>`:
//
//   static constexpr unsigned trazas        the statements that it traces, where it traces any
//   template <class V> void Columnas(V v)   v(column) for each column, in the order of the server's answer
//   bool HayClaveFind() const               is there a key to look for
//   bool HayClaveDelete() const             is there a key to delete
//   Sentencia SqlAddNew() const             and SqlUpdate, SqlDelete, SqlFind: its four statements
//   void AlInsertar()                       TomaClave(key), where the server assigns the key
//
// and publicly its constructors, setters (through Pon and its like), getters, Check and clase(). A record
// that others are built on names EngineVirtual as the second argument.
#pragma once

#include <cstdlib>
#include <cstring>

#include "app/sesion.h"
#include "db/Engine.h"
#include "framework/Sentencia.h"
#include "widgets/TextoAcotado.h"
#include "widgets/date.h"

/// The statements that a record class writes to standard output before it executes them: a sum of these.
enum Traza : unsigned { TrazaNinguna = 0, TrazaAddNew = 1, TrazaUpdate = 2, TrazaDelete = 4, TrazaFind = 8 };

/// Column visitor: takes the columns, one after the other, from one row of the shared result.
class LectorDeFila {
 public:
  explicit LectorDeFila(int fila) : fila(fila) {}

  template <size_t N>
  void operator()(char (&columna)[N]) {
    CopiaTexto(columna, Siguiente());
  }
  void operator()(int& columna) { columna = atoi(Siguiente()); }
  void operator()(long& columna) { columna = atol(Siguiente()); }
  void operator()(float& columna) { columna = strtof(Siguiente(), nullptr); }
  void operator()(double& columna) { columna = atof(Siguiente()); }
  void operator()(date& columna) { columna = date(Siguiente()); }

 private:
  const char* Siguiente() { return Celda(fila, siguiente++); }

  int fila;
  int siguiente = 0;
};

/// Column visitor: empties texts, zeroes numbers.
struct Vaciador {
  template <size_t N>
  void operator()(char (&columna)[N]) {
    columna[0] = '\0';
  }
  template <class T>
  void operator()(T& columna) {
    columna = T();
  }
};

template <class Clase, class Base = Engine>
class Registro : public Base {
 public:
  void Copy(const Clase& otra) { Yo() = otra; }

  void setDataChanged(bool valor) { dataChanged = valor; }
  bool getDataChanged() const { return dataChanged; }
  void setIsNew(bool valor) { isNew = valor; }
  bool IsNew() const { return isNew; }

  /// Takes row `fila` of the shared result, which the caller owns; both flags false. A missing column reads
  /// as an empty one.
  void Fill(int fila) {
    Yo().Columnas(LectorDeFila(fila));
    dataChanged = isNew = false;
  }

  /// Empties every column; both flags false.
  void Clear() {
    Yo().Columnas(Vaciador());
    dataChanged = isNew = false;
  }

  /// Inserts the row if a setter changed anything; both flags false afterwards. Throws what Check throws,
  /// ahead of any statement, or the server's text, with the transaction left open.
  void AddNew() {
    if (!dataChanged || !Yo().Check()) return;
    this->Escribe(Yo().SqlAddNew(), this->SeTraza(TrazaAddNew), [this] { Yo().AlInsertar(); });
    dataChanged = isNew = false;
  }

  /// Updates the row; otherwise as AddNew.
  void Update() {
    if (!dataChanged || !Yo().Check()) return;
    this->Escribe(Yo().SqlUpdate(), this->SeTraza(TrazaUpdate));
    dataChanged = isNew = false;
  }

  /// Deletes the row with the present key, if there is one; leaves columns and flags. Throws the server's
  /// text.
  void Delete() {
    if (Yo().HayClaveDelete()) this->Escribe(Yo().SqlDelete(), this->SeTraza(TrazaDelete));
  }

  /// Reads the row with the present key, if there is one. Found: columns filled, both flags false. Not found,
  /// or a failed query: isNew true and the rest as it was. Never throws.
  void Find() {
    if (!Yo().HayClaveFind()) return;
    if (this->LeeFila(Yo().SqlFind(), this->SeTraza(TrazaFind))) {
      Yo().Fill(0);
      LiberaResultado();
    } else {
      isNew = true;
    }
  }

 protected:
  static constexpr unsigned trazas = TrazaNinguna;

  /// Sees the server's answer to the insert.
  void AlInsertar() {}

  /// Takes the key that the server assigned from its answer to the insert, if there is one.
  template <class Clave>
  void TomaClave(Clave& clave) {
    if (PQntuples(res) > 0) clave = atol(Celda(0, 0));
  }

  /// What the setter of a text does: stores `valor`, cut to the column, and marks the record if that is a
  /// change.
  template <size_t N>
  void Pon(char (&columna)[N], const char* valor) {
    char nuevo[N];
    CopiaTexto(nuevo, valor);
    if (strcmp(columna, nuevo) == 0) return;
    CopiaTexto(columna, nuevo);
    dataChanged = true;
  }

  /// The same for a text stored with blanks behind it up to `ancho` bytes; `valor` is compared as it stands.
  template <size_t N>
  void PonRellenado(char (&columna)[N], int ancho, const char* valor) {
    if (strcmp(columna, valor) == 0) return;
    FormateaTexto(columna, "%-*s", ancho, valor);
    dataChanged = true;
  }

  /// The same for a text stored up to `limite` bytes; `valor` is compared as it stands.
  template <size_t N>
  void PonLimitado(char (&columna)[N], int limite, const char* valor) {
    if (strcmp(columna, valor) == 0) return;
    FormateaTexto(columna, "%.*s", limite, valor);
    dataChanged = true;
  }

  /// The same for a number.
  template <class T>
  void Pon(T& columna, T valor) {
    if (columna == valor) return;
    columna = valor;
    dataChanged = true;
  }

  bool dataChanged = false;
  bool isNew = false;

 private:
  static constexpr bool SeTraza(Traza operacion) { return (Clase::trazas & operacion) != 0; }
  Clase& Yo() { return static_cast<Clase&>(*this); }
};
