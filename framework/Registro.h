// What every record class shares.
//
// A record `class cX : public Registro<cX>` states only what is its own, as private members open to
// `friend Registro<cX>`:
//
//   static constexpr unsigned trazas    the statements that it traces, where it traces any
//   auto Columnas()                     std::tie of its columns, in the order of the server's answer
//   auto Clave() const                  the key: a text, an integer, a date, or a std::pair of these
//   Sentencia SqlAddNew() const         and SqlUpdate, SqlDelete, SqlFind: its four statements
//   void AlInsertar()                   TomaClave(key), where the server assigns the key
//   auto Miembros()                     std::tie of its columns in the order of its members, where the
//                                       constructor follows that one
//
// A record that is saved with more than one statement sends the others in AlInsertar and AlCambiar.
//
// Publicly it has two constructors, setters (through Pon and its like), getters, Check and clase(). The
// constructor without arguments makes a blank record; that with every column and both flags stores each as it
// stands, a key without the blanks behind it. Check answers true, or throws the message of the first rule
// that is broken. A record that others are built on names EngineVirtual as the second argument. What a record
// does in its own way it defines under the same name; only there does its header repeat what an operation
// does.
#pragma once

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <tuple>
#include <type_traits>
#include <utility>

#include "db/Engine.h"
#include "framework/Sentencia.h"
#include "widgets/TextoAcotado.h"
#include "widgets/date.h"

/// The statements that a record class writes to standard output before it executes them: a sum of these.
enum Traza : unsigned { TrazaNinguna = 0, TrazaAddNew = 1, TrazaUpdate = 2, TrazaDelete = 4, TrazaFind = 8 };

/// The whole number at the start of a text, as atol reads it; a long catalogue has a million of them.
inline long EnteroDe(const char* texto) {
  const char* const fin = texto + strlen(texto);
  long valor = 0;
  const auto [resto, error] = std::from_chars(texto, fin, valor);
  return error == std::errc() ? valor : strtol(texto, nullptr, 10);
}

/// Converts one row of the shared result, field after field, into columns.
class LectorDeFila {
 public:
  explicit LectorDeFila(int fila) : fila(fila), columnas(fila < PQntuples(res) ? PQnfields(res) : 0) {}

  template <size_t N>
  void operator()(char (&columna)[N]) {
    CopiaTexto(columna, Siguiente());
  }
  void operator()(int& columna) { columna = static_cast<int>(EnteroDe(Siguiente())); }
  void operator()(long& columna) { columna = EnteroDe(Siguiente()); }
  void operator()(float& columna) { columna = strtof(Siguiente(), nullptr); }
  void operator()(double& columna) { columna = atof(Siguiente()); }
  void operator()(date& columna) { columna = date(Siguiente()); }

 private:
  const char* Siguiente() { return siguiente < columnas ? PQgetvalue(res, fila, siguiente++) : ""; }

  int fila;
  int columnas;
  int siguiente = 0;
};

/// Stores `valor` in a column as it stands; a text is cut to its width, a number narrows to the column.
template <class T, class Valor>
void GuardaColumna(T& columna, const Valor& valor) {
  if constexpr (std::is_array_v<T>) {
    CopiaTexto(columna, valor);
  } else {
    columna = static_cast<T>(valor);
  }
}

/// Empties a text, zeroes a number.
template <size_t N>
void VaciaColumna(char (&columna)[N]) {
  columna[0] = '\0';
}
template <class T>
void VaciaColumna(T& columna) {
  columna = T();
}

/// Takes the columns from row `fila` of the shared result; a missing field reads as an empty one.
template <class... Columnas>
void LlenaColumnas(std::tuple<Columnas&...> columnas, int fila) {
  std::apply([lector = LectorDeFila(fila)](auto&... columna) mutable { (lector(columna), ...); }, columnas);
}

/// Stores `valores`, one for each column.
template <class... Columnas, class... Valores>
void GuardaColumnas(std::tuple<Columnas&...> columnas, const Valores&... valores) {
  std::apply([&](auto&... columna) { (GuardaColumna(columna, valores), ...); }, columnas);
}

template <class... Columnas>
void VaciaColumnas(std::tuple<Columnas&...> columnas) {
  std::apply([](auto&... columna) { (VaciaColumna(columna), ...); }, columnas);
}

template <class Clase, class Base = Engine>
class Registro : public Base {
 public:
  void Copy(const Clase& otra) { Yo() = otra; }

