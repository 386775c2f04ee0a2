// An account of the chart of accounts.
#pragma once

#include "framework/Registro.h"

class cCatalogo_Ctas : public Registro<cCatalogo_Ctas> {
 public:
  cCatalogo_Ctas() { Clear(); }
  cCatalogo_Ctas(const char* cuentaID, const char* cuentaAcumula, const char* identificacion,
                 const char* cuentaNombre, const char* tipo, const char* estado, const date& fechaEstado,
                 const date& fechaUltMov, const char* naturaleza, double digitoAgrupador, double saldoInicial,
                 double cargos, double abonos, bool dataChanged, bool isNew);

  /// Key of 24 characters, stored with blanks behind it.
  void setCuentaID(const char* valor) { PonRellenado(CuentaID, 24, valor); }
  /// The account into which this one accumulates; empty at the top.
  void setCuentaAcumula(const char* valor) { Pon(CuentaAcumula, valor); }
  /// "0" to "6".
  void setIdentificacion(const char* valor) { Pon(Identificacion, valor); }
  void setCuentaNombre(const char* valor) { Pon(CuentaNombre, valor); }
  /// "A" takes postings, "C" does not.
  void setTipo_Cta(const char* valor) { Pon(Tipo_Cta, valor); }
  void setEstado_Cta(const char* valor) { Pon(Estado_Cta, valor); }
  void setFecha_Estado(const date& valor) { Pon(Fecha_Estado, valor); }
  void setFecha_Ult_Mov(const date& valor) { Pon(Fecha_Ult_Mov, valor); }
  /// "A" or "D".
  void setNaturaleza(const char* valor) { Pon(Naturaleza, valor); }
  void setDigito_Agrupador(double valor) { Pon(Digito_Agrupador, valor); }
  void setSaldo_Inic_Ejer(double valor) { Pon(Saldo_Inic_Ejer, valor); }
  void setCargos_Acum_Ejer(double valor) { Pon(Cargos_Acum_Ejer, valor); }
  void setAbonos_Acum_Ejer(double valor) { Pon(Abonos_Acum_Ejer, valor); }

  const char* getCuentaID() const { return CuentaID; }
  const char* getCuentaAcumula() const { return CuentaAcumula; }
  const char* getIdentificacion() const { return Identificacion; }
  const char* getCuentaNombre() const { return CuentaNombre; }
  const char* getTipo_Cta() const { return Tipo_Cta; }
  const char* getEstado_Cta() const { return Estado_Cta; }
  const date& getFecha_Estado() const { return Fecha_Estado; }
  const date& getFecha_Ult_Mov() const { return Fecha_Ult_Mov; }
  const char* getNaturaleza() const { return Naturaleza; }
  double getDigito_Agrupador() const { return Digito_Agrupador; }
  double getSaldo_Inic_Ejer() const { return Saldo_Inic_Ejer; }
  double getCargos_Acum_Ejer() const { return Cargos_Acum_Ejer; }
  double getAbonos_Acum_Ejer() const { return Abonos_Acum_Ejer; }

  /// As in every record, but a date that the answer has not stays as it was.
  void Fill(int fila);
  /// As in every record, but the dates are those of an empty text and isNew stays.
  void Clear();
  bool Check();
  const char* clase() const { return "Cuenta"; }
  /// As in every record, but isNew stays.
  void Update();
  /// AddNew in every branch that lacks the account; traced.
  void AddNewSucursales();

 private:
  friend Registro<cCatalogo_Ctas>;

  auto Columnas() {
    return std::tie(CuentaID, CuentaAcumula, Identificacion, CuentaNombre, Tipo_Cta, Estado_Cta, Fecha_Estado,
                    Fecha_Ult_Mov, Naturaleza, Digito_Agrupador, Saldo_Inic_Ejer, Cargos_Acum_Ejer,
                    Abonos_Acum_Ejer);
  }
  const char* Clave() const { return CuentaID; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  Sentencia SqlEscritura(const char* funcion, const char* fechaEstado, const char* fechaUltMov) const;

  char CuentaID[25];
  char CuentaAcumula[25];
  char Identificacion[2];
  char CuentaNombre[101];
  char Tipo_Cta[2];
  char Estado_Cta[3];
  date Fecha_Estado;
  date Fecha_Ult_Mov;
  char Naturaleza[3];
  double Digito_Agrupador;
  double Saldo_Inic_Ejer;
  double Cargos_Acum_Ejer;
  double Abonos_Acum_Ejer;
};
