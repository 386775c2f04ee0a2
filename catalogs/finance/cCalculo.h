// A formula of interest, kept as text for the server to evaluate.
#pragma once

#include "framework/Registro.h"

class cCalculo : public Registro<cCalculo> {
 public:
  cCalculo() { Clear(); }
  cCalculo(long id, const char* descripcion, float saldo, long dias, float normal, float moratorio,
           const char* formula, bool dataChanged, bool isNew);

  void setCalculoID(long valor) { Pon(CalculoID, valor); }
  void setDescripcionCalculo(const char* valor) { Pon(DescripcionCalculo, valor); }
  // The figures that the formula is tried with; they are never sent.
  void setSaldoInsoluto(float valor) { Pon(SaldoInsoluto, valor); }
  void setDias(long valor) { Pon(Dias, valor); }
  void setTasaIntNormal(float valor) { Pon(TasaIntNormal, valor); }
  void setTasaIntMoratorio(float valor) { Pon(TasaIntMoratorio, valor); }
  void setFormula(const char* valor) { Pon(Formula, valor); }

  long getCalculoID() const { return CalculoID; }
  const char* getDescripcionCalculo() const { return DescripcionCalculo; }
  float getSaldoInsoluto() const { return SaldoInsoluto; }
  long getDias() const { return Dias; }
  float getTasaIntNormal() const { return TasaIntNormal; }
  float getTasaIntMoratorio() const { return TasaIntMoratorio; }
  const char* getFormula() const { return Formula; }

  bool Check();
  const char* clase() const { return "Calculo"; }

 private:
  friend Registro<cCalculo>;

  /// The balance is read twice: the last column of the answer has it.
  auto Columnas() {
    return std::tie(CalculoID, DescripcionCalculo, SaldoInsoluto, Dias, TasaIntNormal, TasaIntMoratorio,
                    Formula, SaldoInsoluto);
  }
  long Clave() const { return CalculoID; }
  void AlInsertar() { TomaClave(CalculoID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  long CalculoID;
  char DescripcionCalculo[44];
  float SaldoInsoluto;
  long Dias;
  float TasaIntNormal;
  float TasaIntMoratorio;
  char Formula[256];
};