  void setDataChanged(bool valor) { dataChanged = valor; }
  bool getDataChanged() const { return dataChanged; }
  void setIsNew(bool valor) { isNew = valor; }
  bool IsNew() const { return isNew; }

  /// The order of a record that a `lista` holds: its integer key alone.
  bool operator>(const Clase& otra) const { return ClaveEntera() > otra.ClaveEntera(); }
  bool operator<=(const Clase& otra) const { return ClaveEntera() <= otra.ClaveEntera(); }

  /// Takes row `fila` of the shared result, which the caller owns; both flags false. A missing column reads
  /// as an empty one.
  void Fill(int fila) {
    LlenaColumnas(Yo().Columnas(), fila);
    dataChanged = isNew = false;
  }

  /// Empties every column; both flags false.
  void Clear() {
    VaciaColumnas(Yo().Columnas());
    dataChanged = isNew = false;
  }

  /// Calls `accion` with each column, in the order of the server's answer.
  template <class Accion>
  void CadaColumna(Accion accion) const {
    std::apply([&](const auto&... columna) { (accion(columna), ...); }, const_cast<Clase&>(Yo()).Columnas());
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
    this->Escribe(Yo().SqlUpdate(), this->SeTraza(TrazaUpdate), [this] { Yo().AlCambiar(); });
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
    if (Yo().HayClaveFind()) Busca(Yo().SqlFind(), this->SeTraza(TrazaFind));
  }

 protected:
  static constexpr unsigned trazas = TrazaNinguna;

  /// Is there a key to look for, and one to delete? An integer one is above 0, and not 0; a date was given;
  /// of a pair both halves are there.
  bool HayClaveFind() const { return Buscable(Yo().Clave()); }
  bool HayClaveDelete() const { return Borrable(Yo().Clave()); }

  /// What Find does with `sql`, whatever the key. Answers whether there was a row.
  bool Busca(const char* sql, bool traza, PGconn* conexion = conn) {
    if (!this->LeeFila(sql, traza, conexion)) {
      isNew = true;
      return false;
    }
    Yo().Fill(0);
    LiberaResultado();
    return true;
  }

  /// What the constructor with every column and both flags does: `valores` in the order of Columnas, each as
  /// it stands.
  template <class... Valores>
  void Toma(bool cambiado, bool nuevo, const Valores&... valores) {
    GuardaColumnas(Yo().Columnas(), valores...);
    dataChanged = cambiado;
    isNew = nuevo;
  }

  /// The same with `valores` in the order of Miembros, and both flags behind them.
  template <class... Valores>
  void TomaMiembros(const Valores&... valores) {
    GuardaColumnas(std::tuple_cat(Yo().Miembros(), std::tie(dataChanged, isNew)), valores...);
  }

  /// A rule of Check: throws `mensaje` for an empty text.
  static void ExigeTexto(const char* columna, const char* mensaje) {
    if (columna[0] == '\0') Lanza(mensaje);
  }

  /// Follow the insert and the update inside their transaction, with the server's answer in `res`.
  void AlInsertar() {}
  void AlCambiar() {}

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

  /// The same for a date, by its three numbers: one that is no day of the calendar equals itself here.
  void Pon(date& columna, const date& valor) {
    if (MismaFecha(columna, valor)) return;
    columna = valor;
    dataChanged = true;
  }

  bool dataChanged = false;
  bool isNew = false;

 private:
  static constexpr bool SeTraza(Traza operacion) { return (Clase::trazas & operacion) != 0; }
  static bool Buscable(const char* clave) { return clave[0] != '\0'; }
  static bool Buscable(long clave) { return clave > 0; }
  static bool Buscable(const date& clave) { return !FaltaFecha(clave); }
  template <class A, class B>
  static bool Buscable(const std::pair<A, B>& clave) {
    return Buscable(clave.first) && Buscable(clave.second);
  }
  static bool Borrable(const char* clave) { return clave[0] != '\0'; }
  static bool Borrable(long clave) { return clave != 0; }
  static bool Borrable(const date& clave) { return !FaltaFecha(clave); }
  template <class A, class B>
  static bool Borrable(const std::pair<A, B>& clave) {
    return Borrable(clave.first) && Borrable(clave.second);
  }

  long ClaveEntera() const { return Yo().Clave(); }
  Clase& Yo() { return static_cast<Clase&>(*this); }
  const Clase& Yo() const { return static_cast<const Clase&>(*this); }
};
