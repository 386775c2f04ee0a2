// A fixed asset: its class, its values, where it is, and its depreciation twice over, in the books and for
// taxes. The client only records them; the server depreciates.
#pragma once

#include "framework/Registro.h"

class cActivo : public Registro<cActivo> {
 public:
  cActivo() { Clear(); }
  template <class... Valores>
  explicit cActivo(long id, long depreciacion, Valores... valores) {
    TomaMiembros(id, depreciacion, valores...);
  }

  void setActivoID(long valor) { Pon(ActivoID, valor); }
  /// The depreciation type.
  void setDepreciacionID(long valor) { Pon(DepreciacionID, valor); }
  void setActivoClave(const char* valor) { Pon(ActivoClave, valor); }
  void setActivoDescripcion(const char* valor) { Pon(ActivoDescripcion, valor); }
  void setActivo_Valor(float valor) { Pon(Activo_Valor, valor); }
  void setPorcenVidaUtil(float valor) { Pon(PorcenVidaUtil, valor); }
  void setValorMercado(float valor) { Pon(ValorMercado, valor); }
  void setLocalizacion(const char* valor) { Pon(Localizacion, valor); }
  void setActivoNoSerie(const char* valor) { Pon(ActivoNoSerie, valor); }
  void setFecInicioDepConta(date valor) { Pon(FecInicioDepConta, valor); }
  void setActivoTasaConta(float valor) { Pon(ActivoTasaConta, valor); }
  void setActDepreAcumConta(float valor) { Pon(ActDepreAcumConta, valor); }
  /// 0 straight line, 1 sum of the years' digits, 2 double declining balance; -1 for none.
  void setActMetodoDepreConta(int valor) { Pon(ActMetodoDepreConta, valor); }
  void setFecInicioDepFiscal(date valor) { Pon(FecInicioDepFiscal, valor); }
  /// "S" or "N".
  void setActDeduccionInme(const char* valor) { Pon(ActDeduccionInme, valor); }
  void setActivoTasaFiscal(float valor) { Pon(ActivoTasaFiscal, valor); }
  void setActDepreAcumFiscal(float valor) { Pon(ActDepreAcumFiscal, valor); }
  /// As the method of the books.
  void setActMetodoDepreFiscal(int valor) { Pon(ActMetodoDepreFiscal, valor); }
  void setActMonMaxDeduFiscal(float valor) { Pon(ActMonMaxDeduFiscal, valor); }
  void setMontoOriginal(float valor) { Pon(MontoOriginal, valor); }
  /// The currency, of 2 characters.
  void setMonedaID(const char* valor) { Pon(MonedaID, valor); }
  /// 0 products, 1 sales, 2 administration; -1 for none.
  void setDepartamento(int valor) { Pon(Departamento, valor); }

  long getActivoID() const { return ActivoID; }
  long getDepreciacionID() const { return DepreciacionID; }
  const char* getActivoClave() const { return ActivoClave; }
  const char* getActivoDescripcion() const { return ActivoDescripcion; }
  float getActivo_Valor() const { return Activo_Valor; }
  float getPorcenVidaUtil() const { return PorcenVidaUtil; }
  float getValorMercado() const { return ValorMercado; }
  const char* getLocalizacion() const { return Localizacion; }
  const char* getActivoNoSerie() const { return ActivoNoSerie; }
  date getFecInicioDepConta() const { return FecInicioDepConta; }
  float getActivoTasaConta() const { return ActivoTasaConta; }
  float getActDepreAcumConta() const { return ActDepreAcumConta; }
  int getActMetodoDepreConta() const { return ActMetodoDepreConta; }
  date getFecInicioDepFiscal() const { return FecInicioDepFiscal; }
  const char* getActDeduccionInme() const { return ActDeduccionInme; }
  float getActivoTasaFiscal() const { return ActivoTasaFiscal; }
  float getActDepreAcumFiscal() const { return ActDepreAcumFiscal; }
  int getActMetodoDepreFiscal() const { return ActMetodoDepreFiscal; }
  float getActMonMaxDeduFiscal() const { return ActMonMaxDeduFiscal; }
  float getMontoOriginal() const { return MontoOriginal; }
  const char* getMonedaID() const { return MonedaID; }
  int getDepartamento() const { return Departamento; }

  /// A date need not be a day of the calendar.
  bool Check();
  const char* clase() const { return "Activo"; }

 private:
  friend Registro<cActivo>;
  static constexpr unsigned trazas = TrazaAddNew;

  auto Columnas() {
    return std::tie(ActivoID, DepreciacionID, ActivoClave, ActivoDescripcion, Activo_Valor, PorcenVidaUtil,
                    ValorMercado, Localizacion, ActivoNoSerie, FecInicioDepConta, ActivoTasaConta,
                    ActDepreAcumConta, ActMetodoDepreConta, FecInicioDepFiscal, ActDeduccionInme,
                    ActivoTasaFiscal, ActDepreAcumFiscal, ActMetodoDepreFiscal, ActMonMaxDeduFiscal,
                    MontoOriginal, MonedaID, Departamento);
  }
  auto Miembros() { return Columnas(); }
  long Clave() const { return ActivoID; }
  bool HayClaveFind() const { return ActivoID != 0; }
  void AlInsertar() { TomaClave(ActivoID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  /// The columns but the key, as insert and update send them.
  Sentencia SqlColumnas() const;

  long ActivoID;
  long DepreciacionID;
  char ActivoClave[21];
  char ActivoDescripcion[259];
  float Activo_Valor;
  float PorcenVidaUtil;
  float ValorMercado;
  char Localizacion[51];
  char ActivoNoSerie[21];
  date FecInicioDepConta;
  float ActivoTasaConta;
  float ActDepreAcumConta;
  int ActMetodoDepreConta;
  date FecInicioDepFiscal;
  char ActDeduccionInme[4];
  float ActivoTasaFiscal;
  float ActDepreAcumFiscal;
  int ActMetodoDepreFiscal;
  float ActMonMaxDeduFiscal;
  float MontoOriginal;
  char MonedaID[4];
  int Departamento;
};
