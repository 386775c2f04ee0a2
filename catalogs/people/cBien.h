// A good that a person owns: a property with its registry data and values. It is edited in the person's list
// and saved with the person.
#pragma once

#include "framework/Registro.h"

class cBien : public Registro<cBien, EngineVirtual> {
 public:
  cBien() { Clear(); }
  cBien(long id, long sujetoID, const char* propietario, const char* descri, const char* caracteristicas,
        const char* registroPublico, float valorComercial, float valorFiscal, float valorCatastro,
        const char* datosHipoteca, float relacionGarantia, const char* adjudicado,
        const date& fechaAdjudicado, bool dataChanged, bool isNew, bool deleted);

  void setBienID(long valor) { Pon(BienID, valor); }
  void setSujetoID(long valor) { Pon(SujetoID, valor); }
  void setPropietario(const char* valor) { Pon(Propietario, valor); }
  void setDescriBien(const char* valor) { Pon(DescriBien, valor); }
  void setCaracteristicas(const char* valor) { Pon(Caracteristicas, valor); }
  void setRegistroPublico(const char* valor) { Pon(RegistroPublico, valor); }
  void setValorComercial(float valor) { Pon(ValorComercial, valor); }
  void setValorFiscal(float valor) { Pon(ValorFiscal, valor); }
  void setValorCatastro(float valor) { Pon(ValorCatastro, valor); }
  void setDatosHipoteca(const char* valor) { Pon(DatosHipoteca, valor); }
  /// How many times the good covers what it guarantees.
  void setRelacionGarantia(float valor) { Pon(RelacionGarantia, valor); }
  /// "S" or "N".
  void setAdjudicado(const char* valor) { Pon(Adjudicado, valor); }
  /// Only an adjudicated good sends it.
  void setFechaAdjudicado(const date& valor) { Pon(FechaAdjudicado, valor); }
  /// To be deleted when its person is saved.
  void setDeleted(bool valor) { deleted = valor; }

  long getBienID() const { return BienID; }
  long getSujetoID() const { return SujetoID; }
  const char* getPropietario() const { return Propietario; }
  const char* getDescriBien() const { return DescriBien; }
  const char* getCaracteristicas() const { return Caracteristicas; }
  const char* getRegistroPublico() const { return RegistroPublico; }
  float getValorComercial() const { return ValorComercial; }
  float getValorFiscal() const { return ValorFiscal; }
  float getValorCatastro() const { return ValorCatastro; }
  const char* getDatosHipoteca() const { return DatosHipoteca; }
  float getRelacionGarantia() const { return RelacionGarantia; }
  const char* getAdjudicado() const { return Adjudicado; }
  const date& getFechaAdjudicado() const { return FechaAdjudicado; }
  bool Deleted() const { return deleted; }

  /// As in every record; a date that the server does not have is the default one, and the row is not to be
  /// deleted.
  void Fill(int fila);
  /// As in every record; also the row is not to be deleted.
  void Clear();
  bool Check();
  const char* clase() const { return "Bien"; }

 private:
  friend Registro<cBien, EngineVirtual>;

  auto Columnas() {
    return std::tie(BienID, SujetoID, Propietario, DescriBien, Caracteristicas, RegistroPublico,
                    ValorComercial, ValorFiscal, ValorCatastro, DatosHipoteca, RelacionGarantia, Adjudicado,
                    FechaAdjudicado);
  }
  long Clave() const { return BienID; }
  void AlInsertar() { TomaClave(BienID); }

  bool EsAdjudicado() const;

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  /// The columns but the key, as insert and update send them.
  Sentencia SqlColumnas() const;

  long BienID;
  long SujetoID;
  char Propietario[61];
  char DescriBien[61];
  char Caracteristicas[255];
  char RegistroPublico[255];
  float ValorComercial;
  float ValorFiscal;
  float ValorCatastro;
  char DatosHipoteca[256];
  float RelacionGarantia;
  char Adjudicado[4];
  date FechaAdjudicado;
  bool deleted = false;
};
