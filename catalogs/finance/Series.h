// The records of the series that the server reckons with: by day or by month, the day or the month being the
// key.
#pragma once

#include <utility>

#include "framework/Registro.h"

/// A row of a series by day. `Clase` states its columns and statements.
template <class Clase>
class SerieDiaria : public Registro<Clase> {
 public:
  void setFecha(const date& valor) { this->Pon(Fecha, valor); }
  const date& getFecha() const { return Fecha; }

  /// As in every record; the date is that of an empty text.
  void Clear() {
    Registro<Clase>::Clear();
    Fecha = date("");
  }

 protected:
  const date& Clave() const { return Fecha; }

  date Fecha;
};

/// A row of a series by month: one figure. `Clase` states the name of the series, `serie`, as the server's
/// functions bear it, and gives the figure its own name. Which months there are is up to the server.
template <class Clase>
class SerieMensual : public Registro<Clase> {
 public:
  void setAno(int valor) { this->Pon(Ano, valor); }
  void setMes(int valor) { this->Pon(Mes, valor); }
  int getAno() const { return Ano; }
  int getMes() const { return Mes; }

 protected:
  auto Columnas() { return std::tie(Ano, Mes, Cifra); }
  auto Clave() const { return std::pair(Ano, Mes); }

  Sentencia SqlAddNew() const { return SqlEscritura("spi"); }
  Sentencia SqlUpdate() const { return SqlEscritura("spu"); }
  Sentencia SqlDelete() const { return Sentencia("SELECT spd%s(%i,%i);", Clase::serie, Ano, Mes); }
  Sentencia SqlFind() const { return Sentencia("SELECT * FROM sps%s(%i,%i);", Clase::serie, Ano, Mes); }

  int Ano;
  int Mes;
  double Cifra;

 private:
  Sentencia SqlEscritura(const char* funcion) const {
    return Sentencia("select %s%s(%i,%i,%f);", funcion, Clase::serie, Ano, Mes, Cifra);
  }
};
