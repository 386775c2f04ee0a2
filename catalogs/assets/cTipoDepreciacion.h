// A depreciation type: the class of a fixed asset, with the rates, the deductible ceiling, the currency and
// the accounts with which assets of the class depreciate.
#pragma once

#include "framework/Registro.h"

class cTipoDepreciacion : public Registro<cTipoDepreciacion> {
 public:
  cTipoDepreciacion() { Clear(); }
  template <class... Valores>
  explicit cTipoDepreciacion(long id, const char* descripcion, Valores... valores) {
    TomaMiembros(id, descripcion, valores...);
  }

  void setDepreciacionID(long valor) { Pon(DepreciacionID, valor); }
  void setDepreDescripcion(const char* valor) { Pon(DepreDescripcion, valor); }
  void setDepreTasaContable(float valor) { Pon(DepreTasaContable, valor); }
  void setDepreTasaFiscal(float valor) { Pon(DepreTasaFiscal, valor); }
  void setMaximoDeducible(float valor) { Pon(MaximoDeducible, valor); }
  /// The currency, of 2 characters.
  void setDepreMoneda(const char* valor) { Pon(DepreMoneda, valor); }
  void setDeprePorcentaje(float valor) { Pon(DeprePorcentaje, valor); }
  void setDepre_Activo(const char* valor) { Pon(Depre_Activo, valor); }
  void setDepre_CtaDepre(const char* valor) { Pon(Depre_CtaDepre, valor); }
  void setDepre_CtaGasto(const char* valor) { Pon(Depre_CtaGasto, valor); }
  void setDepre_CtaBaja(const char* valor) { Pon(Depre_CtaBaja, valor); }

  long getDepreciacionID() const { return DepreciacionID; }
  const char* getDepreDescripcion() const { return DepreDescripcion; }
  float getDepreTasaContable() const { return DepreTasaContable; }
  float getDepreTasaFiscal() const { return DepreTasaFiscal; }
  float getMaximoDeducible() const { return MaximoDeducible; }
  const char* getDepreMoneda() const { return DepreMoneda; }
  float getDeprePorcentaje() const { return DeprePorcentaje; }
  const char* getDepre_Activo() const { return Depre_Activo; }
  const char* getDepre_CtaDepre() const { return Depre_CtaDepre; }
  const char* getDepre_CtaGasto() const { return Depre_CtaGasto; }
  const char* getDepre_CtaBaja() const { return Depre_CtaBaja; }

  /// Accounts that take no postings pass.
  bool Check();
  const char* clase() const { return "Tipo de Depreciacion"; }

 private:
  friend Registro<cTipoDepreciacion>;

  auto Columnas() {
    return std::tie(DepreciacionID, DepreMoneda, Depre_Activo, Depre_CtaDepre, Depre_CtaGasto, Depre_CtaBaja,
                    DepreDescripcion, DepreTasaContable, DepreTasaFiscal, MaximoDeducible, DeprePorcentaje);
  }
  auto Miembros() {
    return std::tie(DepreciacionID, DepreDescripcion, DepreTasaContable, DepreTasaFiscal, MaximoDeducible,
                    DepreMoneda, DeprePorcentaje, Depre_Activo, Depre_CtaDepre, Depre_CtaGasto,
                    Depre_CtaBaja);
  }
  long Clave() const { return DepreciacionID; }
  bool HayClaveFind() const { return DepreciacionID != 0; }
  void AlInsertar() { TomaClave(DepreciacionID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  /// The columns but the key, as insert and update send them.
  Sentencia SqlColumnas() const;

  long DepreciacionID;
  char DepreDescripcion[32];
  float DepreTasaContable;  // rates and percentage in percent
  float DepreTasaFiscal;
  float MaximoDeducible;
  char DepreMoneda[4];
  float DeprePorcentaje;
  char Depre_Activo[25];
  char Depre_CtaDepre[25];
  char Depre_CtaGasto[25];
  char Depre_CtaBaja[25];
};
