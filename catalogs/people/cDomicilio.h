// The address of a person. A person carries its own in itself: cSujeto derives from it.
#pragma once

#include "framework/Registro.h"

class cDomicilio : public Registro<cDomicilio, EngineVirtual> {
 public:
  cDomicilio() { Clear(); }
  cDomicilio(long id, int ciudadMexID, long sujetoID, const char* calle, const char* numeroExt,
             const char* numeroInt, const char* colonia, long codPostal, const char* comunidad,
             const char* telDomicilio, long coloniaID, bool dataChanged, bool isNew);

  void setDomicilioID(long valor) { Pon(DomicilioID, valor); }
  void setCiudadMexID(int valor) { Pon(CiudadMexID, valor); }
  /// The person who lives there.
  void setSujetoID(long valor) { Pon(SujetoID, valor); }
  void setCalle(const char* valor) { Pon(Calle, valor); }
  void setNumero_Ext(const char* valor) { Pon(Numero_Ext, valor); }
  void setNumero_Int(const char* valor) { Pon(Numero_Int, valor); }
  /// Name of the neighbourhood, for one that is not in the catalogue.
  void setColonia(const char* valor) { Pon(Colonia, valor); }
  void setCodPostal(long valor) { Pon(CodPostal, valor); }
  void setComunidad(const char* valor) { Pon(Comunidad, valor); }
  void setTelDomicilio(const char* valor) { Pon(TelDomicilio, valor); }
  void setColoniaID(long valor) { Pon(ColoniaID, valor); }

  long getDomicilioID() const { return DomicilioID; }
  int getCiudadMexID() const { return CiudadMexID; }
  long getSujetoID() const { return SujetoID; }
  const char* getCalle() const { return Calle; }
  const char* getNumero_Ext() const { return Numero_Ext; }
  const char* getNumero_Int() const { return Numero_Int; }
  const char* getColonia() const { return Colonia; }
  long getCodPostal() const { return CodPostal; }
  const char* getComunidad() const { return Comunidad; }
  const char* getTelDomicilio() const { return TelDomicilio; }
  long getColoniaID() const { return ColoniaID; }

  /// Always true; traces.
  bool Check();
  /// As in every record, traced, but a refusal of the server passes in silence: the key then stays, and both
  /// flags are false all the same.
  void AddNew();
  /// The same. It never inserts: an address that was not found goes out with key 0.
  void Update();
  /// As in every record, but a refusal passes in silence.
  void Delete();
  /// As in every record, on the reading connection.
  void Find();
  /// Find by the person instead of the key; traced.
  void FindDomicilioSujeto();

 private:
  friend Registro<cDomicilio, EngineVirtual>;

  auto Columnas() {
    return std::tie(DomicilioID, CiudadMexID, SujetoID, Calle, Numero_Ext, Numero_Int, Colonia, CodPostal,
                    Comunidad, TelDomicilio, ColoniaID);
  }
  long Clave() const { return DomicilioID; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  /// The columns but the key, as insert and update send them.
  Sentencia SqlColumnas() const;

  long DomicilioID;
  int CiudadMexID;
  long SujetoID;
  char Calle[41];
  char Numero_Ext[16];
  char Numero_Int[16];
  char Colonia[31];
  long CodPostal;
  char Comunidad[51];
  char TelDomicilio[21];
  long ColoniaID;
};
