// A bank account of the institution: its balances, its account in the chart and its series of cheques.
#pragma once

#include "framework/Registro.h"

class cBanco : public Registro<cBanco, EngineVirtual> {
 public:
  cBanco() { Clear(); }
  template <class... Valores>
  explicit cBanco(const char* cuenta, Valores... valores) {
    TomaMiembros(cuenta, valores...);
  }

  /// Key of 15 characters, stored with blanks behind it.
  void setNo_Cuenta(const char* valor) { PonRellenado(No_Cuenta, 15, valor); }
  void setBanco(const char* valor) { Pon(Banco, valor); }
  /// May be missing.
  void setFecha_Inicio(const date& valor) { Pon(Fecha_Inicio, valor); }
  void setSaldo_Inicial(double valor) { Pon(Saldo_Inicial, valor); }
  void setSaldo_Actual(double valor) { Pon(Saldo_Actual, valor); }
  /// What is not reconciled with the bank yet.
  void setSaldo_Pen(double valor) { Pon(Saldo_Pen, valor); }
  void setCuentaID(const char* valor) { Pon(CuentaID, valor); }
  void setSerie(const char* valor) { Pon(Serie, valor); }
  void setNoCheque(long valor) { Pon(NoCheque, valor); }

  const char* getNo_Cuenta() const { return No_Cuenta; }
  const char* getBanco() const { return Banco; }
  const date& getFecha_Inicio() const { return Fecha_Inicio; }
  double getSaldo_Inicial() const { return Saldo_Inicial; }
  double getSaldo_Actual() const { return Saldo_Actual; }
  double getSaldo_Pen() const { return Saldo_Pen; }
  const char* getCuentaID() const { return CuentaID; }
  const char* getSerie() const { return Serie; }
  long getNoCheque() const { return NoCheque; }

  /// As in every record; the date is that of an empty text.
  void Clear();
  bool Check();
  const char* clase() const { return "Banco"; }

 private:
  friend Registro<cBanco, EngineVirtual>;
  static constexpr unsigned trazas = TrazaAddNew | TrazaUpdate;

  auto Columnas() {
    return std::tie(No_Cuenta, CuentaID, Banco, Fecha_Inicio, Saldo_Inicial, Saldo_Actual, Saldo_Pen, Serie,
                    NoCheque);
  }
  auto Miembros() {
    return std::tie(No_Cuenta, Banco, Fecha_Inicio, Saldo_Inicial, Saldo_Actual, Saldo_Pen, CuentaID, Serie,
                    NoCheque);
  }
  const char* Clave() const { return No_Cuenta; }

  Sentencia SqlAddNew() const { return SqlEscritura("spibanco"); }
  Sentencia SqlUpdate() const { return SqlEscritura("spubanco"); }
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  Sentencia SqlEscritura(const char* funcion) const;

  char No_Cuenta[16];
  char Banco[28];
  date Fecha_Inicio;
  double Saldo_Inicial;
  double Saldo_Actual;
  double Saldo_Pen;
  char CuentaID[25];
  char Serie[3];
  long NoCheque;
};
