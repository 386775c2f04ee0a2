// A period of a series of variable rates, with its two values.
#pragma once

#include "framework/Registro.h"

class cTasaInteres : public Registro<cTasaInteres> {
 public:
  cTasaInteres() { Clear(); }
  cTasaInteres(int id, const char* tipo, const date& inicial, const date& final, double valor1, double valor2,
               bool dataChanged, bool isNew);

  void setTasainteresId(int valor) { Pon(TasainteresId, valor); }
  void setTipotasa(const char* valor) { Pon(Tipotasa, valor); }
  void setFechainicial(const date& valor) { Pon(Fechainicial, valor); }
  void setFechafinal(const date& valor) { Pon(Fechafinal, valor); }
  void setValor1(double valor) { Pon(Valor1, valor); }
  void setValor2(double valor) { Pon(Valor2, valor); }

  int getTasainteresId() const { return TasainteresId; }
  const char* getTipotasa() const { return Tipotasa; }
  const date& getFechainicial() const { return Fechainicial; }
  const date& getFechafinal() const { return Fechafinal; }
  double getValor1() const { return Valor1; }
  double getValor2() const { return Valor2; }

  /// Accepts everything.
  bool Check() { return true; }
  const char* clase() const { return "tasasinteres"; }

  /// As every record's, with the key traced twice ahead of the statement.
  void Update();

 private:
  friend Registro<cTasaInteres>;
  static constexpr unsigned trazas = TrazaAddNew | TrazaUpdate | TrazaFind;

  auto Columnas() { return std::tie(TasainteresId, Tipotasa, Fechainicial, Fechafinal, Valor1, Valor2); }
  int Clave() const { return TasainteresId; }
  void AlInsertar() { TomaClave(TasainteresId); }

  /// Sends the two halves of the first value in the place of the two values.
  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  int TasainteresId;
  char Tipotasa[60];
  date Fechainicial;
  date Fechafinal;
  double Valor1;
  double Valor2;
};
